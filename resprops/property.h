// A property of an object: how its value follows from a parsed record, and how a record follows from its
// value. The two directions of each property stand next to each other in the files of the families, so that
// whoever changes one sees the other.
#pragma once

#include <optional>
#include <span>

#include "rc/directory.h"
#include "rc/record.h"
#include "resprops/schema.h"

namespace brelt::resprops {

// ---- From record to value ----

// What a class name says, compared whole and without regard to case. A class of one of the library's own
// families with a version behind its name is kOther.
enum class ControlClass : std::uint8_t {
  kBitmapbutton,
  kButton,
  kCombobox,
  kDialog,  // or no class at all
  kEdit,
  kEditwindow,
  kIconlist,
  kImage,
  kListbox,
  kProgressbar,
  kRicheditwindow,
  kScrollbar,
  kShape,
  kStatic,
  kOther,
};
ControlClass FindControlClass(std::string_view className) noexcept;

// The files of the ICON resources that one file's icon controls name. The file is walked when the first is
// asked for.
class IconFiles {
 public:
  explicit IconFiles(const char* rcFile) noexcept : rcFile_(rcFile) {}

  // As ResourceIconFile.
  void Find(const char* iconName, host::Path& file) noexcept;

 private:
  const char* rcFile_;
  std::optional<rc::ResourceDirectory> directory_;
};

// What one read of a resource carries from object to object.
struct ReadingRun {
  explicit ReadingRun(const char* rcFile) noexcept : icons(rcFile) {}

  IconFiles icons;
  int replacedNames = 0;  // how many Noname numbers are given away
};

// A record as the properties see it.
struct ObjectView {
  ObjectView(const rc::ResourceRecord& parsed, int index, bool inDialog, ReadingRun& reading) noexcept;

  bool Has(std::uint32_t bits) const noexcept { return (record.style & bits) == bits; }
  bool HasAny(std::uint32_t bits) const noexcept { return (record.style & bits) != 0; }
  // The low bits of the style, where the standard controls keep their type.
  std::uint32_t TypeBits() const noexcept { return record.style & 0xF; }

  const rc::ResourceRecord& record;
  ReadingRun& run;
  ControlClass controlClass;
  bool isFirst;    // the window or the menu's header
  bool isWindow;   // the window of a DIALOG
  bool isMenuRow;  // anything of a MENU
};

// In decimal. Nearly all values are numbers, and a formatted print takes several times as long.
void AppendNumber(rc::TextWriter& value, std::int32_t number) noexcept;

using NumberReader = std::int32_t (*)(const ObjectView& object) noexcept;
using TextReader = void (*)(const ObjectView& object, rc::TextWriter& value) noexcept;

// ---- From value to record ----

inline constexpr int kLineLimit = 1024;  // the characters of a row and of a value that are looked at

// An accepted line of a row.
struct PropertyLine {
  ObjectType type;
  int frame;        // BORDERSTYLE of the first row as a number, 0 in all other rows and where there is none
  const char* row;  // all of the row, a line feed in front
  rc::FixedText<kLineLimit> value;  // as it stands
  std::int32_t number = 0;          // the value by ParseInteger

  // Whether the window has the frame that a title bar and its boxes need.
  bool HasFrame() const noexcept { return frame >= 1 && frame <= 3; }
  // The value without the quotation marks that enclose it, if both do.
  std::string_view Text() const noexcept;
};

using Writer = void (*)(const PropertyLine& line, rc::ResourceRecord& record) noexcept;

// A number in 0x form, of which 32 bits are kept, or an optional sign and digits, limited to the signed
// range. 0 for anything else.
std::int32_t ParseInteger(const char* text) noexcept;

inline void PutBits(rc::ResourceRecord& record, std::uint32_t bits, bool on) noexcept {
  record.style = on ? record.style | bits : record.style & ~bits;
}
inline void SetBits(rc::ResourceRecord& record, std::uint32_t bits) noexcept { record.style |= bits; }
inline void ClearBits(rc::ResourceRecord& record, std::uint32_t bits) noexcept { record.style &= ~bits; }

// ---- The table ----

struct Property {
  constexpr Property(std::string_view name, NumberReader reader, Writer writer) noexcept
      : key(name), types(TypesWithKey(name)), readNumber(reader), write(writer) {}
  constexpr Property(std::string_view name, TextReader reader, Writer writer) noexcept
      : key(name), types(TypesWithKey(name)), readText(reader), write(writer) {}

  std::string_view key;
  TypeSet types;  // whose schema names it
  NumberReader readNumber = nullptr;
  TextReader readText = nullptr;
  Writer write;
};

// All properties, in the order of their keys.
std::span<const Property> Properties() noexcept;

// The property of a key, heeding case; null where there is none.
const Property* FindProperty(std::string_view key) noexcept;

}  // namespace brelt::resprops
