#include "store/identifier.h"

#include "base/find_unit.h"
#include "parse/token.h"

namespace kw::store {

std::string_view identifier_of(std::string_view entity) {
  parse::TokenReader<char> tokens(entity);
  for (;;) {
    const auto token = tokens.next();
    if (!token || token->empty()) return {};
    if (*token == "id") return tokens.next().value_or(std::string_view());
  }
}

std::optional<std::string_view> leading_identifier(std::string_view beginning) {
  constexpr std::string_view kOpening = "id '";
  if (!beginning.starts_with(kOpening)) return std::nullopt;
  beginning.remove_prefix(kOpening.size());
  const std::size_t end = find_unit(beginning, '\'');
  if (end == kNotFound) return std::nullopt;
  return parse::trim(beginning.substr(0, end));
}

}  // namespace kw::store
