// List boxes, icon lists and combo boxes behind one face: the same calls with the messages of each kind.
#pragma once

#include <windows.h>

#include <cstdint>

#include "forms/listitems.h"
#include "rc/text.h"

namespace brelt {

// The index that stands for the whole list.
inline constexpr std::int32_t kWholeList = 0x7FFFFFFF;

using ItemText = rc::FixedText<kListItemLength>;

// A program's index, which counts from the option base, as a place from 0. Wild indexes wrap to places that
// no list has.
std::int32_t ToPlace(std::int32_t index) noexcept;

// A program's text as the text of one item: cut to 1024 characters, then without one line feed and then
// without one carriage return at its end.
ItemText ToItemText(const char* text) noexcept;

class List {
 public:
  // Not a list if the window is of another class.
  explicit List(HWND control) noexcept;

  explicit operator bool() const noexcept { return messages_ != nullptr; }
  bool IsIconList() const noexcept { return isIconList_; }
  bool IsCombo() const noexcept;
  HWND window() const noexcept { return control_; }

  // Indexes count from 0; -1 is no selection.
  std::int32_t Count() const noexcept;
  std::int32_t Selection() const noexcept;
  void Select(std::int32_t index) const noexcept;
  bool Holds(std::int32_t index) const noexcept { return index >= 0 && index < Count(); }
  // The new item's index, below 0 when the list didn't take it.
  std::int32_t Append(const char* text) const noexcept;
  std::int32_t Insert(std::int32_t index, const char* text) const noexcept;
  void Delete(std::int32_t index) const noexcept;
  void Reset() const noexcept;
  std::int32_t TextLength(std::int32_t index) const noexcept;
  // The buffer must have room for TextLength and a terminator.
  void CopyText(std::int32_t index, char* buffer) const noexcept;
  LPARAM Data(std::int32_t index) const noexcept;
  void SetData(std::int32_t index, LPARAM data) const noexcept;

 private:
  struct Messages;
  static const Messages kListMessages;
  static const Messages kComboMessages;

  std::int32_t Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const noexcept {
    return static_cast<std::int32_t>(SendMessageA(control_, message, wParam, lParam));
  }

  HWND control_;
  const Messages* messages_ = nullptr;
  bool isIconList_ = false;
};

}  // namespace brelt
