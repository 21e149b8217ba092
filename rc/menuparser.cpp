#include "rc/menuparser.h"

#include "rc/fields.h"
#include "rc/menuoptions.h"
#include "rc/tokenreader.h"

namespace brelt::rc {
namespace {

class MenuParser : TokenReader {
 public:
  MenuParser(const char* text, RecordTable& records, TextBuffer message) noexcept
      : TokenReader(text), records_(records), message_(message) {
    message_.Clear();
  }

  bool Parse() noexcept {
    ClearRecords(records_);
    ParseHeader();
    if (!failed_) ParseElements();
    if (!failed_) return true;
    AppendPlace(message_);
    ClearRecords(records_);
    return false;
  }

 private:
  const char* MenuName() const noexcept { return records_[0]->name.c_str(); }

  void ParseHeader() noexcept;
  void ParseElements() noexcept;
  void ParseElement(ResourceRecord& record) noexcept;
  void ReadItem(ResourceRecord& record, Failure& failure) noexcept;
  void ReadPopup(ResourceRecord& record, Failure& failure) noexcept;

  TextWriter Fail() noexcept {
    failed_ = true;
    return TextWriter(message_);
  }

  RecordTable& records_;
  TextBuffer message_;
  bool failed_ = false;
};

// name keyword {load option} "BEGIN"
void MenuParser::ParseHeader() noexcept {
  ResourceRecord& menu = *records_[0];
  ScanToken(text_, position_, menu.name);
  ScanToken(text_, position_, menu.keyword);
  NextBehindLoadOptions();
  if (!IsIdentifier(menu.name.c_str())) {
    Fail().Format(
        "The resource string should start with the name of a MENU resource, instead <%-.*s> was found",
        kNameLength, OrQuestionMark(menu.name.c_str()));
  } else if (!TokenIs("BEGIN")) {
    Fail().Format("Menu <%-.*s>, BEGIN is expected instead of <%-.*s>", kNameLength, MenuName(), kNameLength,
                  FoundWord());
  }
}

// "BEGIN" {item | popup | "BEGIN" | "END"}, up to the END of level 0. That a BEGIN belongs to a popup isn't
// tested.
void MenuParser::ParseElements() noexcept {
  ResourceRecord surplus;
  std::int32_t level = 0;
  int number = 1;
  do {
    if (TokenIs("BEGIN")) {
      ++level;
      Next();
    } else if (TokenIs("END")) {
      --level;
      Next();
    } else if (TokenIs("POPUP") || TokenIs("MENUITEM")) {
      ResourceRecord& record = number <= kElementCount ? *records_[number] : surplus;
      record.x = level;
      ParseElement(record);
      if (!failed_ && number > kElementCount) {
        Fail().Format("Menu <%-.*s>, too many menu elements, maximum number is %i", kNameLength, MenuName(),
                      kElementCount);
      }
      ++number;
    } else {
      Fail().Format("Menu <%-.*s>, <%-.*s> is not expected here", kNameLength, MenuName(), kNameLength,
                    FoundWord());
    }
  } while (!failed_ && level > 0);
}

void MenuParser::ParseElement(ResourceRecord& record) noexcept {
  Failure failure;
  record.keyword.Assign(token_.view());
  if (TokenIs("POPUP")) {
    ReadPopup(record, failure);
  } else {
    ReadItem(record, failure);
  }
  if (failure) {
    Fail().Format("Menu <%-.*s>, %s", kNameLength, MenuName(), failure.message.c_str());
  } else {
    Next();
  }
}

// "POPUP" [string] options
void MenuParser::ReadPopup(ResourceRecord& record, Failure& failure) noexcept {
  ParseOptionalString(text_, position_, record.text);
  UnescapeInPlace(record.text);
  record.style = ReadMenuOptions(text_, position_, failure) | kMenuPopup;
}

// "MENUITEM" ("SEPARATOR" | string "," identifier options). Any token passes for an identifier.
void MenuParser::ReadItem(ResourceRecord& record, Failure& failure) noexcept {
  Next();
  if (TokenIs("SEPARATOR")) {
    record.style = kMenuSeparator;
    return;
  }
  if (!TokenIsString()) return failure.Set(RTX_MENU_SYNTAX, kMenuStringExpected);
  Token decoded;
  token_.Assign(StringBody(token_.view()));
  UnescapeText(token_.c_str(), decoded);
  record.text.Assign(decoded.view());
  Next();
  if (!TokenIs(",")) return failure.Set(RTX_MENU_SYNTAX, kMenuCommaExpected);
  ScanToken(text_, position_, record.name);
  record.style = ReadMenuOptions(text_, position_, failure);
}

}  // namespace

bool ParseMenu(const char* text, RecordTable& records, TextBuffer message) noexcept {
  return MenuParser(text, records, message).Parse();
}

}  // namespace brelt::rc
