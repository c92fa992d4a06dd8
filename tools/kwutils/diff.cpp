#include "tool/diff.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "tool/line_match.h"

namespace kw::tool {
namespace {

constexpr std::size_t kContext = 3;

// The lines of a text, each with its LF where it has one.
std::vector<std::string_view> lines_of(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::size_t size = end == text.npos ? text.size() : end + 1;
    lines.push_back(text.substr(0, size));
    text.remove_prefix(size);
  }
  return lines;
}

class Numbers {
 public:
  std::vector<std::uint32_t> of(const std::vector<std::string_view>& lines) {
    std::vector<std::uint32_t> result;
    for (const std::string_view line : lines)
      result.push_back(
          numbers_.emplace(line, static_cast<std::uint32_t>(numbers_.size())).first->second);
    return result;
  }

 private:
  std::unordered_map<std::string_view, std::uint32_t> numbers_;
};

// A line of the diff: of the old text, of the new one, or of both.
struct Step {
  char mark;
  std::string_view line;
  std::size_t old_line, new_line;  // how many lines of each text precede it
};

std::vector<Step> steps_of(std::string_view old_text, std::string_view new_text) {
  const auto old_lines = lines_of(old_text);
  const auto new_lines = lines_of(new_text);
  Numbers numbers;
  const auto old_numbers = numbers.of(old_lines);
  const LineMatch match = match_lines(old_numbers, numbers.of(new_lines));
  std::vector<Step> steps;
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < old_lines.size() || j < new_lines.size()) {
    if (i < old_lines.size() && match.removed[i]) {
      steps.push_back({'-', old_lines[i], i, j});
      ++i;
    } else if (j < new_lines.size() && match.added[j]) {
      steps.push_back({'+', new_lines[j], i, j});
      ++j;
    } else {
      steps.push_back({' ', old_lines[i], i, j});
      ++i;
      ++j;
    }
  }
  return steps;
}

using StepIterator = std::vector<Step>::const_iterator;

bool changes(const Step& step) { return step.mark != ' '; }

// The end of the hunk whose first change is `change`: before the context of the next one.
StepIterator end_of_hunk(StepIterator change, StepIterator end) {
  for (;;) {
    const auto after = std::find_if_not(change, end, changes);
    const auto next = std::find_if(after, end, changes);
    const auto gap = static_cast<std::size_t>(next - after);
    if (next == end || gap > 2 * kContext)
      return after + static_cast<std::ptrdiff_t>(std::min(kContext, gap));
    change = next;
  }
}

std::string range_text(std::size_t before, std::size_t count) {
  std::string text = std::to_string(count == 0 ? before : before + 1);
  if (count != 1) text += "," + std::to_string(count);
  return text;
}

void write_hunk(StepIterator begin, StepIterator end, std::string& to) {
  const auto old_count = std::count_if(begin, end, [](const Step& s) { return s.mark != '+'; });
  const auto new_count = std::count_if(begin, end, [](const Step& s) { return s.mark != '-'; });
  to += "@@ -" + range_text(begin->old_line, static_cast<std::size_t>(old_count)) + " +" +
        range_text(begin->new_line, static_cast<std::size_t>(new_count)) + " @@\n";
  for (auto step = begin; step != end; ++step) {
    (to += step->mark).append(step->line);
    if (!step->line.ends_with('\n')) to += "\n\\ No newline at end of file\n";
  }
}

}  // namespace

std::string unified_diff(std::string_view old_text, std::string_view new_text,
                         std::string_view old_name, std::string_view new_name) {
  std::string text;
  if (old_text == new_text) return text;
  text.append("--- ").append(old_name).append("\n+++ ").append(new_name).append("\n");
  const std::vector<Step> steps = steps_of(old_text, new_text);
  for (auto change = std::find_if(steps.begin(), steps.end(), changes); change != steps.end();) {
    const auto context = std::min<std::ptrdiff_t>(kContext, change - steps.begin());
    const auto end = end_of_hunk(change, steps.end());
    write_hunk(change - context, end, text);
    change = std::find_if(end, steps.end(), changes);
  }
  return text;
}

}  // namespace kw::tool
