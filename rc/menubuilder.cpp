#include "rc/menubuilder.h"

#include <cstring>

#include "rc/filename.h"
#include "rc/locate.h"
#include "rc/tokenreader.h"

namespace brelt::rc {
namespace {

class MenuBuilder : TokenReader {
 public:
  MenuBuilder(const char* text, const SymbolIndex& symbols, AcceleratorTable& accelerators,
              Failure& failure) noexcept
      : TokenReader(text), symbols_(symbols), accelerators_(accelerators), failure_(failure) {}

  host::MenuHandle* Build() noexcept {
    host::MenuHandle* menu = BuildBar();
    if (!failure_) return menu;
    if (menu != nullptr) host::DestroyMenuTree(menu);
    AppendPlace(failure_.message);
    return nullptr;
  }

 private:
  // Fails unless the token in hand is the keyword.
  bool Expect(std::string_view keyword, std::string_view failure) noexcept {
    if (!TokenIs(keyword)) failure_.Set(RTX_MENU_SYNTAX, failure);
    return !failure_;
  }
  // Fails unless the platform had room for a menu or an entry: one that silently lacks something would be
  // worse than none.
  bool Require(bool had) noexcept {
    if (!had) failure_.Set(RTX_NO_MEMORY, kMenuNoMemory);
    return had;
  }

  host::MenuHandle* BuildBar() noexcept;
  void BuildElements(host::MenuHandle* menu) noexcept;
  void BuildItem(host::MenuHandle* menu) noexcept;
  void BuildPopup(host::MenuHandle* parent) noexcept;
  std::int32_t ReadCommand() noexcept;
  void AddTitleKeys(host::MenuHandle* menu) noexcept;

