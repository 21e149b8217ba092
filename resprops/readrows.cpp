#include "rc/objectkind.h"
#include "resprops/proparray.h"
#include "resprops/property.h"

namespace brelt::resprops {
namespace {

// A line of a property list while it is made; a longer one is cut, its line feed too.
using ListLine = rc::FixedText<kLineLimit>;

// The type whose schema an object has.
ObjectType TypeOf(const ObjectView& object) noexcept {
  if (object.isMenuRow) return ObjectType::kMenuitem;
  if (object.isWindow && object.controlClass != ControlClass::kEditwindow &&
      object.controlClass != ControlClass::kRicheditwindow) {
    return ObjectType::kDialog;
  }
  rc::Name kind;
  rc::ObjectKind(object.record.className.view(), object.record.style, kind);
  return SchemaTypeOf(kind.view());
}

void AppendProperty(const Property& property, const ObjectView& object, rc::TextWriter& row) noexcept {
  ListLine line;
  rc::TextWriter writer(line);
  writer.Append(property.key).Append('=');
  if (property.readNumber != nullptr) {
    AppendNumber(writer, property.readNumber(object));
  } else {
    property.readText(object, writer);
  }
  writer.Append('\n');
  row.Append(writer.view());
}

}  // namespace

void RecordsToProperties(rc::RecordTable& records, const char* rcFile, const char* resource,
                         const PropertyArray& array, ErrorText& error) noexcept {
  const bool inDialog = rc::EqualIgnoreCase(records[0]->keyword.view(), "DIALOG");
  ReadingRun run(rcFile);
  for (int i = 0; i < kRowCount && !records[i]->keyword.IsEmpty(); ++i) {
    const ObjectView object(*records[i], i, inDialog, run);
    const ObjectType type = TypeOf(object);
    if (type == ObjectType::kNone) {
      error.Format("Window <%-.*s>, object %i <%-.*s>, RC type <%-.*s> has properties which can't be read.",
                   rc::kNameLength, resource, i, rc::kNameLength, object.record.name.c_str(), rc::kNameLength,
                   object.record.keyword.c_str());
      return;
    }
    rc::TextWriter row(rc::TextBuffer(array.rows[i], array.size));
    for (const Property& property : Properties()) {
      if (Holds(property.types, type)) AppendProperty(property, object, row);
    }
  }
}

}  // namespace brelt::resprops
