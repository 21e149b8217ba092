// AddItem, RemoveItem and Clear.
#include "forms/lists.h"
#include "forms/property.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr std::int32_t kAppend = -1;

// The code for an object that is no list: id 0 and menu items are no list either.
std::int32_t CheckList(const ObjectCall& call) noexcept {
  if (call.code() != RTX_OK) return call.code();
  if (call.control() == nullptr) return RTX_NO_ITEM;
  return List(call.control()) ? std::int32_t{RTX_OK} : std::int32_t{RTX_WRONG_KIND};
}

// The selection keeps its number, also when the item that had it moves: programs set it themselves if they
// mind. Where nothing was selected nothing is selected anew: a combo box would empty its field.
void Add(const List& list, std::int32_t index, const char* text, const void* picture) noexcept {
  const std::int32_t place = ToPlace(index);
  if (index != kAppend && (place < 0 || place > list.Count())) return;
  const ItemText item = ToItemText(text);
  const std::int32_t selection = list.Selection();
  const std::int32_t added = index == kAppend ? list.Append(item.c_str()) : list.Insert(place, item.c_str());
  if (list.IsIconList() && added >= 0) list.SetData(added, reinterpret_cast<LPARAM>(picture));
  if (selection >= 0) list.Select(selection);
}

void Remove(const List& list, std::int32_t place) noexcept {
  if (!list.Holds(place)) return;
  const bool wasSelected = list.Selection() == place;
  list.Delete(place);
  const std::int32_t left = list.Count();
  if (wasSelected && left > 0) list.Select(place < left ? place : left - 1);
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall AddItem(const char* name, int32_t id, int32_t index, const char* text,
                          const void* picture) {
  const ObjectCall call(__func__, name, id, TextInput{text});
  const int32_t code = CheckList(call);
  if (code == RTX_OK) Add(List(call.control()), index, text, picture);
  return code;
}

int32_t __stdcall RemoveItem(const char* name, int32_t id, int32_t index) {
  const ObjectCall call(__func__, name, id);
  const int32_t code = CheckList(call);
  if (code == RTX_OK) Remove(List(call.control()), ToPlace(index));
  return code;
}

int32_t __stdcall Clear(const char* name, int32_t id) {
  const ObjectCall call(__func__, name, id);
  const int32_t code = CheckList(call);
  if (code == RTX_OK) List(call.control()).Reset();
  return code;
}
