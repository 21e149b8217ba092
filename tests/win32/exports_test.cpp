// The exports of the DLL against the list of all that there will be, and against what the header declares.
#include <brelt.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/win32/support/exportcall.h"
#include "tests/win32/support/forms.h"

namespace brelt::test {
namespace {

// ---- The list ----

struct Listed {
  std::string exported;   // as the DLL names it
  std::string function;   // as C names it
  int bytes;              // of its arguments
  std::string result;     // type
  std::string arguments;  // "name:type, ..." in calling order
};

std::vector<std::string> Split(const std::string& text, const std::string& separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (;;) {
    const std::size_t end = text.find(separator, start);
    parts.push_back(text.substr(start, end - start));
    if (end == std::string::npos) return parts;
    start = end + separator.size();
  }
}

std::vector<Listed> ReadList() {
  std::vector<Listed> list;
  std::ifstream file(ProgramFolder() + "exports.tsv");
  std::string line;
  std::getline(file, line);  // the headings
  while (std::getline(file, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::vector<std::string> fields = Split(line, "\t");
    if (fields.size() < 4) continue;
    list.push_back(
        {fields[0], fields[1], std::stoi(fields[2]), fields[3], fields.size() > 4 ? fields[4] : ""});
  }
  return list;
}

const std::vector<Listed>& List() {
  static const std::vector<Listed> list = ReadList();
  return list;
}

// ---- What the header declares ----

// The type of an argument or result in the words of the list. Types of one size and kind that the list tells
// apart have one word here.
template <typename T>
std::string TypeWord() {
  using Plain = std::remove_cv_t<T>;
  if constexpr (std::is_void_v<Plain>) {
    return "void";
  } else if constexpr (std::is_same_v<Plain, HWND> || std::is_same_v<Plain, HMODULE> ||
                       std::is_same_v<Plain, HDC> || std::is_same_v<Plain, HKEY>) {
    return "handle";
  } else if constexpr (std::is_pointer_v<Plain>) {
    using Target = std::remove_pointer_t<Plain>;
    if constexpr (std::is_same_v<Target, const char>) {
      return "text";
    } else if constexpr (std::is_void_v<Target> || std::is_function_v<Target>) {
      return "pointer";
    } else {
      return TypeWord<Target>() + "*";
    }
  } else if constexpr (std::is_integral_v<Plain> && sizeof(Plain) == 4) {
    return std::is_signed_v<Plain> ? "int32" : "uint32";
  } else if constexpr (std::is_same_v<Plain, char>) {
    return "char";
  } else if constexpr (std::is_integral_v<Plain>) {
    return "int" + std::to_string(8 * sizeof(Plain));
  } else {
    return "record";
  }
}

struct Declared {
  std::string function;
  int bytes;
  std::string result;
  std::vector<std::string> arguments;
};

template <typename T>
constexpr int kStackBytes = (static_cast<int>(sizeof(T)) + 3) / 4 * 4;

template <typename Result, typename... Arguments>
Declared Describe(const char* name, Result(__stdcall*)(Arguments...)) {
  return {name, (kStackBytes<Arguments> + ... + 0), TypeWord<Result>(), {TypeWord<Arguments>()...}};
}

const std::map<std::string, Declared>& Header() {
  static const std::map<std::string, Declared> header = {
#define DECLARED(name) {#name, Describe(#name, &::name)},
#include "declaredexports.inc"
#undef DECLARED
  };
  return header;
}

// A word of the list in the words of TypeWord.
std::string ListedWord(std::string word) {
  static const std::map<std::string, std::string> same = {
      {"HWND", "handle"},   {"HMODULE", "handle"}, {"HDC", "handle"},       {"HKEY", "handle"},
      {"LRESULT", "int32"}, {"BOOL", "int32"},     {"block", "text"},       {"byte", "int8"},
      {"word", "uint32"},   {"RECT", "record"},    {"uint32[2]", "uint32*"}};
  if (const auto found = same.find(word); found != same.end()) return found->second;
  if (word.ends_with("*")) return ListedWord(word.substr(0, word.size() - 1)) + "*";
  return word;
}

std::vector<std::string> ListedArguments(const Listed& row) {
  std::vector<std::string> words;
  if (row.arguments.empty()) return words;
  for (const std::string& argument : Split(row.arguments, ", ")) {
    words.push_back(ListedWord(argument.substr(argument.find(':') + 1)));
  }
  return words;
}

// Whether a declared type is what the list asks for. A pointer whose target the list leaves open may have
// any.
bool Agrees(const std::string& declared, const std::string& listed) {
  if (declared == listed) return true;
  const bool isPointer = declared == "pointer" || declared == "text" || declared.ends_with("*");
  return listed.starts_with("pointer") && isPointer;
}

// ---- What the DLL exports ----

HMODULE Library() { return GetModuleHandleA("brelt.dll"); }

const IMAGE_EXPORT_DIRECTORY& ExportDirectory() {
  const auto* base = reinterpret_cast<const BYTE*>(Library());
  const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& place = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
  return *reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + place.VirtualAddress);
}

std::set<std::string> ExportedNames() {
  const auto* base = reinterpret_cast<const BYTE*>(Library());
  const IMAGE_EXPORT_DIRECTORY& directory = ExportDirectory();
  const auto* names = reinterpret_cast<const DWORD*>(base + directory.AddressOfNames);
  std::set<std::string> exported;
  for (DWORD i = 0; i < directory.NumberOfNames; ++i)
    exported.insert(reinterpret_cast<const char*>(base + names[i]));
  return exported;
}

std::vector<Listed> ListedAndExported() {
  const std::set<std::string> exported = ExportedNames();
  std::vector<Listed> rows;
  std::copy_if(List().begin(), List().end(), std::back_inserter(rows),
               [&](const Listed& row) { return exported.count(row.exported) != 0; });
  return rows;
}

void* AddressOf(const Listed& row) {
  return reinterpret_cast<void*>(GetProcAddress(Library(), row.exported.c_str()));
}

TEST(ExportList, HasAllOfThem) { EXPECT_EQ(List().size(), 215u); }

TEST(ExportList, NamesEachExportOfTheDll) {
  std::set<std::string> listed;
  for (const Listed& row : List()) listed.insert(row.exported);
  for (const std::string& name : ExportedNames()) EXPECT_EQ(listed.count(name), 1u) << name;
}

TEST(ExportList, IsExportedAsFarAsTheHeaderDeclaresIt) {
  const std::set<std::string> exported = ExportedNames();
  std::set<std::string> listed;
  for (const Listed& row : List()) {
    listed.insert(row.function);
    EXPECT_EQ(exported.count(row.exported), Header().count(row.function)) << row.exported;
  }
  for (const auto& [name, declared] : Header()) EXPECT_EQ(listed.count(name), 1u) << name;
}

TEST(ExportList, GivesEachExportAName) {
  const IMAGE_EXPORT_DIRECTORY& directory = ExportDirectory();
  EXPECT_EQ(directory.NumberOfFunctions, directory.NumberOfNames);
}

TEST(ExportList, AgreesWithTheDeclaredTypes) {
  for (const Listed& row : List()) {
    const auto found = Header().find(row.function);
    if (found == Header().end()) continue;
    const Declared& declared = found->second;
    SCOPED_TRACE(row.function + "(" + row.arguments + ")");
    EXPECT_EQ(declared.bytes, row.bytes);
    EXPECT_TRUE(Agrees(declared.result, ListedWord(row.result)))
        << declared.result << ", listed " << row.result;
    const std::vector<std::string> arguments = ListedArguments(row);
    ASSERT_EQ(declared.arguments.size(), arguments.size());
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      // The platform hands the context of an enumeration over as a number.
      if (row.function.starts_with("Enum_") && i == 1 && declared.arguments[i] == TypeWord<LPARAM>())
        continue;
      EXPECT_TRUE(Agrees(declared.arguments[i], arguments[i]))
          << "argument " << i + 1 << ": " << declared.arguments[i] << ", listed " << arguments[i];
    }
  }
}

// ---- Calls ----

// The arguments with which an export is called here: zeros, unless those would make it wait for somebody.
std::vector<uint32_t> HarmlessArguments(const Listed& row) {
  static const std::map<std::string, std::vector<uint32_t>> others = {};
  const auto found = others.find(row.function);
  const auto words = static_cast<std::size_t>(row.bytes) / 4;
  return found != others.end() ? found->second : std::vector<uint32_t>(words, 0);
}

class ExportCallTest : public FormTest {
 protected:
  void TearDown() override {
    SetTrace(0);
    SetOptionBase(1);
    std::remove("C:\\trace.txt");
    FormTest::TearDown();
  }
};

TEST_F(ExportCallTest, TakesItsArgumentsOffTheStackHoweverThatIsAligned) {
  for (const Listed& row : ListedAndExported()) {
    for (int shift = 0; shift < 4; ++shift) {
      SCOPED_TRACE(row.exported + " with the stack shifted by " + std::to_string(shift));
      EXPECT_EQ(CallExport(AddressOf(row), HarmlessArguments(row), shift).poppedBytes, row.bytes);
    }
  }
}

// What a call leaves in the trace file.
std::string TraceOf(const Listed& row) {
  static const std::set<std::string> silent = {
      "SetTrace",     "GetUserBreak",   "SetUserBreak",    "RaiseGuiRtx",     "FindWindowHandle",
      "CommClose",    "CommFlush",      "CommGetError",    "CommGetTimeouts", "CommOpen",
      "CommReadByte", "CommReadString", "CommSetTimeouts", "CommWriteByte",   "CommWriteString",
      "Int64Add",     "Int64Div",       "Int64Mul",        "Int64Sub",        "MsgBox",
      "MsgBoxEx",     "InputBox",       "ListBox"};
  // Window procedures and callbacks have decorated names.
  if (row.exported.starts_with("_") || silent.count(row.function) != 0) return "";
  std::string trace = row.function + "\r\n";
  if (row.function == "MainLoop") {
    trace += "MainLoop:Calling main message loop\r\nMainLoop:Ending main message loop\r\n";
  }
  return trace;
}

TEST_F(ExportCallTest, TracesItsOwnNameOnceOrNothing) {
  for (const Listed& row : ListedAndExported()) {
    SCOPED_TRACE(row.exported);
    std::remove("C:\\trace.txt");
    SetTrace(2);
    CallExport(AddressOf(row), HarmlessArguments(row), 0);
    SetTrace(0);
    EXPECT_EQ(ReadTestFile("C:\\trace.txt"), TraceOf(row));
  }
}

}  // namespace
}  // namespace brelt::test
