// Changes RC files in place: only the named resource, and the #define lines where names came or went. All
// else in a file is somebody's text and stays as it is.
#pragma once

#include <span>

#include "rc/symbols.h"
#include "resprops/errortext.h"

namespace brelt::resprops {

// ---- What programs call ----
//
// rcFile is a full path, or a bare file name, which is completed with the current directory. The error text
// is empty on success; without a buffer for it nothing is done.

// Deletes the resource of a name, of any type, and the empty line behind it. A DIALOG takes along its MENU,
// the ICONs of its icon controls, and the #define lines that nothing uses any more. A missing file or
// resource and an empty name are no failures.
void ResourceDelete(const char* rcFile, const char* resource, rc::TextBuffer error) noexcept;

// Gives a resource another name in its first line. What refers to it keeps the old one.
void ResourceRename(const char* rcFile, const char* oldName, const char* newName,
                    rc::TextBuffer error) noexcept;

// Writes a resource, whose name and type are the first two tokens of its text, in the place of that of the
// same name, whatever its type, or else at the end of the file, which is made if need be. A last line without
// a line feed is lost.
void ResourceWriteText(const char* rcFile, const char* text, rc::TextBuffer error) noexcept;

// ---- Parts that more than one of them needs; path is a full path ----

enum class DeleteMode {
  kStub,  // a DIALOG leaves a stub in its place
  kDelete,
};
void DeleteResource(const char* path, const char* name, DeleteMode mode, ErrorText& error) noexcept;

// The lines of the text that end in a line feed go in the place of the resource of a name, or to the end of
// the file.
void ReplaceOrAppendResource(const char* name, const char* text, const char* path, ErrorText& error) noexcept;

// Replaces all #define lines of a file by one for each row with a use, in the order of the rows. The resource
// that names the symbols' header, which stands in includeLines, and the #include of that header go.
void RewriteSymbols(const char* path, std::span<const rc::SymbolRecord> symbols,
                    const rc::LineRange& includeLines, std::string_view includeName) noexcept;

// A DIALOG that holds a place.
rc::FixedText<120> StubDialog(const char* name) noexcept;

}  // namespace brelt::resprops
