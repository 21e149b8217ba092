// What the product says about itself.
#include "frame/library.h"
#include "frame/trace.h"
#include "include/brelt.h"
#include "rc/text.h"

namespace brelt {
namespace {

std::string_view ProductText(char letter) noexcept {
  switch (letter) {
    case 'B':
      return "Quorvane Software";
    case 'C':
      return "Copyright (c) Quorvane Software. All rights reserved.";
    case 'E':
      return "support@quorvane.example";
    case 'P':
      return "Quorvane";
    case 'R':
      return BRELT_RELEASE;
    case 'S':
      return ".cls";
    case 'V':
      return BRELT_VERSION;
    case 'W':
      return "www.quorvane.example";
    default:
      return "";
  }
}

}  // namespace
}  // namespace brelt

using namespace brelt;

char* __stdcall GetProductInformation(char letter, char* buffer, uint32_t size) {
  TraceCall(__func__);
  if (buffer == nullptr || size == 0) return buffer;
  const int room = size > INT32_MAX ? INT32_MAX : static_cast<int>(size);
  rc::TextBuffer(buffer, room).Assign(ProductText(letter));
  return buffer;
}
