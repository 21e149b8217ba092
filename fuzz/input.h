// The bytes that a fuzzer hands over, taken in lines from the front.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace brelt::fuzz {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

  // The first line, without its line feed.
  std::string TakeLine() {
    const std::size_t end = rest_.find('\n');
    std::string line = rest_.substr(0, end);
    rest_.erase(0, end == std::string::npos ? end : end + 1);
    return line;
  }
  // What stands ahead of the first line that is a mark, or all of it; the mark goes too.
  std::string TakePart(const std::string& mark) {
    const std::size_t end = ("\n" + rest_).find("\n" + mark + "\n");
    std::string part = rest_.substr(0, end);
    rest_.erase(0, end == std::string::npos ? end : end + mark.size() + 1);
    return part;
  }
  bool IsEmpty() const { return rest_.empty(); }
  const std::string& rest() const { return rest_; }

 private:
  std::string rest_;
};

// Stops the fuzzer with a finding.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", what);
  std::abort();
}

}  // namespace brelt::fuzz
