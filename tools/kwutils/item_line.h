// Items on one line, written so that each is read back.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kw::tool {

struct Item {
  std::u16string keyword;
  std::u16string value;
};

// The value that the library's look-ups read for a keyword in an entity's text: "" where it stands
// nowhere.
std::u16string read_item(std::u16string_view text, std::u16string_view keyword);

struct ItemLine {
  std::u16string text;      // id 'B2' nm "L'Aquila"
  std::vector<Item> items;  // as they stand in it
  std::string fault;        // why the items cannot stand on one line (UTF-8); "" when they do
};

// Writes the items as one line, in their order where that reads back. A value stands in
// apostrophes, or, if it holds one, in double quotes; if it holds both, as it is, where it has no
// blanks.
//
// An odd number of apostrophes in a value hides every keyword that follows, and words of a value in
// double quotes can be taken for keywords. Where one item would so hide another, the other one goes
// first; else the order is kept. What cannot be read back in any order is a fault.
ItemLine write_items(const std::vector<Item>& items);

// For items in the order in which they were written: pairs of their positions of which the first
// one was chosen although the second one could have stood there. So the first one came first among
// the items given.
std::vector<std::pair<std::size_t, std::size_t>> chosen_before(const std::vector<Item>& items);

}  // namespace kw::tool
