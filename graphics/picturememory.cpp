#include "graphics/picturememory.h"

#include <windows.h>

#include "graphics/packedbitmap.h"

namespace brelt::graphics {

std::uint32_t ReadablePictureSize(const void* picture) noexcept {
  if (picture == nullptr || IsBadReadPtr(picture, kOs2HeaderSize)) return 0;
  const std::uint32_t header = PictureHeaderSize(picture);
  if (header == 0 || IsBadReadPtr(picture, header)) return 0;
  const std::uint32_t size = PictureSize(picture);
  return size > 0 && !IsBadReadPtr(picture, size) ? size : 0;
}

}  // namespace brelt::graphics
