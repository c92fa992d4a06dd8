#include <algorithm>
#include <cstdio>

#include "tool/command.h"
#include "tool/csv_writer.h"
#include "tool/export_rows.h"
#include "tool/failure.h"
#include "tool/json_writer.h"
#include "tool/source_table.h"

namespace kw::tool {
namespace {

struct ExportOptions {
  EntityFile file;
  SourceFormat format = SourceFormat::automatic;
};

using Values = std::vector<std::optional<std::u16string>>;

Values values_of(const std::vector<Item>& row, const std::vector<std::u16string>& columns) {
  Values values(columns.size());
  for (const Item& item : row) {
    const auto column = std::find(columns.begin(), columns.end(), item.keyword);
    values[static_cast<std::size_t>(column - columns.begin())] = item.value;
  }
  return values;
}

void write_csv(Output& out, const ExportedRows& rows) {
  out << csv_line(Values(rows.columns.begin(), rows.columns.end()));
  for (const std::vector<Item>& row : rows.rows) out << csv_line(values_of(row, rows.columns));
}

void write_json(Output& out, const ExportedRows& rows) {
  JsonWriter json(out);
  json.begin_lines();
  for (const std::vector<Item>& row : rows.rows) {
    const Values values = values_of(row, rows.columns);
    json.begin_object();
    for (std::size_t i = 0; i < values.size(); ++i)
      if (values[i]) json.key(rows.columns[i]).text(*values[i]);
    json.end();
  }
  json.end();
}

ExitCode run_export(Session& session, const ExportOptions& options) {
  Collection entities;
  working_on("cannot export " + options.file.type, options.file.path, [&] {
    clsFileReadWrite().GetEntitiesIntoColl(options.file.name(), options.file.token(), entities);
  });
  const ExportedRows rows = make_rows(entities, options.file.type, &session.progress);
  if (session.json || options.format == SourceFormat::json)
    write_json(session.out, rows);
  else
    write_csv(session.out, rows);
  for (const std::string& remark : rows.remarks) session.say(remark);
  return rows.rows.empty() ? ExitCode::not_found : ExitCode::done;
}

}  // namespace

void add_export(Arguments app, Session& session) {
  auto [line, options] = add_command<ExportOptions>(
      app, session, "export", "Write the entities of a type as a table",
      "kwutils export regions.ent REGION > regions.csv\n\n"
      "The items on the first line of each entity become columns. Importing the table gives the\n"
      "same entities again, a file that 'kwutils import' wrote byte for byte. What fits into no "
      "row\n"
      "is reported on standard error.",
      &run_export);
  add_file(line, options.file);
  line.add_choice("--format", options.format, "csv (else) or json",
                  {{"csv", SourceFormat::csv}, {"json", SourceFormat::json}})
      .type_name("FORMAT");
}

}  // namespace kw::tool
