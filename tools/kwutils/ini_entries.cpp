#include "tool/ini_entries.h"

#include <unordered_set>

#include "base/case_map.h"
#include "base/code_page.h"
#include "base/compare_text.h"
#include "platform/ini/ini_line.h"
#include "platform/ini/utf16.h"
#include "platform/ini/value.h"

namespace kw::tool {
namespace {

// Values are handed out through a buffer of this size.
constexpr std::size_t kCapacity = 1024;

std::string bytes_of(std::string_view text) { return std::string(text); }
std::string bytes_of(std::u16string_view text) { return narrow(text); }

template <class C>
std::u16string text_of(ini::View<C> text) {
  return widen(bytes_of(text));
}

template <class C>
std::u16string value_of(const ini::Entry<C>& entry) {
  const std::string bytes = bytes_of(entry.value);
  return widen(ini::handed_out(bytes, kCapacity));
}

class Collector {
 public:
  Collector() { enter(u""); }

  template <class C>
  void read(ini::View<C> content) {
    for (std::size_t at = 0; at < content.size();) {
      const ini::LinePlace place = ini::line_at(content, at);
      read_line(content.substr(place.begin, place.end - place.begin));
      at = place.next;
    }
  }

  std::vector<IniSection> finish() {
    if (sections_.front().entries.empty()) sections_.erase(sections_.begin());
    return std::move(sections_);
  }

 private:
  void enter(std::u16string name) {
    visible_ = names_.insert(upper(name)).second;
    keys_.clear();
    if (visible_) sections_.push_back({std::move(name), {}});
  }

  template <class C>
  void read_line(ini::View<C> line) {
    if (const auto name = ini::header_name(line)) return enter(text_of(*name));
    if (!visible_) return;
    const auto entry = ini::parse_entry(line);
    if (!entry) return;
    std::u16string key = text_of(entry->name);
    if (!keys_.insert(upper(key)).second || !entry->has_value) return;
    sections_.back().entries.push_back({std::move(key), value_of(*entry)});
  }

  std::vector<IniSection> sections_;
  std::unordered_set<std::u16string> names_;
  std::unordered_set<std::u16string> keys_;  // of this section, those without "=" included
  bool visible_ = false;                     // no earlier section has this one's name
};

}  // namespace

std::vector<IniSection> ini_sections(std::string_view content) {
  Collector collector;
  if (ini::is_utf16(content))
    collector.read<char16_t>(ini::utf16_units(content));
  else
    collector.read<char>(content);
  return collector.finish();
}

const IniSection* find_section(const std::vector<IniSection>& sections, std::u16string_view name) {
  for (const IniSection& section : sections)
    if (equal_text(section.name, name)) return &section;
  return nullptr;
}

}  // namespace kw::tool
