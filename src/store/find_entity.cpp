#include "store/find_entity.h"

#include "store/candidate.h"
#include "store/gathering.h"
#include "store/scan.h"
#include "store/text.h"

namespace kw::store {

namespace {

template <class Keeper>
String gathered(Scan& scan, std::string_view record) {
  EntityText text;
  Keeper keeper(text, scan.closing());
  gather(scan.records, record, scan.closing(), keeper);
  return text_of(text.view());
}

void go_to(RecordReader& records, std::int32_t position) {
  try {
    records.seek(std::int64_t{position} - 1);
  } catch (const Error&) {  // the search then begins at the beginning
  }
}

}  // namespace

String find_entity(std::u16string_view file, std::u16string_view token, const ItemSearch& item,
                   std::optional<std::int32_t> position) {
  Scan scan(file, TypeWord::of_token(token));
  if (position) go_to(scan.records, *position);
  const ClosingWord& closing = scan.closing();
  std::string_view record;
  const auto is_unwanted = [&](const char* line) { return item.surely_differs(line); };
  while (scan.walk.next_but(record, is_unwanted)) {
    if (record.empty()) record = scan.records.next();
    const bool closes = closing.closes(record);
    if (item.matches(closes ? closing.without(record) : record))
      return gathered<WholeText>(scan, record);
    if (!closes) scan.walk.pass_rest(record);
  }
  return String();
}

String first_entity(std::u16string_view file, std::u16string_view token) {
  Scan scan(file, TypeWord::of_token(token));
  std::string_view record;
  if (!scan.walk.next(record)) return String();
  return gathered<WholeText>(scan, record);
}

String entity_without_table(std::u16string_view file, std::u16string_view token,
                            std::u16string_view id) {
  Scan scan(file, TypeWord::of_token(token));
  std::string_view record;
  if (!scan.walk.next_candidate(record, CandidateTest(token, id))) return String();
  return gathered<TextUpToTable>(scan, record);
}

}  // namespace kw::store
