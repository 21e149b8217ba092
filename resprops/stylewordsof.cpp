#include "rc/stylekeywords.h"
#include "resprops/rctext.h"

namespace brelt::resprops {
namespace {

// What StyleWordsOf has yet to say, and has said.
class StyleExpression {
 public:
  StyleExpression(const rc::StyleKeyword& keyword, std::uint32_t style, rc::TextBuffer words) noexcept
      : defaults_(keyword.defaults.bits), left_(style & keyword.legal.bits), words_(words) {
    // The statement's keyword says its own type.
    constexpr std::uint32_t kTypeMask = 0xF;
    if ((left_ & kTypeMask) == (keyword.type.bits & kTypeMask)) left_ &= ~kTypeMask;
  }

  void Try(std::string_view word) noexcept {
    const std::uint32_t bits = rc::StyleWordValue(word);
    const bool isDefault = (defaults_ & bits) == bits;
    const bool isWanted = (left_ & bits) == bits;
    if (bits == 0) {
      fallback_ = word;
    } else if (isDefault && isWanted) {
      left_ &= ~bits;
    } else if (isDefault && (left_ & bits) == 0) {
      Put("NOT ", word);
    } else if (isWanted) {
      Put("", word);
      left_ &= ~bits;
    }
  }
  void Finish() noexcept {
    if (words_.IsEmpty()) words_.Append(fallback_);
  }

 private:
  void Put(std::string_view prefix, std::string_view word) noexcept {
    if (!words_.IsEmpty()) words_.Append('|');
    words_.Append(prefix).Append(word);
  }

  std::uint32_t defaults_;
  std::uint32_t left_;
  std::string_view fallback_ = "0";
  rc::TextWriter words_;
};

}  // namespace

void StyleWordsOf(std::string_view keyword, std::uint32_t style, rc::TextBuffer words) noexcept {
  const rc::StyleKeyword* row = rc::FindStyleKeyword(keyword);
  if (row == nullptr) return words.Assign("0");
  StyleExpression expression(*row, style, words);
  for (std::string_view list = row->legal.words; !list.empty();) {
    const std::size_t pipe = list.find('|');
    expression.Try(list.substr(0, pipe));
    list.remove_prefix(pipe == std::string_view::npos ? list.size() : pipe + 1);
  }
  expression.Finish();
}

}  // namespace brelt::resprops
