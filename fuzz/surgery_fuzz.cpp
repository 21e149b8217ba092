// Changes to any file: a line with a resource's name, a line with another name, the text of a resource up to
// a line "====", the RC file up to another, and the header resource.h behind it.
#include "fuzz/input.h"
#include "resprops/resourceinfo.h"
#include "resprops/surgery.h"
#include "tests/support/memoryhost.h"

namespace {

using namespace brelt;
using fuzz::Require;

constexpr const char* kPath = "c:\\a.rc";

struct Files {
  std::string rc;
  std::string header;
};

// Calls an operation on the file as it came and gives its message.
template <typename Operate>
std::string Apply(const Files& files, Operate operate) {
  test::ResetHost();
  test::WriteFile(kPath, files.rc);
  test::WriteFile("c:\\resource.h", files.header);
  rc::FixedText<1023> error("soil");
  operate(error);
  Require(test::LiveAllocations() == 0 && test::OpenFiles() == 0, "nothing is left behind");
  Require(test::FileExists(kPath), "the file is there");
  Require(test::ReadFile("c:\\resource.h") == files.header, "other files are let alone");
  const bool isAlone = test::ListFiles().size() == 2;
  Require(isAlone || test::ReadFile(kPath).empty(), "a temporary file stays only beside an empty one");
  Require(isAlone || test::ReadFile("c:\\1.tmp") == files.rc || files.rc.find('\n') != std::string::npos,
          "what stays is the old text");
  return std::string(error.view());
}

// Text that belongs to nobody must come through: here, what stands behind the mark that ends a text.
void RequireRest(const Files& files) {
  const std::size_t mark = files.rc.find('\x1A');
  if (mark == std::string::npos || mark + 1 == files.rc.size() || test::ListFiles().size() != 2) return;
  Require(test::ReadFile(kPath).find(files.rc.substr(mark)) != std::string::npos,
          "what stands behind a mark stays");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const std::string name = input.TakeLine();
  const std::string other = input.TakeLine();
  const std::string resource = input.TakePart("====");
  Files files;
  files.rc = input.TakePart("====");
  files.header = input.rest();

  Apply(files, [&](rc::TextBuffer error) { resprops::ResourceDelete(kPath, name.c_str(), error); });
  RequireRest(files);
  const std::string renamed = Apply(files, [&](rc::TextBuffer error) {
    resprops::ResourceRename(kPath, name.c_str(), other.c_str(), error);
  });
  RequireRest(files);
  // A name that begins with an underscore is an identifier that no reader finds again, and two words of the
  // language make other resources than their name says.
  const bool isFindable = rc::IsLetter(*other.c_str()) && !rc::EqualIgnoreCase(other, "STRINGTABLE") &&
                          !rc::EqualIgnoreCase(other, "LANGUAGE");
  if (renamed.empty() && isFindable) {
    rc::LineRange lines;
    rc::LocateResource(kPath, other.substr(0, rc::kNameLength).c_str(), "*", {}, &lines);
    Require(lines.first > 0, "a renamed resource is found by its new name");
  }
  Apply(files, [&](rc::TextBuffer error) { resprops::ResourceWriteText(kPath, resource.c_str(), error); });
  RequireRest(files);
  Apply(files, [&](rc::TextBuffer error) {
    char output[500];
    resprops::ResourceInfo(kPath, other.c_str(), name.c_str(), 35, {output, sizeof output}, error);
  });
  Require(test::ReadFile(kPath) == files.rc, "a question changes nothing");
  return 0;
}
