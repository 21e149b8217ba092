// All property calls in two tables. The first has those of a named object with ids: which objects each
// answers for, and what it reports for the others, in the order in which arguments are looked at. The second
// has those that take something else for their object, or know no failure.
#include <algorithm>
#include <cstring>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/win32/support/exportcall.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

// ---- The table ----

// arguments has a letter for each argument behind the name:
//   I  the id
//   t  a text output: buffer and size        z  the same, cleared whole
//   p  a picture output, cleared whole        o  a text output that may be missing
//   n  a number output                        b  a truth output
//   s  a text input   y  a type   a  an array input   m  a picture input
//   v  a number
// objects lists what the call works on, by the words of kObjects; "=code" behind a word is a result other
// than 0.
struct Accessor {
  const char* function;
  const char* arguments;
  const char* objects;
  int32_t unknownWindow = RTX_NO_WINDOW;
};

// The calls of a named object.
constexpr Accessor kAccessors[] = {
    {"GetArrayValue", "Ist", "window"},
    {"SetArrayValue", "Iss", "window"},
    {"GetArrayValues", "Ison", "window"},
    {"SetArrayValues", "Ia", "window"},
    {"GetBackColour", "In", "window shape progressbar"},
    {"SetBackColour", "Iv", "window shape progressbar"},
    {"GetForeColour", "In", "window shape progressbar"},
    {"SetForeColour", "Iv", "window shape progressbar"},
    {"GetBorderStyle", "In", "window control"},
    {"GetCaption", "It", "window button static iconlist item"},
    {"SetCaption", "Is", "window button static iconlist item"},
    {"GetChecked", "Ib", "item"},
    {"SetChecked", "Iv", "item"},
    {"GetCombostyle", "In", "combo"},
    {"GetCombotext", "It", "combo"},
    {"SetCombotext", "Is", "combo"},
    {"GetEnabled", "Ib", "window control item"},
    {"SetEnabled", "Iv", "control item"},
    {"GetFlags", "n", "window"},
    {"SetFlags", "v", "window"},
    {"GetList", "Ivzy", "list combo"},
    {"SetList", "Ivsy", "list combo"},
    {"GetListCount", "In", "list combo"},
    {"GetListIndex", "In", "list combo"},
    {"SetListIndex", "Iv", "list combo"},
    {"GetMax", "In", "scrollbar progressbar"},
    {"SetMax", "Iv", "scrollbar progressbar"},
    {"GetMin", "In", "scrollbar progressbar"},
    {"SetMin", "Iv", "scrollbar progressbar"},
    {"GetMaxLength", "In", "field combo"},
    {"SetMaxLength", "Iv", "field combo"},
    {"GetMaxPosition", "Ivnnnn", "window"},
    {"SetMaxPosition", "Ivvvvv", "window"},
    {"GetMinPosition", "Ivnnnn", "window"},
    {"SetMinPosition", "Ivvvvv", "window"},
    {"GetModify", "Ib", "editwindow field"},
    {"SetModify", "Iv", "editwindow field"},
    {"GetPasswordChar", "In", "field"},
    {"SetPasswordChar", "Iv", "field"},
    {"GetPicture", "Ip", "window picture"},
    // A window can't have a canvas yet.
    {"SetPicture", "Im", "window=709 picture"},
    {"GetPosition", "Ivnnnn", "window control"},
    {"SetPosition", "Ivvvvv", "window control"},
    {"GetReadonly", "Ib", "field"},
    {"GetSelection", "Inn", "editwindow field"},
    {"SetSelection", "Ivv", "editwindow field"},
    {"GetSelText", "It", "editwindow field"},
    {"SetSelText", "Is", "editwindow field"},
    {"GetText", "It", "editwindow field"},
    {"SetText", "Is", "editwindow field"},
    {"GetTextLength", "In", "editwindow field"},
    {"GetTokens", "It", "editwindow"},
    {"SetTokens", "Is", "editwindow"},
    {"GetValue", "In", "button scrollbar progressbar bitmapbutton"},
    {"SetValue", "Iv", "button scrollbar progressbar bitmapbutton"},
    // A window that isn't there isn't visible.
    {"GetVisible", "Ib", "window control", RTX_OK},
    {"SetVisible", "Iv", "control"},
    {"GetWindowState", "In", "window"},
    {"SetWindowState", "Iv", "window"},
};

