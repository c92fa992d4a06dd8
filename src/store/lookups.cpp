// The methods that look one entity up.
#include <optional>
#include <string>

#include "base/find_unit.h"
#include "kwutils/clsFileReadWrite.h"
#include "kwutils/error.h"
#include "parse/text_view.h"
#include "store/find_entity.h"

namespace kw {

namespace {

// The keyword and the value, in apostrophes, that an identifier asks for. The keyword is empty
// where it names none.
struct Asked {
  explicit Asked(std::u16string_view id) {
    const std::size_t quote = find_unit(id, u'\'');
    if (quote == kNotFound) {
      value.append(u"'").append(id).append(u"'");
    } else {
      keyword = parse::trim(id.substr(0, quote));
      value = id.substr(quote);
    }
  }

  std::u16string keyword;
  std::u16string value;
};

std::optional<std::int32_t> position_in(const Variant& position) {
  if (position.is_missing()) return std::nullopt;
  try {
    return position.to_int32();
  } catch (const Error&) {  // a position that is none counts as the beginning
    return std::nullopt;
  }
}

}  // namespace

String clsFileReadWrite::FindEntity(std::u16string_view FileName, std::u16string_view recordToken,
                                    std::u16string_view ID, const Variant& itemToken,
                                    const Variant& posSeek) const {
  Asked asked(ID);
  String scratch;
  if (!itemToken.is_missing()) {
    asked.keyword = parse::trim(itemToken.text(scratch));
  } else if (asked.keyword.empty()) {
    asked.keyword = u"id";
  }
  return store::find_entity(FileName, recordToken, store::ItemSearch(asked.keyword, asked.value),
                            position_in(posSeek));
}

String clsFileReadWrite::GetEntity(const String& FileName, const String& Token,
                                   std::u16string_view ID) const {
  if (parse::trim(Token.view()) == parse::trim(ID)) return GetTokenEntity(FileName, Token);
  return FindEntity(FileName, Token, ID, Variant::missing(), Variant::missing());
}

String clsFileReadWrite::GetEntityWithTokenAndSeek(const String& FileName,
                                                   const String& recordToken,
                                                   std::u16string_view ID, const Variant& itemToken,
                                                   const Variant& posSeek) const {
  return FindEntity(FileName, recordToken, ID, itemToken, posSeek);
}

String clsFileReadWrite::GetTokenEntity(const String& FileName, const String& Token) const {
  return store::first_entity(FileName, Token);
}

String clsFileReadWrite::GetEntityWithoutTable(const String& FileName, const String& Token,
                                               std::u16string_view ID) const {
  return store::entity_without_table(FileName, Token, ID);
}

}  // namespace kw
