// F3: which lines belong to a delivered value, and the strings made of them.
#include <algorithm>
#include <cstring>
#include <utility>

#include "floors.h"
#include "line_reader.h"
#include "trimmed_writer.h"

namespace kw::bench {
namespace {

void widen(const char* bytes, std::size_t length, char16_t* out) {
  std::transform(bytes, bytes + length, out,
                 [](char c) { return static_cast<char16_t>(static_cast<unsigned char>(c)); });
}

Text text_of(std::string_view bytes) {
  Text text{std::make_unique_for_overwrite<char16_t[]>(bytes.size()), bytes.size()};
  widen(bytes.data(), bytes.size(), text.characters.get());
  return text;
}

std::u16string key_of(std::string_view bytes) {
  std::u16string key(bytes.size(), u'\0');
  widen(bytes.data(), bytes.size(), key.data());
  return key;
}

// The quoted value that begins at `at`, without its quotes, and the place behind it.
std::string_view quoted(const char*& at, const char* end) {
  const char* begin = at + 1;
  const char* close = std::find(begin, end, '\'');
  at = close + (close != end);
  return {begin, static_cast<std::size_t>(close - begin)};
}

struct Opening {
  std::string_view id;
  std::string_view name;
};

// The first two items of an opening line, whose type word ends at `at`: " id 'N1' nm 'Inlet 1'".
Opening opening_items(const char* at, const char* end) {
  constexpr std::size_t kKeyword = std::string_view(" id ").size();
  Opening items;
  at += std::min<std::size_t>(kKeyword, static_cast<std::size_t>(end - at));
  items.id = quoted(at, end);
  at += std::min<std::size_t>(kKeyword, static_cast<std::size_t>(end - at));
  items.name = quoted(at, end);
  return items;
}

bool equals(const char* at, std::size_t length, std::string_view word) {
  return length == word.size() && std::memcmp(at, word.data(), length) == 0;
}

// Gathers the text of an entity: its lines joined by CR LF without the opening and closing words.
class Body {
 public:
  void start() { bytes_.clear(); }
  void add(const char* begin, const char* end) { bytes_.append(begin, end).append("\r\n", 2); }
  std::string_view close(const char* begin, const char* end) {
    if (bytes_.empty()) return {begin, static_cast<std::size_t>(end - begin)};
    bytes_.append(begin, end);
    return bytes_;
  }

 private:
  std::string bytes_;
};

// Walks the lines and passes each entity of the type to the keeper: opened(rest of the opening
// line), inside(line), closed(line, without the closing word). The opening line's rest may be the
// closed() one as well.
template <class Keeper>
class Walk {
 public:
  Walk(std::string_view type, Keeper& keeper) : opener_(type), closer_(type), keeper_(keeper) {
    for (char& c : closer_) c = static_cast<char>(c | 0x20);
  }

  void take(const Line& line) {
    if (inside_) return go_on(line.begin, line);
    if (!equals(line.begin, line.first_length, opener_)) return;
    const char* rest = std::min(line.begin + line.first_length + 1, line.end);
    keeper_.opened(rest, line.end);
    go_on(rest, line);
  }

 private:
  void go_on(const char* begin, const Line& line) {
    inside_ = !equals(line.end - line.last_length, line.last_length, closer_);
    if (inside_) {
      keeper_.inside(begin, line.end);
    } else {
      keeper_.closed(begin, line.end - closer_.size());
    }
  }

  std::string opener_;
  std::string closer_;
  bool inside_ = false;
  Keeper& keeper_;
};

struct EntityKeeper {
  Delivered& out;
  bool keyed;
  Body body{};
  std::u16string key{};

  void opened(const char* begin, const char* end) {
    body.start();
    if (keyed) key = key_of(opening_items(begin - 1, end).id);
  }
  void inside(const char* begin, const char* end) { body.add(begin, end); }
  void closed(const char* begin, const char* end) {
    if (keyed) out.keys.emplace(std::move(key), out.values.size());
    out.values.push_back(text_of(body.close(begin, end)));
  }
};

struct IdKeeper {
  Delivered& out;
  bool names;

  void opened(const char* begin, const char* end) {
    const Opening items = opening_items(begin - 1, end);
    out.keys.emplace(key_of(items.id), out.values.size());
    out.values.push_back(text_of(items.id));
    if (!names) return;
    out.name_keys.emplace(key_of(items.id), out.names.size());
    out.names.push_back(text_of(items.name));
  }
  void inside(const char*, const char*) {}
  void closed(const char*, const char*) {}
};

// A line that ends in "TBLE" has the rows behind it, up to the line that begins with "tble". Each
// goes to on_row(begin, end).
template <class OnRow>
struct RowWalk {
  OnRow on_row;
  bool in_table = false;

  void opened(const char*, const char*) { in_table = false; }
  void inside(const char* begin, const char* end) {
    if (in_table) return row(begin, end);
    in_table = end - begin >= 4 && std::memcmp(end - 4, "TBLE", 4) == 0;
  }
  void closed(const char*, const char*) { in_table = false; }

  void row(const char* begin, const char* end) {
    in_table = end - begin < 4 || std::memcmp(begin, "tble", 4) != 0;
    if (in_table) on_row(begin, end);
  }
};

Text row_text(const char* begin, const char* end) {
  const auto length = static_cast<std::size_t>(end - begin);
  Text text{std::make_unique_for_overwrite<char16_t[]>(length + 2), length + 2};
  widen(begin, length, text.characters.get());
  std::copy_n(u"\r\n", 2, text.characters.get() + length);
  return text;
}

template <class Keeper>
void walk(const std::filesystem::path& file, std::string_view type, Seen& seen, Keeper keeper) {
  Walk<Keeper> walk(type, keeper);
  for_each_line(file, [&](const Line& line) {
    seen.note(line);
    walk.take(line);
  });
}

template <class OnRow>
void walk_rows(const std::filesystem::path& file, std::string_view type, Seen& seen, OnRow on_row) {
  walk(file, type, seen, RowWalk<OnRow>{on_row});
}

}  // namespace

Delivered floor_deliver(const std::filesystem::path& file, std::string_view type, Values values) {
  Delivered out;
  switch (values) {
    case Values::entities:
      walk(file, type, out.seen, EntityKeeper{out, false});
      break;
    case Values::keyed_entities:
      walk(file, type, out.seen, EntityKeeper{out, true});
      break;
    case Values::ids:
      walk(file, type, out.seen, IdKeeper{out, false});
      break;
    case Values::ids_and_names:
      walk(file, type, out.seen, IdKeeper{out, true});
      break;
    case Values::rows:
      walk_rows(file, type, out.seen, [&](const char* begin, const char* end) {
        out.values.push_back(row_text(begin, end));
      });
      break;
  }
  return out;
}

std::size_t floor_spill_rows(const std::filesystem::path& file, std::string_view type,
                             const std::filesystem::path& second) {
  Seen seen;
  std::size_t count = 0;
  TrimmedWriter writer(second);
  walk_rows(file, type, seen, [&](const char* begin, const char* end) {
    writer.write({begin, end, 0, 0});
    ++count;
  });
  writer.finish(false);
  return count;
}

}  // namespace kw::bench
