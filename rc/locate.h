// Finds a named resource in an RC file and hands back its text, or lists what a file holds. Location is by
// lines: it looks at the first two tokens of a line and counts BEGIN and END, which is what lets it skip the
// resource kinds that the library can't parse, and what makes the layout of a file matter.
#pragma once

#include <cstdint>

#include "rc/host.h"
#include "rc/linereader.h"
#include "rc/scan.h"

namespace brelt::rc {

// Capacities that callers use.
inline constexpr int kResourceTextSize = 65535;  // the text of a DIALOG or MENU, or a listing
inline constexpr int kShortTextSize = 1025;      // an ICON, or where only the first lines matter

// The name and type that stand for any.
inline constexpr std::string_view kAny = "*";

// Follows the lines of an RC file and tells which resource a line belongs to.
class ResourceWalk {
 public:
  // Takes the next line of the file. It may have its line comment still: no token that matters here can lie
  // in one, since the scanner stops at a slash.
  void Feed(const char* line) noexcept;

  // What the line last fed was.
  bool IsInside() const noexcept { return inside_; }      // belongs to a resource
  bool IsHeader() const noexcept { return header_; }      // and is its first line
  bool IsLastLine() const noexcept { return lastLine_; }  // and is its last
  // Of the resource the line belongs to: the name as written and the keyword in upper case, each cut to 40.
  const Name& name() const noexcept { return name_; }
  const Name& keyword() const noexcept { return keyword_; }

 private:
  enum class Kind { kBlock, kSingleLine, kOther };

  bool EnterHeader(const char* line) noexcept;
  static Kind KindOf(std::string_view keyword) noexcept;

  bool inside_ = false;
  bool header_ = false;
  bool lastLine_ = false;
  Kind kind_ = Kind::kOther;
  int depth_ = 0;
  Name name_;
  Name keyword_;
};

// The keywords a search accepts: "*" for any, one keyword, or several that each end in a line feed.
class TypeList {
 public:
  explicit TypeList(const char* list) noexcept;
  // Takes the keyword in upper case. It is sought with a line feed behind it as a piece of the list, so that
  // the tail of a listed word counts as that word.
  bool Holds(const Name& keyword) const noexcept;

 private:
  FixedText<kLineLength> list_;
  bool any_;
};

struct LineRange {
  std::int32_t first = 0;  // from 1; 0 when nothing was found
  std::int32_t last = 0;
  bool broken = false;  // the file couldn't be read to where the search ends: what was found is not all
};

// Finds the resource of a name (compared without regard to case) whose keyword is in typeList, and stores its
// text from its header line to its last, block comments blanked. The first resource of that name ends the
// search, whatever its keyword. With the name "*" the result is a line "name,KEYWORD" for each resource of
// the types, in file order. What doesn't fit is cut without a sign; every failure gives an empty text. lines
// may be null. The result is the length of the text.
int LocateResource(const char* fileName, const char* resourceName, const char* typeList, TextBuffer out,
                   LineRange* lines = nullptr) noexcept;

// Whether the second token of a resource's text is keyword, ignoring case.
bool ResourceTypeIs(const char* text, const char* keyword) noexcept;

// The file name that an ICON resource holds, at most 259 characters; empty when there is none. The result is
// its length.
int ResourceIconFile(const char* fileName, const char* iconName, host::Path& out) noexcept;

// The same from the text of the resource as LocateResource gives it.
int IconFileOf(const char* text, host::Path& out) noexcept;

// Removes a comment from // to the end of the line, keeping the line end. Marks between quotation marks don't
// count; each line starts outside them.
void StripLineComment(char* line) noexcept;

// Replaces block comments by blanks, so that later lines and columns keep their numbers.
void BlankBlockComments(char* text) noexcept;

}  // namespace brelt::rc
