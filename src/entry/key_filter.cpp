#include "entry/key_filter.h"

namespace kw::entry {
namespace {

constexpr std::int16_t kBackspace = 8;

bool contains(std::u16string_view text, char16_t unit) noexcept {
  return text.find(unit) != std::u16string_view::npos;
}

bool is_of_the_kind(std::int16_t code, const NumberBox& box) noexcept {
  switch (code) {
    case kBackspace:
      return true;
    case u'-':
      return !box.positive && !contains(box.text, u'-');
    case u'.':
      return box.kind == NumberKind::real && !contains(box.text, u'.');
    // Callers count on the two characters behind the digits passing as digits.
    default:
      return code >= u'0' && code <= u';';
  }
}

bool has_room(std::int16_t code, const NumberBox& box) noexcept {
  const auto length = static_cast<std::int64_t>(box.text.size());
  return length < box.max_length || code == kBackspace || box.selected != 0;
}

}  // namespace

std::int16_t filtered_key(std::int16_t code, const NumberBox& box) noexcept {
  return is_of_the_kind(code, box) && has_room(code, box) ? code : std::int16_t{0};
}

}  // namespace kw::entry
