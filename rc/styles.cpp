#include "rc/scan.h"
#include "rc/stylekeywords.h"

namespace brelt::rc {

std::uint32_t StyleWordValue(std::string_view word) noexcept {
  if (HasHexPrefix(word)) return HexDigitsValue(word.substr(2));
  const StyleWord* row = FindByName(kStyleWordTable, word);
  return row != nullptr ? row->value : 0;
}

std::uint32_t StyleQuery(const char* keyword, int query, TextBuffer words) noexcept {
  StyleAnswer answer{0, "0"};
  if (const StyleKeyword* row = FindStyleKeyword(View(keyword)); row != nullptr) {
    switch (query) {
      case kLegalWords:
        answer = row->legal;
        break;
      case kDefaultWords:
        answer = row->defaults;
        break;
      case kTypeWord:
        answer = row->type;
        break;
      default:
        break;
    }
  }
  words.Zero();
  words.Assign(answer.words);
  return answer.bits;
}

}  // namespace brelt::rc
