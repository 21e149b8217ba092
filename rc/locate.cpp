#include "rc/locate.h"

#include "rc/filename.h"

namespace brelt::rc {
namespace {

// Each word ends in a line feed; see TypeList::Holds for why.
constexpr std::string_view kBlockKinds =
    "ACCELERATORS\nDBFILE\nDIALOG\nMENU\nRCDATA\nSTRINGTABLE\nTEXTINCLUDE\nVERSIONINFO\n";
constexpr std::string_view kSingleLineKinds = "BITMAP\nCURSOR\nFONT\nICON\nDLGINCLUDE\nLANGUAGE\nINCFILE\n";

bool ListHolds(std::string_view list, const Name& keyword) noexcept {
  FixedText<kNameLength + 1> sought(keyword.view());
  sought.Append("\n");
  return list.find(sought.view()) != std::string_view::npos;
}

// Scans the first token of a line, and moves position behind it.
void ScanFirst(const char* line, std::int32_t& position, Name& token) noexcept {
  position = 0;
  SkipSpace(line, position);
  ScanToken(line, position, token);
}

// Most lines of a file begin with neither BEGIN nor END, and their first two letters say so.
bool MayBeBlockMark(const char* line) noexcept {
  std::int32_t at = 0;
  SkipSpace(line, at);
  const char first = ToLower(line[at]);
  return (first == 'b' && ToLower(line[at + 1]) == 'e') || (first == 'e' && ToLower(line[at + 1]) == 'n');
}

void CollapseBackslashes(char* text) noexcept {
  const char* from = text;
  char* to = text;
  while (*from != '\0') {
    if (from[0] == '\\' && from[1] == '\\') ++from;
    *to++ = *from++;
  }
  *to = '\0';
}

}  // namespace

ResourceWalk::Kind ResourceWalk::KindOf(std::string_view keyword) noexcept {
  const Name name(keyword);
  if (ListHolds(kBlockKinds, name)) return Kind::kBlock;
  return ListHolds(kSingleLineKinds, name) ? Kind::kSingleLine : Kind::kOther;
}

// header = (letter | digit ...) (letter ...): the name and the keyword, with two exceptions below.
bool ResourceWalk::EnterHeader(const char* line) noexcept {
  Name first;
  Name second;
  std::int32_t position = 0;
  ScanFirst(line, position, first);
  if (!IsLetterOrDigit(*first.c_str())) return false;
  ScanToken(line, position, second);
  if (!IsLetter(*second.c_str())) return false;
  name_ = first;
  keyword_ = second;
  if (EqualIgnoreCase(first.view(), "STRINGTABLE")) {
    // String tables have no name; all of them answer to this one.
    name_.Assign("1");
    keyword_ = first;
  } else if (EqualIgnoreCase(first.view(), "LANGUAGE")) {
    name_ = second;
    keyword_ = first;
  }
  FoldToUpper(keyword_.data());
  kind_ = KindOf(keyword_.view());
  depth_ = 0;
  return true;
}

void ResourceWalk::Feed(const char* line) noexcept {
  if (lastLine_) inside_ = false;
  header_ = !inside_ && EnterHeader(line);
  inside_ = inside_ || header_;
  lastLine_ = false;
  if (!inside_) return;
  bool isEnd = false;
  if (MayBeBlockMark(line)) {
    Name first;
    std::int32_t position = 0;
    ScanFirst(line, position, first);
    isEnd = EqualIgnoreCase(first.view(), "END");
    if (EqualIgnoreCase(first.view(), "BEGIN")) ++depth_;
    if (isEnd) --depth_;
  }
  // Only a block waits for the END that closes its first BEGIN.
  lastLine_ = kind_ == Kind::kSingleLine || (isEnd && (kind_ == Kind::kOther || depth_ < 1));
}

TypeList::TypeList(const char* list) noexcept : list_(View(list)), any_(View(list) == kAny) {
  if (list_.IsEmpty() || list_.view().back() != '\n') list_.Append("\n");
  FoldToUpper(list_.data());
}

bool TypeList::Holds(const Name& keyword) const noexcept { return any_ || ListHolds(list_.view(), keyword); }

int LocateResource(const char* fileName, const char* resourceName, const char* typeList, TextBuffer out,
                   LineRange* lines) noexcept {
  TextWriter writer(out);
  LineRange found;
  if (lines != nullptr) *lines = found;
  if (IsEmpty(resourceName) || typeList == nullptr) return 0;
  if (!IsAcceptedFileName(fileName) || FileSizeOf(fileName) < 1) return 0;
  LineReader reader(fileName);
  if (!reader.IsOpen()) return 0;

  const TypeList types(typeList);
  const std::string_view sought(resourceName);
  const bool listing = sought == kAny;
  ResourceWalk walk;
  Line line;
  bool wanted = false;  // the resource the walk is in is the one sought
  for (std::int32_t number = 1; reader.Next(line); ++number) {
    walk.Feed(line.text);
    if (listing) {
      if (walk.IsHeader() && types.Holds(walk.keyword())) {
        writer.Append(walk.name().view()).Append(',').Append(walk.keyword().view()).Append('\n');
      }
      continue;
    }
    if (walk.IsHeader()) wanted = EqualIgnoreCase(walk.name().view(), sought);
    if (!walk.IsInside() || !wanted) continue;
    if (types.Holds(walk.keyword())) {
      StripLineComment(line.text);
      writer.Append(line.text);
      found = {found.first == 0 ? number : found.first, number};
    }
    // The name alone ends the search: a second resource of one name is never reached.
    if (walk.IsLastLine()) break;
  }
  if (out.IsWritable()) BlankBlockComments(out.data());
  if (lines != nullptr) *lines = found;
  return writer.length();
}

bool ResourceTypeIs(const char* text, const char* keyword) noexcept {
  std::int32_t position = 0;
  Name token;
  ScanFirst(text, position, token);
  ScanToken(text, position, token);
  return EqualIgnoreCase(token.view(), View(keyword));
}

// icon = name "ICON" {load option} (string | word ["." word])
int ResourceIconFile(const char* fileName, const char* iconName, host::Path& out) noexcept {
  out.Clear();
  FixedText<kShortTextSize - 1> text;
  if (IsEmpty(iconName) || LocateResource(fileName, iconName, "ICON", text) == 0) return 0;
  std::int32_t position = 0;
  SkipSpace(text.c_str(), position);
  Token token;
  for (int i = 0; i < 3; ++i) ScanToken(text.c_str(), position, token);
  while (IsLoadOption(token.view())) ScanToken(text.c_str(), position, token);
  Token file;
  if (*token.c_str() == '"') {
    // Only doubled backslashes are decoded, so that names with single ones survive.
    file.Assign(StringBody(token.view()));
    CollapseBackslashes(file.data());
  } else if (IsLetterOrDigit(*token.c_str())) {
    // The scanner sees my.ico as a word, a point and a word.
    file = token;
    for (int i = 0; i < 2; ++i) {
      ScanToken(text.c_str(), position, token);
      file.Append(token.view());
    }
  }
  out.Assign(file.view());
  return static_cast<int>(out.view().size());
}

void StripLineComment(char* line) noexcept {
  // Lines without any slash, nearly all, need no look at their quotation marks.
  if (std::strchr(line, '/') == nullptr) return;
  bool quoted = false;
  for (char* at = line; *at != '\0'; ++at) {
    if (*at == '"') quoted = !quoted;
    if (quoted || at[0] != '/' || at[1] != '/') continue;
    const char* lineEnd = at + std::strlen(at);
    while (lineEnd[-1] == '\r' || lineEnd[-1] == '\n') --lineEnd;
    std::memmove(at, lineEnd, std::strlen(lineEnd) + 1);
    return;
  }
}

void BlankBlockComments(char* text) noexcept {
  bool quoted = false;
  bool comment = false;
  for (char* at = text; *at != '\0'; ++at) {
    if (!comment && *at == '"') quoted = !quoted;
    if (quoted) continue;
    const bool opens = at[0] == '/' && at[1] == '*';
    const bool closes = at[0] == '*' && at[1] == '/';
    if (opens || closes) {
      comment = opens;
      at[0] = at[1] = ' ';
      ++at;
    } else if (comment && *at != '\r' && *at != '\n') {
      *at = ' ';
    }
  }
}

}  // namespace brelt::rc
