// Control arrays and selection groups. Neither is kept anywhere: each call works it out from the order of the
// sibling windows, or for menu items from the menu.
#include "forms/lists.h"
#include "forms/menuitems.h"
#include "forms/property.h"
#include "frame/library.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr std::int32_t kNone = -1;
using Kind = rc::FixedText<40>;

Kind KindOf(HWND control) noexcept {
  Kind kind;
  if (control != nullptr) ObjectTypeOf(control, nullptr, 0, kind);
  return kind;
}

HWND Next(HWND control) noexcept { return GetWindow(control, GW_HWNDNEXT); }
HWND Previous(HWND control) noexcept { return GetWindow(control, GW_HWNDPREV); }

bool IsOfKind(HWND control, const Kind& kind) noexcept {
  return control != nullptr && !kind.IsEmpty() && rc::EqualIgnoreCase(KindOf(control).view(), kind.view());
}

// The first window of the run of one kind that a control belongs to.
HWND FirstOfArray(HWND control) noexcept {
  const Kind kind = KindOf(control);
  while (IsOfKind(Previous(control), kind)) control = Previous(control);
  return control;
}

// The array of a control: a run of siblings of one kind. A control without a kind is alone in its array.
class ControlRun {
 public:
  explicit ControlRun(HWND member) noexcept : kind_(KindOf(member)), first_(FirstOfArray(member)) {}

  // Goes through the members from the first until visit(member, index) is true; gives that one, or null.
  template <typename Visit>
  HWND Find(Visit visit) const noexcept {
    HWND member = first_;
    std::int32_t index = Library.OptionBase;
    do {
      if (visit(member, index)) return member;
      member = Next(member);
      ++index;
    } while (IsOfKind(member, kind_));
    return nullptr;
  }

 private:
  Kind kind_;
  HWND first_;
};

// An array's object: a control, an item of the menu, or neither.
enum class ArrayKind { kControls, kMenuItems, kNeither };

ArrayKind KindOfArray(const ObjectCall& call) noexcept {
  if (call.control() != nullptr) return ArrayKind::kControls;
  return call.IsMenuItem() ? ArrayKind::kMenuItems : ArrayKind::kNeither;
}

HMENU ItemsOf(const ObjectCall& call) noexcept {
  return MenuOwnerOf(call.menu(), static_cast<std::uint32_t>(call.id()));
}

std::int32_t MemberAt(const ControlRun& run, std::int32_t wanted) noexcept {
  HWND member = run.Find([&](HWND, std::int32_t index) { return index == wanted; });
  return member != nullptr ? GetDlgCtrlID(member) : kNone;
}

// Id 0 is no control's, also if a child that the program made itself has it.
std::int32_t PositionOf(const ControlRun& run, std::int32_t memberId) noexcept {
  if (memberId == 0) return kNone;
  std::int32_t found = kNone;
  run.Find([&](HWND member, std::int32_t index) {
    if (GetDlgCtrlID(member) != memberId) return false;
    found = index;
    return true;
  });
  return found;
}

std::int32_t LastIndex(const ControlRun& run) noexcept {
  std::int32_t last = Library.OptionBase - 1;
  run.Find([&](HWND, std::int32_t index) {
    last = index;
    return false;
  });
  return last;
}

// A separator gives 0 and a popup -1, as the platform answers.
std::int32_t ItemAt(HMENU items, std::int32_t index) noexcept {
  return static_cast<std::int32_t>(GetMenuItemID(items, ToPlace(index)));
}

// The checks of the array calls that come behind those of all calls: id 0 has a code of its own.
std::int32_t CheckArrayId(const ObjectCall& call) noexcept {
  if (call.code() != RTX_OK) return call.code();
  if (call.id() == 0) return RTX_NO_CONTROL_ID;
  return KindOfArray(call) == ArrayKind::kNeither ? std::int32_t{RTX_NO_ITEM} : std::int32_t{RTX_OK};
}

// ---- Selection groups ----

// By bits and not by type, which lets in three-state buttons and group boxes; that is kept.
bool IsSelectable(HWND control) noexcept {
  const std::uint32_t style = StyleOf(control);
  const auto has = [&](std::uint32_t bits) { return (style & bits) == bits; };
  if (ClassMatches(control, "BUTTON")) return has(BS_RADIOBUTTON) || has(BS_AUTORADIOBUTTON);
  return ClassMatches(control, "Bitmapbutton.*") && has(BS_RADIOBUTTON);
}

