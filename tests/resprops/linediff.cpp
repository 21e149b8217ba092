#include "tests/resprops/linediff.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "tests/support/dump.h"

namespace brelt::test {
namespace {

using Texts = std::vector<std::string>;

std::string Shown(const std::string& line) {
  constexpr std::size_t kMost = 120;
  if (line.size() <= kMost) return Visible(line);
  return Visible(line.substr(0, 40)) + " ...(" + std::to_string(line.size()) + ")... " +
         Visible(line.substr(line.size() - 20));
}

// Length of the longest common subsequence of a[i..] and b[j..], for all i and j.
std::vector<std::vector<int>> CommonLengths(const Texts& a, const Texts& b) {
  std::vector<std::vector<int>> lengths(a.size() + 1, std::vector<int>(b.size() + 1, 0));
  for (std::size_t i = a.size(); i-- > 0;) {
    for (std::size_t j = b.size(); j-- > 0;) {
      lengths[i][j] =
          a[i] == b[j] ? lengths[i + 1][j + 1] + 1 : std::max(lengths[i + 1][j], lengths[i][j + 1]);
    }
  }
  return lengths;
}

// One run of changes: lines first to end of the old text went, lines came.
std::string Hunk(std::size_t first, std::size_t end, const Texts& came) {
  std::string text = "@" + std::to_string(first) + "\n";
  if (end > first) {
    text = "-" + std::to_string(first + 1);
    if (end > first + 1) text += ".." + std::to_string(end);
    text += "\n";
  }
  for (const std::string& line : came) text += "+" + Shown(line) + "\n";
  return text;
}

}  // namespace

std::vector<std::string> Lines(const std::string& text) {
  Texts lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    std::string line = text.substr(at, end - at);
    while (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
    at = end + 1;
  }
  return lines;
}

std::string LineDiff(const std::string& before, const std::string& after) {
  Texts a = Lines(before);
  Texts b = Lines(after);
  std::size_t skipped = 0;
  while (skipped < a.size() && skipped < b.size() && a[skipped] == b[skipped]) ++skipped;
  std::size_t tail = 0;
  while (tail < a.size() - skipped && tail < b.size() - skipped &&
         a[a.size() - tail - 1] == b[b.size() - tail - 1]) {
    ++tail;
  }
  a = Texts(a.begin() + static_cast<std::ptrdiff_t>(skipped), a.end() - static_cast<std::ptrdiff_t>(tail));
  b = Texts(b.begin() + static_cast<std::ptrdiff_t>(skipped), b.end() - static_cast<std::ptrdiff_t>(tail));
  const auto lengths = CommonLengths(a, b);
  std::string diff;
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() || j < b.size()) {
    if (i < a.size() && j < b.size() && a[i] == b[j]) {
      ++i;
      ++j;
      continue;
    }
    const std::size_t first = i;
    Texts came;
    while ((i < a.size() || j < b.size()) && !(i < a.size() && j < b.size() && a[i] == b[j])) {
      if (j == b.size() || (i < a.size() && lengths[i + 1][j] >= lengths[i][j + 1])) {
        ++i;
      } else {
        came.push_back(b[j++]);
      }
    }
    diff += Hunk(skipped + first, skipped + i, came);
  }
  return diff;
}

std::string Checksum(std::string_view bytes) {
  std::uint64_t hash = 14695981039346656037u;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211u;
  char text[40];
  std::snprintf(text, sizeof text, "%zu bytes %016llx", bytes.size(), static_cast<unsigned long long>(hash));
  return text;
}

}  // namespace brelt::test
