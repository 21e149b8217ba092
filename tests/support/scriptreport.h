// Everything that the RC engine reads from one script, as lines of text.
#pragma once

#include <string>

namespace brelt::test {

// Puts a script into the tests' host and reports: each resource with its lines; the symbols, or the failure
// to load them; each DIALOG and MENU as its records or the exact message, and what building the MENU gives;
// the file of each ICON. The host is reset first, so that the script stands alone.
std::string ReportScript(const std::string& bytes);

}  // namespace brelt::test
