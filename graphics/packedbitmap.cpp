#include "graphics/packedbitmap.h"

#include <cstring>

namespace brelt::graphics {
namespace {

// Reads fields of a header at byte offsets, without a demand on its place in memory.
class HeaderReader {
 public:
  explicit HeaderReader(const void* picture) noexcept : bytes_(static_cast<const unsigned char*>(picture)) {}

  std::uint16_t Word(int offset) const noexcept { return Read<std::uint16_t>(offset); }
  std::uint32_t Double(int offset) const noexcept { return Read<std::uint32_t>(offset); }

 private:
  template <typename T>
  T Read(int offset) const noexcept {
    T value;
    std::memcpy(&value, bytes_ + offset, sizeof value);
    return value;
  }

  const unsigned char* bytes_;
};

// Pictures of 16 and 32 bits always count three entries, their colour masks.
std::uint32_t UsualColours(std::int32_t bits) noexcept {
  if (bits == 16 || bits == 32) return 3;
  return bits == 24 || bits > 31 ? 0 : 1u << bits;
}

PictureInfo ReadWindowsHeader(const HeaderReader& header) noexcept {
  PictureInfo info;
  if (header.Word(12) != 1) return info;
  info.kind = kWindowsPicture;
  info.width = static_cast<std::int32_t>(header.Double(4));
  info.height = static_cast<std::int32_t>(header.Double(8));
  info.bits = header.Word(14);
  const std::uint32_t used = header.Double(32);
  info.colours = used != 0 ? used : UsualColours(info.bits);
  return info;
}

PictureInfo ReadOs2Header(const HeaderReader& header) noexcept {
  PictureInfo info;
  if (header.Word(8) != 1) return info;
  info.kind = kOs2Picture;
  info.width = header.Word(4);
  info.height = header.Word(6);
  info.bits = header.Word(10);
  info.colours = UsualColours(info.bits);
  return info;
}

}  // namespace

std::uint32_t PictureHeaderSize(const void* picture) noexcept {
  const std::uint32_t size = HeaderReader(picture).Double(0);
  return size == kWindowsHeaderSize || size == kOs2HeaderSize ? size : 0;
}

PictureInfo ReadPictureHeader(const void* picture) noexcept {
  const HeaderReader header(picture);
  switch (PictureHeaderSize(picture)) {
    case kWindowsHeaderSize:
      return ReadWindowsHeader(header);
    case kOs2HeaderSize:
      return ReadOs2Header(header);
    default:
      return {};
  }
}

std::uint64_t PictureRowBytes(std::int32_t width, std::int32_t bits) noexcept {
  const std::uint64_t pixels =
      std::uint64_t{static_cast<std::uint32_t>(width)} * static_cast<std::uint32_t>(bits);
  return (pixels + 31) / 32 * 4;
}

std::uint32_t PictureSize(const void* picture) noexcept {
  if (picture == nullptr) return 0;
  const PictureInfo info = ReadPictureHeader(picture);
  if (info.kind == 0 || info.width < 0 || info.height < 0) return 0;
  const bool isWindows = info.kind == kWindowsPicture;
  const std::uint64_t table = std::uint64_t{info.colours} * (isWindows ? 4 : 3);
  const std::uint64_t rows = PictureRowBytes(info.width, info.bits);
  const std::uint64_t height = static_cast<std::uint32_t>(info.height);
  if (rows > INT32_MAX || table > INT32_MAX) return 0;
  const std::uint64_t size = rows * height + table + (isWindows ? kWindowsHeaderSize : kOs2HeaderSize);
  return size <= INT32_MAX ? static_cast<std::uint32_t>(size) : 0;
}

}  // namespace brelt::graphics
