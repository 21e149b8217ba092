// What a form designer waits for: reading a form into property rows beside finding it, rewriting a file
// beside reading it whole and writing it in one block, writing a form beside the passes over the file that it
// is made of, and how all of it grows with the file and its symbols.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "bench/harness.h"
#include "bench/scripts.h"
#include "resprops/resourceread.h"
#include "resprops/resourcewrite.h"
#include "resprops/rewrite.h"
#include "resprops/surgery.h"

namespace brelt::bench {
namespace {

constexpr int kRounds = 21;

// A form of as many controls as there can be.
std::string BigForm(int definitions) {
  std::string text =
      "BIG DIALOG 0,0,400,400\nCAPTION \"The big one\"\nSTYLE WS_POPUP|WS_CAPTION|WS_SYSMENU\nBEGIN\n";
  for (int i = 0; i < rc::kElementCount; ++i) {
    const std::string name = "W" + std::to_string(i * 3 % definitions);
    text += i % 2 == 0 ? "    PUSHBUTTON     \"Button " + std::to_string(i) + "\"," + name + ",10,10,50,14\n"
                       : "    LTEXT          \"Label " + std::to_string(i) + "\"," + name + ",10,10,50,8\n";
  }
  return text + "END\n\n";
}

// The full path of a file in the current directory.
std::string FullPath(const std::string& name) {
  host::Path folder;
  rc::CurrentDirectoryText(folder);
  return folder.c_str() + name;
}

// A file of forms for the time of a measurement.
class Script {
 public:
  // The forms with the big one in the middle.
  Script(int number, int dialogs, int definitions);
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;
  ~Script() { std::remove(localName_.c_str()); }

  std::string path() const { return FullPath(localName_); }
  double size() const { return size_; }

 private:
  std::string localName_;
  double size_;
};

Script::Script(int number, int dialogs, int definitions)
    : localName_("props" + std::to_string(number) + ".rc") {
  std::string text = bench::Script(dialogs / 2, definitions);
  std::string big = BigForm(definitions / 2);
  for (std::size_t at = 0; (at = big.find('\n', at)) != std::string::npos; at += 2) big.insert(at, 1, '\r');
  std::string rest = bench::Script(dialogs - dialogs / 2, definitions);
  // The second half's forms get names of their own.
  for (std::size_t at = 0; (at = rest.find("FORM", at)) != std::string::npos; ++at) rest[at] = 'G';
  text += big + rest.substr(rest.find("GORM0"));
  WriteScript(localName_.c_str(), text);
  size_ = static_cast<double>(text.size());
}

class Rows {
 public:
  Rows() {
    for (int i = 0; i < resprops::kRowCount; ++i) pointers_.push_back(bytes_.data() + i * kRowSize);
  }
  resprops::PropertyArray array() { return {pointers_.data(), resprops::kRowCount, kRowSize}; }

