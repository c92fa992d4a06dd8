// INI files, slowly: the whole file is taken apart into lines, sections and entries, and every
// question is answered from that.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"

namespace kw::reference {

struct IniLine {
  std::string text;
  std::string ending;
};

struct IniEntry {
  std::string name;
  std::optional<std::string> value;
  std::size_t line;
};

struct IniSection {
  std::string name;
  std::size_t begin;  // the first line after the header
  std::size_t end;    // the line of the next header
  std::vector<IniEntry> entries;
};

inline std::string ini_trim(std::string text) {
  const std::string blanks("\x09\x0A\x0B\x0C\x0D\x1A ");
  while (!text.empty() && blanks.find(text.front()) != blanks.npos) text.erase(0, 1);
  while (!text.empty() && blanks.find(text.back()) != blanks.npos) text.pop_back();
  return text;
}

inline std::string ini_trim_front(std::string text) {
  const std::string blanks("\x09\x0A\x0B\x0C\x0D\x1A ");
  while (!text.empty() && blanks.find(text.front()) != blanks.npos) text.erase(0, 1);
  return text;
}

inline std::string ini_until_nul(const std::string& text) { return text.c_str(); }

inline bool ini_same(const std::string& left, const std::string& right) {
  return upper(widen(left)) == upper(widen(right));
}

inline std::vector<IniLine> ini_lines(std::string_view content) {
  std::vector<IniLine> lines;
  IniLine line;
  for (std::size_t i = 0; i < content.size(); ++i) {
    const char c = content[i];
    if (c != '\r' && c != '\n') {
      line.text += c;
      continue;
    }
    line.ending = c;
    if (c == '\r' && i + 1 < content.size() && content[i + 1] == '\n') line.ending += content[++i];
    lines.push_back(line);
    line = {};
  }
  if (!line.text.empty()) lines.push_back(line);
  return lines;
}

inline std::vector<IniSection> ini_sections(const std::vector<IniLine>& lines) {
  std::vector<IniSection> sections{{"", 0, 0, {}}};
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string text = ini_trim(lines[i].text);
    const std::size_t close = text.rfind(']');
    if (!text.empty() && text[0] == '[' && close != text.npos) {
      sections.back().end = i;
      sections.push_back({ini_until_nul(ini_trim(text.substr(1, close - 1))), i + 1, 0, {}});
    } else if (!text.empty() && text[0] != ';') {
      IniEntry entry{ini_until_nul(ini_trim(text.substr(0, text.find('=')))), std::nullopt, i};
      const std::size_t equals = text.find('=');
      if (equals != text.npos) entry.value = ini_until_nul(ini_trim(text.substr(equals + 1)));
      sections.back().entries.push_back(entry);
    }
  }
  sections.back().end = lines.size();
  return sections;
}

inline std::optional<std::string> ini_get(std::string_view content, const std::string& section,
                                          const std::string& key) {
  for (const IniSection& candidate : ini_sections(ini_lines(content))) {
    if (!ini_same(candidate.name, ini_trim(section))) continue;
    for (const IniEntry& entry : candidate.entries) {
      if (ini_same(entry.name, ini_trim(key))) return entry.value;
    }
    return std::nullopt;
  }
  return std::nullopt;
}

inline std::string ini_joined(const std::vector<IniLine>& lines) {
  std::string content;
  for (const IniLine& line : lines) content += line.text + line.ending;
  return content;
}

inline void ini_insert(std::vector<IniLine>& lines, std::size_t at, const std::string& text) {
  if (at > 0 && lines[at - 1].ending.empty()) lines[at - 1].ending = "\r\n";
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), {text, "\r\n"});
}

inline std::string ini_set(std::string_view content, const std::string& section,
                           const std::string& key, const std::string& value) {
  std::vector<IniLine> lines = ini_lines(content);
  const std::string written = ini_trim_front(value);
  for (const IniSection& candidate : ini_sections(lines)) {
    if (!ini_same(candidate.name, ini_trim(section))) continue;
    for (const IniEntry& entry : candidate.entries) {
      if (!ini_same(entry.name, ini_trim(key))) continue;
      if (entry.value == written) return std::string(content);
      lines[entry.line] = {entry.name + "=" + written, "\r\n"};
      return ini_joined(lines);
    }
    std::size_t at = candidate.end;
    while (at > candidate.begin && ini_trim(lines[at - 1].text).empty()) --at;
    ini_insert(lines, at, ini_trim_front(key) + "=" + written);
    return ini_joined(lines);
  }
  ini_insert(lines, lines.size(), "[" + ini_trim_front(section) + "]");
  ini_insert(lines, lines.size(), ini_trim_front(key) + "=" + written);
  return ini_joined(lines);
}

inline std::string ini_remove(std::string_view content, const std::string& section,
                              const std::string& key) {
  std::vector<IniLine> lines = ini_lines(content);
  for (const IniSection& candidate : ini_sections(lines)) {
    if (!ini_same(candidate.name, section)) continue;
    for (const IniEntry& entry : candidate.entries) {
      if (!ini_same(entry.name, key)) continue;
      lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(entry.line));
      return ini_joined(lines);
    }
  }
  return std::string(content);
}

}  // namespace kw::reference
