// Properties as rows: what answers for the window, for the controls by class, and for a menu item. What a row
// doesn't name is refused with the codes that all properties share.
#pragma once

#include "frame/objectcall.h"

namespace brelt {

// A row has room for this many kinds of controls.
inline constexpr int kControlKinds = 5;
// The pattern of all controls.
inline constexpr const char* kAnyControl = "*";

// Function is what the row's cells hold, a pointer to a function of one of the shapes below.
template <typename Function>
struct PropertyRow {
  struct Control {
    const char* classPattern;
    Function function;
  };

  Function window = nullptr;
  Function editWindow = nullptr;  // where edit windows alone answer
  Control controls[kControlKinds] = {};
  Function menuItem = nullptr;

  // What answers for the object of a call; null where nothing does.
  Function Choose(const ObjectCall& call) const noexcept {
    if (call.id() == 0) return IsAnyEditwindow(call.window()) && editWindow != nullptr ? editWindow : window;
    if (call.control() == nullptr) return menuItem != nullptr && call.IsMenuItem() ? menuItem : nullptr;
    const ClassName className = ClassNameOf(call.control());
    for (const Control& control : controls) {
      if (TextMatches(control.classPattern, className.c_str(), kIgnoreCase)) return control.function;
    }
    return nullptr;
  }
};

// Gives a value.
template <typename Value>
using GetRow = PropertyRow<Value (*)(const ObjectCall& call) noexcept>;
// Takes a value, or fills a buffer, and can't fail.
template <typename Value>
using SetRow = PropertyRow<void (*)(const ObjectCall& call, Value value) noexcept>;
// Takes a value and gives a failure code.
template <typename Value>
using ActRow = PropertyRow<std::int32_t (*)(const ObjectCall& call, Value value) noexcept>;

// What a call reports on an object that its row doesn't name.
inline std::int32_t Refuse(const ObjectCall& call) noexcept {
  return call.id() == 0 ? std::int32_t{RTX_WRONG_KIND} : call.WrongObject();
}

template <typename Value>
std::int32_t GetProperty(const ObjectCall& call, const GetRow<Value>& row, Value* value) noexcept {
  if (call.code() != RTX_OK) return call.code();
  const auto get = row.Choose(call);
  if (get == nullptr) return Refuse(call);
  *value = get(call);
  return RTX_OK;
}

template <typename Value>
std::int32_t SetProperty(const ObjectCall& call, const SetRow<Value>& row, Value value) noexcept {
  if (call.code() != RTX_OK) return call.code();
  const auto set = row.Choose(call);
  if (set == nullptr) return Refuse(call);
  set(call, value);
  return RTX_OK;
}

template <typename Value>
std::int32_t ActOnProperty(const ObjectCall& call, const ActRow<Value>& row, Value value) noexcept {
  if (call.code() != RTX_OK) return call.code();
  const auto act = row.Choose(call);
  return act != nullptr ? act(call, value) : Refuse(call);
}

inline std::uint8_t Truth(bool value) noexcept { return value ? 1 : 0; }

// Has a window painted anew after a change.
inline void Repaint(HWND window, bool erase = true) noexcept {
  InvalidateRect(window, nullptr, erase ? TRUE : FALSE);
  UpdateWindow(window);
}

}  // namespace brelt
