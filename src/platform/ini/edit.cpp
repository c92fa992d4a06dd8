#include "platform/ini/edit.h"

#include "platform/ini/entry_search.h"

namespace kw::ini {
namespace {

template <class C>
using Text = std::basic_string<C>;

template <class C>
void end_line(Text<C>& text) {
  text.push_back(C{'\r'});
  text.push_back(C{'\n'});
}

template <class C>
void append_entry(Text<C>& text, View<C> key, View<C> value) {
  text.append(key).push_back(C{'='});
  text.append(value);
  end_line(text);
}

template <class C>
void append_header(Text<C>& text, View<C> section) {
  text.push_back(C{'['});
  text.append(section).push_back(C{']'});
  end_line(text);
}

// Where the line after the last line with text between `begin` and `end` begins.
template <class C>
std::size_t after_last_line(View<C> content, std::size_t begin, std::size_t end) {
  const View<C> lines = trim_back(content.substr(begin, end - begin));
  return lines.empty() ? begin : line_at(content, begin + lines.size()).next;
}

// An insertion at the beginning of a line; the line before it may lack its end.
template <class C>
Edit<C> insertion(View<C> content, std::size_t at) {
  Edit<C> edit{at, at, {}};
  if (at > 0 && !is_line_end(content[at - 1])) end_line(edit.text);
  return edit;
}

}  // namespace

template <class C>
std::optional<Edit<C>> set_entry(View<C> content, View<C> section, View<C> key, View<C> value) {
  EntrySearch<C> search(trim(section), trim(key), Sections::first);
  search.scan(content, true);
  value = trim_front(value);
  if (const Entry<C>* entry = search.entry()) {
    if (entry->has_value && entry->value == value) return std::nullopt;
    Edit<C> edit{search.place().begin, search.place().next, {}};
    append_entry(edit.text, entry->name, value);
    return edit;
  }
  const std::size_t at = search.found_section() ? after_last_line(content, search.section_begin(),
                                                                  search.section_end())
                                                : content.size();
  Edit<C> edit = insertion(content, at);
  if (!search.found_section()) append_header(edit.text, trim_front(section));
  append_entry(edit.text, trim_front(key), value);
  return edit;
}

template <class C>
std::optional<Edit<C>> remove_entry(View<C> content, View<C> section, View<C> key) {
  EntrySearch<C> search(section, key, Sections::all);
  search.scan(content, true);
  if (!search.entry()) return std::nullopt;
  return Edit<C>{search.place().begin, search.place().next, {}};
}

template std::optional<Edit<char>> set_entry(View<char>, View<char>, View<char>, View<char>);
template std::optional<Edit<char>> remove_entry(View<char>, View<char>, View<char>);
template std::optional<Edit<char16_t>> set_entry(View<char16_t>, View<char16_t>, View<char16_t>,
                                                 View<char16_t>);
template std::optional<Edit<char16_t>> remove_entry(View<char16_t>, View<char16_t>, View<char16_t>);

}  // namespace kw::ini
