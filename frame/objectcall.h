// The first four steps of every call on an object, in the order that programs rely on: trace the call's name,
// clear its outputs, resolve the window, check. What is left for an export is its work.
#pragma once

#include <windows.h>

#include <cstdint>

#include "include/events.h"
#include "rc/text.h"

namespace brelt {

// The arguments of a call that must not be null. Each kind has the code for a missing one, and outputs know
// their empty value.

struct TruthOutput {
  static constexpr std::int32_t kMissing = RTX_NULL_BOOL;
  std::uint8_t* value;

  bool IsMissing() const noexcept { return value == nullptr; }
  void Clear() const noexcept {
    if (value != nullptr) *value = 0;
  }
};

struct NumberOutput {
  static constexpr std::int32_t kMissing = RTX_NULL_INT;
  std::int32_t* value;
  std::int32_t empty = 0;

  bool IsMissing() const noexcept { return value == nullptr; }
  void Clear() const noexcept {
    if (value != nullptr) *value = empty;
  }
};

struct TextOutput {
  static constexpr std::int32_t kMissing = RTX_NULL_ARG;
  char* buffer;
  std::int32_t size;

  bool IsMissing() const noexcept { return buffer == nullptr; }
  void Clear() const noexcept { rc::TextBuffer(buffer, size).Clear(); }
};

// A text that comes in.
struct TextInput {
  static constexpr std::int32_t kMissing = RTX_NULL_ARG;
  const char* text;

  bool IsMissing() const noexcept { return text == nullptr; }
  void Clear() const noexcept {}
};

class ObjectCall {
 public:
  // function is the export's own name, __func__ in its body.
  template <typename... Arguments>
  ObjectCall(const char* function, const char* name, std::int32_t id, Arguments... arguments) noexcept
      : id_(id) {
    Trace(function);
    (arguments.Clear(), ...);
    Resolve(name);
    code_ = name == nullptr ? std::int32_t{RTX_NULL_ARG} : RTX_OK;
    (Require(arguments.IsMissing(), arguments.kMissing), ...);
    Require(window_ == nullptr, RTX_NO_WINDOW);
  }

  // 0, or the first of: null name, null argument, window not found.
  std::int32_t code() const noexcept { return code_; }

  HWND window() const noexcept { return window_; }
  std::int32_t id() const noexcept { return id_; }
  // The control of the id; null for id 0 and where there is none.
  HWND control() const noexcept { return control_; }
  HMENU menu() const noexcept { return menu_; }
  // Whether the id is an item of the window's menu.
  bool IsMenuItem() const noexcept;

 private:
  static void Trace(const char* function) noexcept;
  void Resolve(const char* name) noexcept;
  void Require(bool missing, std::int32_t code) noexcept {
    if (code_ == RTX_OK && missing) code_ = code;
  }

  std::int32_t id_;
  std::int32_t code_ = RTX_OK;
  HWND window_ = nullptr;
  HWND control_ = nullptr;
  HMENU menu_ = nullptr;
};

}  // namespace brelt
