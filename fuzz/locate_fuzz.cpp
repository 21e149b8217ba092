// Location in any file: a line with the name sought, a line with the types (commas stand for line feeds), the
// file.
#include <algorithm>
#include <vector>

#include "fuzz/input.h"
#include "rc/directory.h"
#include "rc/locate.h"
#include "rc/textkit.h"
#include "tests/support/memoryhost.h"

namespace {

using brelt::fuzz::Require;
constexpr const char* kPath = "c:\\a.rc";

struct Found {
  std::string text;
  brelt::rc::LineRange lines;
};

Found Locate(const char* name, const char* types, int size) {
  std::vector<char> buffer(static_cast<std::size_t>(size));
  Found found;
  const int length = brelt::rc::LocateResource(kPath, name, types, {buffer.data(), size}, &found.lines);
  found.text = buffer.data();
  Require(length == static_cast<int>(found.text.size()), "the result is the length");
  Require(found.lines.first <= found.lines.last, "the first line isn't behind the last");
  return found;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brelt;
  fuzz::Input input(data, size);
  const std::string name = input.TakeLine();
  std::string types = input.TakeLine();
  std::replace(types.begin(), types.end(), ',', '\n');
  test::ResetHost();
  test::WriteFile(kPath, input.rest());

  const Found whole = Locate(name.c_str(), types.c_str(), rc::kResourceTextSize);
  Locate(name.c_str(), types.c_str(), 10);
  host::Path icon;
  rc::ResourceIconFile(kPath, name.c_str(), icon);
  rc::ResourceTypeIs(whole.text.c_str(), "DIALOG");

  rc::ResourceDirectory directory(kPath);
  const Found list = Locate("*", "*", rc::kResourceTextSize);
  rc::LineWalk walk(list.text.c_str());
  std::string_view line;
  for (int i = 0; i < 50 && walk.Next(line); ++i) {
    const std::string listed(line.substr(0, line.find(',')));
    std::vector<char> buffer(rc::kResourceTextSize);
    directory.Locate(listed, types.c_str(), {buffer.data(), rc::kResourceTextSize});
    Require(Locate(listed.c_str(), types.c_str(), rc::kResourceTextSize).text == buffer.data(),
            "the directory finds what a search finds");
    Require(Locate(listed.c_str(), "*", rc::kResourceTextSize).lines.first > 0 || listed == "*",
            "what is listed is found");
  }
  Require(test::OpenFiles() == 0 || test::OpenFiles() == 1, "searches close their file");
  return 0;
}
