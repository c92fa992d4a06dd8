#include "ini_data.h"

namespace kw::bench {

std::string ini_key(std::size_t number) { return "Setting" + std::to_string(number); }

std::string ini_section(std::size_t number, std::size_t per_section) {
  return "Section" + std::to_string(number / per_section);
}

std::string ini_text(std::size_t entries, std::size_t per_section) {
  std::string text;
  for (std::size_t i = 0; i < entries; ++i) {
    if (i % per_section == 0) {
      text += (i == 0 ? "[" : "\r\n[") + ini_section(i, per_section) + "]\r\n";
    }
    text += ini_key(i) + "=value " + std::to_string(i * 7919 % 1'000'003) + "\r\n";
  }
  return text;
}

}  // namespace kw::bench
