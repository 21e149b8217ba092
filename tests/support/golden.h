// Results of more than a few lines, kept in files beside the tests.
#pragma once

#include <optional>
#include <string>

namespace brelt::test {

// A file of this project by its path from the project's root. BRELT_ROOT names another root than the one that
// the tests were built from.
std::string ProjectPath(const std::string& path);

// The bytes of a file of this machine; nothing when it can't be read.
std::optional<std::string> LoadBytes(const std::string& path);

// Compares a result with the file tests/golden/NAME. Where they differ the test fails with the first line
// that does, and the result is written beside the file with ".new" at the end of its name.
void ExpectGolden(const std::string& name, const std::string& result);

}  // namespace brelt::test
