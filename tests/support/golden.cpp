#include "tests/support/golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace brelt::test {
namespace {

// The first line in which two texts differ, as both have it.
std::string FirstDifference(const std::string& expected, const std::string& actual) {
  const auto [left, right] = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  const auto line = std::count(expected.begin(), left, '\n') + 1;
  const auto rest = [](const std::string& text, std::string::const_iterator at) {
    const std::size_t offset = static_cast<std::size_t>(at - text.begin());
    const std::size_t start = offset == 0 ? 0 : text.rfind('\n', offset - 1) + 1;
    return text.substr(start, text.find('\n', offset) - start);
  };
  return "line " + std::to_string(line) + "\nexpected: " + rest(expected, left) +
         "\nactual:   " + rest(actual, right);
}

}  // namespace

bool LoadBytes(const std::string& path, std::string& bytes) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return false;
  bytes.assign(std::istreambuf_iterator<char>(file), {});
  return true;
}

std::string ProjectPath(const std::string& name) {
#ifdef _WIN32
  // Built on another system, whose files are this drive.
  return "z:" BRELT_SOURCE_DIR "/" + name;
#else
  return BRELT_SOURCE_DIR "/" + name;
#endif
}

std::vector<std::string> ListFolder(const std::string& folder, const std::vector<std::string>& extensions) {
  std::vector<std::string> names;
  std::error_code failed;
  for (const auto& entry : std::filesystem::directory_iterator(folder, failed)) {
    const std::string extension = entry.path().extension().string();
    if (std::find(extensions.begin(), extensions.end(), extension) == extensions.end()) continue;
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string CorpusFolder() {
  const char* chosen = std::getenv("BRELT_CORPUS");
  return chosen != nullptr ? chosen : ProjectPath("../shared/corpus");
}

void ExpectGolden(const std::string& name, const std::string& text) {
  const std::string path = ProjectPath(name);
  std::string expected;
  const bool found = LoadBytes(path, expected);
  if (found && expected == text) return;
  std::ofstream(path + ".new", std::ios::binary) << text;
  ADD_FAILURE() << name << (found ? " differs at " + FirstDifference(expected, text) : " is missing")
                << "\nSee " << name << ".new";
}

}  // namespace brelt::test
