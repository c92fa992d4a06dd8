#include "desktop/option_group.h"

#include <oleauto.h>

#include <array>

#include "desktop/option_walk.h"

namespace {

enum : DISPID { kValue = DISPID_VALUE, kIndex = 1, kCount = 2 };

constexpr std::array<Member, 2> kButtonMembers = {{{L"Value", kValue}, {L"Index", kIndex}}};
constexpr std::array<Member, 2> kGroupMembers = {
    {{L"Count", kCount}, {L"_NewEnum", DISPID_NEWENUM}}};

}  // namespace

OptionButton::OptionButton(HWND button, LONG index) noexcept
    : DispatchObject(kButtonMembers), button_(button), index_(index) {}

HRESULT OptionButton::get(DISPID member, VARIANT& value) {
  if (member == kIndex) return put_number(value, index_);
  if (member != kValue) return DISP_E_MEMBERNOTFOUND;
  V_VT(&value) = VT_BOOL;
  const bool chosen = SendMessageW(button_, BM_GETCHECK, 0, 0) == BST_CHECKED;
  V_BOOL(&value) = chosen ? VARIANT_TRUE : VARIANT_FALSE;
  return S_OK;
}

OptionGroup::OptionGroup(const std::vector<HWND>& buttons) : DispatchObject(kGroupMembers) {
  for (const HWND button : buttons)
    buttons_.emplace_back(new OptionButton(button, static_cast<LONG>(buttons_.size())));
}

HRESULT OptionGroup::get(DISPID member, VARIANT& value) {
  if (member == kCount) return put_number(value, static_cast<LONG>(buttons_.size()));
  if (member != DISPID_NEWENUM) return DISP_E_MEMBERNOTFOUND;
  std::vector<IDispatch*> members;
  for (const auto& button : buttons_) members.push_back(button.get());
  V_VT(&value) = VT_UNKNOWN;
  V_UNKNOWN(&value) = new OptionWalk(members);
  return S_OK;
}
