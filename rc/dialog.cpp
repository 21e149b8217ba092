#include "rc/dialog.h"

#include "rc/fields.h"
#include "rc/statements.h"
#include "rc/stylewords.h"
#include "rc/tokenreader.h"

namespace brelt::rc {
namespace {

void Place(ResourceRecord& record, const Rectangle& rectangle) noexcept {
  record.x = rectangle.x;
  record.y = rectangle.y;
  record.width = rectangle.width;
  record.height = rectangle.height;
}

class DialogParser : TokenReader {
 public:
  DialogParser(const char* text, RecordTable& records, TextBuffer message) noexcept
      : TokenReader(text), records_(records), message_(message) {
    message_.Clear();
  }

  bool Parse() noexcept {
    ClearRecords(records_);
    ParseHeader();
    ParseStatements();
    if (CheckHeader()) ParseControls();
    if (!failed_) return true;
    ClearRecords(records_);
    return false;
  }

 private:
  using StatementReader = void (DialogParser::*)() noexcept;
  struct Statement {
    FoldedName key;
    StatementReader read;
  };

  ResourceRecord& Window() noexcept { return *records_[0]; }

  void ParseHeader() noexcept;
  void ParseStatements() noexcept;
  void ReadCaption() noexcept;
  void ReadClass() noexcept;
  void ReadExStyle() noexcept;
  void ReadFont() noexcept;
  void ReadLanguage() noexcept;
  void ReadMenu() noexcept;
  void ReadStyle() noexcept;
  std::uint32_t ReadStyleWords() noexcept;
  bool CheckHeader() noexcept;

  void ParseControls() noexcept;
  void ParseControl(ResourceRecord& record, int number) noexcept;
  bool ReadFields(const ControlStatement& statement, ResourceRecord& record) noexcept;
  void ReadControlFields(ResourceRecord& record) noexcept;
  std::uint32_t ReadStyleOf(const ControlStatement& statement) noexcept;

  TextWriter Fail() noexcept {
    failed_ = true;
    return TextWriter(message_);
  }

  RecordTable& records_;
  TextBuffer message_;
  bool failed_ = false;

