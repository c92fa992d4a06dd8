// The record reader step by step: one line at a time, everything copied.
#pragma once

#include <string>

#include "reference/text_file.h"

namespace kw::reference {

inline std::string trimmed(std::string text) {
  while (!text.empty() && text.front() == ' ') text.erase(0, 1);
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

inline std::string with_plain_blanks(std::string text) {
  for (char& character : text)
    if (character == '\t' || character == '\xA0') character = ' ';
  return text;
}

struct CommentSpec {
  const char* key;
  const char* end;
  std::size_t length;
  bool block;
};

// Reads the next record; comment lines passed over are added to `comments`, each with a CR LF.
inline std::string GetRecordKeepComments(TextFile& file, std::string& comments) {
  static const CommentSpec specs[] = {
      {";", "", 1, false}, {"*", "", 1, false}, {"//", "", 2, false}, {"/*", "*/", 2, true}};
  std::string line;
  bool in_block = false;
  std::string block_end;
  while (!file.at_end()) {
    const std::string as_read = file.read_line();
    line = trimmed(with_plain_blanks(as_read));
    if (line.empty()) continue;
    bool skipped = false;
    if (in_block) {
      if (line.find(block_end) != std::string::npos) in_block = false;
      skipped = true;
    } else {
      for (const CommentSpec& spec : specs) {
        if (line.substr(0, spec.length) != spec.key) continue;
        skipped = true;
        if (spec.block && line.find(spec.end) == std::string::npos) {
          in_block = true;
          block_end = spec.end;
        }
        break;
      }
    }
    if (!skipped) return line;
    comments += as_read + "\r\n";
  }
  return line;
}

inline std::string GetRecord(TextFile& file) {
  std::string comments;
  return GetRecordKeepComments(file, comments);
}

}  // namespace kw::reference
