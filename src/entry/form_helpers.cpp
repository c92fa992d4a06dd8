#include "entry/caller_objects.h"
#include "entry/whole_number.h"
#include "kwutils/clsDataEdtUtils.h"
#include "platform/screen.h"

namespace kw {
namespace {

// Whatever the display's real density.
constexpr std::int64_t kTwipsPerPixel = 15;

Variant number(int value) { return Variant(static_cast<std::int16_t>(value)); }

void prepare_for_bands(const Object& form) {
  form.put(u"DrawStyle", number(6));  // the pen stays inside
  form.put(u"DrawMode", number(13));  // the pen copies its colour
  form.put(u"ScaleMode", number(3));  // pixels
  form.put(u"DrawWidth", number(2));
  form.put(u"ScaleHeight", number(256));
}

// One band over the form's whole width: a screen width in twips is far beyond its right edge.
void draw_band(const Object& form, int band, float width) {
  constexpr int kFilledBox = 22;
  const Variant flags = number(kFilledBox);
  const Variant left(0.0f);
  const Variant top(static_cast<float>(band));
  const Variant right(width);
  const Variant bottom(static_cast<float>(band - 1));
  const Variant blue(std::int32_t{(255 - band) * 0x10000});
  form.call(u"line", {&flags, &left, &top, &right, &bottom, &blue});
}

}  // namespace

void clsDataEdtUtils::FocusMe(const Object& ctlName) const {
  if (!entry::is_text_box(ctlName)) return;
  ctlName.put(u"SelStart", Variant(std::int32_t{0}));
  const String text = ctlName.get_default().text();
  ctlName.put(u"SelLength", Variant(static_cast<std::int32_t>(text.size())));
}

Boolean clsDataEdtUtils::CheckRez(const std::int32_t& pixelWidth,
                                  const std::int32_t& pixelHeight) const {
  const double width = entry::checked_int32(pixelWidth * kTwipsPerPixel);
  const double height = entry::checked_int32(pixelHeight * kTwipsPerPixel);
  const platform::ScreenSize screen = platform::screen_size();
  return double{screen.width} == width && double{screen.height} == height;
}

void clsDataEdtUtils::Dither(const Object& vForm) const {
  if (!entry::is_form(vForm)) return;
  prepare_for_bands(vForm);
  const float width = platform::screen_size().width;
  for (int band = 0; band <= 255; ++band) draw_band(vForm, band, width);
}

std::int16_t clsDataEdtUtils::OptionTrueIs(const Variant& OptionArrayName) const {
  constexpr double kTrue = -1;
  Object::Members members = OptionArrayName.to_object().members();
  for (Variant member; members.next(member);) {
    const Object control = member.to_object();
    if (control.get(u"Value").to_double() == kTrue) return control.get(u"Index").to_int16();
  }
  return 0;
}

}  // namespace kw
