// Random RC text and random property rows, in all the forms that readers take.
#pragma once

#include <random>

#include "tests/resprops/trip.h"

namespace brelt::test {

class RandomInput {
 public:
  explicit RandomInput(unsigned seed) : random_(seed) {}

  // Inputs of the checks of round trips.
  Parts DialogText();
  Parts MenuText();
  Parts DialogRows();
  Parts MenuRows();

 private:
  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  bool Chance(int oneIn) { return Below(oneIn) == 0; }
  template <typename Container>
  std::string Any(const Container& items) {
    return std::string(items[static_cast<std::size_t>(Below(static_cast<int>(std::size(items))))]);
  }

  std::string Word(int most);
  std::string Identifier();
  std::string Literal();
  std::string Number();
  std::string Coordinates();
  std::string StyleList(bool allowNot);
  std::string Control();
  void MenuLines(int depth, Parts& lines);
  std::string Value(const std::string& key);
  std::string Row(const std::string& type);

  std::mt19937 random_;
};

}  // namespace brelt::test
