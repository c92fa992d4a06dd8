#include "store/closing_word.h"

#include "base/case_map.h"
#include "base/code_page.h"

namespace kw::store {

ClosingWord::ClosingWord(std::u16string_view opening) : size_(opening.size()) {
  in_page_ = narrow_exact(lower(opening), text_);
  if (in_page_ && size_ >= 1 && size_ <= 8) follow_bits(load_up_to_8(text_.data(), size_), size_);
}

void ClosingWord::follow(std::string_view opening) {
  if (!opening.empty() && opening.size() <= 8) {
    const std::uint64_t bits = load_up_to_8(opening.data(), opening.size());
    if (all_ascii(bits)) return follow_bits(lower_ascii(bits), opening.size());
  }
  in_bits_ = false;
  in_page_ = true;
  size_ = opening.size();
  text_.assign(opening);
  for (char& byte : text_) byte = static_cast<char>(lower_byte(static_cast<unsigned char>(byte)));
}

bool ClosingWord::closes_slowly(std::string_view record) const noexcept {
  if (!in_page_ || record.size() < size_) return false;
  const std::string_view tail = record.substr(record.size() - size_);
  return in_bits_ ? load_up_to_8(tail.data(), size_) == bits_ : tail == text_;
}

}  // namespace kw::store
