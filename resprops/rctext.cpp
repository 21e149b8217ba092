#include "resprops/rctext.h"

#include <algorithm>

#include "rc/menuoptions.h"
#include "rc/statements.h"
#include "resprops/escape.h"

namespace brelt::resprops {
namespace {

using StyleText = rc::FixedText<1024>;

// Appends the pieces of statements at one indent.
class Pieces {
 public:
  Pieces(int indent, rc::TextWriter& text) noexcept : indent_(indent), text_(text) {}

  Pieces& Put(std::string_view piece) noexcept {
    AppendWrapped(indent_, kColumnLimit, piece, text_);
    return *this;
  }
  Pieces& Format(const char* format, ...) noexcept BRELT_PRINTF(2, 3) {
    rc::FixedText<200> piece;
    std::va_list arguments;
    va_start(arguments, format);
    rc::TextWriter(piece).FormatList(format, arguments);
    va_end(arguments);
    return Put(piece.view());
  }
  // A text as a string literal with something behind it.
  Pieces& PutQuoted(std::string_view text, std::string_view behind = {}) noexcept {
    EscapedText escaped;
    EscapeText(text, escaped);
    rc::FixedText<EscapedText::kCapacity + 3> piece;
    rc::TextWriter(piece).Append('"').Append(escaped.view()).Append('"').Append(behind);
    return Put(piece.view());
  }
  // A comma and the options of a menu entry, where it has any.
  Pieces& PutOptions(std::uint32_t style) noexcept {
    rc::FixedText<40> options;
    MenuOptionWords(style, options);
    if (!options.IsEmpty()) Put(",").Put(options.view());
    return *this;
  }

