// Deliberate processor faults. Nothing here catches them: they are for the handlers of a program's run-time.
#include "include/brelt.h"

void __stdcall RaiseGuiRtx(int32_t code) {
  volatile char* const nowhere = nullptr;
  switch (code) {
    case 5:
      *nowhere = 0;  // NOLINT(clang-analyzer-core.NullDereference): the very purpose
      break;
    case 29:
      __asm__ volatile("ud2");
      break;
    case 150:
      __asm__ volatile("hlt");
      break;
    case 253:
      for (;;) __asm__ volatile("");
    // NOLINTNEXTLINE(bugprone-branch-clone): known codes without a fault of their own; programs pass them
    case 142:
    case 148:
      break;
    default:
      break;
  }
}
