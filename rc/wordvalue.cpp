#include "rc/commonids.h"
#include "rc/filename.h"
#include "rc/symbols.h"
#include "rc/textkit.h"

namespace brelt::rc {
namespace {

// The file of #define lines beside the program; false when neither of the two has content.
bool FindWordFile(host::Path& path) noexcept {
  host::Path program;
  host::ModulePath(nullptr, program);
  const PathParts parts = SplitPath(program.view());
  for (const std::string_view extension : {".rcx", ".rc"}) {
    path.Assign(parts.Folder());
    path.Append(parts.name);
    path.Append(extension);
    if (FileSizeOf(path.c_str()) >= 1) return true;
  }
  return false;
}

// Here a number must be wholly one: 0x10L, which a header may well have, is none.
std::int32_t WordValue(const char* token) noexcept {
  if (IsDecimalText(token)) return DecimalValue(token);
  if (!IsHexText(token)) return kNoValue;
  const std::uint32_t value = HexDigitsValue(token + 2);
  return value > INT32_MAX ? INT32_MAX : static_cast<std::int32_t>(value);
}

}  // namespace

std::int32_t ResourceWordValue(const char* name) noexcept {
  host::Path path;
  // The file comes first: without one not even IDOK has a number. Programs test for just that.
  if (!FindWordFile(path) || IsEmpty(name)) return kNoValue;
  if (const std::int32_t common = CommonIdValue(name); common > 0) return common;
  LineReader reader(path.c_str());
  if (!reader.IsOpen()) return kNoValue;
  Line line;
  while (reader.Next(line)) {
    // Unlike in a header that is loaded as a whole, an indented definition counts.
    std::int32_t position = 0;
    Name token;
    SkipSpace(line.text, position);
    ScanToken(line.text, position, token);
    if (token.view() != "#define") continue;
    ScanToken(line.text, position, token);
    if (!EqualIgnoreCase(token.view(), name)) continue;
    ScanToken(line.text, position, token);
    return WordValue(token.c_str());
  }
  return kNoValue;
}

}  // namespace brelt::rc
