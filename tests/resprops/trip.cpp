#include "tests/resprops/trip.h"

#include <algorithm>
#include <cstring>

#include "rc/dialog.h"
#include "rc/fields.h"
#include "rc/menuoptions.h"
#include "rc/menuparser.h"
#include "rc/statements.h"
#include "rc/textkit.h"
#include "resprops/escape.h"
#include "resprops/proparray.h"
#include "resprops/rctext.h"
#include "tests/support/dump.h"

namespace brelt::test {
namespace {

using resprops::PropertyArray;

// Tables and buffers are made once: making them costs more than most trips.
struct Workshop {
  rc::RecordArray first;
  rc::RecordArray second;
  rc::RecordArray third;
  rc::FixedText<1023> message;
  std::vector<char> text = std::vector<char>(rc::kRecordCount * 1500);
  std::vector<char> rowBytes = std::vector<char>(static_cast<std::size_t>(rc::kRecordCount) * kRowSize);
  std::vector<char*> rows;

  static constexpr int kRowSize = 2048;

  Workshop() {
    for (int i = 0; i < rc::kRecordCount; ++i) rows.push_back(rowBytes.data() + i * kRowSize);
  }
  PropertyArray array() { return {rows.data(), rc::kRecordCount, kRowSize}; }
  rc::TextBuffer buffer() { return {text.data(), static_cast<int>(text.size())}; }

