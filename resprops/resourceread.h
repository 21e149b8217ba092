// Turns a DIALOG or a MENU of an RC file into a property array.
#pragma once

#include "resprops/proparray.h"

namespace brelt::resprops {

// Fills the rows, one object to a row in the order of the file: the window or the menu's header first. rcFile
// is a full path or a bare file name, which is completed with the current directory. The error text is empty
// if and only if the read succeeded; on a failure all rows are zero, if they could be reached. Without a
// buffer for it nothing is done.
void ResourceRead(const char* rcFile, const char* resource, char** rows, int rowCount, int rowSize,
                  rc::TextBuffer error) noexcept;

}  // namespace brelt::resprops