// The calls whose object is a name that nobody needs to have, a window's handle, or a picture.
enum class Kind { kName, kHandle, kPicture };
struct Unnamed {
  Accessor accessor;
  Kind kind;
  // What the call returns for the printer, which is the null handle, and for a handle that is no window.
  int32_t printer = RTX_OK;
  int32_t noWindow = RTX_OK;
};

constexpr Unnamed kUnnamed[] = {
    {{"GetCurrentX", "n", ""}, Kind::kHandle},
    {{"SetCurrentX", "v", ""}, Kind::kHandle},
    {{"GetCurrentY", "n", ""}, Kind::kHandle},
    {{"SetCurrentY", "v", ""}, Kind::kHandle},
    {{"GetFontName", "o", ""}, Kind::kHandle},
    {{"SetFontName", "s", ""}, Kind::kHandle, RTX_NO_PRINTER, RTX_NO_WINDOW},
    {{"GetFontSize", "n", ""}, Kind::kHandle},
    {{"SetFontSize", "v", ""}, Kind::kHandle, RTX_NO_PRINTER, RTX_NO_WINDOW},
    {{"GetFontBold", "b", ""}, Kind::kHandle},
    {{"SetFontBold", "v", ""}, Kind::kHandle, RTX_NO_PRINTER, RTX_NO_WINDOW},
    {{"GetFontItalic", "b", ""}, Kind::kHandle},
    {{"SetFontItalic", "v", ""}, Kind::kHandle, RTX_NO_PRINTER, RTX_NO_WINDOW},
    {{"GetPageHeight", "n", ""}, Kind::kName},
    {{"GetPageWidth", "n", ""}, Kind::kName},
    {{"GetPhysicalHeight", "n", ""}, Kind::kName},
    {{"GetPhysicalWidth", "n", ""}, Kind::kName},
    {{"GetPhysicalOffsetX", "n", ""}, Kind::kName},
    {{"GetPhysicalOffsetY", "n", ""}, Kind::kName},
    {{"GetBitmapInfo", "nnnnn", ""}, Kind::kPicture},
};

// The calls that have nothing that could be missing or wrong: their value is their result.
constexpr const char* kPlainCalls[] = {"GetDpiX", "GetDpiY", "GetPage", "GetPrinterStatus"};

struct Object {
  const char* name;  // of the window
  int32_t id;
  std::set<std::string> words;
};

const std::vector<Object>& Objects() {
  static const std::vector<Object> objects = {
      {kFormName, 0, {"window"}},
      {"Plain", 0, {"window", "editwindow"}},
      {"Rich", 0, {"window", "editwindow"}},
      {kFormName, kPush, {"control", "button"}},
      {kFormName, kCheck, {"control", "button"}},
      {kFormName, kAutoCheck, {"control", "button"}},
      {kFormName, kRadio, {"control", "button"}},
      {kFormName, kAutoRadio, {"control", "button"}},
      {kFormName, kGroupBox, {"control", "button"}},
      {kFormName, kLabel, {"control", "static"}},
      {kFormName, kIcon, {"control", "static"}},
      {kFormName, kField, {"control", "field"}},
      {kFormName, kListBox, {"control", "list"}},
      {kFormName, kDropDown, {"control", "combo"}},
      {kFormName, kSimple, {"control", "combo"}},
      {kFormName, kDropDownList, {"control", "combo"}},
      {kFormName, kScrollBar, {"control", "scrollbar"}},
      {kFormName, kShape, {"control", "shape"}},
      {kFormName, kProgressBar, {"control", "progressbar"}},
      {kFormName, kImage, {"control", "picture"}},
      {kFormName, kBitmapButton, {"control", "picture", "bitmapbutton"}},
      {kFormName, kIconList, {"control", "list", "iconlist"}},
      {kFormName, kItem, {"item"}},
  };
  return objects;
}

bool TakesId(const Accessor& accessor) { return accessor.arguments[0] == 'I'; }

// ---- What a call must report ----

int32_t CodeOfMissing(char argument) {
  switch (argument) {
    case 'b':
      return RTX_NULL_BOOL;
    case 'n':
      return RTX_NULL_INT;
    case 'a':
      return RTX_NULL_ARRAY;
    case 'p':
      return RTX_BAD_PICTURE;
    case 't':
    case 'z':
    case 's':
    case 'y':
    case 'm':
      return RTX_NULL_ARG;
    default:
      return RTX_OK;
  }
}

