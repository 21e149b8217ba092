#include "resprops/escape.h"

namespace brelt::resprops {

void EscapeText(std::string_view source, rc::TextBuffer destination) noexcept {
  destination.Zero();
  rc::TextWriter writer(destination);
  for (const char c : source) {
    switch (c) {
      case '\t':
        writer.Append("\\t");
        break;
      case '\n':
        writer.Append("\\n");
        break;
      case '\r':
        writer.Append("\\r");
        break;
      case '"':
        writer.Append("\"\"");
        break;
      case '\\':
        writer.Append("\\\\");
        break;
      default:
        if (c >= ' ' && c <= '~') {
          writer.Append(c);
        } else {
          writer.Format("\\x%.2X", static_cast<unsigned>(static_cast<unsigned char>(c)));
        }
    }
  }
}

}  // namespace brelt::resprops
