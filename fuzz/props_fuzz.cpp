// Property rows of any content: the rows of a window with a line "--" between them, up to a line "====", the
// rows of a menu likewise, and the RC file that they are written to.
#include <algorithm>
#include <vector>

#include "fuzz/input.h"
#include "rc/chars.h"
#include "resprops/resourceread.h"
#include "resprops/resourcewrite.h"
#include "tests/resprops/trip.h"
#include "tests/support/memoryhost.h"

namespace {

using namespace brelt;
using fuzz::Require;

constexpr const char* kPath = "c:\\a.rc";
constexpr int kRowSize = 1025;

// A property array in memory of its own, in which a write past a row shows.
class Rows {
 public:
  Rows() : rows_(resprops::kRowCount, std::vector<char>(kRowSize)) {
    for (auto& row : rows_) pointers_.push_back(row.data());
  }

  void Set(const test::Parts& parts) {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      std::fill(rows_[i].begin(), rows_[i].end(), '\0');
      if (i < parts.size())
        std::copy_n(parts[i].begin(), std::min(parts[i].size(), rows_[i].size()), rows_[i].begin());
    }
  }
  resprops::PropertyArray array() { return {pointers_.data(), resprops::kRowCount, kRowSize}; }
  const char* operator[](std::size_t row) const { return rows_[row].data(); }

 private:
  std::vector<std::vector<char>> rows_;
  std::vector<char*> pointers_;
};

test::Parts TakeRows(fuzz::Input& input) {
  const std::string part = input.TakePart("====");
  fuzz::Input lines(reinterpret_cast<const std::uint8_t*>(part.data()), part.size());
  test::Parts parts;
  while (!lines.IsEmpty() && parts.size() < 40) parts.push_back(lines.TakePart("--"));
  return parts;
}

// Rows that pass the checks: control characters become blanks, long ones are cut.
test::Parts Tamed(test::Parts parts) {
  for (std::string& part : parts) {
    for (char& c : part) c = c != '\n' && rc::IsControl(c) ? ' ' : c;
    part.resize(std::min(part.size(), std::size_t{kRowSize - 1}));
  }
  return parts;
}

void Write(Rows& dialog, Rows& menu) {
  rc::FixedText<1023> error;
  resprops::ResourceWrite(dialog.array(), menu.array(), kPath, error);
  Require(test::LiveAllocations() == 0 && test::OpenFiles() == 0, "nothing is left behind");
}

void Read(const char* name, Rows& rows) {
  rc::FixedText<1023> error;
  const resprops::PropertyArray array = rows.array();
  resprops::ResourceRead(kPath, name, array.rows, array.count, array.size, error);
  Require(error.IsEmpty() || *rows[0] == '\0', "rows or a message");
  Require(test::LiveAllocations() == 0 && test::OpenFiles() == 0, "nothing is left behind");
}

std::string ValueOf(const char* row, const std::string& key) {
  const std::string lines = "\n" + std::string(row);
  const std::size_t at = lines.find("\n" + key + "=");
  if (at == std::string::npos) return "";
  const std::size_t begin = at + key.size() + 2;
  return lines.substr(begin, lines.find('\n', begin) - begin);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Rows dialog;
  static Rows menu;
  fuzz::Input input(data, size);
  const test::Parts dialogParts = TakeRows(input);
  const test::Parts menuParts = TakeRows(input);
  test::ResetHost();
  test::WriteFile(kPath, input.rest());

  dialog.Set(dialogParts);
  menu.Set(menuParts);
  Write(dialog, menu);

  dialog.Set(Tamed(dialogParts));
  menu.Set(Tamed(menuParts));
  const std::string name = ValueOf(dialog[0], "NAME");
  const std::string menuName = ValueOf(menu[0], "NAME");
  Write(dialog, menu);
  Read(menuName.c_str(), menu);
  Read(name.c_str(), dialog);
  Write(dialog, menu);

  const std::string fault = test::CheckDialogRows(Tamed(dialogParts)) + test::CheckMenuRows(Tamed(menuParts));
  Require(fault.empty(), fault.c_str());
  return 0;
}
