// Deliberate processor faults. Nothing here catches them: they are for the handlers of a program's run-time.
#include "include/brelt.h"

void __stdcall RaiseGuiRtx(int32_t code) {
  switch (code) {
    case 5:
      *static_cast<volatile char*>(nullptr) = 0;
      break;
    case 29:
      __asm__ volatile("ud2");
      break;
    case 150:
      __asm__ volatile("hlt");
      break;
    case 253:
      for (;;) __asm__ volatile("");
    case 142:  // Known codes without a fault of their own; programs pass them.
    case 148:
      break;
    default:
      break;
  }
}
