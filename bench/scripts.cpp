#include "bench/scripts.h"

#include <cstdio>
#include <cstdlib>

namespace brelt::bench {
namespace {

// The style words that the statements use, for readers that know no style words.
constexpr const char* kStyleDefinitions =
    "#define WS_POPUP 0x80000000\n#define WS_VISIBLE 0x10000000\n#define WS_CAPTION 0xC00000\n"
    "#define WS_SYSMENU 0x80000\n#define WS_TABSTOP 0x10000\n#define WS_GROUP 0x20000\n#define WS_BORDER "
    "0x800000\n"
    "#define WS_VSCROLL 0x200000\n#define ES_AUTOHSCROLL 0x80\n#define LBS_SORT 2\n#define CBS_DROPDOWNLIST "
    "3\n"
    "#define SS_NOPREFIX 0x80\n";
constexpr int kStyleDefinitionCount = 12;

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
  const std::size_t at = text.find(what);
  return at == std::string::npos ? text : text.replace(at, what.size(), by);
}

// A statement in the layout of the usual dialog editors, one of ten kinds in turn.
std::string Statement(int dialog, int number, int definitions) {
  static constexpr const char* kKinds[] = {
      "LTEXT           \"&Name of entry #:\",ID,7,ROW,60,8",
      "EDITTEXT        ID,70,ROW,100,14,ES_AUTOHSCROLL | WS_TABSTOP",
      "PUSHBUTTON      \"Choose entry #...\",ID,175,ROW,50,14",
      "CONTROL         \"Use the #. entry\",ID,\"Button\",WS_TABSTOP | 0x3,7,ROW,90,10",
      "COMBOBOX        ID,70,ROW,100,60,CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP",
      "LISTBOX         ID,7,ROW,160,40,LBS_SORT | WS_VSCROLL | WS_TABSTOP",
      "GROUPBOX        \"Group #\",ID,4,ROW,220,60",
      "RTEXT           \"Total of \"\"entry\"\" #:\",ID,120,ROW,48,8,SS_NOPREFIX",
      "CHECKBOX        \"Check entry #\",ID,7,ROW,90,10,WS_GROUP",
      "DEFPUSHBUTTON   \"OK #\",ID,175,ROW,50,14,NOT WS_TABSTOP",
  };
  const int word = (dialog * kStatements + number) * 7 % definitions;
  std::string line = Replaced(kKinds[number % 10], "ID", "W" + std::to_string(word));
  line = Replaced(line, "ROW", std::to_string(number * 4));
  return "    " + Replaced(line, "#", std::to_string(number)) + "\n";
}

}  // namespace

std::string Definitions(int count) {
  std::string text = kStyleDefinitions;
  for (int i = 0; i < count - kStyleDefinitionCount; ++i) {
    text += "#define W" + std::to_string(i) + "    " + std::to_string(1000 + i) + "\n";
  }
  return text;
}

std::string Dialog(int number, int definitions) {
  std::string text = "FORM" + std::to_string(number) + " DIALOG DISCARDABLE  0, 0, 240, 420\n";
  text +=
      "STYLE WS_POPUP | WS_CAPTION | WS_SYSMENU\nCAPTION \"Form number " + std::to_string(number) + "\"\n";
  text += "FONT 8, \"MS Sans Serif\"\nBEGIN\n";
  for (int i = 0; i < kStatements; ++i) text += Statement(number, i, definitions - kStyleDefinitionCount);
  return text + "END\n";
}

std::string Script(int dialogs, int definitions) {
  std::string text = "// A file of forms for measuring.\n" + Definitions(definitions) + "\n";
  for (int i = 0; i < dialogs; ++i) text += Dialog(i, definitions) + "\n";
  std::string pairs;
  pairs.reserve(text.size() * 103 / 100);
  for (const char c : text) {
    if (c == '\n') pairs += '\r';
    pairs += c;
  }
  return pairs;
}

void WriteScript(const char* name, const std::string& text) {
  std::FILE* file = std::fopen(name, "wb");
  if (file == nullptr || std::fwrite(text.data(), 1, text.size(), file) != text.size()) std::abort();
  std::fclose(file);
}

}  // namespace brelt::bench
