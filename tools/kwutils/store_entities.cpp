#include "tool/store_entities.h"

#include "base/unicode.h"
#include "parse/token.h"
#include "platform/memory_files.h"
#include "tool/failure.h"

namespace kw::tool {
namespace {

using View = std::u16string_view;

Collection wanted(const std::vector<NewEntity>& entities, const Collection& old, Stored& stored) {
  const Collection texts = Collection::create();
  for (std::size_t i = 0; i < entities.size(); ++i) {
    const bool there = old.holds_text(entities[i].id);
    if (there && !begins_with_identifier(text_under(old, entities[i].id))) {
      stored.conflicts.push_back({i,
                                  "the file holds this identifier in an entity that does not "
                                  "begin with it and cannot be replaced"});
      continue;
    }
    ++(there ? stored.replaced : stored.added);
    texts.add(Variant(String(entities[i].text)), entities[i].id);
  }
  return texts;
}

void write_all(Rewriting& rewriting, const EntityFile& file, Collection& texts) {
  String name = file.name();
  if (clsFileReadWrite().WriteEntitiesFromCollection(name, file.token(), texts)) return;
  fail("cannot rewrite " + in_quotes(file.path) + ": " +
       rewriting.failure("its content cannot be handled"));
}

bool is_read_back(const NewEntity& entity, const String& found) {
  return entity.exact ? found.view() == entity.text + u" " : !found.empty();
}

bool is_conflict(const Stored& stored, std::size_t position) {
  for (const Conflict& conflict : stored.conflicts)
    if (conflict.position == position) return true;
  return false;
}

void check_read_back(const EntityFile& file, const std::vector<NewEntity>& entities,
                     const Stored& stored) {
  const Collection found = read_entities(file);
  for (std::size_t i = 0; i < entities.size(); ++i)
    if (!is_conflict(stored, i) && !is_read_back(entities[i], text_under(found, entities[i].id)))
      fail(file.type + " " + to_utf8(entities[i].id) + " in " + in_quotes(file.path) +
           " is not read back as it was written");
}

}  // namespace

Collection read_entities(const EntityFile& file) {
  Collection entities;
  if (!platform::files().exists(file.name())) return Collection::create();
  const bool whole = clsFileReadWrite().GetEntitiesIntoCollWithKey(file.name(), file.token(),
                                                                   entities, Boolean(true));
  if (!whole) fail("cannot read the entities of " + file.type + " in " + in_quotes(file.path));
  return entities;
}

String text_under(const Collection& entities, View id) {
  return entities.holds_text(id) ? entities.item(id).text() : String();
}

bool begins_with_identifier(View entity) { return parse::token_at(entity, 1) == u"id"; }

Stored store_entities(Rewriting& rewriting, const EntityFile& file,
                      const std::vector<NewEntity>& entities) {
  Stored stored;
  const Collection old = read_entities(file);
  Collection texts = wanted(entities, old, stored);
  if (texts.count() == 0) return stored;
  write_all(rewriting, file, texts);
  check_read_back(file, entities, stored);
  return stored;
}

void check_entity_text(const EntityFile& file, View id, View text) {
  constexpr View kFile = u"check.ent";
  platform::MemoryFiles memory;
  const platform::ScopedFileService scope(memory);
  // Between two others: what stands behind it must still be found.
  memory.put(kFile, "KWBEFORE id '1' kwbefore\r\n");
  const clsFileReadWrite store;
  String name(kFile);
  store.WriteEntity(name, file.token(), u"", String(text));
  store.WriteEntity(name, u"KWBEHIND", u"1", u"id '1'");
  const String quoted_id = String::concat(View(u"id '"), id, View(u"'"));
  if (store.GetEntity(name, file.token(), quoted_id).empty() ||
      store.GetEntity(name, u"KWBEHIND", u"1").empty())
    fail_usage("the text cannot stand as one entity " + file.type + " " + to_utf8(id));
}

}  // namespace kw::tool