  void SetRows(const Parts& parts) {
    for (char* row : rows) {
      if (*row != '\0') std::memset(row, 0, kRowSize);
    }
    for (std::size_t i = 0; i < parts.size() && i < rows.size(); ++i) {
      rc::TextBuffer(rows[i], kRowSize).Assign(parts[i]);
    }
  }
  Parts GetRows() const {
    Parts parts;
    for (const char* row : rows) {
      if (*row == '\0') break;
      parts.emplace_back(row);
    }
    return parts;
  }
};

Workshop& Shop() {
  static Workshop shop;
  return shop;
}

// ---- What comes back of a record ----

std::string Escaped(std::string_view text) {
  resprops::EscapedText escaped;
  resprops::EscapeText(text, escaped);
  return std::string(escaped.view());
}

std::string Unescaped(const std::string& text) {
  rc::FixedText<1024> decoded;
  rc::UnescapeText(text.c_str(), decoded);
  return std::string(decoded.view());
}

// Texts are cut to 255 characters in their written form, ahead of the closing mark's removal.
std::string ReadBackText(std::string_view text) {
  std::string written = (Escaped(text) + "\"").substr(0, 255);
  if (!written.empty() && written.back() == '"') written.pop_back();
  return Unescaped(written);
}
std::string ReadBackCaption(std::string_view text) { return Unescaped(Escaped(text).substr(0, 255)); }

// The bits of a style that some of its keyword's words say.
std::uint32_t SaidBits(std::string_view keyword, std::uint32_t style) {
  const rc::StyleKeyword* row = rc::FindStyleKeyword(keyword);
  if (row == nullptr) return 0;
  std::uint32_t legal = style & row->legal.bits;
  // The statement says its type itself.
  if ((legal & 0xF) == (row->type.bits & 0xF)) legal &= ~0xFu;
  std::uint32_t said = 0;
  for (std::string_view words = row->legal.words; !words.empty();) {
    const std::size_t pipe = words.find('|');
    const std::uint32_t bits = rc::StyleWordValue(words.substr(0, pipe));
    if ((legal & bits) == bits) said |= bits;
    words.remove_prefix(pipe == std::string_view::npos ? words.size() : pipe + 1);
  }
  return said;
}

rc::ResourceRecord ExpectedWindow(const rc::ResourceRecord& window) {
  rc::ResourceRecord expected = window;
  const bool isOwn = rc::EqualIgnoreCase(window.className.view(), "EDITWINDOW") ||
                     rc::EqualIgnoreCase(window.className.view(), "RICHEDITWINDOW");
  expected.keyword.Assign("DIALOG");
  expected.text.Assign(ReadBackCaption(window.text.view()));
  expected.style = SaidBits("DIALOG", window.style);
  expected.exStyle = SaidBits(isOwn ? window.className.view() : "DIALOG", window.exStyle);
  // A size is only read where it begins with a digit.
  if (window.fontName.IsEmpty() || window.fontSize < 0) expected.fontSize = 0;
  return expected;
}

rc::ResourceRecord ExpectedControl(const rc::ResourceRecord& control) {
  rc::ResourceRecord expected = control;
  const std::string_view keyword = control.keyword.view();
  expected.text.Assign(rc::KeywordHasText(keyword) ? ReadBackText(control.text.view()) : "");
  if (keyword == "CONTROL") {
    // The reader knows no defaults of a class but that it shows.
    const rc::StyleKeyword* row = rc::FindStyleKeyword(control.className.view());
    const std::uint32_t unsaid = row != nullptr ? row->defaults.bits & ~rc::StyleBits("WS_VISIBLE") : 0;
    expected.style = row != nullptr ? SaidBits(control.className.view(), control.style) & ~unsaid
                                    : rc::StyleBits("WS_VISIBLE");
  } else {
    expected.style = SaidBits(keyword, control.style) | rc::FindControlStatement(keyword)->typeBits;
    if ((expected.style & 0xF) == 0) expected.style |= rc::FindStyleKeyword(keyword)->type.bits;
  }
  return expected;
}

rc::ResourceRecord ExpectedEntry(const rc::ResourceRecord& entry, bool isPopup) {
  rc::ResourceRecord expected;
  const std::uint32_t options = entry.style & (rc::kMenuGrayed | rc::kMenuInactive | rc::kMenuChecked);
  expected.x = entry.x;
  expected.keyword.Assign(isPopup ? "POPUP" : "MENUITEM");
  if (isPopup) {
    expected.text.Assign(ReadBackText(entry.text.view()));
    expected.style = options | rc::kMenuPopup;
  } else if (entry.text.IsEmpty() && entry.name.IsEmpty()) {
    expected.style = rc::kMenuSeparator;
  } else {
    expected.text = entry.text;
    expected.name = entry.name;
    expected.style = options;
  }
  return expected;
}

// ---- Trips ----

int comparedTrips = 0;

int CountRecords(rc::RecordArray& records) {
  int count = 0;
  while (count < rc::kRecordCount && !records[count].keyword.IsEmpty()) ++count;
  return count;
}

std::string Compare(const rc::ResourceRecord& expected, const rc::ResourceRecord& actual, int index) {
  const std::string left = DumpRecord(expected);
  const std::string right = DumpRecord(actual);
  if (left == right) return "";
  return "record " + std::to_string(index) + "\nexpected: " + left + "\nactual:   " + right + "\n";
}

// Writes the records of a DIALOG, reads them into another table and compares the two.
std::string DialogTrip(rc::RecordArray& from, rc::RecordArray& to) {
  Workshop& shop = Shop();
  resprops::RecordsToText(from.table(), shop.buffer());
  const std::string text = "\nthe text:\n" + std::string(shop.text.data());
  if (!rc::ParseDialog(shop.text.data(), to.table(), shop.message)) return shop.message.c_str() + text;
  const int count = CountRecords(from);
  std::string difference = Compare(ExpectedWindow(from[0]), to[0], 0);
  for (int i = 1; i < count && difference.empty(); ++i)
    difference = Compare(ExpectedControl(from[i]), to[i], i);
  if (difference.empty() && CountRecords(to) != count) difference = "another number of records";
  ++comparedTrips;
  return difference.empty() ? "" : difference + text;
}

std::string MenuTrip(rc::RecordArray& from, rc::RecordArray& to) {
  Workshop& shop = Shop();
  resprops::RecordsToText(from.table(), shop.buffer());
  const std::string text = "\nthe text:\n" + std::string(shop.text.data());
  if (!rc::ParseMenu(shop.text.data(), to.table(), shop.message)) return shop.message.c_str() + text;
  const int count = CountRecords(from);
  std::string difference;
  for (int i = 1; i < count && difference.empty(); ++i) {
    const bool isPopup = i + 1 < count && from[i + 1].x > from[i].x;
    difference = Compare(ExpectedEntry(from[i], isPopup), to[i], i);
  }
  if (difference.empty() && CountRecords(to) != count) difference = "another number of records";
  ++comparedTrips;
  return difference.empty() ? "" : difference + text;
}

// Whether the levels are those of a menu that is read as it was written: each entry but the header at least
// one deep, and no popup with nothing in it, which is written as an item without a name.
bool HasSoundLevels(rc::RecordArray& menu) {
  const int count = CountRecords(menu);
  for (int i = 0; i < count; ++i) {
    const std::int32_t next = i + 1 < count ? menu[i + 1].x : 0;
    if ((i > 0 && menu[i].x < 1) || (next > menu[i].x && next - 1 > menu[i].x)) return false;
    if (i > 0 && next <= menu[i].x && menu[i].name.IsEmpty() && !menu[i].text.IsEmpty()) return false;
  }
  return true;
}

std::string Joined(const Parts& parts) {
  std::string text;
  for (const std::string& part : parts) text += part + "\n";
  return text;
}

// Whether a name is one token to the readers.
bool IsToken(std::string_view name) {
  const std::string text(name);
  std::int32_t position = 0;
  rc::Name token;
  rc::ParseOptionalId(text.c_str(), position, token);
  return !token.IsEmpty() && token.view() == name;
}

// Whether the records are of a DIALOG that can be read at all.
bool IsReadableDialog(rc::RecordArray& records) {
  const rc::ResourceRecord& window = records[0];
  if (!rc::EqualIgnoreCase(window.keyword.view(), "DIALOG") || !rc::IsIdentifier(window.name.c_str()))
    return false;
  if (!IsToken(window.name.view())) return false;
  if (!window.menuName.IsEmpty() &&
      (!IsToken(window.menuName.view()) || !rc::IsLetter(*window.menuName.c_str()))) {
    return false;
  }
  // A mark in this isn't escaped.
  if (window.fontName.view().find('"') != std::string_view::npos) return false;
  const std::string_view className = window.className.view();
  const bool isKnownClass = className.empty() || rc::EqualIgnoreCase(className, "DIALOG") ||
                            rc::EqualIgnoreCase(className, "EDITWINDOW") ||
                            rc::EqualIgnoreCase(className, "RICHEDITWINDOW");
  if (!isKnownClass) return false;
  const int count = CountRecords(records);
  for (int i = 1; i < count; ++i) {
    const bool isControl = rc::FindControlStatement(records[i].keyword.view()) != nullptr;
    if (!isControl || !IsToken(records[i].name.view())) return false;
  }
  return true;
}

bool IsReadableMenu(rc::RecordArray& records) {
  if (!IsToken(records[0].name.view()) || !rc::IsIdentifier(records[0].name.c_str())) return false;
  const int count = CountRecords(records);
  for (int i = 0; i < count; ++i) {
    if (records[i].keyword.view() != "MENUITEM") return false;
    if (!records[i].name.IsEmpty() && !IsToken(records[i].name.view())) return false;
  }
  return HasSoundLevels(records);
}

// A text whose written form is cut loses a little more each time that the cut goes through an escape.
bool HasCutText(rc::RecordArray& records) {
  const int count = CountRecords(records);
  for (int i = 0; i < count; ++i) {
    if (Escaped(records[i].text.view()).size() >= 255) return true;
  }
  return false;
}

// Reads records into rows, and rows into records and text and rows again, which must be the same rows.
template <typename Trip>
std::string CheckStableRows(rc::RecordArray& records, Trip trip) {
  Workshop& shop = Shop();
  if (HasCutText(records)) return "";
  shop.SetRows({});
  char buffer[1024];
  resprops::ErrorText error({buffer, sizeof buffer});
  resprops::RecordsToProperties(records.table(), "none.rc", "Form", shop.array(), error);
  // Some types of control have no properties.
  if (error.IsFailure()) return "";
  const Parts rows = shop.GetRows();
  // Of a longer row only a part would be written back.
  for (const std::string& row : rows) {
    if (row.size() > 1024) return "";
  }
  rc::ClearRecords(shop.third.table());
  resprops::PropertiesToRecords(shop.array(), shop.third.table());
  if (const std::string fault = trip(shop.third, records); !fault.empty()) return "the second trip: " + fault;
  shop.SetRows({});
  resprops::RecordsToProperties(records.table(), "none.rc", "Form", shop.array(), error);
  if (error.IsFailure()) return buffer;
  const Parts again = shop.GetRows();
  return again == rows ? "" : "the rows were\n" + Joined(rows) + "and became\n" + Joined(again);
}

// A window without a frame loses what belongs to one when its rows are written, and a title of blanks becomes
// a title bar without a title.
bool HasStableRows(const rc::ResourceRecord& window) {
  return (window.style & rc::StyleBits("WS_BORDER|WS_THICKFRAME|DS_MODALFRAME")) != 0 &&
         !rc::IsAllSpace(window.text.c_str());
}

}  // namespace

int ComparedTrips() { return comparedTrips; }

std::string CheckDialogTrip(const Parts& parts) {
  Workshop& shop = Shop();
  std::string text = parts.empty() ? "" : parts[0] + "\nBEGIN\n";
  for (std::size_t i = 1; i < parts.size(); ++i) text += parts[i] + "\n";
  text += "END\n";
  if (!rc::ParseDialog(text.c_str(), shop.first.table(), shop.message)) return "";
  if (!IsReadableDialog(shop.first)) return "";
  if (const std::string fault = DialogTrip(shop.first, shop.second); !fault.empty()) return fault;
  return HasStableRows(shop.second[0]) ? CheckStableRows(shop.second, DialogTrip) : "";
}

std::string CheckMenuTrip(const Parts& parts) {
  Workshop& shop = Shop();
  const std::string text = "Form MENU\nBEGIN\n" + Joined(parts) + "END\n";
  if (!rc::ParseMenu(text.c_str(), shop.first.table(), shop.message)) return "";
  // All rows of a menu are of one type, and so are the records that are made of them.
  const int count = CountRecords(shop.first);
  for (int i = 0; i < count; ++i) shop.first[i].keyword.Assign("MENUITEM");
  if (!IsReadableMenu(shop.first)) return "";
  if (const std::string fault = MenuTrip(shop.first, shop.second); !fault.empty()) return fault;
  return CheckStableRows(shop.second, MenuTrip);
}

std::string CheckDialogRows(const Parts& rows) {
  Workshop& shop = Shop();
  shop.SetRows(rows);
  rc::ClearRecords(shop.first.table());
  resprops::PropertiesToRecords(shop.array(), shop.first.table());
  if (!IsReadableDialog(shop.first)) return "";
  if (const std::string fault = DialogTrip(shop.first, shop.second); !fault.empty()) return fault;
  return HasStableRows(shop.second[0]) ? CheckStableRows(shop.second, DialogTrip) : "";
}

std::string CheckMenuRows(const Parts& rows) {
  Workshop& shop = Shop();
  shop.SetRows(rows);
  rc::ClearRecords(shop.first.table());
  resprops::PropertiesToRecords(shop.array(), shop.first.table());
  if (CountRecords(shop.first) == 0 || shop.first[0].x != 0 || !IsReadableMenu(shop.first)) return "";
  if (const std::string fault = MenuTrip(shop.first, shop.second); !fault.empty()) return fault;
  return CheckStableRows(shop.second, MenuTrip);
}

Parts Shrunk(Parts parts, const Check& check) {
  for (bool smaller = true; smaller;) {
    smaller = false;
    for (std::size_t i = 0; i < parts.size(); ++i) {
      Parts fewer = parts;
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(i));
      if (check(fewer).empty()) continue;
      parts = fewer;
      smaller = true;
      --i;
    }
    for (std::string& part : parts) {
      for (std::size_t length = part.size(); length >= 1; length /= 2) {
        for (std::size_t at = 0; at + length <= part.size();) {
          const std::string whole = part;
          part.erase(at, length);
          if (check(parts).empty()) {
            part = whole;
            at += length;
          } else {
            smaller = true;
          }
        }
      }
    }
  }
  return parts;
}

}  // namespace brelt::test
