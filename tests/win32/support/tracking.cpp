#include "tests/win32/support/tracking.h"

#include <utility>
#include <vector>

#include "tests/win32/support/imports.h"
#include "tests/win32/support/input.h"

namespace brelt::test {
namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);

std::vector<std::function<void()>> steps;
std::size_t nextStep = 0;

// Calls set for each point of the outline of a box, a number of points thick, inward.
void ForOutline(const Frame& box, int thickness, const std::function<void(int x, int y)>& set) {
  for (int y = 0; y < box.height; ++y) {
    for (int x = 0; x < box.width; ++x) {
      if (x >= thickness && y >= thickness && x < box.width - thickness && y < box.height - thickness)
        continue;
      set(box.x + x, box.y + y);
    }
  }
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Frame& frame) {
  return out << frame.x << ", " << frame.y << ", " << frame.width << " by " << frame.height;
}

BOOL WINAPI DoNextStep() {
  MSG message;
  while (!PeekMessageA(&message, nullptr, 0, WM_USER, PM_NOREMOVE)) {
    if (nextStep < steps.size()) {
      steps[nextStep++]();
    } else {
      ADD_FAILURE() << "The tracking goes on after all " << steps.size() << " steps";
      PostMessageA(nullptr, WM_NULL, 0, 0);
    }
  }
  return TRUE;
}

void TrackRectTest::SetUp() {
  FormTest::SetUp();
  // Presses at one place after the other are no double clicks.
  doubleClickTime_ = GetDoubleClickTime();
  SetDoubleClickTime(1);
  const LoadResult form = LoadDialog("Form", "", "STYLE WS_POPUP\n");
  ASSERT_EQ(form.code, RTX_OK) << form.message;
  window_ = form.window;
  SetWindowPos(window_, nullptr, 100, 80, kClientWidth, kClientHeight, SWP_NOZORDER);
  ASSERT_EQ(Show(GetModuleHandleA(nullptr), "Form", "Form.rc", RecordEvent, nullptr, 0, nullptr), RTX_OK);
  background_ = GetSysColor(COLOR_BTNFACE);
  ASSERT_TRUE(SettleOnScreen(window_));
  ASSERT_EQ(Differences(CaptureClient(window_), Background()), "");
  ForgetSteps();
}

void TrackRectTest::TearDown() {
  SetDoubleClickTime(doubleClickTime_);
  LeftUp();
  ClipCursor(nullptr);
  Pump();
  FormTest::TearDown();
}

int32_t TrackRectTest::Call(const char* name) {
  const RECT& bounds = settings_.bounds;
  return TrackRect(name, settings_.flags, settings_.handleSize, settings_.minWidth, settings_.minHeight,
                   settings_.penWidth, bounds.left, bounds.top, bounds.right, bounds.bottom, &frame_.x,
                   &frame_.y, &frame_.width, &frame_.height);
}

Frame TrackRectTest::Track(const Frame& frame, POINT press, const std::function<void()>& after) {
  frame_ = frame;
  nextStep = 0;
  bool tracked = false;
  Log().onEvent = [&](HWND window, const Event& event) {
    if (event.event != EV_MOUSEDOWN || tracked) return 0;
    tracked = true;
    EXPECT_EQ(window, window_);
    EXPECT_EQ(Call(), RTX_OK);
    if (after) after();
    return 0;
  };
  {
    const ReplacedImport wait("WaitMessage", reinterpret_cast<void*>(&DoNextStep));
    MovePointer(window_, press.x, press.y);
    Pump();
    LeftDown();
    EXPECT_TRUE(PumpUntil([&] { return tracked; }));
  }
  Log().onEvent = nullptr;
  EXPECT_EQ(nextStep, steps.size()) << "steps were left";
  EXPECT_EQ(GetCapture(), nullptr);
  LeftUp();
  Pump();
  return frame_;
}

void TrackRectTest::Do(std::function<void()> step) { steps.push_back(std::move(step)); }
void TrackRectTest::Move(int x, int y) {
  Do([this, x, y] { MovePointer(window_, x, y); });
}
void TrackRectTest::Press() { Do(LeftDown); }
void TrackRectTest::Release() { Do(LeftUp); }
void TrackRectTest::End() {
  Do([this] { PostMessageA(window_, WM_NULL, 0, 0); });
}
void TrackRectTest::ExpectSeen(const Picture& expected) {
  Do([this, expected] { EXPECT_EQ(Differences(CaptureClient(window_), expected), ""); });
}
void TrackRectTest::ForgetSteps() { steps.clear(); }

POINT TrackRectTest::ToScreen(int x, int y) const {
  POINT point = {x, y};
  ClientToScreen(window_, &point);
  return point;
}

Picture TrackRectTest::WithFrame(Picture picture, const Frame& frame) const {
  ForOutline(frame, 1, [&](int x, int y) { picture.Set(x, y, kBlack); });
  const int side = settings_.handleSize;
  const int middleX = frame.x + frame.width / 2 - side / 2;
  const int middleY = frame.y + frame.height / 2 - side / 2;
  const int right = frame.x + frame.width - side;
  const int bottom = frame.y + frame.height - side;
  const POINT corners[] = {{frame.x, frame.y}, {middleX, frame.y}, {right, frame.y},  {frame.x, middleY},
                           {right, middleY},   {frame.x, bottom},  {middleX, bottom}, {right, bottom}};
  for (const POINT& corner : corners) {
    ForOutline({corner.x, corner.y, side, side}, side, [&](int x, int y) { picture.Set(x, y, kBlack); });
  }
  return picture;
}

Picture TrackRectTest::WithBand(Picture picture, const Frame& band, int penWidth) {
  ForOutline(band, penWidth, [&](int x, int y) {
    if (x >= 0 && y >= 0 && x < picture.width() && y < picture.height()) {
      picture.Set(x, y, picture.At(x, y) ^ kBandColour);
    }
  });
  return picture;
}

}  // namespace brelt::test
