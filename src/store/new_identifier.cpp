#include "store/new_identifier.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/numeric_text.h"
#include "kwutils/error.h"
#include "parse/text_view.h"
#include "store/entity_reader.h"
#include "store/sought_value.h"

namespace kw::store {

namespace {

// What is asked of the identifiers of a type.
class Survey {
 public:
  explicit Survey(std::u16string_view wanted) : wanted_(u'\'' + std::u16string(wanted) + u'\'') {}

  void take(std::string_view id) {
    if (wanted_.equals(id)) taken_ = true;
    const auto number = parse_number(id);
    if (!number || too_large_) return;
    try {
      largest_ = std::max(largest_, to_int32(*number));
    } catch (const Error&) {
      too_large_ = true;
    }
  }

  bool taken() const noexcept { return taken_; }
  std::int32_t next() const {
    if (too_large_ || largest_ == INT32_MAX) throw Error(ErrorNumber::overflow);
    return largest_ == kNone ? 1 : largest_ + 1;
  }

 private:
  static constexpr std::int32_t kNone = -999;

  SoughtValue wanted_;
  bool taken_ = false;
  std::int32_t largest_ = kNone;
  bool too_large_ = false;
};

}  // namespace

String free_identifier(std::u16string_view file, std::u16string_view token,
                       std::u16string_view wanted) {
  EntityReader entities(file, token, Tables::leave_out);
  Survey survey(wanted);
  while (entities.next()) {
    const std::string_view id = entities.identifier();
    if (!id.empty()) survey.take(id);
  }
  if (!parse::trim(wanted).empty() && !survey.taken()) return String(wanted);
  return String(number_text(survey.next()));
}

}  // namespace kw::store
