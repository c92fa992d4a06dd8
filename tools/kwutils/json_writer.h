// Writes JSON, piece by piece.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "tool/output.h"

namespace kw::tool {

// Every 16-bit text is written so that it can be read back: a surrogate without its partner as an
// escape.
//
//   JsonWriter json(output);
//   json.begin_object();
//   json.key("count").number(3);
//   json.end();                      // {"count": 3}
class JsonWriter {
 public:
  explicit JsonWriter(Output& output) : out_(output) {}

  void begin_object() { begin('{', '}'); }
  void begin_array() { begin('[', ']'); }
  // An array whose elements stand on lines of their own.
  void begin_lines();
  void end();

  JsonWriter& key(std::string_view name);
  JsonWriter& key(std::u16string_view name);
  void text(std::u16string_view value);
  void text(std::string_view utf8);
  void number(std::int64_t value);
  void number(float value);   // the shortest text that reads back as the same number; what is no
  void number(double value);  // number is written as text: "nan", "inf", "-inf"
  void boolean(bool value);
  void null();

 private:
  struct Level {
    char closer;
    bool lines;
    bool empty;
  };

  void begin(char opener, char closer, bool lines = false);
  void before_value();
  void write_quoted(std::u16string_view value);
  template <class T>
  void write_real(T value);

  Output& out_;
  std::vector<Level> levels_;
  bool after_key_ = false;
};

}  // namespace kw::tool
