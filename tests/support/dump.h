// Parsed things as lines of text, so that a test compares whole results and a failure reads well.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "rc/accelerators.h"
#include "rc/record.h"
#include "rc/symbols.h"

namespace brelt::test {

// A text with its control characters, quotation marks, backslashes and bytes from 127 up as escapes.
std::string Visible(std::string_view text);

// A record in one line: keyword, name, class, text, coordinates and style; font, menu and extended style only
// where they are set. What is empty shows as "-".
std::string DumpRecord(const rc::ResourceRecord& record);

// A line for each record that holds anything, with its number in front.
std::string DumpRecords(const rc::RecordTable& records);

// The result of ParseDialog or ParseMenu: the lines of the records, or "! " and the message. The records are
// full of other things before the parse; where a failure leaves any of them, they follow the message.
std::string ReadDialog(const std::string& text);
std::string ReadMenu(const std::string& text);

// A line "name value uses" for each row up to the first empty one.
std::string DumpSymbols(std::span<const rc::SymbolRecord> symbols);

// A line "flags key command" for each row that holds anything, keys as numbers.
std::string DumpAccelerators(const rc::AcceleratorTable& accelerators);

}  // namespace brelt::test
