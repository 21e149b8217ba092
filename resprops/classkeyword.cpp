#include "resprops/classkeyword.h"

namespace brelt::resprops {
namespace {

std::string_view LabelKeyword(std::int32_t alignment) noexcept {
  switch (alignment) {
    case 0:
    case 3:
      return "LTEXT";
    case 1:
      return "CTEXT";
    case 2:
      return "RTEXT";
    default:
      return "";
  }
}

}  // namespace

void ClassAndKeywordOf(ObjectType type, bool isDefault, std::int32_t alignment,
                       rc::ResourceRecord& record) noexcept {
  record.className.Clear();
  record.keyword.Clear();
  if (type == ObjectType::kNone) return;
  const ObjectTypeRow& row = kObjectTypes[static_cast<std::size_t>(type)];
  record.className.Assign(row.className);
  record.keyword.Assign(row.keyword);
  if (type == ObjectType::kLabel) record.keyword.Assign(LabelKeyword(alignment));
  if (type == ObjectType::kPushbutton) record.keyword.Assign(isDefault ? "DEFPUSHBUTTON" : "PUSHBUTTON");
}

}  // namespace brelt::resprops
