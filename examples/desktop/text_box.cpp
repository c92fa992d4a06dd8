#include "desktop/text_box.h"

#include <array>

namespace {

// The text is what the object stands for where no member is named.
enum : DISPID { kText = DISPID_VALUE, kStart = 1, kLength = 2 };

constexpr std::array<Member, 3> kMembers = {
    {{L"Text", kText}, {L"SelStart", kStart}, {L"SelLength", kLength}}};

HRESULT put_text(HWND box, VARIANT& value) {
  VARIANT text{};
  const HRESULT answer = VariantChangeType(&text, &value, 0, VT_BSTR);
  if (answer == S_OK) SetWindowTextW(box, V_BSTR(&text));
  VariantClear(&text);
  return answer;
}

}  // namespace

TextBox::TextBox(HWND box) noexcept : DispatchObject(kMembers), box_(box) {}

HRESULT TextBox::get(DISPID member, VARIANT& value) {
  const Selection selected = selection_of(box_);
  switch (member) {
    case kText:
      V_VT(&value) = VT_BSTR;
      V_BSTR(&value) = text_of(box_).release();
      return S_OK;
    case kStart:
      return put_number(value, static_cast<LONG>(selected.start));
    case kLength:
      return put_number(value, static_cast<LONG>(selected.end - selected.start));
    default:
      return DISP_E_MEMBERNOTFOUND;
  }
}

HRESULT TextBox::put(DISPID member, VARIANT& value) {
  if (member == kText) return put_text(box_, value);
  LONG number = 0;
  const HRESULT answer = to_number(value, number);
  if (answer != S_OK) return answer;
  switch (member) {
    case kStart:
      SendMessageW(box_, EM_SETSEL, static_cast<WPARAM>(number), number);
      return S_OK;
    case kLength:
      SendMessageW(box_, EM_SETSEL, selection_of(box_).start,
                   static_cast<LPARAM>(selection_of(box_).start) + number);
      return S_OK;
    default:
      return DISP_E_MEMBERNOTFOUND;
  }
}

Selection selection_of(HWND box) {
  Selection selection{};
  SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&selection.start),
               reinterpret_cast<LPARAM>(&selection.end));
  return selection;
}

Text text_of(HWND window) {
  const int length = GetWindowTextLengthW(window);
  const BSTR text = SysAllocStringLen(nullptr, static_cast<UINT>(length));
  GetWindowTextW(window, text, length + 1);
  return Text::take(text);
}