struct SelectedMember {
  std::int32_t id = kNone;
  std::int32_t position = kNone;
};

// The member that is turned on. The walk starts at the first of the run of one kind and ends at a window of
// another class or type.
SelectedMember FindSelected(HWND control) noexcept {
  HWND member = FirstOfArray(control);
  const ClassName className = ClassNameOf(member);
  const std::uint32_t type = TypeBitsOf(member);
  std::int32_t position = Library.OptionBase;
  for (; member != nullptr && ClassMatches(member, className.c_str()) && TypeBitsOf(member) == type;
       member = Next(member), ++position) {
    if (SendMessageA(member, BM_GETCHECK, 0, 0) != BST_UNCHECKED) return {GetDlgCtrlID(member), position};
  }
  return {};
}

// A null output is no failure here: the result just goes nowhere.
std::int32_t ReportSelected(const ObjectCall& call, std::int32_t SelectedMember::*field,
                            std::int32_t* out) noexcept {
  if (call.code() != RTX_OK) return call.code();
  if (call.control() == nullptr) return RTX_NO_ITEM;
  if (!IsSelectable(call.control())) return RTX_WRONG_KIND;
  if (out != nullptr) *out = FindSelected(call.control()).*field;
  return RTX_OK;
}

// An output that starts at -1 and may be null.
struct OptionalIndex {
  static constexpr std::int32_t kMissing = RTX_OK;
  std::int32_t* value;

  bool IsMissing() const noexcept { return false; }
  void Clear() const noexcept { NumberOutput{value, kNone}.Clear(); }
};

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall Controlarray(const char* name, int32_t id, int32_t index, int32_t* memberId) {
  const ObjectCall call(__func__, name, id, NumberOutput{memberId, kNone});
  const int32_t code = CheckArrayId(call);
  if (code != RTX_OK) return code;
  *memberId = KindOfArray(call) == ArrayKind::kControls ? MemberAt(ControlRun(call.control()), index)
                                                        : ItemAt(ItemsOf(call), index);
  return RTX_OK;
}

int32_t __stdcall Controlarraypos(const char* name, int32_t id, const char* memberName, int32_t memberId,
                                  int32_t* index) {
  const ObjectCall call(__func__, name, id, TextInput{memberName}, NumberOutput{index, kNone});
  if (call.code() != RTX_OK) return call.code();
  HWND memberWindow = ResolveName(memberName);
  if (memberWindow == nullptr) return RTX_NO_WINDOW;
  if (id == 0) return RTX_NO_CONTROL_ID;
  if (memberWindow != call.window()) return RTX_NO_ITEM;
  switch (KindOfArray(call)) {
    case ArrayKind::kControls:
      *index = PositionOf(ControlRun(call.control()), memberId);
      return RTX_OK;
    case ArrayKind::kMenuItems: {
      const MenuPlace place = MenuFindItem(ItemsOf(call), static_cast<uint32_t>(memberId), false);
      if (place.menu != nullptr) *index = place.position + Library.OptionBase;
      return RTX_OK;
    }
    default:
      return RTX_NO_ITEM;
  }
}

int32_t __stdcall ControlLbound(const char* name, int32_t id, int32_t* bound) {
  const ObjectCall call(__func__, name, id, NumberOutput{bound, kNone});
  const int32_t code = CheckArrayId(call);
  if (code == RTX_OK) *bound = Library.OptionBase;
  return code;
}

int32_t __stdcall ControlUbound(const char* name, int32_t id, int32_t* bound) {
  const ObjectCall call(__func__, name, id, NumberOutput{bound, kNone});
  const int32_t code = CheckArrayId(call);
  if (code != RTX_OK) return code;
  *bound = KindOfArray(call) == ArrayKind::kControls
               ? LastIndex(ControlRun(call.control()))
               : Library.OptionBase + GetMenuItemCount(ItemsOf(call)) - 1;
  return RTX_OK;
}

int32_t __stdcall Controlselection(const char* name, int32_t id, int32_t* selectedId) {
  return ReportSelected(ObjectCall(__func__, name, id, OptionalIndex{selectedId}), &SelectedMember::id,
                        selectedId);
}

int32_t __stdcall Controlselectionpos(const char* name, int32_t id, int32_t* position) {
  return ReportSelected(ObjectCall(__func__, name, id, OptionalIndex{position}), &SelectedMember::position,
                        position);
}
