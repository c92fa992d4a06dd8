#include "store/list_search.h"

#include <string>

#include "base/case_map.h"
#include "base/code_page.h"
#include "parse/item.h"
#include "platform/events.h"
#include "store/gathering.h"
#include "store/scan.h"

namespace kw::store {

namespace {

// Goes on to the next entity, with a turn for the host after each record read. The host's function
// is called for exactly those that may open a block; the system's queue for any.
bool next_entity(Scan& scan, std::string_view& record) {
  switch (platform::turns()) {
    case platform::Turns::nobody:
      return scan.walk.next(record);
    case platform::Turns::system:
      platform::process_events();
      return scan.walk.next_but(record, [](const char*) {
        platform::process_events();
        return false;
      });
    case platform::Turns::host:
      break;
  }
  return scan.walk.next_candidate(record, [](std::string_view) {
    platform::process_events();
    return true;
  });
}

// Finds the parts of an entity in its records.
class Parts {
 public:
  Parts(std::u16string_view token, EntityLister& lister)
      : opens_(narrow_exact(token, opening_)),
        closes_(narrow_exact(lower(token), closing_)),
        lister_(lister) {}

  void begin_entity() noexcept { inside_ = false; }
  void take_record(std::string_view record) {
    while (!record.empty()) take_word(parse::take_item(record));
  }

 private:
  void take_word(const parse::Item<char>& item) {
    word_.clear();
    if (item.quote != 0) word_ += item.quote;
    word_ += item.text;
    if (item.quote != 0) word_ += item.quote;
    if (!inside_) {
      inside_ = opens_ && word_ == opening_;
      text_.clear();
    } else if (closes_ && word_ == closing_) {
      inside_ = false;
      lister_.take(text_, 0);
    } else {
      if (!text_.empty()) text_ += ' ';
      text_ += word_;
    }
  }

  std::string opening_, closing_;
  bool opens_, closes_;  // a word that the code page lacks is none
  EntityLister& lister_;
  bool inside_ = false;
  std::string word_, text_;
};

}  // namespace

void list_entities(std::u16string_view file, std::u16string_view token, EntityLister& lister) {
  Scan scan(file, TypeWord(token));
  std::string_view record;
  while (next_entity(scan, record)) {
    lister.take(record, scan.walk.position());
    scan.walk.pass_rest(record);
  }
}

void list_parts(std::u16string_view file, std::u16string_view token, std::u16string_view part_token,
                EntityLister& lister) {
  Scan scan(file, TypeWord(token));
  Parts parts(part_token, lister);
  std::string_view record;
  while (next_entity(scan, record)) {
    parts.begin_entity();
    while (!scan.closing().closes(record)) {
      parts.take_record(record);
      if (scan.records.at_end()) return;
      record = scan.records.next();
      platform::process_events();
    }
    parts.take_record(scan.closing().without(record));
  }
}

}  // namespace kw::store
