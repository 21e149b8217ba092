#include "tests/support/dump.h"

#include <cstdarg>
#include <cstdio>

#include "rc/dialog.h"
#include "rc/menuparser.h"

namespace brelt::test {
namespace {

std::string Formatted(const char* format, ...) BRELT_PRINTF(1, 2);
std::string Formatted(const char* format, ...) {
  char text[200];
  std::va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  return text;
}

std::string OrDash(std::string_view text) { return text.empty() ? "-" : Visible(text); }

std::string Coordinate(std::int32_t value) {
  return value == rc::kUnset ? "unset" : Formatted("%ld", static_cast<long>(value));
}

// Fills a record with what no parse leaves, so that a field that isn't cleared shows.
void Soil(rc::ResourceRecord& record) {
  record.x = record.y = record.width = record.height = record.fontSize = -77;
  record.style = record.exStyle = 0x77777777;
  record.text.Assign("soil");
  record.className.Assign("soil");
  record.menuName.Assign("soil");
  record.fontName.Assign("soil");
  record.keyword.Assign("soil");
  record.name.Assign("soil");
}

using Parser = bool (*)(const char*, rc::RecordTable&, rc::TextBuffer);

std::string Read(Parser parse, const std::string& text) {
  rc::RecordArray records;
  for (rc::ResourceRecord* record : records.table()) Soil(*record);
  rc::FixedText<1023> message;
  message.Assign("soil");
  const bool parsed = parse(text.c_str(), records.table(), message);
  const std::string dump = DumpRecords(records.table());
  if (parsed != message.IsEmpty())
    return "the result and the message disagree: " + std::string(message.view());
  return parsed ? dump : "! " + Visible(message.view()) + "\n" + dump;
}

}  // namespace

std::string Visible(std::string_view text) {
  std::string visible;
  for (const char c : text) {
    switch (c) {
      case '\n':
        visible += "\\n";
        break;
      case '\r':
        visible += "\\r";
        break;
      case '\t':
        visible += "\\t";
        break;
      case '"':
      case '\\':
        visible += '\\';
        visible += c;
        break;
      default:
        if (rc::IsControl(c) || static_cast<unsigned char>(c) >= 128) {
          visible += Formatted("\\x%02X", static_cast<unsigned char>(c));
        } else {
          visible += c;
        }
    }
  }
  return visible;
}

std::string DumpRecord(const rc::ResourceRecord& record) {
  std::string line = OrDash(record.keyword.view()) + " " + OrDash(record.name.view()) + " " +
                     OrDash(record.className.view()) + " \"" + Visible(record.text.view()) + "\" ";
  line += Coordinate(record.x) + "," + Coordinate(record.y) + "," + Coordinate(record.width) + "," +
          Coordinate(record.height);
  line += Formatted(" %08lX", static_cast<unsigned long>(record.style));
  if (record.exStyle != 0) line += Formatted(" ex %08lX", static_cast<unsigned long>(record.exStyle));
  if (!record.menuName.IsEmpty()) line += " menu " + Visible(record.menuName.view());
  if (!record.fontName.IsEmpty() || record.fontSize != 0) {
    line += " font " + Formatted("%ld", static_cast<long>(record.fontSize)) + " \"" +
            Visible(record.fontName.view()) + "\"";
  }
  return line;
}

std::string DumpRecords(const rc::RecordTable& records) {
  const std::string empty = DumpRecord(rc::ResourceRecord());
  std::string lines;
  for (int i = 0; i < rc::kRecordCount; ++i) {
    const std::string line = DumpRecord(*records[i]);
    if (line != empty) lines += Formatted("%d ", i) + line + "\n";
  }
  return lines;
}

std::string ReadDialog(const std::string& text) { return Read(rc::ParseDialog, text); }
std::string ReadMenu(const std::string& text) { return Read(rc::ParseMenu, text); }

std::string DumpSymbols(std::span<const rc::SymbolRecord> symbols) {
  std::string lines;
  for (const rc::SymbolRecord& row : symbols) {
    if (row.Name.IsEmpty()) break;
    lines += Visible(row.Name.view()) +
             Formatted(" %ld %ld\n", static_cast<long>(row.Value), static_cast<long>(row.Uses));
  }
  return lines;
}

std::string DumpAccelerators(const rc::AcceleratorTable& accelerators) {
  std::string lines;
  for (const rc::AcceleratorRow& row : accelerators) {
    if (row.Key == 0 && row.Flags == 0 && row.Command == 0) continue;
    lines += Formatted("%u %u %u\n", row.Flags, row.Key, row.Command);
  }
  return lines;
}

}  // namespace brelt::test
