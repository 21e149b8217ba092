#include "forms/lists.h"

#include "frame/library.h"
#include "frame/winobject.h"

namespace brelt {

struct List::Messages {
  UINT count;
  UINT getSelection;
  UINT setSelection;
  UINT append;
  UINT insert;
  UINT erase;
  UINT reset;
  UINT textLength;
  UINT text;
  UINT getData;
  UINT setData;
};

constexpr List::Messages List::kListMessages = {
    LB_GETCOUNT,     LB_GETCURSEL,  LB_SETCURSEL, LB_ADDSTRING,   LB_INSERTSTRING, LB_DELETESTRING,
    LB_RESETCONTENT, LB_GETTEXTLEN, LB_GETTEXT,   LB_GETITEMDATA, LB_SETITEMDATA};
constexpr List::Messages List::kComboMessages = {
    CB_GETCOUNT,     CB_GETCURSEL,    CB_SETCURSEL, CB_ADDSTRING,   CB_INSERTSTRING, CB_DELETESTRING,
    CB_RESETCONTENT, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_GETITEMDATA, CB_SETITEMDATA};

std::int32_t ToPlace(std::int32_t index) noexcept {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(index) -
                                   static_cast<std::uint32_t>(Library.OptionBase));
}

ItemText ToItemText(const char* text) noexcept {
  ItemText item(rc::View(text));
  std::string_view kept = item.view();
  if (kept.ends_with('\n')) kept.remove_suffix(1);
  if (kept.ends_with('\r')) kept.remove_suffix(1);
  item.Assign(kept);
  return item;
}

List::List(HWND control) noexcept : control_(control), isIconList_(ClassMatches(control, "Iconlist.*")) {
  if (isIconList_ || ClassMatches(control, "LISTBOX")) {
    messages_ = &kListMessages;
  } else if (ClassMatches(control, "COMBOBOX")) {
    messages_ = &kComboMessages;
  }
}

bool List::IsCombo() const noexcept { return messages_ == &kComboMessages; }

std::int32_t List::Count() const noexcept {
  const std::int32_t count = Send(messages_->count);
  return count > 0 ? count : 0;
}

std::int32_t List::Selection() const noexcept { return Send(messages_->getSelection); }

void List::Select(std::int32_t index) const noexcept {
  Send(messages_->setSelection, static_cast<WPARAM>(index));
}

std::int32_t List::Append(const char* text) const noexcept {
  return Send(messages_->append, 0, reinterpret_cast<LPARAM>(text));
}

std::int32_t List::Insert(std::int32_t index, const char* text) const noexcept {
  return Send(messages_->insert, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
}

void List::Delete(std::int32_t index) const noexcept { Send(messages_->erase, static_cast<WPARAM>(index)); }

void List::Reset() const noexcept { Send(messages_->reset); }

std::int32_t List::TextLength(std::int32_t index) const noexcept {
  const std::int32_t length = Send(messages_->textLength, static_cast<WPARAM>(index));
  return length > 0 ? length : 0;
}

void List::CopyText(std::int32_t index, char* buffer) const noexcept {
  *buffer = '\0';
  Send(messages_->text, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer));
}

LPARAM List::Data(std::int32_t index) const noexcept {
  return Send(messages_->getData, static_cast<WPARAM>(index));
}

void List::SetData(std::int32_t index, LPARAM data) const noexcept {
  Send(messages_->setData, static_cast<WPARAM>(index), data);
}

}  // namespace brelt
