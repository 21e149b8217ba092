// Looks into an RC file without parsing it.
#pragma once

#include <cstdint>

#include "rc/text.h"

namespace brelt::resprops {

// Gives the list of a file's resources, the text of one, or the list of its symbols. type is "*" for any, a
// keyword, several keywords that each end in a line feed, or "Controls" for symbols; name is "*" for a list,
// otherwise that of a resource, or with Controls that of a DIALOG. A list has a line "NAME,TYPE" for each
// resource; a list of symbols a line "name value", with " uses" behind it where flags hold 32. flags go to
// the loading of symbols. rcFile is a full path, or a bare file name in the current directory. The output is
// empty where the error text isn't; a text that fills the output, even to the last byte, is a failure.
// Without a buffer for the error text the output is cleared and nothing else is done.
void ResourceInfo(const char* rcFile, const char* type, const char* name, std::int32_t flags,
                  rc::TextBuffer output, rc::TextBuffer error) noexcept;

}  // namespace brelt::resprops
