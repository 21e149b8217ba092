#include "graphics/rubberband.h"

#include <gtest/gtest.h>

#include <ostream>

namespace brelt::graphics {

static std::ostream& operator<<(std::ostream& out, const Box& box) {
  return out << box.left << ", " << box.top << ", " << box.right << ", " << box.bottom;
}

namespace {

constexpr int kHandles[] = {1, 2, 3, 4, 6, 7, 8, 9};

TEST(HandleBox, StandsAtItsPlaceOfTheKeypad) {
  struct Case {
    int handle;
    Box even;  // of the box 100, 200, 180, 260 with a side of 8
    Box odd;   // of the box 101, 201, 180, 260 with a side of 7
  };
  const Case cases[] = {
      {1, {100, 200, 108, 208}, {101, 201, 108, 208}}, {2, {136, 200, 144, 208}, {137, 201, 144, 208}},
      {3, {172, 200, 180, 208}, {173, 201, 180, 208}}, {4, {100, 226, 108, 234}, {101, 227, 108, 234}},
      {5, {100, 200, 180, 260}, {101, 201, 180, 260}}, {6, {172, 226, 180, 234}, {173, 227, 180, 234}},
      {7, {100, 252, 108, 260}, {101, 253, 108, 260}}, {8, {136, 252, 144, 260}, {137, 253, 144, 260}},
      {9, {172, 252, 180, 260}, {173, 253, 180, 260}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.handle);
    EXPECT_EQ(HandleBox({100, 200, 180, 260}, c.handle, 8), c.even);
    EXPECT_EQ(HandleBox({101, 201, 180, 260}, c.handle, 7), c.odd);
  }
}

TEST(HandleBox, IsEmptyWithASideOf0) {
  for (const int handle : kHandles) {
    const Box square = HandleBox({100, 200, 180, 260}, handle, 0);
    EXPECT_EQ(square.Width(), 0) << handle;
    EXPECT_EQ(square.Height(), 0) << handle;
  }
}

TEST(HitTest, FindsEachHandleInItsWholeSquareAndTheBodyElsewhere) {
  const Box box = {100, 200, 180, 260};
  for (Unit y = 195; y < 265; ++y) {
    for (Unit x = 95; x < 185; ++x) {
      int expected = box.Holds({x, y}) ? kBody : kNoHandle;
      for (const int handle : kHandles) {
        if (HandleBox(box, handle, 8).Holds({x, y})) expected = handle;
      }
      ASSERT_EQ(HitTest(box, 8, {x, y}), expected) << x << ", " << y;
    }
  }
}

TEST(HitTest, HoldsLeftAndTopAndNotRightAndBottom) {
  const Box box = {100, 200, 180, 260};
  struct Case {
    Point point;
    int handle;
  };
  const Case cases[] = {{{100, 200}, 1}, {{107, 207}, 1}, {{108, 207}, 5}, {{107, 208}, 5}, {{99, 200}, 0},
                        {{100, 199}, 0}, {{179, 259}, 9}, {{180, 259}, 0}, {{179, 260}, 0}, {{172, 252}, 9},
                        {{171, 252}, 5}, {{140, 230}, 5}, {{136, 200}, 2}, {{135, 200}, 5}};
  for (const Case& c : cases) EXPECT_EQ(HitTest(box, 8, c.point), c.handle) << c.point.x << ", " << c.point.y;
}

TEST(HitTest, TakesTheFirstOfHandlesThatOverlap) {
  // All eight cover a box as large as one of them.
  EXPECT_EQ(HitTest({0, 0, 10, 10}, 10, {5, 5}), 1);
  // Half as wide as two handles: those of the top edge overlap.
  const Box narrow = {0, 0, 15, 100};
  EXPECT_EQ(HitTest(narrow, 10, {4, 2}), 1);
  EXPECT_EQ(HitTest(narrow, 10, {11, 2}), 2);
  EXPECT_EQ(HitTest(narrow, 10, {13, 2}), 3);
  EXPECT_EQ(HitTest(narrow, 10, {6, 50}), 4);
  EXPECT_EQ(HitTest(narrow, 10, {6, 95}), 7);
}

TEST(HitTest, FindsHandlesThatStandOutOfASmallBox) {
  EXPECT_EQ(HitTest({0, 0, 2, 2}, 10, {9, 9}), 1);
  EXPECT_EQ(HitTest({0, 0, 2, 2}, 10, {-8, 5}), 3);
  EXPECT_EQ(HitTest({0, 0, 2, 2}, 10, {-8, -8}), 9);
}

TEST(HitTest, FindsOnlyTheBodyWithASideOf0) {
  const Box box = {10, 10, 20, 20};
  for (const Point point : {Point{10, 10}, Point{15, 10}, Point{19, 19}, Point{15, 15}}) {
    EXPECT_EQ(HitTest(box, 0, point), kBody);
  }
  EXPECT_EQ(HitTest(box, 0, {20, 20}), kNoHandle);
}

TEST(HandlePoint, IsTheCornerOrTheMiddleOfTheEdge) {
  const Box box = {100, 200, 181, 261};
  struct Case {
    int handle;
    Point point;
  };
  const Case cases[] = {{1, {100, 200}}, {2, {140, 200}}, {3, {181, 200}}, {4, {100, 230}},
                        {6, {181, 230}}, {7, {100, 261}}, {8, {140, 261}}, {9, {181, 261}}};
  for (const Case& c : cases) {
    EXPECT_EQ(HandlePoint(box, c.handle).x, c.point.x) << c.handle;
    EXPECT_EQ(HandlePoint(box, c.handle).y, c.point.y) << c.handle;
  }
}

TEST(Drag, MovesTheEdgesOfItsHandleAndKeepsToTheMinimum) {
  const Box box = {100, 200, 180, 260};
  struct Case {
    int handle;
    Box inside;   // mouse at 120, 220
    Box outside;  // mouse at 50, 300
    Box across;   // mouse at 500, 500: past the right and bottom edges
    Box before;   // mouse at 0, 0: past the left and top edges
  };
  // The smallest size is 20 by 30.
  const Case cases[] = {
      {1, {120, 220, 180, 260}, {50, 230, 180, 260}, {160, 230, 180, 260}, {0, 0, 180, 260}},
      {2, {100, 220, 180, 260}, {100, 230, 180, 260}, {100, 230, 180, 260}, {100, 0, 180, 260}},
      {3, {100, 220, 120, 260}, {100, 230, 120, 260}, {100, 230, 500, 260}, {100, 0, 120, 260}},
      {4, {120, 200, 180, 260}, {50, 200, 180, 260}, {160, 200, 180, 260}, {0, 200, 180, 260}},
      {6, {100, 200, 120, 260}, {100, 200, 120, 260}, {100, 200, 500, 260}, {100, 200, 120, 260}},
      {7, {120, 200, 180, 230}, {50, 200, 180, 300}, {160, 200, 180, 500}, {0, 200, 180, 230}},
      {8, {100, 200, 180, 230}, {100, 200, 180, 300}, {100, 200, 180, 500}, {100, 200, 180, 230}},
      {9, {100, 200, 120, 230}, {100, 200, 120, 300}, {100, 200, 500, 500}, {100, 200, 120, 230}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.handle);
    const Drag drag = {c.handle, {0, 0}, box, 20, 30};
    EXPECT_EQ(drag.Moved(box, {120, 220}), c.inside);
    EXPECT_EQ(drag.Moved(box, {50, 300}), c.outside);
    EXPECT_EQ(drag.Moved(box, {500, 500}), c.across);
    EXPECT_EQ(drag.Moved(box, {0, 0}), c.before);
  }
}

// The band may have been smaller than the minimum before the drag.
TEST(Drag, BringsABoxBelowTheMinimumUpToIt) {
  const Box tiny = {100, 100, 101, 101};
  EXPECT_EQ((Drag{9, {0, 0}, tiny, 20, 30}.Moved(tiny, {101, 101})), (Box{100, 100, 120, 130}));
  EXPECT_EQ((Drag{1, {0, 0}, tiny, 20, 30}.Moved(tiny, {100, 100})), (Box{81, 71, 101, 101}));
  EXPECT_EQ((Drag{6, {0, 0}, tiny, 20, 30}.Moved(tiny, {101, 101})), (Box{100, 100, 120, 101}));
}

TEST(Drag, GoesOnFromTheBandAsItIs) {
  const Drag drag = {9, {0, 0}, {0, 0, 100, 100}, 2, 2};
  Box band = drag.from;
  for (const Point mouse : {Point{50, 60}, Point{-5, -5}, Point{200, 10}}) band = drag.Moved(band, mouse);
  EXPECT_EQ(band, (Box{0, 0, 200, 10}));
}

TEST(Drag, OfTheBodyMovesTheBoxByTheWayOfTheMouse) {
  const Box box = {100, 200, 180, 260};
  const Drag drag = {kBody, {150, 250}, box, 100, 100};
  EXPECT_EQ(drag.Moved(box, {150, 250}), box);
  EXPECT_EQ(drag.Moved(box, {160, 230}), (Box{110, 180, 190, 240}));
  // From where it began, not from the band; and nothing holds it.
  EXPECT_EQ(drag.Moved({0, 0, 9, 9}, {-1000, 5000}), (Box{-1050, 4950, -970, 5010}));
}

TEST(Drag, HasRoomForCoordinatesAtTheEndsOfTheirRange) {
  const Box box = {2147483600, 2147483600, 4294967200, 4294967200};
  const Drag drag = {kBody, {-2147483647, -2147483647}, box, 2, 2};
  EXPECT_EQ(drag.Moved(box, {2147483647, 2147483647}).right, 4294967200 + 4294967294);
}

}  // namespace
}  // namespace brelt::graphics
