// The search for one entry of an INI file, in one pass.
#pragma once

#include <cstddef>

#include "platform/ini/line_filter.h"

namespace kw::ini {

// Which sections of one name are searched.
enum class Sections {
  first,  // the first one: reading and changing know no other
  all,
};

// Looks for the first entry of a name in a section. The lines before any header are the section "".
// The names are compared as given: trim them before, where blanks around them do not count.
//
//   EntrySearch<char> search(section, key, Sections::first);
//   search.scan(content, true);
//   if (search.entry()) use(search.entry()->value);
//
// A file can be handed over piece by piece; the views given stay in use as long as the search and
// its results are.
template <class C>
class EntrySearch {
 public:
  EntrySearch(View<C> section, View<C> key, Sections sections)
      : section_(section),
        key_(key),
        sections_(sections),
        key_lines_(key),
        inside_(section.empty()) {}

  // Searches the lines of `text`, whose first unit begins a line. Where more text follows (`last`
  // is false) an unfinished line is left alone. Returns where the first line left begins; hand
  // that part over again, with what follows. Places count from the beginning of this `text`.
  std::size_t scan(View<C> text, bool last);

  // Nothing that follows can change the answer.
  bool finished() const noexcept { return finished_; }
  // The entry found, or null.
  const Entry<C>* entry() const noexcept { return found_ ? &entry_ : nullptr; }
  // Where the line of the entry found lies.
  const LinePlace& place() const noexcept { return place_; }
  // The section was found, and where its lines begin and end (where the next header begins) in the
  // text of the last scan. Meant for whole files.
  bool found_section() const noexcept { return found_section_; }
  std::size_t section_begin() const noexcept { return section_begin_; }
  std::size_t section_end() const noexcept { return section_end_; }

 private:
  void look_at(View<C> text, const LinePlace& place);
  void enter(const LinePlace& header);

  View<C> section_;
  View<C> key_;
  Sections sections_;
  LineFilter<C> headers_;
  LineFilter<C> key_lines_;
  bool inside_;
  bool finished_ = false;
  bool found_section_ = section_.empty();
  std::size_t section_begin_ = 0;
  std::size_t section_end_ = 0;
  bool found_ = false;
  Entry<C> entry_;
  LinePlace place_;
};

template <class C>
std::size_t EntrySearch<C>::scan(View<C> text, bool last) {
  std::size_t whole = text.size();
  while (!last && whole > 0 && !is_line_end(text[whole - 1])) --whole;
  text = text.substr(0, whole);
  std::size_t at = 0;
  while (!finished_) {
    at = (inside_ ? key_lines_ : headers_).next(text, at);
    if (at == text.size()) break;
    const LinePlace place = line_at(text, at);
    look_at(text, place);
    at = place.next;
  }
  if (!finished_) section_end_ = whole;
  return whole;
}

template <class C>
void EntrySearch<C>::look_at(View<C> text, const LinePlace& place) {
  const View<C> line = text.substr(place.begin, place.end - place.begin);
  if (const auto name = header_name(line)) {
    if (inside_) section_end_ = place.begin;
    finished_ = inside_ && sections_ == Sections::first;
    inside_ = false;
    if (!finished_ && same_name(*name, section_)) enter(place);
  } else if (inside_) {
    const auto entry = parse_entry(line);
    if (!entry || !same_name(entry->name, key_)) return;
    entry_ = *entry;
    place_ = place;
    found_ = finished_ = true;
  }
}

template <class C>
void EntrySearch<C>::enter(const LinePlace& header) {
  inside_ = found_section_ = true;
  section_begin_ = header.next;
}

}  // namespace kw::ini
