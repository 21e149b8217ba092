// Turns a DIALOG of an RC file into a live, hidden window.
#pragma once

#include "include/brelt.h"
#include "rc/failure.h"

namespace brelt {

struct LoadRequest {
  HMODULE instance;
  const char* name;
  const char* rcFile;
  EventFunction eventFunction;
  const char* arrayValues;
};

// What Load does apart from the trace and the caller's message buffer. window may be null; it is written only
// when a window was made.
void LoadWindow(const LoadRequest& request, HWND* window, rc::Failure& failure) noexcept;

}  // namespace brelt