int32_t CodeOfObject(const Accessor& accessor, const Object& object) {
  std::istringstream list(accessor.objects);
  for (std::string word; list >> word;) {
    const std::size_t equals = word.find('=');
    if (object.words.count(word.substr(0, equals)) == 0) continue;
    return equals == std::string::npos ? RTX_OK : std::stoi(word.substr(equals + 1));
  }
  return RTX_WRONG_KIND;
}

// ---- The call ----

// The arguments of a call: outputs that are neither zero nor text, inputs that are harmless.
class CallArguments {
 public:
  // object is the first argument: a name, but for the calls of the second table. missing has the numbers of
  // the arguments that are null, counted from 0 behind it.
  CallArguments(const Accessor& accessor, const void* object, int32_t id, const std::set<int>& missing)
      : accessor_(accessor) {
    std::memset(memory_, kFill, sizeof memory_);
    words_.push_back(reinterpret_cast<uint32_t>(object));
    for (int i = 0; accessor.arguments[i] != '\0'; ++i)
      Add(accessor.arguments[i], i, id, missing.count(i) != 0);
  }

  int32_t Call() {
    FARPROC function = GetProcAddress(GetModuleHandleA("brelt.dll"), accessor_.function);
    if (function == nullptr) return -1;
    const CallOutcome outcome = CallExport(reinterpret_cast<void*>(function), words_, 0);
    EXPECT_EQ(outcome.poppedBytes, static_cast<int>(4 * words_.size()));
    return static_cast<int32_t>(outcome.result);
  }

  // Whether the outputs are as a failing call leaves them; with success, whether they have been cleared and
  // perhaps filled since.
  void CheckOutputs(bool success) const {
    for (const Output& output : outputs_) {
      SCOPED_TRACE(std::string("output ") + output.kind);
      const char* begin = memory_[output.row];
      switch (output.kind) {
        case 'n':
          CheckCleared<int32_t>(begin, success);
          break;
        case 'b':
          CheckCleared<uint8_t>(begin, success);
          break;
        case 'z':
        case 'p':
          EXPECT_TRUE(std::all_of(begin, begin + kSize, [](char c) { return c == '\0'; }));
          break;
        default:
          EXPECT_TRUE(success || *begin == '\0');
          EXPECT_NE(std::memchr(begin, '\0', kSize), nullptr);
      }
      EXPECT_EQ(begin[UsedBytes(output.kind)], kFill);
    }
  }

 private:
  static constexpr int kSize = 64;
  static constexpr char kFill = '\x5A';
  struct Output {
    char kind;
    int row;
  };

  static int UsedBytes(char kind) { return kind == 'n' ? 4 : kind == 'b' ? 1 : kSize; }

  template <typename T>
  static void CheckCleared(const char* bytes, bool success) {
    T value;
    T fill;
    std::memcpy(&value, bytes, sizeof value);
    std::memset(&fill, kFill, sizeof fill);
    EXPECT_NE(value, fill);
    if (!success) {
      EXPECT_EQ(value, 0);
    }
  }

  void Add(char kind, int number, int32_t id, bool missing) {
    static const std::string picture = PackedPicture(2, 2, 'p');
    switch (kind) {
      case 'I':
        return words_.push_back(static_cast<uint32_t>(id));
      case 'v':
        return words_.push_back(0);
      case 's':
        return AddPointer("a=b", missing);
      case 'a':
        return AddPointer("a=b\0", missing);
      case 'y':
        return AddPointer("String", missing);
      case 'm':
        return AddPointer(picture.data(), missing);
      default:
        AddPointer(memory_[number], missing);
        if (!missing) outputs_.push_back({kind, number});
        if (kind != 'n' && kind != 'b') words_.push_back(kSize);
    }
  }
  void AddPointer(const void* pointer, bool missing) {
    words_.push_back(missing ? 0 : reinterpret_cast<uint32_t>(pointer));
  }

  const Accessor& accessor_;
  char memory_[8][kSize + 8];
  std::vector<uint32_t> words_;
  std::vector<Output> outputs_;
};

std::string Show(const char* text) { return text != nullptr ? text : "null"; }

class AccessorTest : public PropertyTest {
 protected:
  void SetUp() override {
    PropertyTest::SetUp();
    plain_ = std::make_unique<EditFrame>(kPlainFrameClass, "Plain");
    rich_ = std::make_unique<EditFrame>(kRichFrameClass, "Rich");
  }

