#include "desktop/form_object.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/twips.h"

namespace {

enum : DISPID {
  kWindowState = 1,
  kLeft,
  kTop,
  kWidth,
  kHeight,
  kDrawStyle,
  kDrawMode,
  kScaleMode,
  kDrawWidth,
  kScaleHeight,
  kLine
};

constexpr std::array<Member, 11> kMembers = {{{L"WindowState", kWindowState},
                                              {L"Left", kLeft},
                                              {L"Top", kTop},
                                              {L"Width", kWidth},
                                              {L"Height", kHeight},
                                              {L"DrawStyle", kDrawStyle},
                                              {L"DrawMode", kDrawMode},
                                              {L"ScaleMode", kScaleMode},
                                              {L"DrawWidth", kDrawWidth},
                                              {L"ScaleHeight", kScaleHeight},
                                              {L"Line", kLine}}};

LONG state_of(HWND window) {
  constexpr LONG kNormal = 0, kMinimised = 1, kMaximised = 2;
  if (IsIconic(window)) return kMinimised;
  return IsZoomed(window) ? kMaximised : kNormal;
}

}  // namespace

FormObject::FormObject(HWND window) noexcept : DispatchObject(kMembers), window_(window) {}

HRESULT FormObject::get(DISPID member, VARIANT& value) {
  RECT place{};
  GetWindowRect(window_, &place);
  switch (member) {
    case kWindowState:
      return put_number(value, state_of(window_));
    case kLeft:
      return put_number(value, twips_from_pixels(place.left));
    case kTop:
      return put_number(value, twips_from_pixels(place.top));
    case kWidth:
      return put_number(value, twips_from_pixels(place.right - place.left));
    case kHeight:
      return put_number(value, twips_from_pixels(place.bottom - place.top));
    default:
      return DISP_E_MEMBERNOTFOUND;
  }
}

HRESULT FormObject::put(DISPID member, VARIANT& value) {
  switch (member) {
    case kDrawStyle:
      return to_number(value, draw_style_);
    case kDrawMode:
      return to_number(value, draw_mode_);
    case kScaleMode:
      return to_number(value, scale_mode_);
    case kDrawWidth:
      return to_number(value, draw_width_);
    case kScaleHeight:
      return to_real(value, scale_height_);
    default:
      return DISP_E_MEMBERNOTFOUND;
  }
}

HRESULT FormObject::call(DISPID member, std::span<VARIANT> arguments) {
  if (member != kLine) return DISP_E_MEMBERNOTFOUND;
  return arguments.size() == 6 ? draw_box(arguments) : DISP_E_BADPARAMCOUNT;
}

// flags, x1, y1, x2, y2, colour; the last one comes first.
HRESULT FormObject::draw_box(std::span<VARIANT> arguments) {
  constexpr LONG kFilledBox = 22;  // this form draws nothing else
  LONG flags = 0, colour = 0;
  std::array<double, 4> corners{};
  HRESULT answer = to_number(arguments[5], flags);
  for (std::size_t i = 0; i < corners.size() && answer == S_OK; ++i)
    answer = to_real(arguments[4 - i], corners[i]);
  if (answer == S_OK) answer = to_number(arguments[0], colour);
  if (answer != S_OK || flags != kFilledBox || canvas_ == nullptr)
    return answer != S_OK ? answer : E_INVALIDARG;
  const auto [x1, y1, x2, y2] = corners;
  const double scale = scale_height_ > 0 ? canvas_->height() / scale_height_ : 1;
  // The pen draws around the box.
  const auto pen = static_cast<double>(draw_width_) / 2;
  const RECT area = {static_cast<LONG>(std::floor(std::min(x1, x2) - pen)),
                     static_cast<LONG>(std::floor(std::min(y1, y2) * scale - pen)),
                     static_cast<LONG>(std::ceil(std::max(x1, x2) + pen)),
                     static_cast<LONG>(std::ceil(std::max(y1, y2) * scale + pen))};
  canvas_->fill(area, static_cast<COLORREF>(colour));
  return S_OK;
}
