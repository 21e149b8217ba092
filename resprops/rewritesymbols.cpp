#include <algorithm>
#include <numeric>

#include "rc/textkit.h"
#include "resprops/rewrite.h"
#include "resprops/surgery.h"

namespace brelt::resprops {
namespace {

constexpr std::string_view kDefine = "#define";
constexpr std::string_view kInclude = "#include";
// Each word ends in a comma, and is sought with it.
constexpr std::string_view kResourceTypes =
    "ACCELERATORS,DBFILE,DIALOG,MENU,RCDATA,STRINGTABLE,TEXTINCLUDE,VERSIONINFO,"
    "BITMAP,CURSOR,FONT,ICON,DLGINCLUDE,LANGUAGE,INCFILE,";

bool IsDefineLine(std::string_view line) noexcept { return line.starts_with(kDefine); }

// A line of one word passes too, as its second token, empty, is in the list with nothing but its comma.
bool IsResourceLine(const char* line) noexcept {
  std::int32_t position = 0;
  rc::Token token;
  rc::SkipSpace(line, position);
  rc::ScanToken(line, position, token);
  if (!rc::IsIdentifier(token.c_str())) return false;
  rc::ScanToken(line, position, token);
  token.Append(",");
  return kResourceTypes.find(token.view()) != std::string_view::npos;
}

// include = "#include" ('"' name '"' | "<" name ">" | name)
std::string_view IncludedFile(std::string_view line) noexcept {
  line.remove_prefix(kInclude.size());
  while (!line.empty() && rc::IsSpace(line.front())) line.remove_prefix(1);
  if (line.empty()) return line;
  const char opening = line.front();
  if (opening == '"' || opening == '<') {
    line.remove_prefix(1);
    return line.substr(0, line.find(opening == '<' ? '>' : '"'));
  }
  return line.substr(0, line.find_first_of(" \t"));
}

class SymbolRewrite {
 public:
  SymbolRewrite(const char* path, std::span<const rc::SymbolRecord> symbols,
                const rc::LineRange& includeLines, std::string_view includeName) noexcept
      : symbols_(symbols), includeLines_(includeLines), includeName_(includeName), file_(path) {}

  void Run() noexcept {
    FindPlace();
    while (file_.Next()) HandleLine();
  }

 private:
  void FindPlace() noexcept;
  void HandleLine() noexcept;
  void WriteBlock() noexcept;
  bool IsWaiting() const noexcept;
  bool IsToBeKept(bool isDefine) const noexcept;
  bool IsInInclude() const noexcept {
    return file_.number() >= includeLines_.first && file_.number() <= includeLines_.last;
  }
  bool HasInclude() const noexcept { return includeLines_.first != 0; }

  std::span<const rc::SymbolRecord> symbols_;
  rc::LineRange includeLines_;
  std::string_view includeName_;
  Rewrite file_;
  std::int32_t firstDefine_ = 0;  // line numbers, 0 for none
  std::int32_t firstResource_ = 0;
  bool isWritten_ = false;       // the block is
  bool isBehindDefine_ = false;  // the line before is a #define line
};

void SymbolRewrite::FindPlace() noexcept {
  while ((firstDefine_ == 0 || firstResource_ == 0) && file_.Next()) {
    if (firstDefine_ == 0 && IsDefineLine(file_.line())) firstDefine_ = file_.number();
    if (firstResource_ == 0 && IsResourceLine(file_.line())) firstResource_ = file_.number();
  }
  file_.Restart();
}

// The block comes where the #define lines began, if they stood ahead of the resources and no header is drawn
// in. Otherwise it comes at the top.
bool SymbolRewrite::IsWaiting() const noexcept {
  return !isWritten_ && file_.number() != firstDefine_ && !HasInclude() && firstDefine_ != 0 &&
         (firstResource_ == 0 || firstResource_ > firstDefine_);
}

void SymbolRewrite::WriteBlock() noexcept {
  const auto longer = [](std::size_t width, const rc::SymbolRecord& symbol) {
    return symbol.Uses > 0 ? std::max(width, symbol.Name.view().size()) : width;
  };
  const auto width =
      static_cast<int>(std::accumulate(symbols_.begin(), symbols_.end(), std::size_t{0}, longer));
  rc::FixedText<rc::kNameLength + 24> line;
  for (const rc::SymbolRecord& symbol : symbols_) {
    if (symbol.Uses <= 0) continue;
    line.Format("#define %-*s %i\n", width, symbol.Name.c_str(), symbol.Value);
    file_.Write(line.view());
  }
  file_.Write("\n");
}

bool SymbolRewrite::IsToBeKept(bool isDefine) const noexcept {
  const std::string_view line(file_.line());
  if (isDefine) return false;
  if (line.starts_with(kInclude)) {
    return includeName_.empty() || !rc::EqualIgnoreCase(IncludedFile(line), includeName_);
  }
  if (IsInInclude()) return false;
  const bool isBehind = isBehindDefine_ || (HasInclude() && file_.number() == includeLines_.last + 1);
  return !file_.IsEmptyLine() || !isBehind;
}

void SymbolRewrite::HandleLine() noexcept {
  const bool isDefine = IsDefineLine(file_.line());
  if (isWritten_ || IsWaiting()) {
    if (IsToBeKept(isDefine)) file_.Keep();
  } else {
    WriteBlock();
    isWritten_ = true;
    // Half of an include resource would swallow the next one.
    if (!isDefine && !file_.IsEmptyLine() && !IsInInclude()) file_.Keep();
  }
  isBehindDefine_ = isDefine;
}

}  // namespace

void RewriteSymbols(const char* path, std::span<const rc::SymbolRecord> symbols,
                    const rc::LineRange& includeLines, std::string_view includeName) noexcept {
  if (symbols.empty() || !rc::IsFullPathName(path) || rc::FileSizeOf(path) < 1 || IsReadOnlyFile(path))
    return;
  SymbolRewrite(path, symbols, includeLines, includeName).Run();
}

}  // namespace brelt::resprops
