#include "tests/support/golden.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

namespace brelt::test {
namespace {

std::string Root() {
  if (const char* named = std::getenv("BRELT_ROOT"); named != nullptr && *named != '\0') return named;
  const std::string built = BRELT_SOURCE_DIR;
#ifdef _WIN32
  // Wine shows the machine that the tests were built on as drive z.
  if (built.front() == '/') return "z:" + built;
#endif
  return built;
}

// The first line that differs, from both sides.
std::string FirstDifference(const std::string& expected, const std::string& result) {
  std::istringstream left(expected);
  std::istringstream right(result);
  for (int number = 1;; ++number) {
    std::string a;
    std::string b;
    const bool moreLeft = static_cast<bool>(std::getline(left, a));
    const bool moreRight = static_cast<bool>(std::getline(right, b));
    if (!moreLeft && !moreRight) return "only the last line feed differs";
    if (moreLeft && moreRight && a == b) continue;
    return "line " + std::to_string(number) + "\n  expected " + (moreLeft ? a : "no more lines") +
           "\n  but got  " + (moreRight ? b : "no more lines");
  }
}

}  // namespace

std::string ProjectPath(const std::string& path) { return Root() + "/" + path; }

std::optional<std::string> LoadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

void ExpectGolden(const std::string& name, const std::string& result) {
  const std::string path = ProjectPath("tests/golden/" + name);
  const std::optional<std::string> expected = LoadBytes(path);
  if (expected == result) return;
  std::ofstream(path + ".new", std::ios::binary) << result;
  ADD_FAILURE() << path << (expected ? " differs in " + FirstDifference(*expected, result) : " is missing");
}

}  // namespace brelt::test
