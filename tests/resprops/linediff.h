// What a rewrite changed in a file, line by line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brelt::test {

// The lines of a text without their line ends.
std::vector<std::string> Lines(const std::string& text);

// The changes from one text to another: "-first..last" for lines of the old text that went, "@line" ahead of
// lines that came in behind one, and each new line behind a "+". Line ends don't count. Long lines are cut in
// the middle.
std::string LineDiff(const std::string& before, const std::string& after);

// A checksum, for results too long to be kept whole.
std::string Checksum(std::string_view bytes);

}  // namespace brelt::test
