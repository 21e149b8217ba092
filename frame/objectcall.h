// The first four steps of every call on an object, in the order that programs rely on: trace the call's name,
// clear its outputs, resolve the window, check. What is left for an export is its work.
#pragma once

#include <windows.h>

#include <cstdint>

#include "frame/trace.h"
#include "frame/winobject.h"
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

// A buffer that may get a picture and is cleared whole.
template <std::int32_t Missing>
struct BytesOutput {
  static constexpr std::int32_t kMissing = Missing;
  void* buffer;
  std::int32_t size;

  bool IsMissing() const noexcept { return buffer == nullptr; }
  void Clear() const noexcept { bytes().Zero(); }
  rc::TextBuffer bytes() const noexcept { return {static_cast<char*>(buffer), size}; }
};

// A text, array or picture that comes in.
template <std::int32_t Missing>
struct Input {
  static constexpr std::int32_t kMissing = Missing;
  const void* value;

  bool IsMissing() const noexcept { return value == nullptr; }
  void Clear() const noexcept {}
};
using TextInput = Input<RTX_NULL_ARG>;
using ArrayInput = Input<RTX_NULL_ARRAY>;

class ObjectCall {
 public:
  // function is the export's own name, __func__ in its body.
  template <typename... Arguments>
  ObjectCall(const char* function, const char* name, std::int32_t id, Arguments... arguments) noexcept
      : ObjectCall(ResolveName, function, name, id, arguments...) {}

  // The same with a way of its own from the name to the window.
  template <typename... Arguments>
  ObjectCall(HWND (*resolve)(const char* name) noexcept, const char* function, const char* name,
             std::int32_t id, Arguments... arguments) noexcept
      : id_(id) {
    TraceCall(function);
    (arguments.Clear(), ...);
    Resolve(resolve(name));
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
  // What a call that doesn't apply to the object reports: 703 for a control or menu item, 727 for neither.
  std::int32_t WrongObject() const noexcept;

 private:
  void Resolve(HWND window) noexcept;
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
