// Instantiates the scanner for both alphabets.
#include "parse/item.h"
#include "parse/keyword.h"
#include "parse/line.h"
#include "parse/token.h"

namespace kw::parse {

template class TokenReader<char>;
template class TokenReader<char16_t>;
template Item<char> take_item(View<char>&);
template Item<char16_t> take_item(View<char16_t>&);
template View<char> take_line(View<char>&);
template View<char16_t> take_line(View<char16_t>&);
template std::optional<View<char>> keyword_value(View<char>, SameView<char>);
template std::optional<View<char16_t>> keyword_value(View<char16_t>, SameView<char16_t>);

}  // namespace kw::parse
