// The engine against the slow reader of tests/reference: every short file over a small alphabet,
// then random ones, which are long enough for the blocks of the fast scan.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/ini/edit.h"
#include "platform/ini/entry_search.h"
#include "reference/all_texts.h"
#include "reference/ini.h"
#include "reference/random_inputs.h"

namespace kw::ini {
namespace {

using reference::pick;
using reference::Random;

std::optional<std::string> value_found(const EntrySearch<char>& search) {
  if (search.entry() == nullptr || !search.entry()->has_value) return std::nullopt;
  return std::string(search.entry()->value);
}

std::optional<std::string> fast_get(std::string_view content, std::string_view section,
                                    std::string_view key) {
  EntrySearch<char> search(trim(section), trim(key), Sections::first);
  search.scan(content, true);
  return value_found(search);
}

// The same for a file that comes in pieces.
std::optional<std::string> fast_get_pieces(std::string_view content, std::string_view section,
                                           std::string_view key, std::size_t piece) {
  EntrySearch<char> search(trim(section), trim(key), Sections::first);
  std::string window;
  while (!content.empty() && !search.finished()) {
    window += content.substr(0, piece);
    content.remove_prefix(std::min(piece, content.size()));
    const std::size_t used = search.scan(window, content.empty());
    if (!search.finished()) window.erase(0, used);
  }
  return value_found(search);
}

std::string applied(std::string_view content, const std::optional<Edit<char>>& edit) {
  std::string result(content);
  if (edit) result.replace(edit->begin, edit->end - edit->begin, edit->text);
  return result;
}

// The longest files of those that are all tried.
std::size_t longest() { return reference::long_tests() ? 6 : 4; }

void compare(const std::string& content, const std::string& section, const std::string& key,
             const std::string& value) {
  SCOPED_TRACE(testing::PrintToString(content) + " [" + section + "] " + key);
  ASSERT_EQ(fast_get(content, section, key), reference::ini_get(content, section, key));
  ASSERT_EQ(applied(content, set_entry<char>(content, section, key, value)),
            reference::ini_set(content, section, key, value));
  ASSERT_EQ(applied(content, remove_entry<char>(content, section, key)),
            reference::ini_remove(content, section, key));
}

TEST(IniComparison, AgreesOnEveryShortFile) {
  const std::string_view alphabet("[]=;sS \n\0", 9);
  reference::for_all_texts(alphabet, longest(), [](std::string_view content) {
    compare(std::string(content), "s", "s", "v");
    compare(std::string(content), "", "", " s");
  });
}

TEST(IniComparison, AgreesOnEveryShortFileThatBeginsWithTheSection) {
  const std::string_view alphabet("[]=sk\r\n", 7);
  reference::for_all_texts(alphabet, longest(), [](std::string_view content) {
    compare("[s]\n" + std::string(content), "s", "k", "k");
  });
}

// Lines of few names, so that most questions have an answer, and of much else.
std::string random_line(Random& random) {
  static constexpr std::array<std::string_view, 10> kNames = {
      "s", "S", "key", "KEY", "k\xE9y", "K\xC9Y", "other", "", "a rather long name of a key", "s]"};
  static constexpr std::array<std::string_view, 8> kBlanks = {"", "",  "",   "",
                                                              "", " ", "\t", "\x1A "};
  const auto name = [&] { return std::string(kNames[pick(random, 0, kNames.size() - 1)]); };
  const auto blank = [&] { return std::string(kBlanks[pick(random, 0, kBlanks.size() - 1)]); };
  switch (pick(random, 0, 9)) {
    case 0:
      return blank() + "[" + blank() + name() + blank() + "]" + blank();
    case 1:
      return blank() + ";" + name() + "=" + name();
    case 2:
      return blank() + name();
    case 3:
      return blank();
    case 4:
      return reference::pick_text<char>(random, std::string_view("[]=; ks\t\0\xE9", 10), 30);
    case 5:
      return "filler=" + std::string(pick(random, 0, 60), 'x');
    default:
      return blank() + name() + blank() + "=" + blank() + name() + blank();
  }
}

std::string random_file(Random& random) {
  static constexpr std::array<std::string_view, 4> kEnds = {"\r\n", "\n", "\r", "\n\r"};
  const bool mixed = pick(random, 0, 3) == 0;
  const std::size_t usual = pick(random, 0, 3);
  std::string content;
  for (std::size_t lines = pick(random, 0, 25); lines > 0; --lines) {
    content += random_line(random);
    content += kEnds[mixed ? pick(random, 0, 3) : usual];
  }
  if (pick(random, 0, 2) == 0) content += random_line(random);
  return content;
}

TEST(IniComparison, AgreesOnRandomFiles) {
  constexpr std::array<const char*, 9> kSought = {
      "s", "key", "k\xC9y", "", " KEY ", "a rather long name of a key", "s]", "absent", "other"};
  reference::for_random_inputs(51, [&](Random& random) {
    const std::string content = random_file(random);
    const std::string section = kSought[pick(random, 0, kSought.size() - 1)];
    const std::string key = kSought[pick(random, 0, kSought.size() - 1)];
    const std::string value = reference::pick_text<char>(random, "ks= \t\"", 4);
    compare(content, section, key, value);
    ASSERT_EQ(fast_get_pieces(content, section, key, pick(random, 1, 40)),
              reference::ini_get(content, section, key))
        << testing::PrintToString(content) << " [" << section << "] " << key;
  });
}

}  // namespace
}  // namespace kw::ini
