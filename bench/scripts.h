// RC files for benchmarks, made rather than kept: any number of DIALOGs whose statements use words that
// #define lines of the same file give numbers to. The resource compiler of the cross tools accepts them too.
#pragma once

#include <string>
#include <vector>

namespace brelt::bench {

inline constexpr int kStatements = 100;  // in each DIALOG

// The #define lines: count names W0 to W<count - 1>.
std::string Definitions(int count);
// The text of one DIALOG, named FORM<number>.
std::string Dialog(int number, int definitions);
// A whole file, with line ends of the platform that such files come from.
std::string Script(int dialogs, int definitions);

void WriteScript(const char* name, const std::string& text);

}  // namespace brelt::bench
