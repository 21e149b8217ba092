#include "rc/textkit.h"
#include "resprops/proparray.h"
#include "resprops/property.h"

namespace brelt::resprops {
namespace {

constexpr std::string_view kTypeofKey = "\nTYPEOF=";
constexpr std::string_view kBorderStyleKey = "\nBORDERSTYLE=";

// A row as it is worked on: a line feed in front, so that each key stands behind one.
using WorkingRow = rc::FixedText<kLineLimit + 1>;

std::string_view LeadingLetters(std::string_view text) noexcept {
  std::size_t end = 0;
  while (end < text.size() && rc::IsLetter(text[end])) ++end;
  return text.substr(0, end);
}

// What stands behind a key and its line feed; empty where the key isn't there.
std::string_view Behind(std::string_view row, std::string_view key) noexcept {
  const std::size_t at = row.find(key);
  return at == std::string_view::npos ? std::string_view() : row.substr(at + key.size());
}

int FrameOf(std::string_view row) noexcept {
  const std::string_view value = Behind(row, kBorderStyleKey);
  return value.empty() ? 0 : value.front() - '0';
}

// line = key "=" value, with key = letter {letter}
void ApplyLine(std::string_view text, PropertyLine& line, rc::ResourceRecord& record) noexcept {
  const std::string_view key = LeadingLetters(text);
  if (key.size() == text.size() || text[key.size()] != '=') return;
  const Property* property = FindProperty(key);
  if (property == nullptr || !Holds(property->types, line.type)) return;
  line.value.Assign(text.substr(key.size() + 1));
  line.number = ParseInteger(line.value.c_str());
  property->write(line, record);
}

void ApplyRow(const WorkingRow& row, bool isFirst, rc::ResourceRecord& record) noexcept {
  PropertyLine line;
  line.type = FindObjectType(LeadingLetters(Behind(row.view(), kTypeofKey)));
  line.frame = isFirst ? FrameOf(row.view()) : 0;
  line.row = row.c_str();
  for (std::string_view rest = row.view(); !rest.empty();) {
    const std::size_t end = rest.find('\n');
    ApplyLine(rest.substr(0, end), line, record);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
}

}  // namespace

void PropertiesToRecords(const PropertyArray& array, rc::RecordTable& records) noexcept {
  for (int i = 0; i < kRowCount; ++i) {
    // The search heeds the whole row, and no line feed stands in front of it: a TYPEOF in the first line is
    // none.
    if (std::strstr(array.rows[i], kTypeofKey.data()) == nullptr) return;
    WorkingRow row("\n");
    row.Append(array.rows[i]);
    ApplyRow(row, i == 0, *records[i]);
  }
}

}  // namespace brelt::resprops