  static void Expect(const Accessor& accessor, const char* name, int32_t id, const std::set<int>& missing,
                     int32_t code) {
    std::string what = std::string(accessor.function) + "(" + Show(name) + ", " + std::to_string(id) + ")";
    for (const int number : missing) what += " without argument " + std::to_string(number);
    SCOPED_TRACE(what);
    CallArguments arguments(accessor, name, id, missing);
    EXPECT_EQ(arguments.Call(), code);
    arguments.CheckOutputs(code == RTX_OK);
  }

 private:
  std::unique_ptr<EditFrame> plain_;
  std::unique_ptr<EditFrame> rich_;
};

TEST_F(AccessorTest, AnswersForItsObjectsAndRefusesTheOthersWith703) {
  for (const Accessor& accessor : kAccessors) {
    for (const Object& object : Objects()) {
      if (object.id != 0 && !TakesId(accessor)) continue;
      Expect(accessor, object.name, object.id, {}, CodeOfObject(accessor, object));
    }
  }
}

TEST_F(AccessorTest, AnswersForTheControlWhereAMenuItemHasItsId) {
  for (int32_t id = kPush; id <= kIconList; ++id) {
    ASSERT_TRUE(AppendMenuA(GetSubMenu(menu(), 0), MF_STRING, static_cast<UINT_PTR>(id), "same"));
  }
  for (const Accessor& accessor : kAccessors) {
    for (const Object& object : Objects()) {
      if (object.words.count("control") == 0 || !TakesId(accessor)) continue;
      Expect(accessor, object.name, object.id, {}, CodeOfObject(accessor, object));
    }
  }
}

TEST_F(AccessorTest, Reports727ForAnIdOfNothing) {
  for (const Accessor& accessor : kAccessors) {
    if (!TakesId(accessor)) continue;
    for (const int32_t id : {int32_t{kUnknown}, -1, INT32_MIN, INT32_MAX}) {
      for (const char* name : {kFormName, "PROPS", "Plain", "Rich"}) {
        Expect(accessor, name, id, {}, RTX_NO_ITEM);
      }
    }
  }
}

TEST_F(AccessorTest, Reports702ForANameOfNothingWhateverTheId) {
  for (const Accessor& accessor : kAccessors) {
    for (const int32_t id : {int32_t{0}, int32_t{kPush}, int32_t{kItem}, int32_t{kUnknown}}) {
      for (const char* name : {"nobody", "", "Props ", "0x", "0x1G"}) {
        Expect(accessor, name, id, {}, accessor.unknownWindow);
      }
    }
  }
}

// The arguments of an accessor that must be there, in the order in which they are looked at.
std::vector<int> NeededArguments(const Accessor& accessor) {
  std::vector<int> needed;
  for (int i = 0; accessor.arguments[i] != '\0'; ++i) {
    if (CodeOfMissing(accessor.arguments[i]) != RTX_OK) needed.push_back(i);
  }
  return needed;
}

TEST_F(AccessorTest, ReportsTheFirstNullArgumentAheadOfAMissingWindowAndOfTheId) {
  for (const Accessor& accessor : kAccessors) {
    const std::vector<int> needed = NeededArguments(accessor);
    for (unsigned chosen = 1; chosen < 1u << needed.size(); ++chosen) {
      std::set<int> missing;
      for (std::size_t i = 0; i < needed.size(); ++i) {
        if ((chosen >> i & 1) != 0) missing.insert(needed[i]);
      }
      const int32_t code = CodeOfMissing(accessor.arguments[*missing.begin()]);
      for (const char* name : {kFormName, "Plain", "nobody"}) {
        for (const int32_t id : {int32_t{0}, int32_t{kField}, int32_t{kItem}, int32_t{kUnknown}}) {
          Expect(accessor, name, id, missing, code);
        }
      }
    }
  }
}

TEST_F(AccessorTest, ReportsANullNameAheadOfEverything) {
  for (const Accessor& accessor : kAccessors) {
    const std::vector<int> needed = NeededArguments(accessor);
    for (unsigned chosen = 0; chosen < 1u << needed.size(); ++chosen) {
      std::set<int> missing;
      for (std::size_t i = 0; i < needed.size(); ++i) {
        if ((chosen >> i & 1) != 0) missing.insert(needed[i]);
      }
      for (const int32_t id : {int32_t{0}, int32_t{kField}, int32_t{kUnknown}}) {
        Expect(accessor, nullptr, id, missing, RTX_NULL_ARG);
      }
    }
  }
}

