#include <string>

#include "base/numeric_text.h"
#include "kwutils/clsIni.h"
#include "kwutils/error.h"
#include "platform/screen.h"

namespace kw {
namespace {

// The values of WindowState.
constexpr std::int32_t kNormal = 0;
constexpr std::int32_t kMaximised = 2;

// One edge of a form in per cent of the screen. Product and quotient are single precision, as every
// number of a form is; in double each is exact enough to be rounded but once.
std::u16string per_cent(const Object& form, std::u16string_view property, float screen) {
  const float edge = form.get(property).to_single();
  if (screen == 0) throw Error(ErrorNumber::division_by_zero);
  const float product = to_single(double{edge} * 100);
  return number_text(to_single(double{product} / double{screen}));
}

}  // namespace

void clsIni::WritePrivateWindowinIni(const Variant& frmForm, const String& Section,
                                     const String& IniFile) const {
  const Object form = frmForm.to_object();
  const auto write = [&](std::u16string_view key, std::u16string_view value) {
    WriteIni(Section, key, value, IniFile);
  };
  const std::int32_t state = form.get(u"WindowState").to_int32();
  if (state == kNormal) {
    const platform::ScreenSize screen = platform::screen_size();
    write(u"Left", per_cent(form, u"Left", screen.width));
    write(u"Top", per_cent(form, u"Top", screen.height));
    write(u"Width", per_cent(form, u"Width", screen.width));
    write(u"Height", per_cent(form, u"Height", screen.height));
    write(u"State", form.get(u"WindowState").text());
  } else if (state == kMaximised) {
    // Restored as a normal window that fills the screen: readers know no other state.
    write(u"Left", u"0");
    write(u"Top", u"0");
    write(u"Width", u"100");
    write(u"Height", u"100");
    write(u"State", u"0");
  }
}

void clsIni::WriteWindowInIni(const Variant& frmForm, const String& IniFile) const {
  WritePrivateWindowinIni(frmForm, u"window", IniFile);
}

}  // namespace kw
