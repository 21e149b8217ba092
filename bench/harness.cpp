#include "bench/harness.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace brelt::bench {
namespace {

double MedianOf(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

double TimeOf(const Way& way) {
  using Clock = std::chrono::steady_clock;
  if (way.before) way.before();
  const Clock::time_point start = Clock::now();
  way.run();
  const std::chrono::duration<double, std::nano> taken = Clock::now() - start;
  if (way.after) way.after();
  return taken.count() / way.units;
}

}  // namespace

std::vector<Measured> Measure(const std::vector<Way>& ways, int rounds) {
  std::vector<std::vector<double>> times(ways.size());
  std::vector<std::vector<double>> ratios(ways.size());
  for (const Way& way : ways) TimeOf(way);
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < ways.size(); ++i) times[i].push_back(TimeOf(ways[i]));
    for (std::size_t i = 0; i < ways.size(); ++i) ratios[i].push_back(times[i].back() / times[0].back());
  }
  std::vector<Measured> measured;
  for (std::size_t i = 0; i < ways.size(); ++i) {
    measured.push_back({ways[i].name, MedianOf(times[i]), MedianOf(ratios[i])});
  }
  return measured;
}

void Print(const std::string& headline, const std::vector<Measured>& measured) {
  std::printf("\n%s\n", headline.c_str());
  for (const Measured& way : measured) {
    std::printf("  %-52s %12.1f ns  %8.3f\n", way.name.c_str(), way.nanoseconds, way.ratio);
  }
}

void PrintGoal(const std::string& what, double value, Goal kind, double goal) {
  const bool kept = kind == Goal::kAtMost ? value <= goal : value >= goal;
  std::printf("  %s: %.2f, goal %s %.2f: %s\n", what.c_str(), value,
              kind == Goal::kAtMost ? "at most" : "at least", goal, kept ? "kept" : "MISSED");
}

void Keep(long value) {
  static volatile long kept;
  kept = value;
}

}  // namespace brelt::bench
