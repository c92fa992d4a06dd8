#include "server/class_list.h"

#include "config/description.h"
#include "entry/description.h"
#include "files/description.h"
#include "frame/member_names.h"
#include "parse/description.h"
#include "sort/description.h"
#include "store/description.h"
#include "system/description.h"
#include "text/description.h"

namespace kw::server {
namespace {

constexpr std::u16string_view kLibraryPrefix = u"kwUtils.";

std::u16string_view without_library(std::u16string_view name) {
  const bool prefixed = name.size() > kLibraryPrefix.size() &&
                        frame::same_name(name.substr(0, kLibraryPrefix.size()), "kwUtils.");
  return prefixed ? name.substr(kLibraryPrefix.size()) : name;
}

}  // namespace

std::span<const frame::ClassTable* const> classes() {
  static const frame::ClassTable* const tables[] = {
      &clsParse_table(),         &clsIni_table(),        &clsFileUtil_table(),
      &clsFileReadWrite_table(), &clsStringUtil_table(), &clsDataEdtUtils_table(),
      &clsAPIUtil_table(),       &clsQSort_table()};
  return tables;
}

const frame::ClassTable* find_class(const GUID& class_id) noexcept {
  for (const frame::ClassTable* table : classes())
    if (table->description().class_id == class_id) return table;
  return nullptr;
}

const frame::ClassTable* find_class(std::u16string_view name) {
  for (const frame::ClassTable* table : classes())
    if (frame::same_name(without_library(name), table->description().name)) return table;
  return nullptr;
}

}  // namespace kw::server
