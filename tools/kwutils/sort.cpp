#include <cmath>
#include <vector>

#include "base/numeric_text.h"
#include "kwutils/clsQSort.h"
#include "tool/command.h"
#include "tool/failure.h"
#include "tool/json_writer.h"
#include "tool/read_file.h"

namespace kw::tool {
namespace {

struct SortOptions {
  std::string path = "-";
  bool numbers = false;
  bool binary = false;
  bool descending = false;
  bool index = false;
};

using Lines = std::vector<std::string_view>;
using Order = Array<std::int32_t>;

// The lines of a text without their LF. A CR before it belongs to the line, but is not compared.
Lines cut_lines(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
  }
  return lines;
}

std::string_view compared(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

[[noreturn]] void refuse(const SortOptions& options, std::size_t line, std::string_view text,
                         const char* why) {
  fail(source_name(options.path) + ":" + std::to_string(line) + ": " + in_quotes(text) + " " + why);
}

double number_in(const SortOptions& options, std::size_t line, std::string_view text) {
  const auto number = parse_number(text);
  if (!number) refuse(options, line, text, "is not a number");
  if (!std::isfinite(*number)) refuse(options, line, text, "is too large a number");
  return *number;
}

std::vector<double> numbers_of(const SortOptions& options, const Lines& lines) {
  std::vector<double> numbers;
  numbers.reserve(lines.size());
  for (const std::string_view line : lines)
    numbers.push_back(number_in(options, numbers.size() + 1, compared(line)));
  return numbers;
}

std::vector<String> texts_of(const Lines& lines) {
  std::vector<String> texts;
  texts.reserve(lines.size());
  for (const std::string_view line : lines) texts.push_back(String::from_utf8(compared(line)));
  return texts;
}

// The numbers of the lines, from 1, in their order.
Order order_of(const SortOptions& options, const Lines& lines) {
  Order order;
  if (lines.empty()) return order;
  const clsQSort sort;
  const Boolean sorted = options.numbers
                             ? sort.dQSortIndex(Array<double>::of(1, numbers_of(options, lines)),
                                                order, options.descending)
                             : sort.sQSortIndex(Array<String>::of(1, texts_of(lines)), order,
                                                options.descending, options.binary ? 0 : 1);
  if (!sorted) fail("cannot sort " + source_name(options.path) + ": out of memory");
  return order;
}

void write_line(Session& session, JsonWriter& json, const SortOptions& options,
                std::string_view line) {
  if (!session.json)
    session.out << line << "\n";
  else if (options.numbers)
    json.number(*parse_number(compared(line)));
  else
    json.text(compared(line));
}

void write_number(Session& session, JsonWriter& json, std::int32_t number) {
  if (session.json)
    json.number(std::int64_t{number});
  else
    session.out << std::to_string(number) << "\n";
}

ExitCode run_sort(Session& session, const SortOptions& options) {
  const std::string text = read_text(options.path);
  const Lines lines = cut_lines(text);
  const Order order = order_of(options, lines);
  JsonWriter json(session.out);
  if (session.json) json.begin_lines();
  for (const std::int32_t number : order.elements()) {
    if (options.index)
      write_number(session, json, number);
    else
      write_line(session, json, options, lines[static_cast<std::size_t>(number) - 1]);
  }
  if (session.json) json.end();
  return ExitCode::done;
}

}  // namespace

void add_sort(Arguments app, Session& session) {
  auto [line, options] = add_command<SortOptions>(
      app, session, "sort", "Sort lines of text or numbers",
      "kwutils sort names.txt\n"
      "  kwutils sort --numbers --descending readings.txt\n\n"
      "Text is compared without regard to case. Equal lines come in any order. The lines are "
      "written\n"
      "as they are; each must be a number where numbers are sorted.",
      &run_sort);
  line.add_option("FILE", options.path, "The lines; else, and for -, standard input");
  const Argument numbers =
      line.add_flag("-n,--numbers", options.numbers, "Compare numbers, not text");
  line.add_flag("--binary", options.binary, "Compare text by character codes, with regard to case")
      .excludes(numbers);
  line.add_flag("-r,--descending", options.descending, "The last comes first");
  line.add_flag("--index", options.index, "Show the lines' numbers, from 1, instead of the lines");
}

}  // namespace kw::tool
