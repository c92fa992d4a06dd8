// clsDataEdtUtils: what the fields of a data-entry form need.
#pragma once

#include <cstdint>
#include <string_view>

#include "kwutils/boolean.h"
#include "kwutils/clsStringUtil.h"
#include "kwutils/object.h"
#include "kwutils/string.h"
#include "kwutils/variant.h"

namespace kw {

// Filters for the keys typed into text boxes that take numbers, and small services for forms and
// controls. Controls and forms are the caller's objects, reached by name. A text box is an object
// that answers to Text, SelStart and SelLength and is no list (does not answer to List or AddItem);
// a form is one that answers to WindowState, ScaleMode and line. What reading, writing or calling a
// caller's object raises reaches the caller.
//
//   kw::clsDataEdtUtils entry;
//   std::int16_t key = u'.';
//   entry.CheckInteger(key, 0, u"12", 10, 0);  // key is 0: rejected
//
// Where the text of a method names no error, it raises none of its own.
class clsDataEdtUtils {
 public:
  // Sets `KeyAscii`, the code of a typed character, to 0 unless a text box for whole numbers takes
  // it: a digit, ":", ";", backspace (8) or, when `Positive` is 0 and the text `tmp` has none yet,
  // "-". Only backspace is taken when `tmp` has `MaxTextLength` characters or more, unless the
  // length `SelText` of what is selected is not 0. A "-" is taken at any place: CheckRealChange
  // moves it to the front.
  void CheckInteger(std::int16_t& KeyAscii, const std::int16_t& Positive, const String& tmp,
                    const std::int16_t& MaxTextLength, const std::int16_t& SelText) const;

  // As CheckInteger, but takes a "." too when `tmp` has none yet.
  //
  //   key = u'.';
  //   entry.CheckReal(key, 0, u"12", 10, 0);   // key is 46: taken
  //   entry.CheckReal(key, 0, u"1.2", 10, 0);  // key is 0: the second one
  void CheckReal(std::int16_t& KeyAscii, const std::int16_t& Positive, const String& tmp,
                 const std::int16_t& MaxTextLength, const std::int16_t& SelText) const;

  // `tmp` as it should stand in the box after a change: its first "-" at the front ("12-5" gives
  // "-125"; the blanks around such a text go too), and one leading zero less unless a "." follows
  // it ("007" gives "07", "-05" gives "-5"). "0" and "-0" stay.
  //
  //   entry.CheckRealChange(u"12-5");  // u"-125"
  //   entry.CheckRealChange(u"007");   // u"07"
  String CheckRealChange(std::u16string_view tmp) const;

  // Selects the whole text of the text box `ctlName`: sets SelStart to 0 and SelLength to the
  // number of characters. The focus does not move. Any other object is left alone.
  //
  //   entry.FocusMe(box);
  //   box.get(u"SelLength").to_int32();  // 2 for a box that holds 12
  void FocusMe(const Object& ctlName) const;

  // Whether the screen is `pixelWidth` by `pixelHeight` pixels of 15 twips each, whatever the
  // display's real density. Error 6 (overflow) when 15 times a number does not fit 32 bits.
  //
  //   entry.CheckRez(1024, 768);  // true on a screen of 15360 by 11520 twips
  Boolean CheckRez(const std::int32_t& pixelWidth, const std::int32_t& pixelHeight) const;

  // Paints the form `vForm` from bright blue at the top to black at the bottom: sets DrawStyle to
  // 6, DrawMode to 13, ScaleMode to 3, DrawWidth to 2 and ScaleHeight to 256, then calls line 256
  // times with flags, X1, Y1, X2, Y2 and colour. Any other object is left alone.
  //
  //   entry.Dither(form);
  //   form.get(u"DrawMode").to_int32();  // 13
  void Dither(const Object& vForm) const;

  // Steps the whole number in the text box `ctlName` for the key code `KeyCode`: page up (33) adds
  // 10, page down (34) takes 10, plus (107) adds 1, minus (109) takes 1. The text becomes what
  // NumStr of clsStringUtil gives; the number is the one that the text begins with, rounded, halves
  // to the even neighbour, or 0. With any key, an empty text becomes "1". `Shift` does not matter.
  // An object that is no text box is left alone.
  // Error 6 (overflow) when the number, before or after the step, does not fit 32 bits.
  //
  //   entry.IncreDecreInteger(box, 33, 0);
  //   box.get(u"Text").text();  // u" 22" for a box that held 12
  void IncreDecreInteger(const Object& ctlName, const std::int16_t& KeyCode,
                         const std::int16_t& Shift) const;

  // `KeyIn`, the code of a typed character, when `ValidateString` holds that character in upper or
  // lower case, or when it is backspace (8) and `Editable` is exactly true; else 0. Codes outside 0
  // to 255 give 0.
  //
  //   entry.ValiText(u'n', u"YN", true);  // 110: kept as it was typed
  //   entry.ValiText(u'x', u"YN", true);  // 0
  std::int16_t ValiText(const std::int16_t& KeyIn, const String& ValidateString,
                        const Boolean& Editable) const;

  // The Index of the first member of a group of controls whose Value is true; 0 when there is none,
  // which looks like a member with Index 0. Error 13 (type mismatch) for what is no object, 438 for
  // one that cannot be enumerated or whose members have no Value.
  //
  //   entry.OptionTrueIs(options);  // 2 where the member with Index 2 is chosen
  std::int16_t OptionTrueIs(const Variant& OptionArrayName) const;

 private:
  clsStringUtil StringHelper;
};

}  // namespace kw