 private:
  int indent_;
  rc::TextWriter& text_;
};

// name "DIALOG" x "," y "," width "," height {statement} "BEGIN"
void WriteDialog(const rc::ResourceRecord& window, rc::TextWriter& text) noexcept {
  Pieces line(0, text);
  StyleText words;
  line.Format("%-.*s DIALOG %i,%i,%i,%i\n", rc::kNameLength, window.name.c_str(), window.x, window.y,
              window.width, window.height);
  if (!window.text.IsEmpty()) line.Put("CAPTION").Put(" ").PutQuoted(window.text.view()).Put("\n");
  if (!window.className.IsEmpty()) {
    line.Put("CLASS").Put(" ").Put("\"").Put(window.className.view()).Put("\"").Put("\n");
  }
  if (window.exStyle != 0) {
    const bool isOwnWindow = rc::EqualIgnoreCase(window.className.view(), "Editwindow") ||
                             rc::EqualIgnoreCase(window.className.view(), "Richeditwindow");
    StyleWordsOf(isOwnWindow ? window.className.view() : window.keyword.view(), window.exStyle, words);
    line.Put("EXSTYLE").Put(" ").Put(words.view()).Put("\n");
  }
  if (!window.fontName.IsEmpty()) {
    line.Format("FONT %ld,\"%-.*s\"\n", static_cast<long>(window.fontSize), 32, window.fontName.c_str());
  }
  // The blank at the end is kept: files that are written again shall not differ by it.
  if (!window.menuName.IsEmpty()) line.Format("MENU %-.*s \n", rc::kNameLength, window.menuName.c_str());
  StyleWordsOf(window.keyword.view(), window.style, words);
  if (!words.IsEmpty() && words.view() != "0") line.Put("STYLE").Put(" ").Put(words.view()).Put("\n");
  line.Put("BEGIN\n");
}

void WriteKeyword(const rc::ResourceRecord& control, rc::TextWriter& text) noexcept {
  Pieces(kControlIndent, text)
      .Format("%-*s ", kContinuedIndent - kControlIndent - 1, control.keyword.c_str());
}

// "CONTROL" string "," name "," string "," style "," x "," y "," width "," height
void WriteCustomControl(const rc::ResourceRecord& control, rc::TextWriter& text) noexcept {
  StyleText words;
  StyleWordsOf(control.className.view(), control.style, words);
  WriteKeyword(control, text);
  rc::FixedText<StyleText::kCapacity + 1> piece(words.view());
  piece.Append(",");
  Pieces(kContinuedIndent, text)
      .PutQuoted(control.text.view(), ",")
      .Format("%s,", control.name.c_str())
      .Format("\"%s\",", control.className.c_str())
      .Put(piece.view())
      .Format("%i,", control.x)
      .Format("%i,", control.y)
      .Format("%i,", control.width)
      .Format("%i\n", control.height);
}

// A lone word of value 0 says nothing: the reader has it from the statement's keyword.
bool SaysSomething(std::string_view words) noexcept {
  if (words.empty() || words == "0") return false;
  return words.find_first_of("| ") != std::string_view::npos || rc::StyleWordValue(words) != 0;
}

// keyword [string ","] name "," x "," y "," width "," height ["," style]
void WriteControl(const rc::ResourceRecord& control, rc::TextWriter& text) noexcept {
  StyleText words;
  StyleWordsOf(control.keyword.view(), control.style, words);
  WriteKeyword(control, text);
  if (rc::KeywordHasText(control.keyword.view())) {
    Pieces(kControlIndent, text).PutQuoted(control.text.view(), ",");
  }
  Pieces line(kContinuedIndent, text);
  line.Format("%s,", control.name.c_str())
      .Format("%i,", control.x)
      .Format("%i,", control.y)
      .Format("%i,", control.width);
  if (SaysSomething(words.view())) {
    line.Format("%i,", control.height).Put(words.view()).Put("\n");
  } else {
    line.Format("%i\n", control.height);
  }
}

int MenuIndent(std::int32_t level) noexcept {
  return level <= 0 ? 0 : std::min(level, kMostIndent / kMenuIndent) * kMenuIndent;
}

// Closes the popups from a level down to that of the next entry.
void CloseMenuLevels(std::int32_t level, std::int32_t nextLevel, rc::TextWriter& text) noexcept {
  for (; level > std::max(nextLevel, 1); --level) {
    const int length = text.length();
    Pieces(MenuIndent(level - 1), text).Put("END\n");
    if (text.length() == length) return;  // full
  }
}

// name "MENU" "BEGIN", "POPUP" string options "BEGIN", or "MENUITEM" ("SEPARATOR" | string "," name options)
void WriteMenuEntry(const rc::ResourceRecord& entry, std::int32_t nextLevel, rc::TextWriter& text) noexcept {
  if (entry.x == 0) {
    if (!text.IsEmpty()) return;
    Pieces(0, text).Format("%-.*s MENU\n", rc::kNameLength, entry.name.c_str()).Put("BEGIN\n");
    return;
  }
  Pieces line(MenuIndent(entry.x), text);
  if (entry.x < nextLevel) {
    line.Put("POPUP").Put(" ").PutQuoted(entry.text.view()).PutOptions(entry.style).Put("\n").Put("BEGIN\n");
    return;
  }
  line.Put("MENUITEM").Put(" ");
  if (entry.text.IsEmpty() && entry.name.IsEmpty()) {
    line.Put("SEPARATOR");
  } else {
    line.PutQuoted(entry.text.view()).Put(",").Put(entry.name.view()).PutOptions(entry.style);
  }
  line.Put("\n");
  CloseMenuLevels(entry.x, nextLevel, text);
}

void WriteRecord(const rc::ResourceRecord& record, std::int32_t nextLevel, rc::TextWriter& text) noexcept {
  const std::string_view keyword = record.keyword.view();
  if (rc::EqualIgnoreCase(keyword, "DIALOG")) {
    WriteDialog(record, text);
  } else if (rc::EqualIgnoreCase(keyword, "CONTROL")) {
    WriteCustomControl(record, text);
  } else if (rc::EqualIgnoreCase(keyword, "MENUITEM")) {
    WriteMenuEntry(record, nextLevel, text);
  } else {
    WriteControl(record, text);
  }
}

}  // namespace

void AppendWrapped(int indent, int limit, std::string_view piece, rc::TextWriter& text) noexcept {
  const std::size_t lineFeed = text.view().rfind('\n');
  const std::size_t column = text.view().size() - (lineFeed == std::string_view::npos ? 0 : lineFeed + 1);
  const bool isTooLong = column + piece.size() > static_cast<std::size_t>(limit);
  if (column > 0 && isTooLong) text.Append('\n');
  if (column == 0 || isTooLong) text.AppendFill(' ', std::min(indent, kMostIndent));
  text.Append(piece);
}

void MenuOptionWords(std::uint32_t style, rc::TextBuffer words) noexcept {
  constexpr struct {
    std::uint32_t bit;
    std::string_view word;
  } kOptions[] = {
      {rc::kMenuChecked, "CHECKED"}, {rc::kMenuGrayed, "GRAYED"}, {rc::kMenuInactive, "INACTIVE"}};
  rc::TextWriter writer(words);
  for (const auto& option : kOptions) {
    if ((style & option.bit) == 0) continue;
    if (!writer.IsEmpty()) writer.Append(',');
    writer.Append(option.word);
  }
}

void RecordsToText(rc::RecordTable& records, rc::TextBuffer text) noexcept {
  rc::TextWriter writer(text);
  for (int i = 0; i < rc::kRecordCount && !records[i]->keyword.IsEmpty(); ++i) {
    const bool isLast = i + 1 == rc::kRecordCount || records[i + 1]->keyword.IsEmpty();
    WriteRecord(*records[i], isLast ? 0 : records[i + 1]->x, writer);
  }
  Pieces(0, writer).Put("END\n");
}

}  // namespace brelt::resprops
