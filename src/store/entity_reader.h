// The entities of one type, one after the other, as the bulk readers take them.
#pragma once

#include <optional>
#include <string_view>

#include "store/gathering.h"
#include "store/identifier.h"
#include "store/scan.h"

namespace kw::store {

enum class Tables { keep, leave_out };

class EntityReader {
 public:
  // Errors as FileService::open_input.
  EntityReader(std::u16string_view file, std::u16string_view token, Tables tables,
               SixLetters header = SixLetters::first_record);

  // Goes on to the next entity; false at the end of the file. Whatever was not read of the one
  // before is passed over.
  bool next();

  // The entity's text, gathered now. Valid until next().
  std::string_view text();
  // The entity's identifier, read from its first record where that tells it. Valid until text() or
  // next().
  std::string_view identifier();

 private:
  void pass_rest();

  Scan scan_;
  Tables tables_;
  bool must_gather_;
  std::string_view
      record_;  // the rest of the opening record, or, where that is empty, the next one
  bool closes_ = false;
  bool gathered_ = true;
  EntityText text_;
};

}  // namespace kw::store