 private:
  static constexpr int kRowSize = 1025;
  std::vector<char> bytes_ = std::vector<char>(std::size_t{resprops::kRowCount} * kRowSize);
  std::vector<char*> pointers_;
};

void Require(const rc::FixedText<1023>& error) {
  if (error.IsEmpty()) return;
  std::puts(error.c_str());
  std::abort();
}

void Locate(const std::string& path) {
  static std::vector<char> text(rc::kResourceTextSize);
  Keep(rc::LocateResource(path.c_str(), "BIG", "DIALOG\nMENU\n", {text.data(), rc::kResourceTextSize}));
}

void Read(const std::string& path, Rows& rows) {
  rc::FixedText<1023> error;
  const resprops::PropertyArray array = rows.array();
  resprops::ResourceRead(path.c_str(), "BIG", array.rows, array.count, array.size, error);
  Require(error);
}

void Write(const std::string& path, Rows& rows) {
  static Rows menu;
  rc::FixedText<1023> error;
  resprops::ResourceWrite(rows.array(), menu.array(), path.c_str(), error);
  Require(error);
}

void Rewrite(const std::string& path) {
  resprops::Rewrite rewrite(path.c_str());
  while (rewrite.Next()) rewrite.Keep();
}

// Copies lines with the line ends of text mode; gives the end of the copy.
char* CopyLines(const std::vector<char>& in, char* out) {
  const char* const end = in.data() + in.size();
  for (const char* at = in.data(); at < end;) {
    const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
    const char* lineEnd = found != nullptr ? static_cast<const char*>(found) : end;
    std::size_t length = static_cast<std::size_t>(lineEnd - at);
    if (length > 0 && at[length - 1] == '\r') --length;
    std::memcpy(out, at, length);
    out += length;
    *out++ = '\r';
    *out++ = '\n';
    at = lineEnd + 1;
  }
  return out;
}

// A rewrite in the plainest way: the file read whole, its lines copied in memory, one block written.
void RewriteInOneBlock(const std::string& path) {
  const std::string temporary = FullPath("plain.tmp");
  static std::vector<char> in;
  static std::vector<char> out;
  std::uint64_t size = 0;
  if (!host::QueryFileSize(path.c_str(), size) || !host::RenameFile(path.c_str(), temporary.c_str()))
    std::abort();
  in.resize(size);
  out.resize(size * 2);
  if (host::File(temporary.c_str(), host::OpenMode::kRead).Read(in.data(), static_cast<int>(size)) < 0)
    std::abort();
  const char* end = CopyLines(in, out.data());
  host::File file(path.c_str(), host::OpenMode::kReplace);
  if (!file.Write(out.data(), static_cast<int>(end - out.data())) || !file.Close()) std::abort();
  if (!host::RemoveFile(temporary.c_str())) std::abort();
}

// The passes over the file that writing the form is made of, each by itself.
void Passes(const std::string& path) {
  static std::vector<char> list(rc::kResourceTextSize);
  static std::vector<rc::SymbolRecord> symbols(rc::kSymbolCount);
  rc::SymbolReport report;
  for (int i = 0; i < 2; ++i) {
    Locate(path);
    Rewrite(path);
  }
  rc::LocateResource(path.c_str(), "*", "ICON", {list.data(), rc::kResourceTextSize});
  rc::LoadSymbols(path.c_str(), "", rc::kRenumber | rc::kCountUses, symbols, report);
  rc::LoadSymbols(path.c_str(), "BIG", 0, symbols, report);
  Rewrite(path);
}

void BenchReading() {
  const Script script(1, 200, 300);
  const std::string path = script.path();
  Rows rows;
  const std::vector<Measured> measured = Measure(
      {{"locate it", 1, [&] { Locate(path); }}, {"ResourceRead", 1, [&] { Read(path, rows); }}}, kRounds);
  Print("A form of 255 controls among 200 forms, one reading", measured);
  PrintGoal("reading beside locating", measured[1].ratio, Goal::kAtMost, 2);
}

void BenchRewriting() {
  const Script script(1, 160, 300);
  const std::string path = script.path();
  const double megabytes = script.size() / 1e6;
  const std::vector<Measured> measured =
      Measure({{"read whole, copy lines, write in one block", megabytes, [&] { RewriteInOneBlock(path); }},
               {"a rewrite", megabytes, [&] { Rewrite(path); }}},
              kRounds);
  Print("Rewriting a file, one megabyte", measured);
  PrintGoal("a rewrite beside one block", measured[1].ratio, Goal::kAtMost, 1.5);
}

void BenchWriting() {
  const Script script(1, 200, 300);
  const std::string path = script.path();
  Rows rows;
  Read(path, rows);
  const std::vector<Measured> measured = Measure(
      {{"its passes one by one", 1, [&] { Passes(path); }}, {"ResourceWrite", 1, [&] { Write(path, rows); }}},
      kRounds);
  Print("A form of 255 controls among 200 forms, one writing", measured);
  PrintGoal("writing beside its passes", measured[1].ratio, Goal::kAtMost, 1.25);
}

struct Extent {
  int dialogs;
  int definitions;
};

// Calls an operation on files of 1, 4 and 16 times some extent; the time for one part must not grow.
void BenchGrowth(const std::string& headline, Extent one, Extent four, Extent sixteen,
                 const std::function<void(const std::string&, Rows&)>& operate) {
  const Script scripts[] = {{1, one.dialogs, one.definitions},
                            {4, four.dialogs, four.definitions},
                            {16, sixteen.dialogs, sixteen.definitions}};
  Rows rows[3];
  std::vector<Way> ways;
  for (int i = 0; i < 3; ++i) {
    Read(scripts[i].path(), rows[i]);
    const int times = 1 << (2 * i);
    ways.push_back({std::to_string(times) + " times", static_cast<double>(times),
                    [&, i] { operate(scripts[i].path(), rows[i]); }});
  }
  const std::vector<Measured> measured = Measure(ways, kRounds / 2);
  Print(headline, measured);
  PrintGoal("growth beyond linear", measured.back().ratio, Goal::kAtMost, 1.1);
}

}  // namespace
}  // namespace brelt::bench

int main() {
  using namespace brelt::bench;
  BenchReading();
  BenchRewriting();
  BenchWriting();
  BenchGrowth("ResourceRead in files of more and more forms, one part", {50, 300}, {200, 300}, {800, 300},
              Read);
  BenchGrowth("ResourceWrite in files of more and more forms, one part", {50, 300}, {200, 300}, {800, 300},
              Write);
  BenchGrowth("ResourceWrite with more and more symbols, one part", {50, 60}, {50, 240}, {50, 960}, Write);
  return 0;
}
