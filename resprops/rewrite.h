// The one way in which a file is changed in place: it is moved aside under a temporary name and written anew
// line by line. Only when the new file is whole does the old one go.
#pragma once

#include <optional>

#include "rc/linereader.h"
#include "resprops/errortext.h"
#include "resprops/rcfile.h"
#include "resprops/textfile.h"

namespace brelt::resprops {

// A temporary name stands in the folder of its file.
using TempPath = rc::FixedText<RcPath::kCapacity + 16>;

// Finds the first free name of 1.tmp, 2.tmp and so on in the folder of a file, and makes the file, empty, to
// claim it. False, with an empty name, where none can be made.
bool MakeTempName(const char* path, TempPath& temp) noexcept;

// Takes the line end off a line.
inline void TrimLine(rc::Line& line) noexcept {
  char* end = line.text + line.length;
  while (end > line.text && (end[-1] == '\n' || end[-1] == '\r')) --end;
  *end = '\0';
  line.length = static_cast<int>(end - line.text);
}

class Rewrite {
 public:
  // Moves the file aside. path must stay as long as this object.
  explicit Rewrite(const char* path) noexcept;
  Rewrite(const Rewrite&) = delete;
  Rewrite& operator=(const Rewrite&) = delete;
  ~Rewrite() { End(); }

  // Goes to the next line of the old text; false behind the last, and at once where the file can't be
  // rewritten. A line longer than the reader's limit comes in pieces, which are lines of their own.
  bool Next() noexcept;
  // Begins again with the first line.
  void Restart() noexcept;

  // The line Next has gone to: its number from 1, and its text without the line end, terminated.
  // A zero byte in the file ends the text early, but doesn't shorten the length.
  std::int32_t number() const noexcept { return number_; }
  const char* line() const noexcept { return line_.text; }
  int length() const noexcept { return line_.length; }
  bool IsEmptyLine() const noexcept { return line_.length == 0; }

  // Takes the line over into the new file, as it is or as another text.
  void Keep() noexcept { KeepAs({line_.text, static_cast<std::size_t>(line_.length)}); }
  void KeepAs(std::string_view text) noexcept;
  // Puts a text into the new file; each of its lines ends in a line feed.
  void Write(std::string_view text) noexcept;

  // Ends the rewrite, as the destructor does. Whether the new file is whole; where the file stands as it was,
  // a message tells so. Where the new file couldn't be made at all the old text stays under the temporary
  // name, and so it does beside a new file that is empty.
  bool Finish(ErrorText& error) noexcept;

 private:
  bool IsOpen() const noexcept { return writer_ && writer_->IsOpen(); }
  void EndLine() noexcept;
  bool KeepRest() noexcept;
  void End() noexcept;
  bool IsWhole() noexcept;
  void PutBack() noexcept;

  const char* path_;
  TempPath temp_;
  std::optional<rc::LineReader> reader_;
  std::optional<TextFile> writer_;
  rc::Line line_{};
  std::int32_t number_ = 0;
  std::int32_t kept_ = 0;     // number of the line kept last
  bool hasLineFeed_ = false;  // the line ends in one
  bool isLineOpen_ = false;   // the last line written still lacks its line feed
  bool isBroken_ = false;     // a read ahead of Restart failed
  bool isWhole_ = false;
  bool isUnchanged_ = false;  // the file stands as it was
};

}  // namespace brelt::resprops
