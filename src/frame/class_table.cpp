#include "frame/class_table.h"

#include <algorithm>

#include "frame/standard_slots.h"

namespace kw::frame {
namespace {

std::vector<std::string_view> method_names(const ClassDescription& description) {
  std::vector<std::string_view> names;
  for (const Method& method : description.methods) names.push_back(method.name);
  return names;
}

bool by_id(const Method& left, const Method& right) { return left.id < right.id; }

}  // namespace

ClassTable::ClassTable(ClassDescription of_class, Create creation, Destroy destruction)
    : description_(std::move(of_class)),
      names_(method_names(description_)),
      create_(creation),
      destroy_(destruction) {
  const auto& methods = description_.methods;
  const auto standard = standard_slots();
  slots_.assign(standard.begin(), standard.end());
  for (const Method& method : methods) slots_.push_back(reinterpret_cast<void*>(method.slot));

  first_id_ = std::min_element(methods.begin(), methods.end(), by_id)->id;
  const DISPID last = std::max_element(methods.begin(), methods.end(), by_id)->id;
  by_id_.assign(static_cast<std::size_t>(last - first_id_) + 1, nullptr);
  for (const Method& method : methods)
    by_id_[static_cast<std::size_t>(method.id - first_id_)] = &method;
}

const Method* ClassTable::method(std::u16string_view name) const noexcept {
  const std::size_t index = names_.find(name);
  return index == MemberNames::kUnknown ? nullptr : &description_.methods[index];
}

}  // namespace kw::frame
