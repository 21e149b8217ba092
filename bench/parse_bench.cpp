// How long the RC engine takes for a statement, beside a loop that only splits the same text into tokens and
// beside the cross tools' resource compiler; how long a search takes, and how both grow with the file.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "bench/harness.h"
#include "bench/scripts.h"
#include "rc/dialog.h"
#include "rc/host.h"
#include "rc/locate.h"
#include "rc/record.h"
#include "rc/scan.h"
#include "rc/symbols.h"

namespace brelt::bench {
namespace {

constexpr int kDialogs = 200;
constexpr int kDefinitions = 940;
constexpr int kTotal = kDialogs * kStatements;

std::vector<rc::SymbolRecord> LoadTable(const char* file) {
  std::vector<rc::SymbolRecord> rows(rc::kSymbolCount);
  rc::SymbolReport report;
  if (rc::LoadSymbols(file, nullptr, 0, rows, report) == 0) std::abort();
  return rows;
}

// From the texts of all DIALOGs to their records, each identifier with its number.
void ParseAll(const std::vector<std::string>& texts, const rc::SymbolIndex& symbols) {
  rc::RecordArray records;
  rc::FixedText<1023> message;
  long sum = 0;
  for (const std::string& text : texts) {
    if (!rc::ParseDialog(text.c_str(), records.table(), message)) std::abort();
    for (int i = 1; i <= kStatements; ++i) sum += rc::FindSymbolValue(symbols, records[i].name.c_str());
  }
  Keep(sum);
}

void SplitAll(const std::vector<std::string>& texts) {
  rc::Token token;
  long sum = 0;
  for (const std::string& text : texts) {
    std::int32_t position = 0;
    for (;;) {
      rc::ScanToken(text.c_str(), position, token);
      if (token.IsEmpty()) break;
      ++sum;
    }
  }
  Keep(sum);
}

void BenchParsing() {
  std::vector<std::string> texts;
  for (int i = 0; i < kDialogs; ++i) texts.push_back(Dialog(i, kDefinitions));
  const std::vector<rc::SymbolRecord> rows = LoadTable("bench.rc");
  const std::vector<Measured> measured =
      Measure({{"split into tokens", kTotal, [&] { SplitAll(texts); }},
               {"records with their symbols", kTotal, [&] { ParseAll(texts, rc::SymbolIndex(rows)); }}},
              41);
  Print("Parsing, one statement", measured);
  PrintGoal("records beside bare tokens", measured[1].ratio, Goal::kAtMost, 2.5);
}

#ifndef _WIN32
void Compile(const char* script) {
  const std::string command = std::string("i686-w64-mingw32-windres -O res ") + script + " bench.res";
  if (std::system(command.c_str()) != 0) std::abort();
}

// What the compiler takes beyond its start: the time for the large file less that for the small one.
void BenchResourceCompiler() {
  if (std::system("command -v i686-w64-mingw32-windres >/dev/null") != 0) {
    std::puts("\nNo i686-w64-mingw32-windres here to compare with.");
    return;
  }
  constexpr int kSmall = kDialogs / 10;
  WriteScript("small.rc", Script(kSmall, kDefinitions));
  std::vector<std::string> texts;
  for (int i = 0; i < kDialogs - kSmall; ++i) texts.push_back(Dialog(i, kDefinitions));
  const std::vector<rc::SymbolRecord> rows = LoadTable("bench.rc");
  constexpr double kSlope = kTotal - kSmall * kStatements;
  const std::vector<Measured> measured =
      Measure({{"records with their symbols", kSlope, [&] { ParseAll(texts, rc::SymbolIndex(rows)); }},
               {"windres, 20000 statements", kSlope, [] { Compile("bench.rc"); }},
               {"windres, 2000 statements", kSlope, [] { Compile("small.rc"); }}},
              15);
  Print("Parsing beside the resource compiler, one of 18000 statements", measured);
  PrintGoal("windres from 2000 to 20000 statements beside records", measured[1].ratio - measured[2].ratio,
            Goal::kAtLeast, 20);
}
#endif

// Reads a file whole and hands out its lines in text mode, as a reader must that keeps each in a buffer.
long WalkLines(const char* path) {
  std::uint64_t size = 0;
  host::QueryFileSize(path, size);
  const host::Block<char> bytes(static_cast<std::size_t>(size) + 1);
  host::File file(path, host::OpenMode::kRead);
  const int count = file.Read(bytes.get(), static_cast<int>(size));
  const char* end = bytes.get() + count;
  char line[1025];
  long lines = 0;
  for (const char* at = bytes.get(); at < end; ++lines) {
    const void* feed = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
    const char* behind = feed != nullptr ? static_cast<const char*>(feed) + 1 : end;
    auto length = static_cast<std::size_t>(behind - at);
    if (length >= sizeof line) length = sizeof line - 1;
    std::memcpy(line, at, length);
    if (length > 1 && line[length - 2] == '\r') line[--length - 1] = '\n';
    line[length] = '\0';
    at = behind;
  }
  return lines + line[0];
}

void LocateLast(const char* file, int dialogs) {
  static char text[rc::kResourceTextSize];
  const std::string name = "FORM" + std::to_string(dialogs - 1);
  if (rc::LocateResource(file, name.c_str(), "DIALOG", {text, rc::kResourceTextSize}) == 0) std::abort();
  Keep(text[0]);
}

void BenchLocating() {
  const std::vector<Measured> measured =
      Measure({{"file read whole, lines walked in memory", 1, [] { Keep(WalkLines("bench.rc")); }},
               {"LocateResource of the last DIALOG", 1, [] { LocateLast("bench.rc", kDialogs); }}},
              101);
  Print("Locating the last of 200 DIALOGs, one search", measured);
  PrintGoal("search beside a walk in memory", measured[1].ratio, Goal::kAtMost, 1.5);
}

// The same work in all ways: what is one part of it is done as many times as the largest holds it. Ways of
// one length are disturbed alike by whatever else the machine does.
Way Repeated(const std::string& name, int parts, int largest, const std::function<void()>& run) {
  return {name, static_cast<double>(largest), [run, times = largest / parts] {
            for (int i = 0; i < times; ++i) run();
          }};
}

void BenchSymbols() {
  std::vector<Way> ways;
  for (const int count : {250, 500, 1000}) {
    const std::string file = "names" + std::to_string(count) + ".rc";
    WriteScript(file.c_str(), Script(0, count));
    ways.push_back(
        Repeated(std::to_string(count) + " names", count, 1000, [file] { LoadTable(file.c_str()); }));
  }
  const std::vector<Measured> measured = Measure(ways, 101);
  Print("LoadSymbols, one name", measured);
  PrintGoal("a name of 1000 beside one of 250", measured[2].ratio, Goal::kAtMost, 1.25);
}

void BenchGrowth() {
  std::vector<Way> searches;
  std::vector<Way> counts;
  for (const int factor : {1, 4, 16}) {
    const std::string file = "growth" + std::to_string(factor) + ".rc";
    const int dialogs = kDialogs / 4 * factor;
    WriteScript(file.c_str(), Script(dialogs, kDefinitions));
    const std::string name = std::to_string(factor) + " times the size";
    searches.push_back(Repeated(name, factor, 16, [file, dialogs] { LocateLast(file.c_str(), dialogs); }));
    counts.push_back(Repeated(name, factor, 16, [file] {
      std::vector<rc::SymbolRecord> rows = LoadTable(file.c_str());
      if (rc::CountSymbolUses(file.c_str(), rows) != rc::Reading::kDone) std::abort();
    }));
  }
  const std::vector<Measured> searching = Measure(searches, 41);
  Print("LocateResource of the last DIALOG, a share of the size", searching);
  PrintGoal("a share of 16 beside one alone", searching[2].ratio, Goal::kAtMost, 1.25);
  const std::vector<Measured> counting = Measure(counts, 21);
  Print("LoadSymbols and CountSymbolUses, a share of the size", counting);
  PrintGoal("a share of 16 beside one alone", counting[2].ratio, Goal::kAtMost, 1.25);
}

}  // namespace
}  // namespace brelt::bench

int main() {
  using namespace brelt::bench;
  const std::string script = Script(kDialogs, kDefinitions);
  WriteScript("bench.rc", script);
  std::printf("%d DIALOGs with %d statements each, %d definitions, %zu bytes\n", kDialogs, kStatements,
              kDefinitions, script.size());
  BenchParsing();
#ifndef _WIN32
  BenchResourceCompiler();
#endif
  BenchLocating();
  BenchSymbols();
  BenchGrowth();
  return 0;
}
