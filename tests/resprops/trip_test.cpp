#include "tests/resprops/trip.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/resprops/randominput.h"
#include "tests/support/memoryhost.h"

namespace brelt::test {
namespace {

// How many cases of each kind a run makes, so that more than a hundred thousand resources and property
// arrays, of several records each, come to a comparison. BRELT_CASES asks for another number, BRELT_SEED for
// other cases.
constexpr int kCases = 27000;

int NumberFrom(const char* variable, int otherwise) {
  const char* text = std::getenv(variable);
  return text != nullptr ? std::atoi(text) : otherwise;
}

void RunCases(Parts (RandomInput::*make)(), const Check& check) {
  ResetHost();
  const unsigned firstSeed = static_cast<unsigned>(NumberFrom("BRELT_SEED", 1));
  const int cases = NumberFrom("BRELT_CASES", kCases);
  int compared = 0;
  std::size_t objects = 0;
  for (int i = 0; i < cases; ++i) {
    RandomInput input(firstSeed * 1000003u + static_cast<unsigned>(i));
    const Parts parts = (input.*make)();
    const int comparedBefore = ComparedTrips();
    const std::string fault = check(parts);
    objects += parts.size();
    compared += ComparedTrips() > comparedBefore ? 1 : 0;
    if (fault.empty()) continue;
    const Parts smallest = Shrunk(parts, check);
    std::string shown;
    for (const std::string& part : smallest) shown += "---- part\n" + part + "\n";
    FAIL() << "case " << i << " comes down to\n" << shown << "---- fault\n" << check(smallest);
  }
  EXPECT_GE(compared, cases / 4 * 3) << "most cases should come to a comparison";
  EXPECT_GE(objects, 2 * static_cast<std::size_t>(cases));
  ::testing::Test::RecordProperty("compared", compared);
  ::testing::Test::RecordProperty("objects", static_cast<int>(objects));
}

TEST(Trip, OfADialogsTextGivesBackItsRecords) { RunCases(&RandomInput::DialogText, CheckDialogTrip); }
TEST(Trip, OfAMenusTextGivesBackItsRecords) { RunCases(&RandomInput::MenuText, CheckMenuTrip); }
TEST(Trip, OfADialogsRowsGivesBackItsRecordsAndRows) { RunCases(&RandomInput::DialogRows, CheckDialogRows); }
TEST(Trip, OfAMenusRowsGivesBackItsRecordsAndRows) { RunCases(&RandomInput::MenuRows, CheckMenuRows); }

TEST(Trip, FindsTheSmallestInputThatFails) {
  const Check holdsAnXAndAY = [](const Parts& parts) {
    std::string all;
    for (const std::string& part : parts) all += part;
    return all.find('x') != std::string::npos && all.find('y') != std::string::npos ? "fault" : "";
  };
  EXPECT_EQ(Shrunk({"abc", "12x34", "", "56789y0", "x"}, holdsAnXAndAY), (Parts{"y", "x"}));
}

}  // namespace
}  // namespace brelt::test
