// Entity files at random: now well formed, now with everything in the wrong place.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reference/random_inputs.h"

namespace kw::store {

class RandomFiles {
 public:
  explicit RandomFiles(reference::Random& random) : random_(random) {}

  // Now and then one of many blocks, more than a reader looks at in one go.
  std::string file() {
    std::string content;
    const std::size_t blocks = pick(0, 199) == 0 ? 1000 : pick(0, 7);
    for (std::size_t block = 0; block < blocks; ++block) {
      if (pick(0, 3) == 0) {
        for (std::size_t lines = pick(1, 3); lines != 0; --lines) content += any_line();
      } else {
        content += entity();
      }
    }
    if (pick(0, 5) == 0) content += any_line();
    if (pick(0, 3) == 0 && !content.empty())
      content.resize(content.size() - pick(0, 2) % content.size());
    return content;
  }

  // How many bytes a reader may get at a time; 0: as many as it asks for.
  std::size_t piece() { return pick(0, 1) == 0 ? 0 : pick(1, 80); }

  std::string token() {
    return of(
        {"node", "NODE", " Node ", "link", "Header", "x", "", "\xE9p", "edge", "tble", "a b"});
  }
  std::string id() {
    return of({"B1", "b1", "B2", "b 2", "nm 'Inlet'", "nm 'inlet'", "'B1'", " id 'B1' ", "node",
               "NODE", "", "5", "tmp1", "id", "q 'B1'", "'", "\xC9"});
  }
  std::string keyword() { return of({"id", "nm", "", "q", "nm'", "NODE", "id'", "x y", "\xE9"}); }
  // The text of an entity to write.
  std::string text() {
    return of({"id 'B1' nm 'New'", "id 'B2' TBLE ?? tble nm 'T'", "", "  ", "??", "id '9'",
               "a\tb ; c", "node"});
  }

  std::string of(std::initializer_list<const char*> choices) {
    return choices.begin()[pick(0, choices.size() - 1)];
  }
  std::size_t pick(std::size_t first, std::size_t last) {
    return reference::pick(random_, first, last);
  }

 private:
  std::string end() {
    return of({"\r\n", "\r\n", "\r\n", "\r\n", "\r\n", "\r\n", "\n", "\r", "\r\n\r\n", " \t\r\n"});
  }
  std::string gap() {
    return of({" ", " ", " ", " ", " ", " ", " ", " ", "  ", "\t", "\xA0", "", " ,"});
  }
  std::string indent() { return of({"", "", "", "", " ", "\t", "  \xA0"}); }

  std::string word() {
    return of({"id",      "'B1'",   "'b1'", "'B 2'", "B1",    "nm",     "'Inlet'", "'INLET'",
               "TBLE",    "tble",   "<",    "1.0",   "node",  "xnode",  "NODE",    "LINK",
               "link",    "header", "'",    "\"",    "\"q\"", ",",      "x",       "width",
               "'tmp1'",  "5",      "'7'",  "'3.5'", "\xE9p", "\xC9P",  "edge",    "tblenode",
               "tbledge", "q",      "' '",  "''",    "a",     "HEADER", "''",      "nm'"});
  }
  std::string words(std::size_t most) {
    std::string line;
    for (std::size_t count = pick(0, most); count != 0; --count) line += word() + gap();
    return line;
  }
  std::string any_line() {
    return indent() + of({"", "", "", "; ", "*", "//", "/*", "*/", "/*/", "/"}) + words(5) + end();
  }
  std::string comment() {
    return indent() + of({"; c", "* c", "// c node", "/* c */", "/* b\r\n NODE\r\n*/ x", "/*"}) +
           end();
  }
  std::string item() {
    return of({"id 'B1' ", "id 'b1' ", "id 'B2' ", "id B1 ", "nm 'Inlet' ", "nm 'Out let' ",
               "id '5' ", "id '12' ", "id '3.5' ", "x 1 ", "nm 'id 9' ", "q 'B1' ", "id 'tmp1' ",
               "width 3 ", ""});
  }
  std::string maybe_comment() { return pick(0, 7) == 0 ? comment() : std::string(); }

  std::string table() {
    std::string text = "TBLE" + of({"", " ", " 1 2 <"}) + end();
    for (std::size_t rows = pick(0, 3); rows != 0; --rows)
      text += maybe_comment() + indent() + "1 " + words(2) + "<" + end();
    return text + of({"", "", " ", "8 9 < "}) + "tble" + gap();
  }
  std::string entity() {
    static constexpr struct {
      const char* opener;
      const char* closer;
    } kTypes[] = {{"NODE", "node"},     {"NODE", "node"},  {"NODE", "node"},   {"LINK", "link"},
                  {"HEADER", "header"}, {"X", "x"},        {"\xC9P", "\xE9p"}, {"EDGE", "edge"},
                  {"EDGE", "tbledge"},  {"NODE", "xnode"}, {"HEADER", ""},     {"'A b'", "a b"},
                  {"NODE", ""},         {"TBLE", "tble"}};
    const auto& type = kTypes[pick(0, std::size(kTypes) - 1)];
    std::string text = maybe_comment() + indent() + type.opener + gap() + item() + item();
    for (std::size_t more = pick(0, 3); more > 1; --more)
      text += end() + maybe_comment() + words(3);
    if (pick(0, 3) == 0) text += table();
    return text + of({"", " ", " "}) + type.closer + end();
  }

  reference::Random& random_;
};

}  // namespace kw::store
