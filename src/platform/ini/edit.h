// Changes to the text of an INI file.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/ini/ini_line.h"

namespace kw::ini {

// The part of a text from `begin` up to `end`, both counted in units from 0, gives way to `text`.
// Everything else stays as it is, to the byte.
template <class C>
struct Edit {
  std::size_t begin;
  std::size_t end;
  std::basic_string<C> text;
};

// Gives the entry that value; nothing to do when it has it already.
//
// The first entry of the name, in the first section of the name, is written anew as "key=value" in
// the file's spelling of the key. Where there is none it follows the last line of the section,
// blank lines apart; a section that is missing comes last in the file. Blanks before the three
// texts are dropped, those after them are written, and everything else is written as given.
template <class C>
std::optional<Edit<C>> set_entry(View<C> content, View<C> section, View<C> key, View<C> value);

// Takes out the line of the first entry of that name in any section of that name; nothing to do
// when there is none. Blanks around the two names count.
template <class C>
std::optional<Edit<C>> remove_entry(View<C> content, View<C> section, View<C> key);

}  // namespace kw::ini