  const SymbolIndex& symbols_;
  AcceleratorTable& accelerators_;
  Failure& failure_;
  Token itemText_;
};

// name "MENU" {load option} "BEGIN" {element} "END"
host::MenuHandle* MenuBuilder::BuildBar() noexcept {
  Next();
  Next();
  if (!Expect("MENU", "MENU expected")) return nullptr;
  NextBehindLoadOptions();
  if (!Expect("BEGIN", "BEGIN expected")) return nullptr;
  host::MenuHandle* menu = host::MakeMenu();
  if (!Require(menu != nullptr)) return nullptr;
  BuildElements(menu);
  if (!failure_) AddTitleKeys(menu);
  return menu;
}

// {item | popup} "END". A statement of another kind ends the elements, and is then no END.
void MenuBuilder::BuildElements(host::MenuHandle* menu) noexcept {
  Next();
  while (!failure_ && (TokenIs("MENUITEM") || TokenIs("POPUP"))) {
    if (TokenIs("POPUP")) {
      BuildPopup(menu);
    } else {
      BuildItem(menu);
    }
    if (!failure_) Next();
  }
  if (!failure_) Expect("END", "END expected");
}

// "MENUITEM" ("SEPARATOR" | string "," identifier options). A faulty item is appended like any other: the
// whole menu goes then.
void MenuBuilder::BuildItem(host::MenuHandle* menu) noexcept {
  Next();
  if (TokenIs("SEPARATOR")) {
    Require(host::AppendItem(menu, kMenuSeparator, 0, nullptr));
    return;
  }
  if (!TokenIsString()) return failure_.Set(RTX_MENU_SYNTAX, kMenuStringExpected);
  token_.Assign(StringBody(token_.view()));
  UnescapeText(token_.c_str(), itemText_);
  Next();
  if (!TokenIs(",")) return failure_.Set(RTX_MENU_SYNTAX, kMenuCommaExpected);
  const std::int32_t command = ReadCommand();
  const std::uint32_t options = ReadMenuOptions(text_, position_, failure_);
  Require(host::AppendItem(menu, options, command, itemText_.c_str()));
  AddAccelerators(itemText_.c_str(), command, accelerators_);
}

// A number stands for itself, 0 included; a word needs a #define, the common identifiers too.
std::int32_t MenuBuilder::ReadCommand() noexcept {
  Next();
  if (IsDigitOrSign(*token_.c_str())) return DecimalValue(token_.c_str());
  const std::int32_t command = FindSymbolValue(symbols_, token_.c_str());
  if (command == 0) {
    FoldToUpper(token_.data());
    failure_.Set(RTX_UNDEFINED_ID, "Menu command identifier not defined: ", token_.view());
  }
  return command;
}

// "POPUP" any options "BEGIN" {element} "END". Whatever token stands for the title loses its first and last
// character, and escapes in it reach the menu bar as written: titles have always been shown so.
// No text is kept on the stack here: a file may nest thousands of popups.
void MenuBuilder::BuildPopup(host::MenuHandle* parent) noexcept {
  Next();
  const std::string_view token = token_.view();
  token_.Assign(token.size() > 2 ? token.substr(1, token.size() - 2) : std::string_view());
  const std::uint32_t options = ReadMenuOptions(text_, position_, failure_) | kMenuPopup;
  if (failure_) return;
  host::MenuHandle* popup = host::MakePopupMenu();
  if (!Require(popup != nullptr)) return;
  if (!Require(host::AppendPopup(parent, options, popup, token_.c_str()))) {
    return host::DestroyMenuTree(popup);
  }
  Next();
  if (Expect("BEGIN", "BEGIN expected")) BuildElements(popup);
}

// Alt and the letter behind the first & of a title open the menu bar there. A digit gets no row.
void MenuBuilder::AddTitleKeys(host::MenuHandle* menu) noexcept {
  const int count = host::CountItems(menu);
  for (int position = 0; position < count; ++position) {
    Token title;
    host::ItemTextAt(menu, position, title);
    const char* mark = std::strchr(title.c_str(), '&');
    if (mark == nullptr || !IsLetter(mark[1])) continue;
    FixedText<15> keys;
    keys.Format("\t Alt+%c", ToUpper(mark[1]));
    AddAccelerators(keys.c_str(), 0, accelerators_);
  }
}

}  // namespace

host::MenuHandle* BuildMenu(const char* text, const SymbolIndex& symbols, AcceleratorTable& accelerators,
                            Failure& failure) noexcept {
  failure = {};
  return MenuBuilder(text, symbols, accelerators, failure).Build();
}

host::MenuHandle* BuildMenuFromFile(const char* fileName, const char* menuName, const SymbolIndex& symbols,
                                    AcceleratorTable& accelerators, Failure& failure) noexcept {
  failure = {};
  for (AcceleratorRow& row : accelerators) row = {};
  if (IsEmpty(menuName) || IsEmpty(fileName)) return nullptr;

  FixedText<63> prefix;
  prefix.Format("Menu <%-.*s>, ", kNameLength, menuName);
  const host::Block<char> text(kResourceTextSize);
  const auto fail = [&failure](std::int32_t code, const char* first,
                               const char* second) -> host::MenuHandle* {
    failure.Set(code, first, second);
    return nullptr;
  };
  if (!text) return fail(RTX_NO_MEMORY, prefix.c_str(), "not enough memory to create menu");
  if (!IsAcceptedFileName(fileName)) return fail(RTX_RESOURCE_FILE, BadFileNameMessage(fileName).c_str(), "");
  if (FileSizeOf(fileName) < 0) return fail(RTX_RESOURCE_FILE, MissingFileMessage(fileName).c_str(), "");
  if (LocateResource(fileName, menuName, "MENU", {text.get(), kResourceTextSize}) == 0) {
    return fail(RTX_NO_MENU, prefix.c_str(), "cannot be found in resource file");
  }
  host::MenuHandle* menu = BuildMenu(text.get(), symbols, accelerators, failure);
  if (failure) failure.Prefix(prefix.view());
  return menu;
}

}  // namespace brelt::rc
