#include "store/record_reader.h"

#include <algorithm>
#include <cstddef>

#include "base/find_unit.h"
#include "store/line_blank.h"

namespace kw::store {

namespace {

std::string_view trim_line(std::string_view line) noexcept {
  const char* first = line.data();
  const char* last = first + line.size();
  while (first != last && is_line_blank(*first)) ++first;
  while (first != last && is_line_blank(last[-1])) --last;
  return {first, static_cast<std::size_t>(last - first)};
}

}  // namespace

std::string_view RecordReader::normalized(std::string_view line) {
  line = trim_line(line);
  if (!source_.has_odd_blanks()) return line;
  const std::size_t first = std::min(find_unit(line, '\t'), find_unit(line, '\xA0'));
  if (first == kNotFound) return line;
  copy_.assign(line);
  std::replace_if(copy_.begin() + static_cast<std::ptrdiff_t>(first), copy_.end(), is_odd_blank,
                  ' ');
  return copy_;
}

}  // namespace kw::store
