#include "tool/exact_lookup.h"

#include "base/case_map.h"
#include "parse/text_view.h"
#include "tool/failure.h"
#include "tool/store_entities.h"

namespace kw::tool {
namespace {

[[noreturn]] void refuse(const EntityFile& file, const std::string& id, const char* why) {
  fail("cannot reach the table of " + file.type + " " + id + " in " + in_quotes(file.path) + ": " +
       why);
}

}  // namespace

ExactLookup exact_lookup(const EntityFile& file, const std::string& id, const String& entity) {
  const String type = upper(parse::trim(file.token().view()));
  if (id.empty()) return {type.copy(), type.copy()};
  if (!begins_with_identifier(entity))
    refuse(file, id, "the entity does not begin with its identifier");
  String spelling = *item_of(entity, u"id");
  // They take the first "id" of a line for the identifier, wherever it stands.
  const auto found =
      item_of(clsFileReadWrite().GetEntityWithoutTable(file.name(), type, spelling), u"id");
  if (!found || found->view() != spelling.view())
    refuse(file, id, "another entity looks like this one");
  return {type.copy(), std::move(spelling)};
}

}  // namespace kw::tool
