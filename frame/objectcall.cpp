#include "frame/objectcall.h"

namespace brelt {

void ObjectCall::Resolve(HWND window) noexcept {
  window_ = window;
  if (window_ == nullptr) return;
  menu_ = GetMenu(window_);
  if (id_ != 0) control_ = GetDlgItem(window_, id_);
}

bool ObjectCall::IsMenuItem() const noexcept {
  return menu_ != nullptr &&
         GetMenuState(menu_, static_cast<UINT>(id_), MF_BYCOMMAND) != static_cast<UINT>(-1);
}

std::int32_t ObjectCall::WrongObject() const noexcept {
  return control_ != nullptr || IsMenuItem() ? RTX_WRONG_KIND : RTX_NO_ITEM;
}

}  // namespace brelt