DWORD WINAPI CallAllFromAnotherThread(LPVOID) {
  for (const Accessor& accessor : kAccessors) {
    for (const char* name : {kFormName, "Plain"}) {
      SCOPED_TRACE(accessor.function);
      CallArguments arguments(accessor, name, kField, {});
      EXPECT_EQ(arguments.Call(), accessor.unknownWindow);
      arguments.CheckOutputs(false);
    }
  }
  return 0;
}

TEST_F(AccessorTest, FindsNoWindowOfAnotherThread) {
  HANDLE thread = CreateThread(nullptr, 0, CallAllFromAnotherThread, nullptr, 0, nullptr);
  ASSERT_EQ(WaitForSingleObject(thread, 60000), WAIT_OBJECT_0);
  CloseHandle(thread);
}

// ---- Objects that aren't named ----

// What stands for the object of a call, and what the call then returns.
struct Standin {
  const void* object;
  int32_t code;
};

std::vector<Standin> StandinsOf(const Unnamed& call) {
  static HWND gone = [] {
    HWND window = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(window);
    return window;
  }();
  switch (call.kind) {
    case Kind::kName:
      return {{nullptr, RTX_OK}, {"", RTX_OK}, {"nobody", RTX_OK}, {"PRINTER", RTX_OK}, {kFormName, RTX_OK}};
    case Kind::kHandle:
      return {{nullptr, call.printer},
              {gone, call.noWindow},
              {reinterpret_cast<const void*>(0xDEAD), call.noWindow}};
    default:
      return {{nullptr, RTX_OK}, {"a text that is no picture, whatever its length", RTX_OK}};
  }
}

TEST_F(AccessorTest, OfAnObjectThatIsntThereClearsItsOutputsWhicheverAreMissing) {
  for (const Unnamed& call : kUnnamed) {
    const int count = static_cast<int>(std::strlen(call.accessor.arguments));
    for (const Standin& standin : StandinsOf(call)) {
      for (unsigned chosen = 0; chosen < 1u << count; ++chosen) {
        std::set<int> missing;
        for (int i = 0; i < count; ++i) {
          if ((chosen >> i & 1) != 0) missing.insert(i);
        }
        SCOPED_TRACE(::testing::Message()
                     << call.accessor.function << " of " << standin.object << ", missing " << chosen);
        CallArguments arguments(call.accessor, standin.object, 0, missing);
        // A null text asks for no change, which nothing can refuse.
        const bool asksNothing = call.accessor.arguments[0] == 's' && !missing.empty();
        EXPECT_EQ(arguments.Call(), asksNothing ? int32_t{RTX_OK} : standin.code);
        arguments.CheckOutputs(false);
      }
    }
  }
}

// ---- The tables are whole ----

// Functions that begin like property calls and are none: who an object is, and the settings of the library.
bool IsOtherCall(const std::string& function) {
  static const std::set<std::string> others = {"GetHandle",    "GetName",       "GetTypeof",
                                               "GetFuncptr",   "GetOptionBase", "SetOptionBase",
                                               "GetUserBreak", "SetUserBreak",  "GetProductInformation",
                                               "SetTrace"};
  return others.count(function) != 0;
}

TEST(AccessorTable, HasEveryProperty) {
  std::set<std::string> named;
  for (const Accessor& accessor : kAccessors) named.insert(accessor.function);
  for (const Unnamed& call : kUnnamed) named.insert(call.accessor.function);
  for (const char* function : kPlainCalls) named.insert(function);
  std::ifstream file(ProgramFolder() + "exports.tsv");
  ASSERT_TRUE(file.is_open());
  std::set<std::string> listed;
  for (std::string line; std::getline(file, line);) {
    std::istringstream fields(line);
    std::string function;
    fields >> function;
    const bool isProperty = function.starts_with("Get") || function.starts_with("Set");
    if (isProperty && !IsOtherCall(function)) listed.insert(function);
  }
  EXPECT_EQ(named, listed);
  EXPECT_EQ(named.size(), std::size(kAccessors) + std::size(kUnnamed) + std::size(kPlainCalls));
}

}  // namespace
}  // namespace brelt::test
