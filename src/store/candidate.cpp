#include "store/candidate.h"

#include "base/code_page.h"
#include "base/find_text.h"
#include "parse/item.h"

namespace kw::store {

CandidateTest::CandidateTest(std::u16string_view token, std::u16string_view id)
    : in_page_(narrow_exact(id, id_)),
      mode_(id == token                         ? Mode::type_alone
            : find_unit(id, u'\'') != kNotFound ? Mode::literal
                                                : Mode::identifier) {}

bool CandidateTest::operator()(std::string_view record) noexcept {
  if (!in_page_) return false;
  if (mode_ == Mode::type_alone) return met_ = met_ || find_text(record, id_) != kNotFound;
  if (mode_ == Mode::literal) return find_text(record, id_) != kNotFound;
  const std::size_t keyword = find_text(record, "id");
  if (keyword == kNotFound) return false;
  record.remove_prefix(keyword + 2);
  return parse::take_item(record).text == id_;
}

}  // namespace kw::store
