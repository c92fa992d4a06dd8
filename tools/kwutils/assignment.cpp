#include "tool/assignment.h"

#include "base/unicode.h"
#include "tool/failure.h"
#include "tool/notation.h"

namespace kw::tool {

Item item_in(const std::string& assignment) {
  const std::size_t sign = assignment.find('=');
  if (sign == assignment.npos)
    fail_usage(in_quotes(assignment) + " is no item: it must be KEYWORD=VALUE");
  Item item{from_utf8(assignment.substr(0, sign)), from_utf8(assignment.substr(sign + 1))};
  const std::string fault = keyword_fault(item.keyword);
  if (!fault.empty())
    fail_usage(in_quotes(assignment.substr(0, sign)) + " cannot be a keyword: it " + fault);
  return item;
}

std::u16string written_item(const std::string& assignment) {
  ItemLine line = write_items({item_in(assignment)});
  if (!line.fault.empty()) fail_usage("no file can hold " + line.fault);
  return std::move(line.text);
}

}  // namespace kw::tool
