#include <algorithm>

#include "tool/command.h"
#include "tool/failure.h"
#include "tool/import_rows.h"
#include "tool/json_writer.h"
#include "tool/rewriting.h"

namespace kw::tool {
namespace {

struct ImportOptions {
  EntityFile file;
  std::string source;
  SourceFormat format = SourceFormat::automatic;
  ImportColumns columns;
  bool transliterate = false;
  bool strict = false;
  RewriteOptions rewrite;
};

std::string place_text(const RowReport& report) {
  std::string text = "row " + std::to_string(report.row);
  if (report.line != 0) text += " (line " + std::to_string(report.line) + ")";
  return text;
}

void write_reports(JsonWriter& json, const char* name, const std::vector<RowReport>& reports) {
  json.key(name);
  json.begin_lines();
  for (const RowReport& report : reports) {
    json.begin_object();
    json.key("row").number(static_cast<std::int64_t>(report.row));
    if (report.line != 0) json.key("line").number(static_cast<std::int64_t>(report.line));
    json.key("text").text(report.text);
    json.end();
  }
  json.end();
}

void answer_json(Session& session, const ImportedRows& rows, const Stored& stored) {
  JsonWriter json(session.out);
  json.begin_object();
  json.key("stored").number(static_cast<std::int64_t>(stored.added + stored.replaced));
  json.key("added").number(static_cast<std::int64_t>(stored.added));
  json.key("replaced").number(static_cast<std::int64_t>(stored.replaced));
  json.key("renamed");
  json.begin_array();
  for (const std::string& renamed : rows.renamed) json.text(renamed);
  json.end();
  write_reports(json, "transliterated", rows.transliterated);
  write_reports(json, "reported", rows.reported);
  json.end();
}

void answer(Session& session, const ImportedRows& rows, const Stored& stored) {
  if (session.json) return answer_json(session, rows, stored);
  for (const std::string& renamed : rows.renamed) session.out << renamed << "\n";
  for (const RowReport& report : rows.transliterated)
    session.out << place_text(report) << ": stored " << report.text << "\n";
  for (const RowReport& report : rows.reported)
    session.out << place_text(report) << ": not stored: " << report.text << "\n";
  session.out << std::to_string(stored.added + stored.replaced) << " stored ("
              << std::to_string(stored.replaced) << " replaced), "
              << std::to_string(rows.transliterated.size()) << " transliterated, "
              << std::to_string(rows.reported.size()) << " reported\n";
}

// Rows that the file itself refused.
void report_conflicts(const SourceTable& table, const Stored& stored, ImportedRows& rows) {
  for (const Conflict& conflict : stored.conflicts) {
    const SourceRow& row = table.rows[rows.rows[conflict.position]];
    rows.reported.push_back({row.number, row.line, conflict.reason});
    rows.transliterated.erase(
        std::remove_if(rows.transliterated.begin(), rows.transliterated.end(),
                       [&](const RowReport& report) { return report.row == row.number; }),
        rows.transliterated.end());
  }
  std::stable_sort(
      rows.reported.begin(), rows.reported.end(),
      [](const RowReport& left, const RowReport& right) { return left.row < right.row; });
}

ExitCode run_import(Session& session, const ImportOptions& options) {
  check_type(options.file.type);
  const SourceTable table = read_source(options.source, options.format);
  ImportedRows rows =
      make_entities(table, options.columns, options.transliterate, &session.progress);
  Stored stored;
  const bool refused = options.strict && !rows.reported.empty();
  Rewriting rewriting = rewrite_entities(session, options.rewrite, options.file.path);
  if (!refused) {
    stored = working_on("cannot import " + options.file.type, options.file.path,
                        [&] { return store_entities(rewriting, options.file, rows.entities); });
    report_conflicts(table, stored, rows);
  }
  if (options.rewrite.dry_run && !session.json)
    rewriting.show_changes();
  else
    answer(session, rows, stored);
  const bool nothing_stored = stored.added + stored.replaced == 0 && !rows.reported.empty();
  return nothing_stored ? ExitCode::failed : ExitCode::done;
}

}  // namespace

void add_import(Arguments app, Session& session) {
  auto [line, options] = add_command<ImportOptions>(
      app, session, "import", "Store the rows of a table as entities of a type",
      "kwutils import regions.ent REGION iso_3166-2.json --id-column code --name-column name\n\n"
      "SOURCE is CSV with a header line, or JSON: a list of objects, also as the only list in an\n"
      "object. Each row is stored or reported with its number and the reason; stored rows are "
      "read\n"
      "back. Rows whose identifier the file holds replace those entities.",
      &run_import);
  add_file(line, options.file);
  line.add_option("SOURCE", options.source, "The table; -: standard input").required();
  line.add_option("--id-column", options.columns.id, "The column of identifiers; else 'id'")
      .type_name("COLUMN");
  line.add_option("--name-column", options.columns.name, "The column of names; else 'nm', if any")
      .type_name("COLUMN");
  line.add_choice("--format", options.format, "What SOURCE is: csv or json; else told by itself",
                  {{"csv", SourceFormat::csv}, {"json", SourceFormat::json}})
      .type_name("FORMAT");
  line.add_flag("--transliterate", options.transliterate,
                "Store the nearest spelling of what cannot be stored");
  line.add_flag("--strict", options.strict, "Store nothing unless every row can be stored");
  add_entity_rewrite_options(line, options.rewrite);
}

}  // namespace kw::tool