  static constexpr std::array<Statement, 7> kStatements = {{
      {FoldedName("CAPTION"), &DialogParser::ReadCaption},
      {FoldedName("CLASS"), &DialogParser::ReadClass},
      {FoldedName("EXSTYLE"), &DialogParser::ReadExStyle},
      {FoldedName("FONT"), &DialogParser::ReadFont},
      {FoldedName("LANGUAGE"), &DialogParser::ReadLanguage},
      {FoldedName("MENU"), &DialogParser::ReadMenu},
      {FoldedName("STYLE"), &DialogParser::ReadStyle},
  }};
  static_assert(IsStrictlySorted(kStatements));
};

// name keyword {load option} [expression [","] expression [","] expression [","] expression]
void DialogParser::ParseHeader() noexcept {
  ScanToken(text_, position_, Window().name);
  ScanToken(text_, position_, Window().keyword);
  for (;;) {
    std::int32_t ahead = position_;
    ScanToken(text_, ahead, token_);
    if (!IsLoadOption(token_.view())) break;
    position_ = ahead;
  }
  if (IsDigitOrSign(Here())) {
    // Nothing checks the header's coordinates: one that is missing stays unset.
    Place(Window(), ParseCoordinates(text_, position_));
  }
  Next();
}

// {statement}, each in any order and number. A reader leaves the first token behind its statement in hand.
void DialogParser::ParseStatements() noexcept {
  while (const Statement* statement = FindByName(kStatements, token_.view())) (this->*statement->read)();
}

// "CAPTION" string
void DialogParser::ReadCaption() noexcept {
  Next();
  if (TokenIsString()) {
    // A second caption is appended to the first, and the whole decoded again.
    Window().text.Append(StringBody(token_.view()));
    UnescapeInPlace(Window().text);
  }
  Next();
}

// "CLASS" string
void DialogParser::ReadClass() noexcept {
  Next();
  Window().className.Append(StringBody(token_.view()));
  Next();
}

// "EXSTYLE" word {"|" word}
void DialogParser::ReadExStyle() noexcept { Window().exStyle |= ReadStyleWords(); }

// "STYLE" word {"|" word}
void DialogParser::ReadStyle() noexcept { Window().style |= ReadStyleWords(); }

std::uint32_t DialogParser::ReadStyleWords() noexcept {
  std::uint32_t bits = 0;
  do {
    Next();
    bits |= StyleWordValue(token_.view());
    Next();
  } while (TokenIs("|"));
  return bits;
}

// "FONT" number any string
void DialogParser::ReadFont() noexcept {
  Next();
  if (IsDigit(*token_.c_str())) Window().fontSize = DecimalValue(token_.c_str());
  Next();
  Next();
  Window().fontName.Append(StringBody(token_.view()));
  Next();
}

// "LANGUAGE" any any {"," any any}
void DialogParser::ReadLanguage() noexcept {
  do {
    Next();
    Next();
  } while (TokenIs(","));
}

// "MENU" word
void DialogParser::ReadMenu() noexcept {
  Next();
  if (IsLetter(*token_.c_str())) Window().menuName.Append(token_.view());
  Next();
}

bool DialogParser::CheckHeader() noexcept {
  const char* name = Window().name.c_str();
  if (!IsIdentifier(name)) {
    Fail().Format(
        "The resource string should start with the name of a DIALOG resource, instead <%-.*s> was found",
        kNameLength, OrQuestionMark(name));
  } else if (!TokenIs("BEGIN")) {
    Fail().Format("Dialog <%-.*s>, BEGIN is expected instead of <%-.*s>", kNameLength, name, kNameLength,
                  FoundWord());
  }
  return !failed_;
}

// {control} "END"
void DialogParser::ParseControls() noexcept {
  // Controls are read into their slots; one too many is read into a record that goes nowhere.
  ResourceRecord surplus;
  Next();
  for (int number = 1; !failed_ && !TokenIs("END"); ++number) {
    ParseControl(number <= kElementCount ? *records_[number] : surplus, number);
    if (!failed_) Next();
  }
}

void DialogParser::ParseControl(ResourceRecord& record, int number) noexcept {
  record.keyword.Assign(token_.view());
  const ControlStatement* statement = FindControlStatement(token_.view());
  const bool complete = statement != nullptr && ReadFields(*statement, record);
  UnescapeInPlace(record.text);
  if (!complete || record.name.IsEmpty()) {
    Fail().Format(
        "Dialog <%-.*s>, Control Type <%-.*s>, Control i/d <%-.*s>, Statement %i has incorrect syntax",
        kNameLength, Window().name.c_str(), kNameLength,
        record.keyword.IsEmpty() ? FoundWord() : record.keyword.c_str(), kNameLength,
        OrQuestionMark(record.name.c_str()), number);
  } else if (number > kElementCount) {
    Fail().Format("Dialog <%-.*s>, too many controls, maximum number is %i", kNameLength,
                  Window().name.c_str(), kElementCount);
  }
}

// Whether all four coordinates were there.
bool DialogParser::ReadFields(const ControlStatement& statement, ResourceRecord& record) noexcept {
  if (statement.form != StatementForm::kPlain) {
    PassOptionalComma(text_, position_);
    if (statement.form == StatementForm::kIcon && Here() != '"') {
      ParseOptionalId(text_, position_, record.text);
    } else {
      ParseOptionalString(text_, position_, record.text);
    }
  }
  PassOptionalComma(text_, position_);
  ParseOptionalId(text_, position_, record.name);
  Rectangle rectangle;
  if (statement.form == StatementForm::kControl) {
    ReadControlFields(record);
    PassOptionalComma(text_, position_);
    rectangle = ParseCoordinates(text_, position_);
  } else {
    PassOptionalComma(text_, position_);
    rectangle = ParseCoordinates(text_, position_);
    record.className.Assign(statement.className);
    record.style = ReadStyleOf(statement);
  }
  Place(record, rectangle);
  return rectangle.IsComplete();
}

// any string [style list]: the comma ahead of the class is required, though any token passes for it. Neither
// the legal words nor a type word of any keyword apply to a CONTROL.
void DialogParser::ReadControlFields(ResourceRecord& record) noexcept {
  Next();
  ParseOptionalString(text_, position_, record.className);
  FoldToUpper(record.className.data());
  record.style = StyleBits("WS_VISIBLE");
  ParseStyleList(text_, position_, record.style);
}

std::uint32_t DialogParser::ReadStyleOf(const ControlStatement& statement) noexcept {
  std::uint32_t style = statement.defaults | statement.typeBits;
  ParseStyleList(text_, position_, style);
  style &= statement.legal;
  // A control that names its own type keeps it.
  return (style & 0xF) == 0 ? style | statement.type : style;
}

}  // namespace

bool ParseDialog(const char* text, RecordTable& records, TextBuffer message) noexcept {
  return DialogParser(text, records, message).Parse();
}

}  // namespace brelt::rc
