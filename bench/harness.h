// A small measuring bench: several ways to do one thing take turns within one run, so that what slows the
// machine for a while slows all of them. What is compared is the median of each round's ratio; times are for
// orientation.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace brelt::bench {

// A way to do the thing. It is called once in each round; units is how many things one call does. What must
// be there first and what must go afterwards, where there is such a thing, is not timed.
struct Way {
  std::string name;
  double units;
  std::function<void()> run;
  std::function<void()> before = {};
  std::function<void()> after = {};
};

struct Measured {
  std::string name;
  double nanoseconds;  // for one unit, median over the rounds
  double ratio;        // to the first way's time for one unit, median of the rounds' ratios
};

// Calls every way once to warm up and then the rounds. The first way is what the others are compared with.
std::vector<Measured> Measure(const std::vector<Way>& ways, int rounds);

// Prints a line for each way under a headline that says what one unit is.
void Print(const std::string& headline, const std::vector<Measured>& measured);

// Prints whether a value keeps to a goal: at most it, or with atLeast at least.
enum class Goal { kAtMost, kAtLeast };
void PrintGoal(const std::string& what, double value, Goal kind, double goal);

// Keeps a result from being optimised away.
void Keep(long value);

}  // namespace brelt::bench
