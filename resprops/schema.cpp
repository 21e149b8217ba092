#include "resprops/schema.h"

#include "rc/scan.h"
#include "rc/textkit.h"
#include "resprops/palette.h"

namespace brelt::resprops {
namespace {

void AppendPalette(rc::TextWriter& writer) noexcept {
  const char* comma = "";
  for (const PaletteColour& colour : kPalette) {
    writer.Format("%s0x%.6X-\"%s\"", comma, colour.value, colour.name.data());
    comma = ",";
  }
}

}  // namespace

ObjectType SchemaTypeOf(std::string_view typeName) noexcept {
  return FindObjectType(rc::TrimBlanks(typeName.substr(0, rc::kNameLength)));
}

void ResourceTypelist(const char* typeName, rc::TextBuffer buffer) noexcept {
  buffer.Zero();
  const ObjectType type = SchemaTypeOf(rc::View(typeName));
  rc::TextWriter writer(buffer);
  for (const Descriptor& descriptor : schema::kDescriptors) {
    if (!Holds(descriptor.types, type)) continue;
    const std::size_t mark = descriptor.text.find(schema::kPaletteMark);
    writer.Append(descriptor.text.substr(0, mark));
    if (mark != std::string_view::npos) {
      AppendPalette(writer);
      writer.Append(descriptor.text.substr(mark + schema::kPaletteMark.size()));
    }
    writer.Append('\n');
  }
}

}  // namespace brelt::resprops
