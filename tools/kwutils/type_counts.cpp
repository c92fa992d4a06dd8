#include "tool/type_counts.h"

#include <unordered_map>

#include "base/case_map.h"
#include "base/code_page.h"
#include "parse/text_view.h"
#include "platform/files.h"
#include "store/closing_word.h"
#include "store/comment_keys.h"
#include "store/record_reader.h"
#include "store/record_word.h"

namespace kw::tool {
namespace {

class Counter {
 public:
  explicit Counter(platform::InputFile& input) : records_(input) {}

  std::vector<TypeCount> run() {
    for (bool first = true; !records_.at_end(); first = false) {
      const std::string_view record = records_.next();
      if (store::comment_kind(record) != store::CommentKind::none)
        continue;  // the file's last line
      const store::RecordWord opening = store::take_first_word(record);
      closing_.follow(opening.word);
      const bool alone = first && opening.word.size() == 6 && !closing_.closes(opening.rest);
      if (opening.word.empty() || alone) continue;
      count(opening.word);
      pass_block(opening.rest);
    }
    return std::move(counts_);
  }

 private:
  void count(std::string_view word) {
    const auto [place, is_new] = places_.emplace(word, counts_.size());
    if (is_new) counts_.push_back({widen(word)});
    ++counts_[place->second].entities;
  }

  void pass_block(std::string_view record) {
    while (!closing_.closes(record) && !records_.at_end()) record = records_.next();
  }

  store::RecordReader records_;
  store::ClosingWord closing_;
  std::unordered_map<std::string, std::size_t> places_;
  std::vector<TypeCount> counts_;
};

}  // namespace

std::vector<TypeCount> count_types(std::u16string_view file) {
  const auto input = platform::files().open_input(file);
  return Counter(*input).run();
}

std::int64_t count_type(std::u16string_view file, std::u16string_view type) {
  const std::u16string sought = upper(parse::trim(type));
  for (const TypeCount& count : count_types(file))
    if (count.type == sought) return count.entities;
  return 0;
}

}  // namespace kw::tool
