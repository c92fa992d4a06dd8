#include "store/record_reader.h"

#include <algorithm>

namespace kw::store {

std::string_view RecordReader::with_plain_blanks(std::string_view line) {
  const auto odd = [](char byte) { return byte == '\t' || byte == '\xA0'; };
  const auto first = std::find_if(line.begin(), line.end(), odd);
  if (first == line.end()) return line;
  copy_.assign(line);
  std::replace_if(copy_.begin() + (first - line.begin()), copy_.end(), odd, ' ');
  return copy_;
}

}  // namespace kw::store
