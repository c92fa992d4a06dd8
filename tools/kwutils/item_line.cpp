#include "tool/item_line.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/unicode.h"
#include "parse/keyword.h"
#include "parse/token.h"
#include "tool/notation.h"

namespace kw::tool {
namespace {

using View = std::u16string_view;

bool holds(View text, char16_t unit) { return text.find(unit) != View::npos; }

// The value as it is written, or nothing when no way of writing keeps it.
std::optional<std::u16string> written(View value) {
  if (!holds(value, u'\'')) return u"'" + std::u16string(value) + u"'";
  if (!holds(value, u'"')) return u"\"" + std::u16string(value) + u"\"";
  const char16_t first = value.front();
  const bool one_word = !holds(value, u' ') && first != u'\'' && first != u'"' && first != u',';
  return one_word ? std::optional(std::u16string(value)) : std::nullopt;
}

struct Piece {
  const Item* item;
  std::u16string text;
};

std::string quoted_value(const Item& item) {
  return to_utf8(item.keyword) + " " + "\"" + to_utf8(item.value) + "\"";
}

// Gives the first item that cannot be written at all.
std::string cut_pieces(const std::vector<Item>& items, std::vector<Piece>& pieces) {
  for (const Item& item : items) {
    std::string fault = value_fault(item.value);
    const auto value = written(item.value);
    if (fault.empty() && !value) fault = "it holds both kinds of quotes";
    if (!fault.empty()) return quoted_value(item) + ": " + fault;
    pieces.push_back({&item, item.keyword + u" " + *value + u" "});
  }
  return "";
}

bool reads_back(View line, const Item& item) { return read_item(line, item.keyword) == item.value; }

// Whether `later` is still found where `earlier` stands in front of it, and the other way round.
bool may_precede(const Piece& earlier, const Piece& later) {
  const std::u16string both = earlier.text + later.text;
  return reads_back(both, *later.item) && reads_back(both, *earlier.item);
}

// Whether the piece may precede all the others from `first` on.
bool may_lead(const std::vector<Piece>& pieces, std::size_t first, std::size_t candidate) {
  for (std::size_t other = first; other < pieces.size(); ++other)
    if (other != candidate && !may_precede(pieces[candidate], pieces[other])) return false;
  return true;
}

// The first of the pieces left that may precede all others of them, or their number.
std::size_t next_piece(const std::vector<Piece>& left) {
  for (std::size_t candidate = 0; candidate < left.size(); ++candidate)
    if (may_lead(left, 0, candidate)) return candidate;
  return left.size();
}

bool is_plain(const Item& item) { return !holds(item.value, u'\''); }

std::string hiding_fault(const std::vector<Piece>& left) {
  std::string text = "in no order on the line can all of these be read back:";
  for (const Piece& piece : left) text += " " + quoted_value(*piece.item);
  return text;
}

bool all_read_back(View line, const std::vector<Item>& items) {
  for (const Item& item : items)
    if (!reads_back(line, item)) return false;
  return true;
}

ItemLine joined(const std::vector<Piece>& pieces) {
  ItemLine line;
  for (const Piece& piece : pieces) {
    line.text += piece.text;
    line.items.push_back(*piece.item);
  }
  if (!line.text.empty()) line.text.pop_back();
  return line;
}

}  // namespace

std::u16string read_item(View text, View keyword) {
  const auto value = parse::keyword_value(text.substr(0, text.find(u'\r')), keyword);
  return std::u16string(value ? parse::token_at(*value, 1) : View());
}

ItemLine write_items(const std::vector<Item>& items) {
  std::vector<Piece> left;
  if (std::string fault = cut_pieces(items, left); !fault.empty())
    return {{}, {}, std::move(fault)};
  ItemLine line = joined(left);
  if (all_read_back(line.text, items)) return line;

  std::vector<Piece> ordered;
  while (!left.empty()) {
    const std::size_t next = next_piece(left);
    if (next == left.size()) return {{}, {}, hiding_fault(left)};
    ordered.push_back(std::move(left[next]));
    left.erase(left.begin() + static_cast<std::ptrdiff_t>(next));
  }
  line = joined(ordered);
  if (!all_read_back(line.text, items)) return {{}, {}, hiding_fault(ordered)};
  return line;
}

std::vector<std::pair<std::size_t, std::size_t>> chosen_before(const std::vector<Item>& items) {
  std::vector<std::pair<std::size_t, std::size_t>> pairs;
  if (std::all_of(items.begin(), items.end(), is_plain)) {
    // Neighbours will do, also across one item whose place is given.
    for (std::size_t i = 1; i < items.size(); ++i) pairs.emplace_back(i - 1, i);
    for (std::size_t i = 2; i < items.size(); ++i) pairs.emplace_back(i - 2, i);
    return pairs;
  }
  std::vector<Piece> pieces;
  if (!cut_pieces(items, pieces).empty()) return pairs;
  for (std::size_t i = 0; i < pieces.size(); ++i)
    for (std::size_t other = i + 1; other < pieces.size(); ++other)
      if (may_lead(pieces, i, other)) pairs.emplace_back(i, other);
  return pairs;
}

}  // namespace kw::tool
