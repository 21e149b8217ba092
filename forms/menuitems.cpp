// Adding and removing menu items of a window that is there. The platform's menu is all there is: no copy is
// kept.
#include "forms/menuitems.h"

#include "frame/objectcall.h"
#include "include/brelt.h"
#include "rc/textkit.h"

namespace brelt {
namespace {

constexpr std::int32_t kItemTextLength = 256;

bool HasItem(const ObjectCall& call, std::uint32_t id) noexcept {
  return GetMenuState(call.menu(), id, MF_BYCOMMAND) != static_cast<UINT>(-1);
}

bool HasControl(const ObjectCall& call, std::uint32_t id) noexcept {
  return GetDlgItem(call.window(), static_cast<int>(id)) != nullptr;
}

// The checks ahead of adding: the window must have a menu with the item that the new ones follow.
std::int32_t CheckAfter(const ObjectCall& call, std::uint32_t afterId) noexcept {
  if (call.code() != RTX_OK) return call.code();
  return call.menu() != nullptr && HasItem(call, afterId) ? std::int32_t{RTX_OK} : std::int32_t{RTX_NO_ITEM};
}

// Behind the item of a place; at the end by -1 where that is the last.
UINT PositionBehind(const MenuPlace& place) noexcept {
  const int position = place.position + 1;
  return position >= GetMenuItemCount(place.menu) ? static_cast<UINT>(-1) : static_cast<UINT>(position);
}

void InsertItem(HMENU menu, UINT position, std::uint32_t id, const char* text) noexcept {
  InsertMenuA(menu, position, MF_BYPOSITION | MF_STRING, id, text);
}

std::int32_t AddOne(const ObjectCall& call, std::uint32_t afterId, std::uint32_t newId,
                    const char* text) noexcept {
  if (const std::int32_t code = CheckAfter(call, afterId); code != RTX_OK) return code;
  if (HasControl(call, newId)) return RTX_WRONG_KIND;
  // Adding twice is harmless on purpose.
  if (HasItem(call, newId)) return RTX_OK;
  const MenuPlace place = MenuFindItem(call.menu(), afterId, true);
  if (place.menu != nullptr) InsertItem(place.menu, PositionBehind(place), newId, text);
  DrawMenuBar(call.window());
  return RTX_OK;
}

// The ids end in 0; each takes one line of the texts, and those behind the last line get an empty text.
std::int32_t AddAll(const ObjectCall& call, std::uint32_t afterId, const std::uint32_t* ids,
                    const char* texts) noexcept {
  if (const std::int32_t code = CheckAfter(call, afterId); code != RTX_OK) return code;
  for (const std::uint32_t* id = ids; *id != 0; ++id) {
    if (HasControl(call, *id) || HasItem(call, *id)) return RTX_WRONG_KIND;
  }
  const MenuPlace place = MenuFindItem(call.menu(), afterId, true);
  if (place.menu == nullptr) return RTX_OK;
  const UINT first = PositionBehind(place);
  const bool atEnd = first == static_cast<UINT>(-1);
  rc::LineWalk lines(texts);
  for (UINT index = 0; ids[index] != 0; ++index) {
    std::string_view line;
    lines.Next(line);
    rc::FixedText<kItemTextLength> text(line);
    rc::TrimLineEnd(text.data());
    InsertItem(place.menu, atEnd ? first : first + index, ids[index], text.c_str());
  }
  DrawMenuBar(call.window());
  return RTX_OK;
}

// Removes count items from the one of an id on; fewer where the menu ends before.
void RemoveFrom(const ObjectCall& call, std::uint32_t firstId, std::int32_t count) noexcept {
  const MenuPlace place = MenuFindItem(call.menu(), firstId, true);
  if (place.menu != nullptr) {
    for (; count > 0 && place.position < GetMenuItemCount(place.menu); --count) {
      DeleteMenu(place.menu, static_cast<UINT>(place.position), MF_BYPOSITION);
    }
  }
  DrawMenuBar(call.window());
}

// The checks ahead of removing. An id that isn't in the menu is no failure.
bool MayRemove(const ObjectCall& call, std::uint32_t id, std::int32_t& code) noexcept {
  code = call.code();
  if (code == RTX_OK && call.menu() == nullptr) code = RTX_NO_ITEM;
  return code == RTX_OK && HasItem(call, id);
}

}  // namespace

MenuPlace MenuFindItem(HMENU menu, std::uint32_t id, bool recurse) noexcept {
  constexpr UINT kPopup = static_cast<UINT>(-1);
  if (!IsMenu(menu) || id == 0) return {};
  const int count = GetMenuItemCount(menu);
  for (int position = 0; position < count; ++position) {
    const UINT found = GetMenuItemID(menu, position);
    if (found == kPopup) {
      const MenuPlace below = recurse ? MenuFindItem(GetSubMenu(menu, position), id, true) : MenuPlace{};
      if (below.menu != nullptr) return below;
    } else if (found == id) {
      return {menu, position};
    }
  }
  return {};
}

}  // namespace brelt

using namespace brelt;

int32_t __stdcall AddMenuitem(const char* name, uint32_t afterId, uint32_t newId, const char* text) {
  return AddOne(ObjectCall(__func__, name, 0, TextInput{text}), afterId, newId, text);
}

int32_t __stdcall AddMenuitems(const char* name, uint32_t afterId, const uint32_t* ids, const char* texts) {
  return AddAll(ObjectCall(__func__, name, 0, TextInput{texts}, ArrayInput{ids}), afterId, ids, texts);
}

int32_t __stdcall RemoveMenuitem(const char* name, uint32_t id) {
  const ObjectCall call(__func__, name, 0);
  int32_t code = RTX_OK;
  if (MayRemove(call, id, code)) {
    DeleteMenu(call.menu(), id, MF_BYCOMMAND);
    DrawMenuBar(call.window());
  }
  return code;
}

int32_t __stdcall RemoveMenuitems(const char* name, uint32_t firstId, int32_t count) {
  const ObjectCall call(__func__, name, 0);
  int32_t code = RTX_OK;
  if (MayRemove(call, firstId, code)) RemoveFrom(call, firstId, count);
  return code;
}
