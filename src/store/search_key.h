// The text by which a writer knows the records that it may have to change.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kw::store {

class SearchKey {
 public:
  // A key that the code page lacks stands in no record.
  explicit SearchKey(std::u16string_view key);

  // Whether the record holds the key, to the letter. An empty key stands in every record but the
  // empty one.
  bool in(std::string_view record) const noexcept;

  // The key without the blanks around it; every record with the key holds it. Empty when that says
  // nothing.
  std::string_view core() const noexcept { return core_; }
  // Whether a record may hold it at all.
  bool possible() const noexcept { return in_page_; }

 private:
  // Blanks are the most frequent characters of all, so those around the key are looked at last.
  std::string core_;
  bool in_page_;
  std::size_t blanks_before_ = 0;
  std::size_t blanks_behind_ = 0;
};

// The key of the records of an entity: the type word for no identifier, else the item
// " id 'identifier' " with its blanks.
std::u16string identifier_key(std::u16string_view id, std::u16string_view type);
// The same, but an identifier with an apostrophe is the key as it stands.
std::u16string identifier_or_literal_key(std::u16string_view id, std::u16string_view type);

}  // namespace kw::store
