// The MENU parser and the menu builder over any text.
#include <vector>

#include "fuzz/input.h"
#include "rc/menubuilder.h"
#include "rc/menuparser.h"
#include "rc/record.h"
#include "tests/support/menumodel.h"

namespace {

using brelt::fuzz::Require;

bool IsBlank(const brelt::rc::ResourceRecord& record) {
  return record.name.IsEmpty() && record.keyword.IsEmpty() && record.text.IsEmpty() && record.x == 0 &&
         record.style == 0;
}

void Parse(const char* text) {
  using namespace brelt::rc;
  static RecordArray records;
  FixedText<1023> message;
  const bool parsed = ParseMenu(text, records.table(), message);
  Require(parsed == message.IsEmpty(), "records or a message");
  bool ended = !parsed;
  Require(!ended || IsBlank(records[0]), "a failure leaves nothing");
  for (int i = 1; i < kRecordCount; ++i) {
    ended = ended || records[i].keyword.IsEmpty();
    Require(ended == IsBlank(records[i]), "an empty keyword ends the elements");
    Require(ended || records[i].x > 0, "elements have a level");
  }
}

void Build(const char* text) {
  using namespace brelt;
  static std::vector<rc::SymbolRecord> rows(2);
  rows[0].Name.Assign("A");
  rows[0].Value = 5;
  const rc::SymbolIndex symbols(rows);
  rc::AcceleratorTable keys{};
  rc::Failure fault;
  host::MenuHandle* menu = rc::BuildMenu(text, symbols, keys, fault);
  Require((menu == nullptr) == static_cast<bool>(fault), "a menu or a message");
  Require(static_cast<bool>(fault) == (fault.code != RTX_OK), "a message has a code");
  Require(keys[rc::kAcceleratorCount - 1].Key == 0, "the key table ends in a zero row");
  if (menu != nullptr) host::DestroyMenuTree(menu);
  Require(test::LiveMenus() == 0, "no menu is left");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  Parse(text.c_str());
  Build(text.c_str());
  return 0;
}
