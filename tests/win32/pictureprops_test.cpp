// Picture, and what a picture tells about itself.
#include <climits>
#include <cstring>
#include <string>
#include <vector>

#include "tests/support/guarded.h"
#include "tests/win32/support/propertyform.h"

namespace brelt::test {
namespace {

// Two pages of memory of which only the first can be read.
class HalfReadable {
 public:
  HalfReadable() : base_(static_cast<char*>(VirtualAlloc(nullptr, 2 * kPage, MEM_COMMIT, PAGE_READWRITE))) {
    DWORD before = 0;
    VirtualProtect(base_ + kPage, kPage, PAGE_NOACCESS, &before);
  }
  HalfReadable(const HalfReadable&) = delete;
  HalfReadable& operator=(const HalfReadable&) = delete;
  ~HalfReadable() { VirtualFree(base_, 0, MEM_RELEASE); }

  // Where the last bytes that can be read stand; as many of a text as there is room for.
  char* PutAtEnd(const std::string& bytes, std::size_t readable) {
    std::memcpy(base_ + kPage - readable, bytes.data(), readable);
    return base_ + kPage - readable;
  }

 private:
  static constexpr std::size_t kPage = 4096;

  char* base_;
};

// An OS/2 picture of 8 bits.
std::string Os2Picture(int width, int height) {
  BITMAPCOREHEADER header = {sizeof header, static_cast<WORD>(width), static_cast<WORD>(height), 1, 8};
  std::string picture(reinterpret_cast<const char*>(&header), sizeof header);
  const auto row = static_cast<std::size_t>((width + 3) / 4 * 4);
  return picture.append(3 * 256 + row * static_cast<std::size_t>(height), 'o');
}

class PictureTest : public PropertyTest {
 protected:
  // Puts a bitmap where a window keeps its canvas; the window frees it.
  void GiveCanvas(int width, int height) const {
    HDC screen = GetDC(nullptr);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    ReleaseDC(nullptr, screen);
    SetWindowLongA(form(), 4 * SLOT_CANVAS, reinterpret_cast<LONG>(bitmap));
  }
};

TEST_F(PictureTest, OfAControlGoesInAndOutByItsMessages) {
  for (const int32_t id : {int32_t{kImage}, int32_t{kBitmapButton}}) {
    SCOPED_TRACE(id);
    const std::string picture = PackedPicture(5, 3, 'p');
    MessageSpy spy;
    EXPECT_EQ(SetPicture(kFormName, id, picture.data()), RTX_OK);
    const auto set = spy.To(Control(id), CM_SETPICTURE);
    ASSERT_EQ(set.size(), 1u);
    EXPECT_EQ(set[0].wParam, 0u);
    EXPECT_EQ(set[0].lParam, reinterpret_cast<LPARAM>(picture.data()));
    std::string copy(picture.size() + 10, 'x');
    EXPECT_EQ(GetPicture(kFormName, id, copy.data(), static_cast<int32_t>(copy.size())), RTX_OK);
    EXPECT_EQ(copy, picture + std::string(10, '\0'));
  }
}

TEST_F(PictureTest, ThatDoesntFitIs705AndLeavesTheBufferZero) {
  const std::string picture = PackedPicture(5, 3, 'p');
  const auto exact = static_cast<int32_t>(picture.size());
  SetPicture(kFormName, kImage, picture.data());
  for (const int32_t size : {INT_MIN, -1, 0, 1, 39, 40, exact - 1, exact, exact + 1}) {
    SCOPED_TRACE(size);
    GuardedBuffer buffer(size);
    EXPECT_EQ(GetPicture(kFormName, kImage, buffer.data(), size),
              size >= exact ? int32_t{RTX_OK} : int32_t{RTX_PICTURE_BUFFER});
    EXPECT_TRUE(buffer.IsIntact());
    if (size < 1) continue;
    std::string expected = size >= exact ? picture : "";
    expected.resize(static_cast<std::size_t>(size), '\0');
    EXPECT_EQ(std::string(buffer.data(), static_cast<std::size_t>(size)), expected);
  }
}

TEST_F(PictureTest, ThatIsntThereLeavesTheBufferZero) {
  for (const int32_t id : {int32_t{0}, int32_t{kImage}, int32_t{kBitmapButton}}) {
    for (const int32_t size : {-1, 0, 1, 100}) {
      SCOPED_TRACE(std::to_string(id) + " with a buffer of " + std::to_string(size));
      GuardedBuffer buffer(size);
      EXPECT_EQ(GetPicture(kFormName, id, buffer.data(), size), RTX_OK);
      EXPECT_TRUE(buffer.IsIntact());
      EXPECT_TRUE(size < 1 || (buffer.Text().empty() && buffer.IsZeroBehindText()));
    }
  }
}

LRESULT CALLBACK GiveBadPicture(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == CM_GETPICTURE) return reinterpret_cast<LRESULT>(GetPropA(window, "bad"));
  return CallWindowProcA(reinterpret_cast<WNDPROC>(GetPropA(window, "before")), window, message, wParam,
                         lParam);
}

TEST_F(PictureTest, ThatCantBeReadIsNone) {
  const LONG before = SetWindowLongA(Control(kImage), GWL_WNDPROC, reinterpret_cast<LONG>(GiveBadPicture));
  SetPropA(Control(kImage), "before", reinterpret_cast<HANDLE>(before));
  HalfReadable memory;
  const std::string picture = PackedPicture(5, 3, 'p');
  for (void* bad : {reinterpret_cast<void*>(1), static_cast<void*>(memory.PutAtEnd(picture, 8)),
                    static_cast<void*>(memory.PutAtEnd(picture, 20)),
                    static_cast<void*>(memory.PutAtEnd(picture, picture.size() - 1))}) {
    SetPropA(Control(kImage), "bad", bad);
    char buffer[200] = "unset";
    EXPECT_EQ(GetPicture(kFormName, kImage, buffer, sizeof buffer), RTX_OK);
    EXPECT_EQ(buffer[0], '\0');
  }
  SetWindowLongA(Control(kImage), GWL_WNDPROC, before);
}

TEST_F(PictureTest, NullIs710ForABufferAnd756ForAPicture) {
  struct Case {
    const char* name;
    int32_t id;
    int32_t getCode;
    int32_t setCode;
  };
  for (const Case& c : {Case{nullptr, kImage, 756, 756}, Case{"nobody", kImage, 710, 756},
                        Case{kFormName, 0, 710, 756}, Case{kFormName, kImage, 710, 756},
                        Case{kFormName, kPush, 710, 756}, Case{kFormName, kUnknown, 710, 756}}) {
    EXPECT_EQ(GetPicture(c.name, c.id, nullptr, 100), c.getCode);
    EXPECT_EQ(SetPicture(c.name, c.id, nullptr), c.setCode);
  }
}

// Drawing on windows is still to come. Until then no canvas can be read or made.
TEST_F(PictureTest, OfACanvasCantBeReadOrMadeYet) {
  const std::string picture = PackedPicture(2, 2, 'p');
  EXPECT_EQ(SetPicture(kFormName, 0, picture.data()), RTX_NO_CANVAS);
  GiveCanvas(3, 3);
  char buffer[200] = "unset";
  EXPECT_EQ(GetPicture(kFormName, 0, buffer, sizeof buffer), RTX_NO_CANVAS);
  EXPECT_EQ(buffer[0], '\0');
}

// ---- GetBitmapInfo ----

struct Info {
  int32_t width, height, bits, size, kind;

