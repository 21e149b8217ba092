#include "forms/picture.h"
#include "graphics/packedbitmap.h"
#include "rc/host.h"

namespace brelt {

std::uint32_t ReadablePictureSize(const void* picture) noexcept {
  if (picture == nullptr || !host::IsReadable(picture, graphics::kOs2HeaderSize)) return 0;
  const std::uint32_t header = graphics::PictureHeaderSize(picture);
  if (header == 0 || !host::IsReadable(picture, header)) return 0;
  const std::uint32_t size = graphics::PictureSize(picture);
  return size > 0 && host::IsReadable(picture, size) ? size : 0;
}

}  // namespace brelt
