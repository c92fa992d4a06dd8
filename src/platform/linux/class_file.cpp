#include "platform/linux/class_file.h"

#include <algorithm>
#include <utility>

#include "platform/guid_text.h"

namespace kw::platform {
namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool same(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

std::string_view next_line(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

void take_field(ClassEntry& entry, std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == line.npos) return;
  const std::string_view key = line.substr(0, equals);
  const std::string value(line.substr(equals + 1));
  if (same(key, "Class")) entry.class_id = value;
  if (same(key, "Library")) entry.library = value;
  if (same(key, "Help")) entry.help = value;
}

}  // namespace

ClassFile::ClassFile(std::string_view text) {
  while (!text.empty()) {
    const std::string_view line = next_line(text);
    if (line.size() > 2 && line.front() == '[' && line.back() == ']')
      entries_.push_back({std::string(line.substr(1, line.size() - 2)), {}, {}, {}});
    else if (!entries_.empty())
      take_field(entries_.back(), line);
  }
}

std::string ClassFile::text() const {
  std::string text;
  for (const ClassEntry& entry : entries_)
    text += "[" + entry.name + "]\nClass=" + entry.class_id + "\nLibrary=" + entry.library +
            "\nHelp=" + entry.help + "\n";
  return text;
}

const ClassEntry* ClassFile::find(std::string_view name_or_id) const noexcept {
  const auto id = parse_guid(name_or_id);
  const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const ClassEntry& entry) {
    return id ? parse_guid(entry.class_id) == id : same(entry.name, name_or_id);
  });
  return found != entries_.end() ? &*found : nullptr;
}

void ClassFile::put(ClassEntry entry) {
  remove(entry.name);
  entries_.push_back(std::move(entry));
}

void ClassFile::remove(std::string_view name) {
  std::erase_if(entries_, [&](const ClassEntry& entry) { return same(entry.name, name); });
}

}  // namespace kw::platform
