#include "graphics/packedbitmap.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>

namespace brelt::graphics {
namespace {

template <typename T>
void Put(std::string& bytes, std::size_t offset, T value) {
  std::memcpy(bytes.data() + offset, &value, sizeof value);
}

struct Header {
  std::uint32_t first = 40;
  std::int32_t width = 1;
  std::int32_t height = 1;
  std::uint16_t planes = 1;
  std::uint16_t bits = 24;
  std::uint32_t used = 0;  // colours; the Windows kind alone has them
};

// The bytes of a header, nothing behind it: what works on them may read no further.
std::string Windows(const Header& header) {
  std::string bytes(40, '\0');
  Put(bytes, 0, header.first);
  Put(bytes, 4, header.width);
  Put(bytes, 8, header.height);
  Put(bytes, 12, header.planes);
  Put(bytes, 14, header.bits);
  Put(bytes, 32, header.used);
  return bytes;
}

std::string Os2(const Header& header) {
  std::string bytes(12, '\0');
  Put(bytes, 0, header.first);
  Put(bytes, 4, static_cast<std::uint16_t>(header.width));
  Put(bytes, 6, static_cast<std::uint16_t>(header.height));
  Put(bytes, 8, header.planes);
  Put(bytes, 10, header.bits);
  return bytes;
}

Header OfBits(std::uint16_t bits, std::uint32_t used = 0) {
  Header header;
  header.bits = bits;
  header.used = used;
  return header;
}

Header OfSize(std::int32_t width, std::int32_t height, std::uint16_t bits, std::uint32_t used = 0) {
  Header header = OfBits(bits, used);
  header.width = width;
  header.height = height;
  return header;
}

// A copy that stands at an odd address.
class Misaligned {
 public:
  explicit Misaligned(const std::string& bytes) : bytes_("x" + bytes) {}
  const void* get() const { return bytes_.data() + 1; }

