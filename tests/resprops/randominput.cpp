#include "tests/resprops/randominput.h"

#include <algorithm>

#include "rc/statements.h"
#include "resprops/property.h"

namespace brelt::test {

using rc::kControlStatements;
using rc::kStyleWordTable;

std::string RandomInput::Word(int most) {
  static const std::string_view kFirst = "ABCXYZabcxyz";
  static const std::string_view kRest = "ABCXYZabcxyz0123456789_";
  std::string word(1, kFirst[static_cast<std::size_t>(Below(static_cast<int>(kFirst.size())))]);
  for (int length = Below(most); length > 0; --length) {
    word += kRest[static_cast<std::size_t>(Below(static_cast<int>(kRest.size())))];
  }
  return word;
}

std::string RandomInput::Identifier() {
  switch (Below(8)) {
    case 0:
      return Number();
    case 1:
      return "0x" + std::to_string(Below(1000)) + (Chance(2) ? "L" : "");
    case 2:
      return std::to_string(Below(100)) + "." + std::to_string(Below(100));
    case 3:
      return Word(45);
    default:
      return Word(8);
  }
}

// A string literal: printable characters, escapes, doubled marks and bytes beyond ASCII.
std::string RandomInput::Literal() {
  static const std::string_view kPieces[] = {
      "a",    "B",     " ", "\\t", "\\n", "\\\\", "\"\"", "\\x41",  "\\101", "\\q", "&",     "\xE4",
      "\xFF", "\\x7f", ",", "//",  "\\0", "'",    "\\x0", "\\\"\"", "END",   "|",   "\\xg1", "\\r"};
  const int length = Chance(20) ? Below(400) : Below(12);
  std::string text = "\"";
  for (int i = 0; i < length; ++i) text += Any(kPieces);
  return text + "\"";
}

std::string RandomInput::Number() {
  switch (Below(8)) {
    case 0:
      return std::to_string(static_cast<int>(random_()));
    case 1:
      return "-" + std::to_string(Below(300));
    default:
      return std::to_string(Below(300));
  }
}

std::string RandomInput::Coordinates() {
  std::string text;
  for (int i = 0; i < 4; ++i) {
    if (i > 0) text += Chance(10) ? " , " : ",";
    text += Number();
    static const std::string_view kOperators[] = {"+", " - ", "*"};
    if (Chance(8)) text += Any(kOperators) + std::to_string(Below(9));
  }
  return text;
}

std::string RandomInput::StyleList(bool allowNot) {
  std::string text;
  for (int count = 1 + Below(5); count > 0; --count) {
    if (!text.empty()) text += Chance(3) ? " | " : "|";
    if (allowNot && Chance(4)) text += "NOT ";
    switch (Below(10)) {
      case 0: {
        char number[16];
        std::snprintf(number, sizeof number, "0x%X", static_cast<unsigned>(random_()));
        text += number;
        break;
      }
      case 1:
        text += "UNKNOWN_WORD";
        break;
      default:
        text +=
            kStyleWordTable[static_cast<std::size_t>(Below(static_cast<int>(kStyleWordTable.size())))].name;
    }
  }
  return text;
}

std::string RandomInput::Control() {
  const rc::ControlStatement& statement =
      kControlStatements[static_cast<std::size_t>(Below(static_cast<int>(kControlStatements.size())))];
  std::string text = std::string(statement.name) + " ";
  if (statement.form != rc::StatementForm::kPlain) {
    text += statement.form == rc::StatementForm::kIcon && Chance(3) ? Word(10) + "," : Literal() + ",";
  }
  text += Identifier();
  if (statement.form == rc::StatementForm::kControl) {
    static const std::string_view kClasses[] = {
        "BITMAPBUTTON", "Image", "iconlist",  "PROGRESSBAR", "shape", "Button", "COMBOBOX",
        "edit",         "Gauge", "SHAPE.1.3", "LISTBOX",     "",      "static", "Scrollbar"};
    return text + ",\"" + Any(kClasses) + "\"," + StyleList(true) + "," + Coordinates();
  }
  text += "," + Coordinates();
  if (Chance(2)) text += "," + StyleList(true);
  return text;
}

Parts RandomInput::DialogText() {
  std::string head =
      Word(40) + " DIALOG " + (Chance(8) ? "DISCARDABLE " : "") + (Chance(10) ? "" : Coordinates());
  for (int count = Below(6); count > 0; --count) {
    static const std::string_view kClasses[] = {"", "Dialog", "EDITWINDOW", "RichEditWindow"};
    switch (Below(7)) {
      case 0:
        head += "\nCAPTION " + Literal();
        break;
      case 1:
        if (head.find("CLASS") == std::string::npos) head += "\nCLASS \"" + Any(kClasses) + "\"";
        break;
      case 2:
        head += "\nEXSTYLE " + StyleList(false);
        break;
      case 3:
        head += "\nFONT " + std::to_string(Below(99)) + ",\"" + Word(20) + "\"";
        break;
      case 4:
        head += "\nLANGUAGE 9,1";
        break;
      case 5:
        head += "\nMENU " + Word(20);
        break;
      default:
        head += "\nSTYLE " + StyleList(false);
    }
  }
  Parts parts{head};
  for (int count = Below(6); count > 0; --count) parts.push_back(Control());
  return parts;
}

void RandomInput::MenuLines(int depth, Parts& lines) {
  for (int count = 1 + Below(3); count > 0; --count) {
    std::string options;
    while (Chance(3)) {
      static const std::string_view kOptions[] = {"CHECKED", "GRAYED", "INACTIVE", "MENUBREAK",
                                                  "MENUBARBREAK"};
      options += "," + Any(kOptions);
    }
    if (Chance(6)) {
      lines.push_back("MENUITEM SEPARATOR");
    } else if (depth < 4 && Chance(4)) {
      lines.push_back("POPUP " + Literal() + options);
      lines.push_back("BEGIN");
      MenuLines(depth + 1, lines);
      lines.push_back("END");
    } else {
      lines.push_back("MENUITEM " + Literal() + "," + Identifier() + options);
    }
  }
}

Parts RandomInput::MenuText() {
  Parts lines;
  MenuLines(1, lines);
  return lines;
}

// A value for a key: mostly one that a designer would give, sometimes any.
std::string RandomInput::Value(const std::string& key) {
  if (key == "NAME" || key == "MENU") return Word(44);
  if (key == "FONTNAME") return "\"" + Word(36) + "\"";
  if (key == "CAPTION") {
    std::string literal = Literal();
    return Chance(10) ? Word(9) : literal;
  }
  if (key == "PICTURE") return "\"c:\\" + Word(9) + ".bmp\"";
  if (key == "POSITION") {
    std::string places;
    for (int i = 0; i < 4; ++i) places += (i > 0 ? " " : "") + std::to_string(Below(500) - 100);
    return places;
  }
  if (key.ends_with("COLOUR")) {
    return Chance(3) ? std::to_string(static_cast<int>(random_())) : std::to_string(Below(17) - 1);
  }
  if (Chance(12)) return Number();
  return std::to_string(Below(5));
}

std::string RandomInput::Row(const std::string& type) {
  const resprops::ObjectType which = resprops::FindObjectType(type);
  std::string row;
  for (const resprops::Property& property : resprops::Properties()) {
    const std::string key(property.key);
    const bool needed = key == "NAME" || key == "TYPEOF" || key == "BORDERSTYLE" || key == "POSITION";
    if (!Holds(property.types, which) && !Chance(30)) continue;
    if (!needed && Chance(5)) continue;
    row += key + "=" + (key == "TYPEOF" ? type : Value(key)) + "\n";
  }
  // At the end a type stands once more where it would have come first.
  return row.starts_with("TYPEOF=") ? row + "TYPEOF=" + type + "\n" : row;
}

Parts RandomInput::DialogRows() {
  static const std::string_view kWindows[] = {"Dialog", "Dialog", "Editwindow", "RICHEDITWINDOW"};
  static const std::string_view kControls[] = {
      "Bitmapbutton", "Checkbox", "Combobox",    "Edit",       "Groupbox",    "Icon",      "Iconlist",
      "Image",        "Listbox",  "Progressbar", "Pushbutton", "Radiobutton", "Scrollbar", "Shape"};
  Parts rows{Row(Any(kWindows))};
  for (int count = Below(6); count > 0; --count) {
    std::string row = Row(Chance(8) ? "Label" : Any(kControls));
    // Other alignments have no statement.
    const std::size_t alignment =
        row.find("TYPEOF=Label") == std::string::npos ? std::string::npos : row.find("ALIGNMENT=");
    if (alignment != std::string::npos) {
      row.replace(alignment, row.find('\n', alignment) - alignment, "ALIGNMENT=" + std::to_string(Below(4)));
    }
    rows.push_back(row);
  }
  return rows;
}

Parts RandomInput::MenuRows() {
  Parts rows{"NAME=" + Word(20) + "\nPOSITION=0\nTYPEOF=Menuitem\n"};
  int level = 0;
  for (int count = Below(7); count > 0; --count) {
    level = std::max(1, std::min(level + 1, 1 + Below(5)));
    std::string row = "CAPTION=" + Literal() + "\n";
    for (const char* key : {"CHECKED", "ENABLED"}) {
      if (Chance(2)) row += std::string(key) + "=" + Value(key) + "\n";
    }
    row += "NAME=" + (Chance(6) ? "" : Identifier()) + "\nPOSITION=" + std::to_string(level) +
           "\nTYPEOF=Menuitem\n";
    rows.push_back(row);
  }
  return rows;
}

}  // namespace brelt::test
