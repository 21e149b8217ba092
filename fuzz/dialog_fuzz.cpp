// The DIALOG parser over any text.
#include "fuzz/input.h"
#include "rc/dialog.h"
#include "rc/text.h"

namespace {

using brelt::fuzz::Require;

bool IsBlank(const brelt::rc::ResourceRecord& record) {
  return record.name.IsEmpty() && record.keyword.IsEmpty() && record.text.IsEmpty() &&
         record.className.IsEmpty() && record.menuName.IsEmpty() && record.fontName.IsEmpty() &&
         record.fontSize == 0 && record.x == 0 && record.y == 0 && record.width == 0 && record.height == 0 &&
         record.style == 0 && record.exStyle == 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brelt::rc;
  const std::string text(reinterpret_cast<const char*>(data), size);
  static RecordArray records;
  FixedText<1023> message;
  const bool parsed = ParseDialog(text.c_str(), records.table(), message);
  Require(parsed == message.IsEmpty(), "records or a message");
  bool ended = !parsed;
  Require(!ended || IsBlank(records[0]), "a failure leaves nothing");
  for (int i = 1; i < kRecordCount; ++i) {
    ended = ended || records[i].name.IsEmpty();
    Require(ended == IsBlank(records[i]), "an empty name ends the controls");
    Require(records[i].x != kUnset && records[i].height != kUnset, "controls have coordinates");
  }
  return 0;
}
