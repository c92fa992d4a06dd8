#include "store/entity_with_table.h"

#include <utility>

#include "base/code_page.h"
#include "base/find_text.h"

namespace kw::store {

WriteEntityLine entity_line(const TypeWord& type, std::u16string_view entity) {
  return [frame = EntityFrame(type), entity](Rewrite& to) {
    to.write(frame.before);
    to.write(narrow(entity));
    to.write_line(frame.behind);
  };
}

WriteEntityLine line_with_table(const TypeWord& type, std::u16string_view entity, WriteRows rows) {
  static constexpr std::u16string_view kPlace = u"??";
  const std::size_t place = find_text(entity, kPlace);
  if (place == kNotFound) return entity_line(type, entity);
  return [frame = EntityFrame(type), entity, place, rows = std::move(rows)](Rewrite& to) {
    to.write(frame.before);
    to.write(narrow(entity.substr(0, place)));
    rows(to);
    to.write(narrow(entity.substr(place + kPlace.size())));
    to.write_line(frame.behind);
  };
}

WriteRows rows_of(const Array<String>& table) {
  return [&table](Rewrite& to) {
    const std::int32_t last = table.upper();
    std::string bytes;
    for (std::int64_t row = 1; row <= last; ++row) {
      bytes.clear();
      narrow_append(table.at(static_cast<std::int32_t>(row)), bytes);
      to.write(bytes);
    }
  };
}

WriteRows rows_of_file(std::u16string_view file) {
  return [file](Rewrite& to) {
    to.refuse_temporary(file);
    const auto input = platform::files().open_input(file);
    RecordReader records(*input);
    while (!records.at_end()) to.write_line(to.GetRecordKeepComments(records));
  };
}

}  // namespace kw::store
