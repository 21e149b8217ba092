// The RC file that a call works on.
#pragma once

#include "rc/filename.h"

namespace brelt::resprops {

// A file name as the calls take it: longer ones are cut.
using RcPath = rc::FixedText<260>;

// The name as a caller gave it, a bare file name completed with the current directory. A name of another
// form, which the checks will refuse, stays as it is.
void CompleteFileName(const char* rcFile, RcPath& path) noexcept;

// Whether an existing file can't be opened for writing, be it that somebody else has it open. False where
// there is no file.
bool IsReadOnlyFile(const char* path) noexcept;

// The message, ahead of the path, about such a file and any other that can't be changed.
inline constexpr const char* kReadOnlyMessage = "Cannot modify the following read-only file: ";

}  // namespace brelt::resprops
