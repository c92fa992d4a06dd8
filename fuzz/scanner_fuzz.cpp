// The scanner on any text: each function stays inside it, and every walk ends.
#include <cstdlib>

#include "input.h"
#include "parse/item.h"
#include "parse/keyword.h"
#include "parse/line.h"
#include "parse/token.h"

namespace {

using kw::parse::View;

void require(bool holds) {
  if (!holds) std::abort();
}

template <class Char>
void scan(View<Char> text, View<Char> separator, std::uint8_t number) {
  View<Char> list = text;
  for (std::size_t left = list.size() + 1; !list.empty();) {
    kw::parse::take_item(list);
    require(list.size() < left);
    left = list.size();
  }
  if (!separator.empty()) {
    list = text;
    kw::parse::take_item(list, separator);
    require(list.size() <= text.size());
  }
  View<Char> lines = text;
  for (std::size_t left = lines.size() + 1; !lines.empty();) {
    kw::parse::take_line(lines);
    require(lines.size() < left);
    left = lines.size();
  }
  require(kw::parse::token_at(text, number).size() <= text.size());
  const auto value = kw::parse::keyword_value<Char>(text, separator);
  if (value) require(value->size() <= text.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kw::fuzz::Input input(data, size);
  const std::uint8_t number = input.byte();
  const std::string_view separator = input.text();
  const std::string_view text = input.rest();
  scan<char>(text, separator, number);
  scan<char16_t>(std::u16string(text.begin(), text.end()),
                 std::u16string(separator.begin(), separator.end()), number);
  return 0;
}
