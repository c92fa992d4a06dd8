// clsParse: tokens, lines and keyword values.
#include <algorithm>
#include <optional>
#include <vector>

#include "kwutils/clsParse.h"
#include "kwutils/error.h"
#include "parse/keyword.h"
#include "parse/line.h"
#include "parse/token.h"

namespace kw {
namespace {

using parse::TokenReader;

// The number of the token sought; 0, which is no token's, for a value that is no number.
std::int32_t token_number(const Variant& given) {
  if (given.is_missing()) return 1;
  try {
    return given.to_int32();
  } catch (const Error&) {
    return 0;
  }
}

// Moves the texts into the elements 1, 2, ... of the array, as far as it has them.
void store_from_one(Array<String>& array, std::vector<String>& texts) {
  if (!array.dimensioned()) return;
  const std::int64_t lower = array.lower();
  const auto elements = array.elements();
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::int64_t offset = static_cast<std::int64_t>(i) + 1 - lower;
    if (offset < 0 || offset >= static_cast<std::int64_t>(elements.size())) continue;
    elements[static_cast<std::size_t>(offset)] = std::move(texts[i]);
  }
}

// As if the array grew by one element for each token that lies past its upper bound. With an upper
// bound below 0 it would stay one element behind the tokens, so none is stored.
void store_tokens(Array<String>& array, std::vector<String>& tokens) {
  const auto count = static_cast<std::int64_t>(tokens.size());
  const std::int64_t upper = array.dimensioned() ? array.upper() : 0;
  const std::int64_t grown = upper < 0 ? upper + count : std::max(upper, count);
  try {
    if (grown > upper) array.redim_preserve(0, grown);
  } catch (const Error&) {
    // Not a failure: the tokens that fit are stored.
  }
  if (upper >= 0) store_from_one(array, tokens);
}

// Tokens number 1 to `most` of a text, without the empty ones after its end.
std::vector<String> first_tokens(std::u16string_view text, std::int32_t most) {
  std::vector<String> tokens;
  TokenReader<char16_t> reader(text);
  for (std::int32_t number = 1; number <= most; ++number) {
    const auto token = reader.next();
    if (!token || reader.at_end()) break;
    tokens.emplace_back(*token);
  }
  return tokens;
}

// Puts the values into the array, and empty texts behind them up to element `count`. Gives element
// 1.
String store_values(Array<String>& array, std::vector<String> values, std::int32_t count) {
  if (!array.dimensioned()) return {};
  const auto last = std::min<std::int64_t>(count, array.upper());
  if (last > static_cast<std::int64_t>(values.size())) {
    values.resize(static_cast<std::size_t>(last));
  }
  store_from_one(array, values);
  return array.at(1).copy();
}

}  // namespace

String clsParse::ParseToken(std::u16string_view Buf, const Variant& ScanToTk) const {
  return String(parse::token_at(Buf, token_number(ScanToTk)));
}

std::int32_t clsParse::ParseTokenArray(std::u16string_view Buf, const std::int32_t& ScanToTk,
                                       Array<String>& tkarray, std::int32_t& numTk) const {
  numTk = 0;
  std::vector<String> tokens;  // owned, since Buf may lie in the array
  TokenReader<char16_t> reader(Buf);
  while (const auto token = reader.next()) {
    tokens.emplace_back(*token);
    ++numTk;
    if (numTk == ScanToTk || reader.at_end()) break;
  }
  try {
    store_tokens(tkarray, tokens);
  } catch (const Error&) {
    // An array of another kind or of several dimensions takes no tokens; they are counted.
  }
  return 0;
}

String clsParse::ParseRecord(String& Buf) const {
  std::u16string_view rest = Buf;
  String record(parse::take_line(rest));
  Buf = String(rest);
  return record;
}

String clsParse::ParseValuewithTokenandCheck(std::u16string_view Buf, const String& Token,
                                             Array<String>& tkarray, std::int32_t numTk) const {
  const auto text = parse::keyword_value(parse::take_line(Buf), Token.view());
  if (numTk < 1) return text ? String(parse::token_at(*text, 1)) : String();
  // Read before the array changes, since Buf and Token may lie in it.
  std::vector<String> values = text ? first_tokens(*text, numTk) : std::vector<String>();
  const bool found = text.has_value();
  try {
    tkarray.redim(0, numTk);
  } catch (const Error&) {
    // Not a failure: the values that fit are stored.
  }
  try {
    return found ? store_values(tkarray, std::move(values), numTk) : String();
  } catch (const Error&) {
    return {};
  }
}

}  // namespace kw
