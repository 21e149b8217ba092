// The statement that an object of a type is written as.
#pragma once

#include "rc/record.h"
#include "resprops/objecttype.h"

namespace brelt::resprops {

// Sets className and keyword of a record. A push button's keyword follows from isDefault, a label's from its
// alignment; an alignment that no label has, and a type that isn't known, leave the keyword empty.
void ClassAndKeywordOf(ObjectType type, bool isDefault, std::int32_t alignment,
                       rc::ResourceRecord& record) noexcept;

}  // namespace brelt::resprops
