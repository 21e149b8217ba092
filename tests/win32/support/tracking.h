// Tracking a rectangle with TrackRect: a form on the screen, and a user who acts while the library waits.
#pragma once

#include <functional>
#include <ostream>

#include "tests/win32/support/forms.h"
#include "tests/win32/support/screen.h"

namespace brelt::test {

inline constexpr COLORREF kBandColour = RGB(128, 128, 128);
inline constexpr int kClientWidth = 300;
inline constexpr int kClientHeight = 200;

struct Frame {
  int32_t x, y, width, height;

  bool operator==(const Frame&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Frame& frame);

// What most tests track: its right edge is at 180, its bottom at 110.
inline constexpr Frame kFrame = {100, 60, 80, 50};

struct TrackSettings {
  int32_t flags = 1;
  int32_t handleSize = 8;
  int32_t minWidth = 10;
  int32_t minHeight = 20;
  int32_t penWidth = 1;
  RECT bounds = {0, 0, 0, 0};
};

// The form has no border, and the background of its class.
class TrackRectTest : public FormTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // The call itself, with the settings, on frame_.
  int32_t Call(const char* name = "Form");
  // Presses the button at a place, and tracks the frame from the event of that press while the user takes
  // the steps below. after is called before anything else is handled.
  Frame Track(const Frame& frame, POINT press, const std::function<void()>& after = nullptr);

  // Steps of the user. Each comes when all that the one before has brought is handled; a tracking that goes
  // on after the last fails the test and is ended.
  void Do(std::function<void()> step);
  void Move(int x, int y);
  void Press();
  void Release();
  // Ends the tracking, as any message that isn't the mouse's does.
  void End();
  void ExpectSeen(const Picture& expected);
  void ForgetSteps();

  POINT ToScreen(int x, int y) const;
  Picture Background() const { return {kClientWidth, kClientHeight, background_}; }
  // What the user sees of a frame and of a band.
  Picture WithFrame(Picture picture, const Frame& frame) const;
  static Picture WithBand(Picture picture, const Frame& band, int penWidth = 1);

  HWND window_ = nullptr;
  COLORREF background_ = 0;
  TrackSettings settings_;
  Frame frame_ = {};

 private:
  UINT doubleClickTime_ = 0;
};

// The place of the library's wait in these tests, for those that call TrackRect themselves.
BOOL WINAPI DoNextStep();

}  // namespace brelt::test
