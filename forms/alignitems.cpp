// Tab stops for lists whose items have columns.
#include "forms/fonts.h"
#include "forms/lists.h"
#include "forms/property.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr int kMostColumns = 1025;

// The widest text of each column, in pixels, in the font of a context.
class ColumnWidths {
 public:
  explicit ColumnWidths(HDC dc) noexcept : dc_(dc) {}

  void Measure(std::string_view text) noexcept {
    for (int column = 0; column < kMostColumns; ++column) {
      const std::size_t tab = text.find('\t');
      Widen(column, text.substr(0, tab));
      if (tab == std::string_view::npos) return;
      text.remove_prefix(tab + 1);
    }
  }
  int count() const noexcept { return count_; }
  // Turns the widths into tab stops in quarters of a base unit, each one unit behind its column.
  const INT* ToTabStops(int baseUnit) noexcept {
    INT stop = 0;
    for (int column = 0; column < count_; ++column) {
      stop += MulDivDown(widths_[column], baseUnit) + baseUnit;
      widths_[column] = stop;
    }
    return widths_;
  }

 private:
  static INT MulDivDown(INT width, int baseUnit) noexcept { return baseUnit > 0 ? width * 4 / baseUnit : 0; }

  void Widen(int column, std::string_view text) noexcept {
    SIZE size = {};
    GetTextExtentPointA(dc_, text.data(), static_cast<int>(text.size()), &size);
    if (column >= count_) count_ = column + 1;
    if (size.cx > widths_[column]) widths_[column] = size.cx;
  }

  HDC dc_;
  int count_ = 0;
  INT widths_[kMostColumns] = {};
};

void MeasureItems(const List& list, ColumnWidths& widths) noexcept {
  ItemText item;
  const std::int32_t count = list.Count();
  for (std::int32_t index = 0; index < count; ++index) {
    const std::int32_t length = list.TextLength(index);
    if (length > ItemText::kCapacity) continue;
    list.CopyText(index, item.data());
    // A list without texts of its own gives its items' data, which nothing ends.
    item.data()[length] = '\0';
    widths.Measure(item.view());
  }
  if (!list.IsIconList()) return;
  // The caption stands above the columns of an icon list.
  GetWindowTextA(list.window(), item.data(), ItemText::kCapacity + 1);
  widths.Measure(item.view());
}

void Align(const List& list) noexcept {
  if (list.Count() == 0) return;
  const WindowDc dc(list.window());
  if (!dc) return;
  auto* font = reinterpret_cast<HFONT>(SendMessageA(list.window(), WM_GETFONT, 0, 0));
  const Selected selected(dc.get(),
                          font != nullptr ? static_cast<HGDIOBJ>(font) : GetStockObject(SYSTEM_FONT));
  ColumnWidths widths(dc.get());
  MeasureItems(list, widths);
  const INT* stops = widths.ToTabStops(LetterBaseUnit(dc.get()));
  SendMessageA(list.window(), WM_SETREDRAW, FALSE, 0);
  SendMessageA(list.window(), LB_SETTABSTOPS, static_cast<WPARAM>(widths.count()),
               reinterpret_cast<LPARAM>(stops));
  SendMessageA(list.window(), WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list.window(), nullptr, FALSE);
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall AlignItems(const char* name, int32_t id) {
  const ObjectCall call(__func__, name, id);
  if (call.code() != RTX_OK) return call.code();
  const List list(call.control());
  if (!list || list.IsCombo()) return Refuse(call);
  Align(list);
  return RTX_OK;
}
