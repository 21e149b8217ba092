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
