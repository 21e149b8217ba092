// The list of a window's controls.
#include "frame/objectcall.h"
#include "include/brelt.h"

namespace brelt {
namespace {

struct ControlListing {
  HWND window;
  bool details;
  rc::TextWriter writer;
  std::int32_t count;
};

void AppendControl(ControlListing& listing, HWND control) noexcept {
  const WindowRow* row = RowOfControl(listing.window, control);
  listing.writer.Append(row != nullptr ? row->name.view() : std::string_view());
  if (listing.details) {
    rc::FixedText<40> kind;
    ObjectTypeOf(control, nullptr, 0, kind);
    listing.writer.Format(",%s,0x%lx", kind.c_str(), reinterpret_cast<unsigned long>(control));
  }
  listing.writer.Append('\n');
  ++listing.count;
}

}  // namespace
}  // namespace brelt

using namespace brelt;

BOOL __stdcall Enum_ControlList(HWND window, LPARAM context) {
  auto* listing = reinterpret_cast<ControlListing*>(context);
  if (listing == nullptr) return FALSE;
  // Grandchildren, such as the inner edit of a combo box, are no controls of the window.
  if (GetParent(window) == listing->window) AppendControl(*listing, window);
  return TRUE;
}

int32_t __stdcall ControlList(const char* name, uint8_t details, char* text, int32_t size, int32_t* count) {
  const ObjectCall call(__func__, name, 0, TextOutput{text, size}, NumberOutput{count});
  if (call.code() != RTX_OK || size <= 0 || !IsDialog(call.window())) return 0;
  ControlListing listing{call.window(), details != 0, rc::TextWriter({text, size}), 0};
  EnumChildWindows(call.window(), Enum_ControlList, reinterpret_cast<LPARAM>(&listing));
  *count = listing.count;
  return listing.count;
}
