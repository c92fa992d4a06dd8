// The methods that write or delete one entity.
#include <cstdint>

#include "base/unicode.h"
#include "kwutils/clsFileReadWrite.h"
#include "kwutils/error.h"
#include "parse/text_view.h"
#include "platform/files.h"
#include "store/block_source.h"
#include "store/entity_with_table.h"
#include "store/replace_entity.h"
#include "store/temporary_name.h"
#include "store/trimmed_name.h"

namespace kw {

namespace {

bool is_blank(const String& text) { return parse::trim(text.view()).empty(); }

bool has_place_for_table(const String& entity) {
  return !is_blank(entity) && parse::contains<char16_t>(entity.view(), u"??");
}

// Rows that lie under the temporary file's name would be gone before they could be read.
void refuse_rows_in_temporary(std::u16string_view file, std::u16string_view rows) {
  if (platform::files().same_file(rows, store::temporary_name(parse::trim(file))))
    throw Error(ErrorNumber::permission_denied, to_utf8(rows));
}

void write_with_table(String& file, const String& token, const String& id, const String& entity,
                      const store::WriteRows& rows) {
  const bool blank = is_blank(entity);
  const auto type = store::TypeWord::of_token(token);
  const store::SearchKey key(store::identifier_key(id, type.text()));
  store::trim_name(file);
  const auto line = blank ? store::WriteEntityLine() : store::line_with_table(type, entity, rows);
  store::replace_entity(file, type, key, line);
}

}  // namespace

void clsFileReadWrite::WriteEntity(String& FileName, const String& Token, const String& ID,
                                   const String& Entity) const {
  const bool blank = is_blank(Entity);
  const auto type = store::TypeWord::of_token(Token);
  const store::SearchKey key(store::identifier_or_literal_key(ID, type.text()));
  store::trim_name(FileName);
  const auto line = blank ? store::WriteEntityLine() : store::entity_line(type, Entity);
  store::replace_entity(FileName, type, key, line);
}

void clsFileReadWrite::WriteEntitywithTable(String& FileName, const String& Token, const String& ID,
                                            const String& Entity,
                                            const Array<String>& Table) const {
  write_with_table(FileName, Token, ID, Entity, store::rows_of(Table));
}

void clsFileReadWrite::WriteEntitywithTableUsingTempFile(String& FileName, const String& Token,
                                                         const String& ID, const String& Entity,
                                                         const Array<String>& Table,
                                                         const String& TableStoredinfile,
                                                         const Boolean& isTableStoredinfile) const {
  if (isTableStoredinfile && has_place_for_table(Entity))
    refuse_rows_in_temporary(FileName, TableStoredinfile);
  write_with_table(
      FileName, Token, ID, Entity,
      isTableStoredinfile ? store::rows_of_file(TableStoredinfile) : store::rows_of(Table));
}

void clsFileReadWrite::DeleteEntity(String& FileName, const String& Token, const String& ID) const {
  WriteEntity(FileName, Token, ID, String());
}

// Callers rely on nothing but that it returns.
void clsFileReadWrite::WriteRtnFile(const String& strFile) const {
  oFileUtil.FileNameExists(strFile);
  if (strFile.empty()) return;
  try {
    const auto input = platform::files().open_input(strFile);
    store::BlockSource lines(*input);
    for (int line = 0; line < 5 && !lines.at_end(); ++line) lines.next();
  } catch (const std::exception&) {
  }
}

}  // namespace kw