 private:
  std::string bytes_;
};

TEST(PictureHeaderSize, IsTheFirstWordIfThatIsAHeadersSize) {
  struct Case {
    std::uint32_t first;
    std::uint32_t size;
  };
  for (const Case& c : {Case{40, 40}, Case{12, 12}, Case{0, 0}, Case{1, 0}, Case{11, 0}, Case{13, 0},
                        Case{39, 0}, Case{41, 0}, Case{64, 0}, Case{108, 0}, Case{124, 0},
                        Case{0x28000000, 0}, Case{40 + 65536, 0}, Case{0xFFFFFFFF, 0}}) {
    SCOPED_TRACE(c.first);
    Header header;
    header.first = c.first;
    EXPECT_EQ(PictureHeaderSize(Windows(header).data()), c.size);
    EXPECT_EQ(PictureHeaderSize(Misaligned(Windows(header)).get()), c.size);
  }
}

TEST(ReadPictureHeader, GivesKindSizeAndBits) {
  Header header = OfSize(300, 200, 8, 17);
  const Misaligned windows(Windows(header));
  PictureInfo info = ReadPictureHeader(windows.get());
  EXPECT_EQ(info.kind, 87);
  EXPECT_EQ(info.width, 300);
  EXPECT_EQ(info.height, 200);
  EXPECT_EQ(info.bits, 8);
  EXPECT_EQ(info.colours, 17u);
  header.first = 12;
  const Misaligned os2(Os2(header));
  info = ReadPictureHeader(os2.get());
  EXPECT_EQ(info.kind, 79);
  EXPECT_EQ(info.width, 300);
  EXPECT_EQ(info.height, 200);
  EXPECT_EQ(info.bits, 8);
  EXPECT_EQ(info.colours, 256u);
}

TEST(ReadPictureHeader, ReadsSizesAsTheKindKeepsThem) {
  const PictureInfo windows = ReadPictureHeader(Windows(OfSize(-5, -7, 24)).data());
  EXPECT_EQ(windows.width, -5);
  EXPECT_EQ(windows.height, -7);
  Header header = OfSize(0xFFFE, 0xFFFF, 24);
  header.first = 12;
  const PictureInfo os2 = ReadPictureHeader(Os2(header).data());
  EXPECT_EQ(os2.width, 0xFFFE);
  EXPECT_EQ(os2.height, 0xFFFF);
}

TEST(ReadPictureHeader, KnowsNothingButOnePlane) {
  for (const int planes : {0, 2, 3, 256, 257, 65535}) {
    SCOPED_TRACE(planes);
    Header header;
    header.planes = static_cast<std::uint16_t>(planes);
    EXPECT_EQ(ReadPictureHeader(Windows(header).data()).kind, 0);
    EXPECT_EQ(PictureSize(Windows(header).data()), 0u);
    header.first = 12;
    EXPECT_EQ(ReadPictureHeader(Os2(header).data()).kind, 0);
    EXPECT_EQ(PictureSize(Os2(header).data()), 0u);
  }
  Header other;
  other.first = 41;
  EXPECT_EQ(ReadPictureHeader(Windows(other).data()).kind, 0);
}

TEST(ReadPictureHeader, CountsColoursByTheUsedOnesOrByTheBits) {
  struct Case {
    std::uint16_t bits;
    std::uint32_t usual;
  };
  for (const Case& c : {Case{1, 2}, Case{4, 16}, Case{8, 256}, Case{16, 3}, Case{24, 0}, Case{32, 3},
                        Case{0, 1}, Case{2, 4}, Case{15, 32768}}) {
    SCOPED_TRACE(c.bits);
    EXPECT_EQ(ReadPictureHeader(Windows(OfBits(c.bits)).data()).colours, c.usual);
    EXPECT_EQ(ReadPictureHeader(Windows(OfBits(c.bits, 5)).data()).colours, 5u);
    Header header = OfBits(c.bits);
    header.first = 12;
    EXPECT_EQ(ReadPictureHeader(Os2(header).data()).colours, c.usual);
  }
}

TEST(PictureRowBytes, IsRoundedUpToFour) {
  struct Case {
    std::int32_t width;
    std::int32_t bits;
    std::uint64_t bytes;
  };
  for (const Case& c : {Case{0, 24, 0},
                        Case{1, 1, 4},
                        Case{32, 1, 4},
                        Case{33, 1, 8},
                        Case{7, 4, 4},
                        Case{8, 4, 4},
                        Case{9, 4, 8},
                        Case{4, 8, 4},
                        Case{5, 8, 8},
                        Case{1, 16, 4},
                        Case{3, 16, 8},
                        Case{1, 24, 4},
                        Case{2, 24, 8},
                        Case{4, 24, 12},
                        Case{5, 24, 16},
                        Case{1, 32, 4},
                        Case{3, 32, 12},
                        Case{5, 0, 0},
                        Case{INT32_MAX, 32, 8589934588u},
                        Case{INT32_MAX, 1, 268435456}}) {
    SCOPED_TRACE(::testing::Message() << c.width << " pixels of " << c.bits << " bits");
    EXPECT_EQ(PictureRowBytes(c.width, c.bits), c.bytes);
  }
}

TEST(PictureSize, IsHeaderTableAndRows) {
  struct Case {
    Header header;
    std::uint32_t windows;
    std::uint32_t os2;
  };
  const Case cases[] = {
      {OfSize(10, 10, 1), 40 + 8 + 4 * 10, 12 + 6 + 4 * 10},
      {OfSize(10, 10, 4), 40 + 64 + 8 * 10, 12 + 48 + 8 * 10},
      {OfSize(10, 10, 8), 40 + 1024 + 12 * 10, 12 + 768 + 12 * 10},
      {OfSize(10, 10, 16), 40 + 12 + 20 * 10, 12 + 9 + 20 * 10},
      {OfSize(10, 10, 24), 40 + 32 * 10, 12 + 32 * 10},
      {OfSize(10, 10, 32), 40 + 12 + 40 * 10, 12 + 9 + 40 * 10},
      {OfSize(0, 10, 24), 40, 12},
      {OfSize(10, 0, 24), 40, 12},
      {OfSize(1, 1, 24), 44, 16},
  };
  for (Case c : cases) {
    SCOPED_TRACE(c.header.bits);
    EXPECT_EQ(PictureSize(Misaligned(Windows(c.header)).get()), c.windows);
    c.header.first = 12;
    EXPECT_EQ(PictureSize(Misaligned(Os2(c.header)).get()), c.os2);
  }
  EXPECT_EQ(PictureSize(Windows(OfSize(10, 10, 24, 5)).data()), 40u + 20 + 320);
  EXPECT_EQ(PictureSize(Windows(OfSize(10, 10, 1, 256)).data()), 40u + 1024 + 40);
  EXPECT_EQ(PictureSize(nullptr), 0u);
}

TEST(PictureSize, IsZeroForANegativeSideAndForMoreThanABlockCanHold) {
  const Header headers[] = {
      OfSize(-1, 1, 24),
      OfSize(1, -1, 24),
      OfSize(INT32_MIN, 1, 1),
      OfSize(1, INT32_MIN, 1),
      OfSize(INT32_MAX, INT32_MAX, 32),
      OfSize(INT32_MAX, 1, 24),
      OfSize(1, INT32_MAX, 24),
      OfSize(65536, 65536, 8),
      OfSize(65536, 65536, 65535),
      OfSize(1, 1, 24, 0xFFFFFFFF),
      OfSize(1, 1, 24, 0x40000000),
      OfSize(1, 1, 31),
      OfSize(0x20000000, 4, 8, 1),
  };
  for (const Header& header : headers) {
    SCOPED_TRACE(::testing::Message() << header.width << " by " << header.height << ", " << header.bits
                                      << " bits, " << header.used << " colours");
    EXPECT_EQ(PictureSize(Windows(header).data()), 0u);
  }
  Header os2 = OfSize(65535, 65535, 32);
  os2.first = 12;
  EXPECT_EQ(PictureSize(Os2(os2).data()), 0u);
}

TEST(PictureSize, ReachesUpToTheLargestSignedNumber) {
  // 40 bytes of header and rows of 4 bytes: the last size below the limit is 2147483644.
  EXPECT_EQ(PictureSize(Windows(OfSize(1, 536870901, 24)).data()), 2147483644u);
  EXPECT_EQ(PictureSize(Windows(OfSize(1, 536870902, 24)).data()), 0u);
}

}  // namespace
}  // namespace brelt::graphics
