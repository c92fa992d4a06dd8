#include "tool/source_words.h"

#include "parse/item.h"

namespace kw::tool {
namespace {

bool is_quote(char c) { return c == '\'' || c == '"'; }

}  // namespace

std::vector<SourceWord> cut_words(std::string_view record) {
  std::vector<SourceWord> words;
  for (std::string_view rest = parse::trim(record); !rest.empty();) {
    std::string_view start = parse::trim_left(rest);
    if (parse::begins_with(start, ',')) start.remove_prefix(1);
    const bool opens = !start.empty() && is_quote(start.front());
    const auto begin = static_cast<std::size_t>(start.data() - record.data());
    const auto item = parse::take_item(rest);
    const bool closed = !opens || item.quote != 0;
    const std::size_t size = opens && closed ? start.find(start.front(), 1) + 1
                             : opens         ? 1
                                             : item.text.size();
    words.push_back({item.text, begin, begin + size, item.quote, closed});
  }
  return words;
}

}  // namespace kw::tool
