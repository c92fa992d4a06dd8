#include "entity_data.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <functional>
#include <map>
#include <string_view>
#include <system_error>

#include "entity_text.h"

namespace kw::bench {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPiece = std::size_t{1} << 20;

[[noreturn]] void fail(const fs::path& path) {
  throw std::system_error(errno, std::generic_category(), path.string());
}

// Mixes contents that arrive in pieces; a piece's length counts, so all but the last are kPiece.
class Fingerprint {
 public:
  void add(std::string_view piece) {
    const char* at = piece.data();
    for (std::size_t left = piece.size(); left >= 8; left -= 8, at += 8) {
      std::uint64_t word;
      std::memcpy(&word, at, 8);
      mix(word);
    }
    for (const char* end = piece.data() + piece.size(); at != end; ++at) {
      mix(static_cast<unsigned char>(*at));
    }
  }
  std::uint64_t value() const { return value_; }

 private:
  void mix(std::uint64_t word) {
    value_ = (value_ ^ word) * 0x9FB21C651E98DF25u;
    value_ ^= value_ >> 32;
  }
  std::uint64_t value_ = 0x27220A95;
};

std::uint64_t fingerprint_of(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::string piece(kPiece, '\0');
  Fingerprint print;
  while (in.read(piece.data(), kPiece) || in.gcount() > 0) {
    print.add({piece.data(), static_cast<std::size_t>(in.gcount())});
  }
  return print.value();
}

// Gathers text, writes it piece by piece and notes the facts.
class Writer {
 public:
  explicit Writer(EntityFile& file) : file_(file), out_(file.path, std::ios::binary) {}

  std::string& text() { return text_; }

  void write_full_pieces() {
    std::size_t done = 0;
    for (; text_.size() - done >= kPiece; done += kPiece) write({text_.data() + done, kPiece});
    text_.erase(0, done);
  }

  void finish() {
    write_full_pieces();
    write(text_);
    out_.close();
    if (!out_) fail(file_.path);
    file_.fingerprint = print_.value();
  }

 private:
  void write(std::string_view piece) {
    out_.write(piece.data(), static_cast<std::streamsize>(piece.size()));
    print_.add(piece);
    file_.bytes += piece.size();
    file_.lines += static_cast<std::size_t>(std::count(piece.begin(), piece.end(), '\n'));
  }

  EntityFile& file_;
  std::ofstream out_;
  std::string text_;
  Fingerprint print_;
};

void generate_entities(EntityFile& file, std::size_t entities) {
  Writer writer(file);
  for (std::size_t number = 1; number <= entities; ++number) {
    append_entity(writer.text(), number);
    file.half_type_count += entity_type(number) == kHalfType;
    if (number % 1000 == 0) writer.write_full_pieces();
  }
  writer.finish();
  file.entities = entities;
}

void generate_table(EntityFile& file, std::size_t rows) {
  Writer writer(file);
  append_table_entity(writer.text(), 1, rows);
  writer.finish();
  file.entities = 1;
}

// The facts stand beside the file, so that a later run need not generate to know them.
fs::path facts_path(const EntityFile& file) { return fs::path(file.path) += ".facts"; }

bool read_facts(EntityFile& file) {
  std::ifstream in(facts_path(file));
  return static_cast<bool>(in >> file.entities >> file.lines >> file.bytes >>
                           file.half_type_count >> file.fingerprint);
}

void write_facts(const EntityFile& file) {
  std::ofstream out(facts_path(file));
  out << file.entities << ' ' << file.lines << ' ' << file.bytes << ' ' << file.half_type_count
      << ' ' << file.fingerprint << '\n';
  if (!out.flush()) fail(facts_path(file));
}

bool present_and_right(EntityFile& file) {
  std::error_code none;
  return read_facts(file) && fs::file_size(file.path, none) == file.bytes &&
         fingerprint_of(file.path) == file.fingerprint;
}

using Generator = std::function<void(EntityFile&)>;

EntityFile load_or_generate(const fs::path& path, const Generator& generate) {
  EntityFile file{.path = path};
  if (present_and_right(file)) return file;
  file = EntityFile{.path = path};
  generate(file);
  write_facts(file);
  return file;
}

fs::path path_in(const fs::path& folder, const std::string& name) {
  return folder / (name + "-v" + std::to_string(kTextVersion) + ".dat");
}

EntityFile make_table_file(const fs::path& folder, std::size_t rows) {
  return load_or_generate(path_in(folder, "table-" + std::to_string(rows)),
                          [rows](EntityFile& file) { generate_table(file, rows); });
}

// Each file of the data folder is checked once in a process.
template <class Make>
const EntityFile& known_file(std::map<std::size_t, EntityFile>& known, std::size_t size,
                             Make make) {
  const auto found = known.find(size);
  if (found != known.end()) return found->second;
  return known.emplace(size, make(data_folder(), size)).first->second;
}

}  // namespace

EntityFile make_entity_file(const fs::path& folder, std::size_t entities) {
  return load_or_generate(path_in(folder, "entities-" + std::to_string(entities)),
                          [entities](EntityFile& file) { generate_entities(file, entities); });
}

const EntityFile& entity_file(std::size_t entities) {
  static std::map<std::size_t, EntityFile> known;
  return known_file(known, entities, make_entity_file);
}

const EntityFile& table_file(std::size_t rows) {
  static std::map<std::size_t, EntityFile> known;
  return known_file(known, rows, make_table_file);
}

fs::path data_folder() {
  const fs::path folder = KW_BENCH_DATA;
  fs::create_directories(folder);
  return folder;
}

}  // namespace kw::bench
