// Symbols of any file: a line with a DIALOG's name, a line with the flags, the RC file up to a line "===="
// and the header a.h behind it.
#include <vector>

#include "fuzz/input.h"
#include "rc/chars.h"
#include "rc/symbols.h"
#include "tests/support/memoryhost.h"

namespace {

using brelt::fuzz::Require;

void Check(const char* name, int flags) {
  using namespace brelt::rc;
  std::vector<SymbolRecord> rows(kSymbolCount);
  SymbolReport report;
  const int count = LoadSymbols("c:\\a.rc", name, flags, rows, report);
  Require(count >= 0 && count <= kSymbolCount, "the count is within the table");
  Require(count == 0 || report.message.IsEmpty(), "rows or a message");
  const SymbolIndex index(rows);
  Require(index.count() == count, "the rows end where the count says");
  for (int i = 0; i < count; ++i) Require(index.Find(index[i].Name.view()) == i, "names are unique");
  for (int i = 1; i < count && (flags & kSortByName) != 0; ++i) {
    Require(CompareIgnoreCase(index[i - 1].Name.view(), index[i].Name.view()) < 0, "rows are sorted by name");
  }
  for (int i = 1; i < count && (flags & 3) == kSortByValue; ++i) {
    Require(index[i - 1].Value <= index[i].Value, "rows are sorted by value");
  }
  Require(brelt::test::LiveAllocations() == 0 && brelt::test::OpenFiles() == 0, "nothing is left behind");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brelt;
  fuzz::Input input(data, size);
  const std::string name = input.TakeLine();
  const int flags = std::atoi(input.TakeLine().c_str());
  const std::size_t divider = input.rest().find("\n====\n");
  test::ResetHost();
  test::SetProgramPath("c:\\a.exe");
  test::WriteFile("c:\\a.rc", input.rest().substr(0, divider));
  if (divider != std::string::npos) test::WriteFile("c:\\a.h", input.rest().substr(divider + 6));

  Check(nullptr, flags & 63);
  Check(name.c_str(), flags & 63);
  rc::ResourceWordValue(name.c_str());
  return 0;
}