  bool operator==(const Info&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Info& info) {
  return out << info.width << " by " << info.height << ", " << info.bits << " bits, " << info.size
             << " bytes, kind " << info.kind;
}

constexpr Info kNone = {0, 0, 0, 0, 0};

Info InfoOf(const void* picture) {
  Info info = {-7, -7, -7, -7, -7};
  EXPECT_EQ(GetBitmapInfo(picture, &info.width, &info.height, &info.bits, &info.size, &info.kind), RTX_OK);
  return info;
}

TEST(BitmapInfo, TellsSizeBitsBytesAndKind) {
  const std::string windows = PackedPicture(5, 3, 'p');
  EXPECT_EQ(InfoOf(windows.data()), (Info{5, 3, 24, 40 + 16 * 3, 87}));
  const std::string os2 = Os2Picture(5, 3);
  EXPECT_EQ(InfoOf(os2.data()), (Info{5, 3, 8, 12 + 768 + 8 * 3, 79}));
  EXPECT_EQ(InfoOf(PackedPicture(0, 9, 'p').data()), (Info{0, 9, 24, 40, 87}));
}

TEST(BitmapInfo, IsZeroForWhatIsNoPicture) {
  EXPECT_EQ(InfoOf(nullptr), kNone);
  EXPECT_EQ(InfoOf("a text that is no picture at all"), kNone);
  std::string picture = PackedPicture(5, 3, 'p');
  picture[12] = 2;  // planes
  EXPECT_EQ(InfoOf(picture.data()), kNone);
  picture = PackedPicture(5, 3, 'p');
  const LONG upsideDown = -3;
  std::memcpy(picture.data() + 8, &upsideDown, sizeof upsideDown);
  EXPECT_EQ(InfoOf(picture.data()), kNone);
}

TEST(BitmapInfo, LooksAtNoMemoryThatCantBeRead) {
  HalfReadable memory;
  for (const std::string& picture : {PackedPicture(5, 3, 'p'), Os2Picture(5, 3)}) {
    for (const std::size_t readable : {std::size_t{1}, std::size_t{4}, std::size_t{11}, std::size_t{12},
                                       std::size_t{39}, std::size_t{40}, picture.size() - 1}) {
      SCOPED_TRACE(readable);
      EXPECT_EQ(InfoOf(memory.PutAtEnd(picture, readable)), kNone);
    }
    EXPECT_NE(InfoOf(memory.PutAtEnd(picture, picture.size())), kNone);
  }
  for (const UINT_PTR address : {UINT_PTR{1}, UINT_PTR{0xDEADBEEF}, UINT_PTR{0xFFFFFFFF}}) {
    EXPECT_EQ(InfoOf(reinterpret_cast<const void*>(address)), kNone);
  }
}

TEST(BitmapInfo, ClearsTheOutputsThatAreThereIfOneIsMissing) {
  const std::string picture = PackedPicture(5, 3, 'p');
  for (int missing = 0; missing < 5; ++missing) {
    SCOPED_TRACE(missing);
    int32_t values[5] = {-7, -7, -7, -7, -7};
    const auto output = [&](int i) { return i == missing ? nullptr : &values[i]; };
    EXPECT_EQ(GetBitmapInfo(picture.data(), output(0), output(1), output(2), output(3), output(4)), RTX_OK);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(values[i], i == missing ? -7 : 0);
  }
  EXPECT_EQ(GetBitmapInfo(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), RTX_OK);
}

}  // namespace
}  // namespace brelt::test
