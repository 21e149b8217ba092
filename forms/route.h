// A window procedure only routes: it finds the message in a table and calls its handler. What is in no table
// goes to the platform's default.
#pragma once

#include <windows.h>

#include <algorithm>
#include <array>

namespace brelt {

struct Message {
  HWND window;
  UINT number;
  WPARAM wParam;
  LPARAM lParam;

  LRESULT Default() const noexcept { return DefWindowProcA(window, number, wParam, lParam); }
};

using Handler = LRESULT (*)(const Message& message) noexcept;

struct Route {
  UINT number;
  Handler handler;
};

template <std::size_t Count>
using RouteTable = std::array<Route, Count>;

// Joins tables into one that is sorted for the search.
template <std::size_t... Counts>
constexpr auto ComposeRoutes(const RouteTable<Counts>&... tables) noexcept {
  RouteTable<(Counts + ...)> all{};
  auto end = all.begin();
  ((end = std::copy(tables.begin(), tables.end(), end)), ...);
  std::sort(all.begin(), all.end(), [](const Route& a, const Route& b) { return a.number < b.number; });
  return all;
}

// For static_assert: no message has two handlers.
template <std::size_t Count>
constexpr bool HasEachNumberOnce(const RouteTable<Count>& table) noexcept {
  for (std::size_t i = 1; i < Count; ++i) {
    if (table[i - 1].number >= table[i].number) return false;
  }
  return true;
}

template <std::size_t Count>
LRESULT Dispatch(const RouteTable<Count>& table, const Message& message) noexcept {
  const auto found = std::lower_bound(table.begin(), table.end(), message.number,
                                      [](const Route& route, UINT number) { return route.number < number; });
  if (found == table.end() || found->number != message.number) return message.Default();
  return found->handler(message);
}

}  // namespace brelt
