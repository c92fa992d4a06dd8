#include "wine/profile_script.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>
#include <utility>

#include "platform/profile.h"
#include "reference/ini.h"
#include "wine/hex_words.h"

namespace kw::wine {
namespace {

using reference::pick;
using reference::Random;

template <std::size_t N>
std::string one_of(Random& random, const std::array<std::string_view, N>& texts) {
  return std::string(texts[pick(random, 0, N - 1)]);
}

constexpr std::array<std::string_view, 14> kNames = {
    "s",   "S",      "s",  "key", "KEY", "Key", "key2",
    "a b", "k\xE9y", "#k", "s]",  "[s",  "s'",  "a long name of a key"};
constexpr std::array<std::string_view, 32> kValues = {"",
                                                      "v",
                                                      "V w",
                                                      "a=b",
                                                      "a ;c",
                                                      "\"a\"",
                                                      "'a'",
                                                      "\" a \"",
                                                      "\"\"",
                                                      "\"a'",
                                                      "\"",
                                                      "'",
                                                      "\"\"a\"\"",
                                                      "\"a\" b",
                                                      "[s]",
                                                      "\x80\xFF\x01",
                                                      "12abc",
                                                      "-5",
                                                      "+3",
                                                      "0x1F",
                                                      "0X1f",
                                                      "0o17",
                                                      "0b11",
                                                      "017",
                                                      "- 5",
                                                      "1e3",
                                                      "2147483648",
                                                      "99999999999",
                                                      "-2147483649",
                                                      "\"12\"",
                                                      "0",
                                                      "00000000000000000000000000000005"};
constexpr std::array<std::string_view, 8> kBlanks = {"",  "",   "",   "",
                                                     " ", "\t", "  ", "\x1A\x0B\x0C "};

constexpr std::array<std::string_view, 4> kVerbs = {"get", "int", "set", "remove"};

std::string blank(Random& random) { return one_of(random, kBlanks); }

std::string random_value(Random& random) {
  if (pick(random, 0, 40) == 0) return std::string(pick(random, 1015, 1035), 'x') + "   y";
  return one_of(random, kValues);
}

bool is_nameless(const std::string& line) {
  const std::string text = reference::ini_trim(line);
  return !text.empty() && (text[0] == '=' || text[0] == '\0');
}

// Wine forgets such a header when it writes, and what follows moves to the section before.
bool is_empty_header(const std::string& line) {
  const std::vector<reference::IniSection> sections =
      reference::ini_sections(reference::ini_lines(line));
  return sections.back().begin > 0 && sections.back().name.empty();
}

// A NUL cuts a text after it is trimmed: the blanks before it count, until Wine writes them at the
// end of a line, where they count no more.
bool has_blank_before_nul(const std::string& line) {
  const std::size_t nul = line.find('\0');
  return nul != line.npos && reference::ini_trim(line.substr(0, nul)).size() < nul;
}

bool is_disputed(const std::string& line) {
  return is_empty_header(line) || has_blank_before_nul(line);
}

std::string random_line(Random& random) {
  constexpr std::string_view kSoup("[]=; sk\"'\t\0", 11);
  switch (pick(random, 0, 11)) {
    case 0:
    case 1:
      return blank(random) + "[" + blank(random) + one_of(random, kNames) + blank(random) + "]" +
             blank(random);
    case 2:
      return "[" + one_of(random, kNames) + "]" + one_of(random, kValues);
    case 3:
      return blank(random) + ";" + one_of(random, kNames) + "=" + one_of(random, kValues);
    case 4:
      return blank(random) + one_of(random, kNames) + blank(random);
    case 5:
      return blank(random);
    case 6:
      return reference::pick_text(random, kSoup, 12);
    case 7:
      return "=" + one_of(random, kValues);
    default:
      return blank(random) + one_of(random, kNames) + blank(random) + "=" + blank(random) +
             random_value(random) + blank(random);
  }
}

std::string random_content(Random& random) {
  constexpr std::array<std::string_view, 6> kEnds = {"\r\n", "\r\n", "\r\n", "\n", "\r", "\n\r"};
  std::string content;
  bool nameless = false;
  for (std::size_t lines = pick(random, 0, 14); lines > 0; --lines) {
    const std::string line = random_line(random);
    if (is_disputed(line) || (is_nameless(line) && std::exchange(nameless, true))) continue;
    content += line + one_of(random, kEnds);
  }
  if (pick(random, 0, 3) == 0) content += "s=last";
  return content;
}

std::string random_name(Random& random) {
  if (pick(random, 0, 9) == 0) return "";
  if (pick(random, 0, 9) == 0) return blank(random) + one_of(random, kNames) + blank(random);
  return one_of(random, kNames);
}

Command random_question(Random& random) {
  const bool number = pick(random, 0, 2) == 0;
  return {number ? Command::integer : Command::get, random_name(random), random_name(random),
          number ? std::to_string(static_cast<int>(pick(random, 0, 20)) - 10)
                 : blank(random) + random_value(random) + one_of<3>(random, {"", " ", "  "})};
}

Command random_change(Random& random) {
  const bool removal = pick(random, 0, 2) == 0;
  return {removal ? Command::remove : Command::set, random_name(random), random_name(random),
          removal ? "" : blank(random) + random_value(random) + blank(random)};
}

}  // namespace

Case random_case(Random& random) {
  Case made;
  made.content = random_content(random);
  for (int i = 0; i < 3; ++i) made.before.push_back(random_question(random));
  const Command change = random_change(random);
  made.before.push_back(change);
  made.after.push_back(random_question(random));
  made.after.push_back({Command::get, change.section, change.key, "(none)"});
  return made;
}

std::string line_of(const Command& command, const std::string& file) {
  const std::string argument =
      command.kind == Command::integer ? command.argument : to_hex(command.argument);
  return std::string(kVerbs[command.kind]) + " " + to_hex(file) + " " + to_hex(command.section) +
         " " + to_hex(command.key) + " " + argument + "\n";
}

void PrintTo(const Command& command, std::ostream* out) {
  *out << kVerbs[command.kind];
  for (const std::string& text : {command.section, command.key, command.argument}) {
    *out << ' ' << ::testing::PrintToString(text);
  }
}

std::string native_answer(const Command& command, const std::string& file) {
  namespace profile = platform::profile;
  const auto& [kind, section, key, argument] = command;
  switch (kind) {
    case Command::get:
      return to_hex(profile::get_string(section, key, argument, 1024, file));
    case Command::integer:
      return std::to_string(profile::get_int(section, key, std::stoi(argument), file));
    case Command::set:
      return profile::write_string(section, key, argument, file) ? "1" : "0";
    case Command::remove:
      return profile::write_string(section, key, std::nullopt, file) ? "1" : "0";
  }
  return {};
}

std::string normalised(const std::string& content) {
  using reference::ini_trim;
  using reference::ini_until_nul;
  std::string result;
  for (const reference::IniLine& line : reference::ini_lines(content)) {
    const std::string text = ini_trim(line.text);
    const std::size_t close = text.rfind(']');
    const std::size_t equals = text.find('=');
    if (text.empty()) continue;
    if (text[0] == '[' && close != text.npos) {
      const std::string name = ini_trim(ini_until_nul(ini_trim(text.substr(1, close - 1))));
      if (!name.empty()) result += "[" + name + "]\r\n";
      continue;
    }
    std::string entry = ini_until_nul(ini_trim(text.substr(0, equals)));
    if (equals != text.npos) entry += "=" + ini_until_nul(ini_trim(text.substr(equals + 1)));
    if (!entry.empty()) result += ini_trim(entry) + "\r\n";
  }
  return result;
}

}  // namespace kw::wine
