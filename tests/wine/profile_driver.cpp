// A Windows program that calls the system's profile functions as standard input says: one command a
// line, one answer a line. Texts are in hexadecimal digits after an "x", so that every byte can be
// told and an empty text is a word.
//
//   get NAME SECTION KEY DEFAULT      buffer of 1024 bytes  -> the text
//   int NAME SECTION KEY DEFAULT      (DEFAULT in decimal)  -> the number
//   set NAME SECTION KEY VALUE                              -> 1 or 0
//   remove NAME SECTION KEY                                 -> 1 or 0
#include <windows.h>

#include <iostream>
#include <sstream>
#include <string>

#include "hex_words.h"

namespace {

using kw::wine::from_hex;
using kw::wine::to_hex;

constexpr DWORD kCapacity = 1024;

std::string text(std::istream& words) {
  std::string word;
  words >> word;
  return from_hex(word);
}

std::string answer(const std::string& command, std::istream& words) {
  const std::string name = text(words);
  const std::string section = text(words);
  const std::string key = text(words);
  if (command == "get") {
    char buffer[kCapacity];
    const DWORD size = GetPrivateProfileStringA(section.c_str(), key.c_str(), text(words).c_str(),
                                                buffer, kCapacity, name.c_str());
    return to_hex(std::string(buffer, size));
  }
  if (command == "int") {
    int fallback = 0;
    words >> fallback;
    return std::to_string(static_cast<int>(
        GetPrivateProfileIntA(section.c_str(), key.c_str(), fallback, name.c_str())));
  }
  const std::string value = command == "set" ? text(words) : std::string();
  return std::to_string(WritePrivateProfileStringA(
      section.c_str(), key.c_str(), command == "set" ? value.c_str() : nullptr, name.c_str()));
}

}  // namespace

int main() {
  std::string line;
  while (std::getline(std::cin, line)) {
    std::istringstream words(line);
    std::string command;
    words >> command;
    std::cout << answer(command, words) << '\n';
  }
}
