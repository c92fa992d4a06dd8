#include "store/entity_reader.h"

#include "base/case_map.h"
#include "base/find_text.h"

namespace kw::store {

namespace {

// Whether the first letters of the closing word may be the last ones of a "tble": such an entity
// cannot be gathered, which shows in the closing record only.
bool may_overlap_table_closer(std::u16string_view type) {
  constexpr std::u16string_view kCloser = u"tble";
  const std::u16string closing = lower(type);
  if (find_text(std::u16string_view(closing), kCloser) != kNotFound) return true;
  for (std::size_t first = 1; first < kCloser.size(); ++first)
    if (closing.starts_with(kCloser.substr(first))) return true;
  return false;
}

}  // namespace

EntityReader::EntityReader(std::u16string_view file, std::u16string_view token, Tables tables,
                           SixLetters header)
    : scan_(file, TypeWord::of_token(token), header),
      tables_(tables),
      must_gather_(tables == Tables::leave_out && may_overlap_table_closer(scan_.type.text())) {}

bool EntityReader::next() {
  pass_rest();
  if (!scan_.walk.next(record_)) return false;
  if (record_.empty()) record_ = scan_.records.next();
  closes_ = scan_.closing().closes(record_);
  gathered_ = false;
  if (must_gather_) text();
  return true;
}

void EntityReader::pass_rest() {
  if (!gathered_ && !closes_) scan_.walk.pass_rest(record_);
}

std::string_view EntityReader::text() {
  if (gathered_) return text_.view();
  text_.clear();
  gathered_ = true;
  if (tables_ == Tables::keep) {
    WholeText keeper(text_, scan_.closing());
    gather(scan_.records, record_, scan_.closing(), keeper);
  } else {
    TextWithoutTable keeper(text_, scan_.closing());
    gather(scan_.records, record_, scan_.closing(), keeper);
  }
  return text_.view();
}

std::string_view EntityReader::identifier() {
  if (!gathered_) {
    const auto id = leading_identifier(closes_ ? scan_.closing().without(record_) : record_);
    const bool cut = tables_ == Tables::leave_out && !closes_;
    if (id && !(cut && find_text(*id, kTableOpener) != kNotFound)) return *id;
  }
  return identifier_of(text());
}

}  // namespace kw::store
