// clsParse: lists and fields.
#include <string>
#include <vector>

#include "base/numeric_text.h"
#include "kwutils/clsParse.h"
#include "kwutils/error.h"
#include "parse/item.h"
#include "parse/word.h"

namespace kw {
namespace {

using parse::Item;
using parse::View;

// The text of an optional separator; "" when it was left out or has none.
std::u16string_view text_of(const Variant& separator, String& scratch) {
  if (separator.is_missing()) return {};
  try {
    return separator.text(scratch);
  } catch (const Error&) {
    return {};
  }
}

// Takes an item off a caller's list. The item's text lies in `list`, which keeps what was there.
Item<char16_t> take(View<char16_t>& list, View<char16_t> separator) {
  return separator == u" " ? parse::take_item(list) : parse::take_item(list, separator);
}

// Takes an item off a caller's variable; `text_of_item` makes the result from it. The separator may
// lie in the variable as well, so that one changes last.
template <class TextOfItem>
String take_off(String& list, const Variant& separator, TextOfItem text_of_item) {
  String scratch;
  View<char16_t> rest = list;
  const Item<char16_t> item = take(rest, parse::separator_of(text_of(separator, scratch)));
  String result = text_of_item(item);
  if (rest.size() != list.size()) list = String(rest);
  return result;
}

}  // namespace

String clsParse::ParseList(String& Buf, const Variant& Seperator) const {
  return take_off(Buf, Seperator, [](const Item<char16_t>& item) { return String(item.text); });
}

String clsParse::ParseListPlus(String& Buf, const Variant& Seperator) const {
  return take_off(Buf, Seperator, [](const Item<char16_t>& item) {
    std::u16string scratch;
    return String(parse::with_quotes(item, scratch));
  });
}

std::int32_t clsParse::ParseFields(std::u16string_view Buf, const String& Separator,
                                   Array<String>& Fields) const {
  const View<char16_t> separator = parse::separator_of(Separator.view());
  std::vector<String> fields(1);
  while (!Buf.empty()) fields.emplace_back(take(Buf, separator).text);
  const auto count = static_cast<std::int32_t>(fields.size() - 1);
  fields.front() = number_text(count);
  Fields.publish(0, std::move(fields));
  return count;
}

String clsParse::ParseString(std::u16string_view Buf, const String& Sep, Variant ix) const {
  const std::int32_t number = ix.to_int32();
  if (number < 1) throw Error(ErrorNumber::invalid_argument);
  const View<char16_t> separator = Sep;
  if (separator.empty()) return {};
  std::size_t start = 0;
  for (std::int32_t field = 1;; ++field) {
    const std::size_t end = parse::find_in_closed_text(Buf, separator, start);
    if (end == kNotFound) return {};
    if (field == number) return String(Buf.substr(start, end - start));
    start = end + separator.size();
  }
}

}  // namespace kw
