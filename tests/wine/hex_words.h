// Any bytes as one word: hexadecimal digits after an "x".
#pragma once

#include <cstddef>
#include <string>

namespace kw::wine {

inline std::string from_hex(const std::string& word) {
  std::string bytes;
  for (std::size_t i = 1; i + 1 < word.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(word.substr(i, 2), nullptr, 16));
  }
  return bytes;
}

inline std::string to_hex(const std::string& bytes) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string word = "x";
  for (const char byte : bytes) {
    word += kDigits[static_cast<unsigned char>(byte) >> 4];
    word += kDigits[static_cast<unsigned char>(byte) & 15];
  }
  return word;
}

}  // namespace kw::wine
