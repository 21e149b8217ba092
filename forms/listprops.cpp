// List, ListCount and ListIndex.
#include "forms/listitems.h"
#include "forms/lists.h"
#include "forms/picture.h"
#include "forms/property.h"
#include "frame/library.h"
#include "include/brelt.h"

namespace brelt {
namespace {

constexpr std::int32_t kNoIndex = -1;

std::int32_t ListCount(const ObjectCall& call) noexcept { return List(call.control()).Count(); }

// No selection is -1 with either base.
std::int32_t ListIndex(const ObjectCall& call) noexcept {
  const std::int32_t index = List(call.control()).Selection();
  return index < 0 ? kNoIndex : index + Library.OptionBase;
}

void SetIndex(const ObjectCall& call, std::int32_t index) noexcept {
  List(call.control()).Select(index == kNoIndex ? kNoIndex : ToPlace(index));
}

constexpr GetRow<std::int32_t> kGetListCount = {
    .controls = {{"LISTBOX", ListCount}, {"Iconlist.*", ListCount}, {"COMBOBOX", ListCount}}};
constexpr GetRow<std::int32_t> kGetListIndex = {
    .controls = {{"LISTBOX", ListIndex}, {"Iconlist.*", ListIndex}, {"COMBOBOX", ListIndex}}};
constexpr SetRow<std::int32_t> kSetListIndex = {
    .controls = {{"LISTBOX", SetIndex}, {"Iconlist.*", SetIndex}, {"COMBOBOX", SetIndex}}};

// ---- The items themselves ----

enum class ItemType { kText, kPicture, kOther };

ItemType TypeOf(const char* type) noexcept {
  if (rc::EqualIgnoreCase(rc::View(type), "String")) return ItemType::kText;
  return rc::EqualIgnoreCase(rc::View(type), "Tbitmap") ? ItemType::kPicture : ItemType::kOther;
}

// Stands in the buffer for what doesn't fit.
const char* TooLongMark(const List& list) noexcept {
  if (list.IsCombo()) return "<ComboBox text too long>";
  return list.IsIconList() ? "<IconList text too long>" : "<ListBox text too long>";
}

std::int32_t FillWholeList(const List& list, rc::TextBuffer out) noexcept {
  const std::int32_t count = list.Count();
  std::int32_t at = 0;
  for (std::int32_t index = 0; index < count; ++index) {
    const std::int32_t length = list.TextLength(index);
    if (length + 1 > out.room() - at) {
      out.Zero();
      out.Assign(TooLongMark(list));
      return RTX_OK;
    }
    list.CopyText(index, out.data() + at);
    at += length;
    out.data()[at++] = '\n';
    out.data()[at] = '\0';
  }
  return RTX_OK;
}

std::int32_t FillItem(const List& list, std::int32_t index, rc::TextBuffer out) noexcept {
  if (!list.Holds(index)) return RTX_OK;
  if (list.TextLength(index) >= out.size()) {
    out.Assign(TooLongMark(list));
  } else {
    list.CopyText(index, out.data());
  }
  return RTX_OK;
}

// A picture that doesn't fit leaves the buffer empty.
std::int32_t FillPicture(const List& list, std::int32_t index, rc::TextBuffer out) noexcept {
  if (!list.Holds(index)) return RTX_OK;
  const auto* picture = reinterpret_cast<const void*>(list.Data(index));
  const std::uint32_t size = ReadablePictureSize(picture);
  if (size > 0 && size <= static_cast<std::uint32_t>(out.size())) std::memcpy(out.data(), picture, size);
  return RTX_OK;
}

// What GetList and SetList do once the list is found: by type, and by whole list or item.
struct ListRequest {
  List list;
  std::int32_t index;  // as the caller gives it
  ItemType type;

  bool IsWhole() const noexcept { return index == kWholeList; }
  bool IsPictureItem() const noexcept {
    return type == ItemType::kPicture && !IsWhole() && list.IsIconList();
  }
};

std::int32_t ReadList(const ListRequest& request, rc::TextBuffer out) noexcept {
  if (request.type == ItemType::kText && request.IsWhole()) return FillWholeList(request.list, out);
  if (request.type == ItemType::kText) return FillItem(request.list, ToPlace(request.index), out);
  return request.IsPictureItem() ? FillPicture(request.list, ToPlace(request.index), out)
                                 : std::int32_t{RTX_WRONG_KIND};
}

// Replaces an item in its place; an icon list keeps the item's picture. Where nothing was selected nothing is
// selected anew: a combo box would empty its field.
void ReplaceItem(const List& list, std::int32_t index, const char* text) noexcept {
  if (!list.Holds(index)) return;
  const ItemText item = ToItemText(text);
  const std::int32_t selection = list.Selection();
  const LPARAM data = list.IsIconList() ? list.Data(index) : 0;
  if (list.Insert(index, item.c_str()) < 0) return;
  list.Delete(index + 1);
  list.SetData(index, data);
  if (selection >= 0) list.Select(selection);
}

// Out of range is told apart here: a list box takes the index -1 for all its items.
void SetPictureOf(const List& list, std::int32_t index, const void* picture) noexcept {
  if (list.Holds(index)) list.SetData(index, reinterpret_cast<LPARAM>(picture));
}

std::int32_t WriteList(const ListRequest& request, const void* value) noexcept {
  const List& list = request.list;
  if (request.type == ItemType::kText && request.IsWhole()) {
    FillListItems(list.window(), static_cast<const char*>(value));
  } else if (request.type == ItemType::kText) {
    ReplaceItem(list, ToPlace(request.index), static_cast<const char*>(value));
  } else if (request.IsPictureItem()) {
    SetPictureOf(list, ToPlace(request.index), value);
  } else {
    return RTX_WRONG_KIND;
  }
  Repaint(list.window());
  return RTX_OK;
}

}  // namespace
}  // namespace brelt

using namespace brelt;

int32_t __stdcall GetListCount(const char* name, int32_t id, int32_t* count) {
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{count}), kGetListCount, count);
}

int32_t __stdcall GetListIndex(const char* name, int32_t id, int32_t* index) {
  return GetProperty(ObjectCall(__func__, name, id, NumberOutput{index}), kGetListIndex, index);
}

int32_t __stdcall SetListIndex(const char* name, int32_t id, int32_t index) {
  return SetProperty(ObjectCall(__func__, name, id), kSetListIndex, index);
}

int32_t __stdcall GetList(const char* name, int32_t id, int32_t index, char* text, int32_t size,
                          const char* type) {
  const BytesOutput<RTX_NULL_ARG> out{text, size};
  const ObjectCall call(__func__, name, id, out, TextInput{type});
  if (call.code() != RTX_OK) return call.code();
  const List list(call.control());
  if (!list) return Refuse(call);
  return ReadList({list, index, TypeOf(type)}, out.bytes());
}

int32_t __stdcall SetList(const char* name, int32_t id, int32_t index, const void* value, const char* type) {
  const ItemType kind = TypeOf(type);
  // A text must be given; a picture may be taken away.
  const TextInput needed{kind == ItemType::kText ? value : type};
  const ObjectCall call(__func__, name, id, TextInput{type}, needed);
  if (call.code() != RTX_OK) return call.code();
  const List list(call.control());
  if (!list) return Refuse(call);
  return WriteList({list, index, kind}, value);
}
