#include <algorithm>
#include <optional>

#include "base/unicode.h"
#include "platform/files.h"
#include "platform/terminal.h"
#include "tool/command.h"
#include "tool/csv_writer.h"
#include "tool/failure.h"
#include "tool/json_writer.h"
#include "tool/plot.h"
#include "tool/svg.h"
#include "tool/table_rows.h"

namespace kw::tool {
namespace {

struct TableOptions {
  EntityFile file;
  std::string id;
  std::string svg;
  bool csv = false;
  bool plot = false;
};

using Rows = std::vector<TableRow>;

void write_json(JsonWriter&& json, const Rows& rows) {
  json.begin_lines();
  for (const TableRow& row : rows) {
    json.begin_array();
    for (const std::u16string& cell : row) json.text(cell);
    json.end();
  }
  json.end();
}

void write_csv(Output& out, const Rows& rows) {
  for (const TableRow& row : rows)
    out << csv_line(std::vector<std::optional<std::u16string>>(row.begin(), row.end()));
}

std::vector<std::size_t> widths_of(const Rows& rows) {
  std::vector<std::size_t> widths;
  for (const TableRow& row : rows) {
    if (row.size() > widths.size()) widths.resize(row.size());
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  return widths;
}

// Columns under each other, aligned at the right.
void write_text(Output& out, const Rows& rows) {
  const std::vector<std::size_t> widths = widths_of(rows);
  for (const TableRow& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i)
      out << std::string((i == 0 ? 0 : 2) + widths[i] - row[i].size(), ' ') << row[i];
    out << "\n";
  }
}

void write_plot(Session& session, const Rows& rows) {
  constexpr std::size_t kHeight = 16;
  const auto width = static_cast<std::size_t>(platform::terminal_width(session.out_file));
  session.out << plot(number_table(rows), width, kHeight);
}

void write_svg(const TableOptions& options, const Rows& rows) {
  const std::string title = options.file.type + " " + options.id;
  const std::string drawing = svg(number_table(rows), title);
  try {
    const auto file = platform::files().create_output(from_utf8(options.svg));
    file->write(drawing);
    file->close();
  } catch (const Error& error) {
    fail("cannot write the drawing " + in_quotes(options.svg) + ": " + reason(error, options.svg));
  }
}

void answer(Session& session, const TableOptions& options, const Rows& rows) {
  if (!options.svg.empty()) write_svg(options, rows);
  if (options.plot) return write_plot(session, rows);
  if (session.json) return write_json(JsonWriter(session.out), rows);
  if (options.csv) return write_csv(session.out, rows);
  if (options.svg.empty()) write_text(session.out, rows);
}

ExitCode run_table(Session& session, const TableOptions& options) {
  const std::string what = options.file.type + (options.id.empty() ? "" : " " + options.id);
  const auto rows = working_on("cannot read the table of " + what, options.file.path,
                               [&] { return read_table(options.file, options.id); });
  if (!rows || rows->empty()) {
    session.say("there is no " + std::string(rows ? "table of " : "") + what + " in " +
                in_quotes(options.file.path));
    return ExitCode::not_found;
  }
  answer(session, options, *rows);
  return ExitCode::done;
}

}  // namespace

void add_table(Arguments app, Session& session) {
  auto [line, options] = add_command<TableOptions>(
      app, session, "table", "Show the table of an entity",
      "kwutils table plant.ent NODE B2 --plot\n"
      "  kwutils table plant.ent NODE B2 --svg curve.svg\n\n"
      "A drawing takes the first column as x and each further one as a line.",
      &run_table);
  add_file(line, options.file);
  line.add_option("ID", options.id, "Identifier; else the first entity of the type");
  const Argument csv = line.add_flag("--csv", options.csv, "Comma-separated values");
  const Argument plot = line.add_flag("--plot", options.plot, "Draw the table on the terminal");
  csv.excludes(plot);
  line.add_option("--svg", options.svg, "Draw the table into this file").type_name("FILE");
}

}  // namespace kw::tool
