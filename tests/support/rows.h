// A property array as a program has one: rows of one size, guard bytes around each.
#pragma once

#include <string>
#include <vector>

#include "tests/support/guarded.h"

namespace brelt::test {

class Rows {
 public:
  explicit Rows(int size = 1025, int count = 256) : size_(size) {
    rows_.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) rows_.emplace_back(size);
    for (GuardedBuffer& row : rows_) pointers_.push_back(row.data());
  }

  char** pointers() { return pointers_.data(); }
  int count() const { return static_cast<int>(rows_.size()); }
  int size() const { return size_; }
  char* row(int i) { return pointers_[static_cast<std::size_t>(i)]; }

  std::string Text(int i) const { return rows_[static_cast<std::size_t>(i)].Text(); }
  bool AreGuardsIntact() const {
    return std::all_of(rows_.begin(), rows_.end(), [](const GuardedBuffer& row) { return row.IsIntact(); });
  }
  // Whether every byte of a row is zero.
  bool IsZero(int i) const {
    return Text(i).empty() && rows_[static_cast<std::size_t>(i)].IsZeroBehindText();
  }
  bool AreAllZero() const {
    for (int i = 0; i < count(); ++i) {
      if (!IsZero(i)) return false;
    }
    return true;
  }
  // The rows up to the last that isn't empty.
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (int i = 0; i < count(); ++i) texts.push_back(Text(i));
    while (!texts.empty() && texts.back().empty()) texts.pop_back();
    return texts;
  }

  // Makes all rows zero and then gives the first ones these texts.
  void Fill(const std::vector<std::string>& texts) {
    for (char* row : pointers_) std::memset(row, 0, static_cast<std::size_t>(size_));
    for (std::size_t i = 0; i < texts.size(); ++i) rc::TextBuffer(pointers_[i], size_).Assign(texts[i]);
  }

 private:
  int size_;
  std::vector<GuardedBuffer> rows_;
  std::vector<char*> pointers_;
};

}  // namespace brelt::test
