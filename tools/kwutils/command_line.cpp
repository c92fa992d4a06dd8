#include "tool/command_line.h"

#include <algorithm>

namespace kw::tool {
namespace {

using Words = std::vector<std::string>;

bool is_option(const std::string& word) { return word.size() > 1 && word.front() == '-'; }

// The position behind the next word that is no option.
Words::iterator behind_name(Words::iterator from, Words::iterator end) {
  from = std::find_if_not(from, end, is_option);
  return from == end ? end : from + 1;
}

}  // namespace

CommandLine split_command_line(Words words) {
  CommandLine result;
  auto behind = behind_name(words.begin(), words.end());
  if (behind != words.begin() && behind[-1] == "call") {
    behind = behind_name(behind, words.end());  // the class
    behind = behind_name(behind, words.end());  // the method
    result.call_arguments.assign(behind, words.end());
    words.erase(behind, words.end());
  }
  // Its suffix may be left out, and the next word is none.
  std::replace(words.begin(), words.end(), std::string("--backup"), std::string("--backup=~"));
  result.words = std::move(words);
  return result;
}

}  // namespace kw::tool
