#include "base/compare_text.h"
#include "base/unicode.h"
#include "tool/assignment.h"
#include "tool/command.h"
#include "tool/failure.h"
#include "tool/item_line.h"
#include "tool/json_writer.h"
#include "tool/notation.h"
#include "tool/read_file.h"
#include "tool/rewriting.h"
#include "tool/store_entities.h"

namespace kw::tool {
namespace {

struct PutOptions {
  EntityFile file;
  std::string id;
  std::vector<std::string> items;
  std::string text;
  RewriteOptions rewrite;
};

std::vector<Item> items_of(const PutOptions& options) {
  std::vector<Item> items = {{u"id", from_utf8(options.id)}};
  for (const std::string& assignment : options.items) {
    Item item = item_in(assignment);
    for (const Item& earlier : items)
      if (earlier.keyword == item.keyword)
        fail_usage("item " + to_utf8(item.keyword) + " is given twice");
    items.push_back(std::move(item));
  }
  return items;
}

std::u16string written_items(const PutOptions& options) {
  ItemLine line = write_items(items_of(options));
  if (!line.fault.empty()) fail_usage("cannot store " + line.fault);
  return std::move(line.text);
}

// A text that was typed ends with a line end that is no part of it.
std::string typed_text() {
  std::string text = read_standard_input();
  while (text.ends_with('\n') || text.ends_with('\r')) text.pop_back();
  return text;
}

// Line ends of a text typed here are those of the file afterwards.
std::u16string with_line_ends(std::u16string_view text) {
  std::u16string result;
  for (const char16_t unit : text) {
    if (unit == u'\n' && !result.ends_with(u'\r')) result += u'\r';
    result += unit;
  }
  return result;
}

std::u16string given_text(const PutOptions& options) {
  const std::string given = options.text == "-" ? typed_text() : options.text;
  std::u16string text = with_line_ends(from_utf8(given));
  const std::string lacking = page_fault(text);
  if (!lacking.empty()) fail_usage("cannot store the text: " + lacking);
  const std::u16string id = read_item(text, u"id");
  if (!equal_text(id, from_utf8(options.id)))
    fail_usage("the text's item id is " + in_quotes(to_utf8(id)) + ", not " +
               in_quotes(options.id));
  check_entity_text(options.file, id, text);
  return text;
}

void answer(Session& session, const PutOptions& options, const Stored& stored) {
  const char* done = stored.replaced != 0 ? "replaced" : "added";
  if (!session.json) {
    session.out << done << " " << options.file.type << " " << options.id << "\n";
    return;
  }
  JsonWriter json(session.out);
  json.begin_object();
  json.key("done").text(std::string_view(done));
  json.key("type").text(options.file.type);
  json.key("id").text(options.id);
  json.end();
}

ExitCode run_put(Session& session, const PutOptions& options) {
  check_type(options.file.type);
  const std::string fault = identifier_fault(from_utf8(options.id));
  if (!fault.empty()) fail_usage(in_quotes(options.id) + " cannot be an identifier: " + fault);
  if (options.items.empty() == options.text.empty())
    fail_usage("give the items as KEYWORD=VALUE, or the whole text with --text");
  const bool items = options.text.empty();
  const NewEntity entity = {from_utf8(options.id),
                            items ? written_items(options) : given_text(options), items};
  Rewriting rewriting = rewrite_entities(session, options.rewrite, options.file.path);
  const Stored stored =
      working_on("cannot put " + options.file.type + " " + options.id, options.file.path,
                 [&] { return store_entities(rewriting, options.file, {entity}); });
  if (!stored.conflicts.empty())
    fail("cannot put " + options.file.type + " " + options.id + " in " +
         in_quotes(options.file.path) + ": " + stored.conflicts[0].reason);
  if (options.rewrite.dry_run)
    rewriting.show_changes();
  else
    answer(session, options, stored);
  return ExitCode::done;
}

}  // namespace

void add_put(Arguments app, Session& session) {
  auto [line, options] = add_command<PutOptions>(
      app, session, "put", "Replace an entity, or add it at the end of the file",
      "kwutils put plant.ent NODE B3 \"nm=Well 'North'\" ln=120.5\n"
      "  kwutils put plant.ent NODE B3 --text \"id 'B3' nm 'Well' ln 120.5\"\n\n"
      "Values are quoted as the notation needs it. A file that is missing is made.",
      &run_put);
  add_file(line, options.file);
  line.add_option("ID", options.id, "Its identifier").required();
  line.add_option("ITEM", options.items, "Its other items").type_name("KEYWORD=VALUE");
  line.add_option("--text", options.text,
                  "Its text as it shall stand in the file; -: standard input");
  add_entity_rewrite_options(line, options.rewrite);
}

}  // namespace kw::tool
