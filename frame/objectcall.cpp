#include "frame/objectcall.h"

#include "frame/trace.h"
#include "frame/winobject.h"

namespace brelt {

void ObjectCall::Trace(const char* function) noexcept { TraceCall(function); }

void ObjectCall::Resolve(const char* name) noexcept {
  window_ = ResolveName(name);
  if (window_ == nullptr) return;
  menu_ = GetMenu(window_);
  if (id_ != 0) control_ = GetDlgItem(window_, id_);
}

bool ObjectCall::IsMenuItem() const noexcept {
  return menu_ != nullptr &&
         GetMenuState(menu_, static_cast<UINT>(id_), MF_BYCOMMAND) != static_cast<UINT>(-1);
}

}  // namespace brelt
