// Picture, and what a picture tells about itself.
#include "forms/canvas.h"
#include "forms/picture.h"
#include "forms/property.h"
#include "graphics/packedbitmap.h"
#include "include/brelt.h"

namespace brelt {
namespace {

// A picture's buffer has a code of its own for a missing one.
using PictureOutput = BytesOutput<RTX_BAD_PICTURE>;

bool ShowsPicture(HWND control) noexcept {
  return ClassMatches(control, "Image.*") || ClassMatches(control, "Bitmapbutton.*");
}

std::int32_t CopyControlPicture(HWND control, const PictureOutput& out) noexcept {
  const auto* picture = reinterpret_cast<const void*>(SendMessageA(control, CM_GETPICTURE, 0, 0));
  const std::uint32_t size = ReadablePictureSize(picture);
  if (size == 0) return RTX_OK;
  if (size > static_cast<std::uint32_t>(out.bytes().size())) return RTX_PICTURE_BUFFER;
  std::memcpy(out.buffer, picture, size);
  return RTX_OK;
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetPicture(const char* name, int32_t id, void* buffer, int32_t size) {
  const PictureOutput out{buffer, size};
  const ObjectCall call(__func__, name, id, out);
  if (call.code() != RTX_OK) return call.code();
  if (id == 0) {
    return CanvasSizeOf(call.window()).IsEmpty() ? RTX_OK : ReadCanvas(call.window(), buffer, size);
  }
  if (!ShowsPicture(call.control())) return Refuse(call);
  return CopyControlPicture(call.control(), out);
}

int32_t __stdcall SetPicture(const char* name, int32_t id, const void* picture) {
  const ObjectCall call(__func__, name, id, TextInput{picture});
  if (call.code() != RTX_OK) return call.code();
  if (id == 0) return ShowPictureOnCanvas(call.window(), picture);
  if (!ShowsPicture(call.control())) return Refuse(call);
  SendMessageA(call.control(), CM_SETPICTURE, 0, reinterpret_cast<LPARAM>(picture));
  return RTX_OK;
}

int32_t __stdcall GetBitmapInfo(const void* picture, int32_t* width, int32_t* height, int32_t* bits,
                                int32_t* size, int32_t* kind) {
  TraceCall(__func__);
  bool complete = true;
  for (int32_t* output : {width, height, bits, size, kind}) {
    if (output == nullptr) {
      complete = false;
    } else {
      *output = 0;
    }
  }
  const uint32_t readable = complete ? ReadablePictureSize(picture) : 0;
  if (readable == 0) return RTX_OK;
  const graphics::PictureInfo info = graphics::ReadPictureHeader(picture);
  *width = info.width;
  *height = info.height;
  *bits = info.bits;
  *size = static_cast<int32_t>(readable);
  *kind = info.kind;
  return RTX_OK;
}
