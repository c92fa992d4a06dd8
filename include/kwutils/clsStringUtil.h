// clsStringUtil: small transformations of text.
#pragma once

#include <cstdint>
#include <string_view>

#include "kwutils/string.h"

namespace kw {

// Seven operations that look at their arguments and nothing else; none changes an argument. Every
// search is exact (upper and lower case differ), positions count code units from 1.
//
//   kw::clsStringUtil util;
//   util.RemoveSpaces(u"  a b ");                 // u"ab"
//   util.ReplaceAllOccurs(u"a-b-c", u"-", u"+");  // u"a+b+c"
//   util.OutStr(u"abcabc", u"bc");                // 6
//   util.InvertString(u"abc");                    // u"cba"
//   util.StrNoNull(std::u16string(u"ab\0c", 4));  // u"ab"
//   util.ReplaceTabCharacterswithBlank(u"a\tb");  // u"a b"
//   util.NumStr(0.5f);                            // u" 0.5"
//
// Any method throws error 7 (out of memory) when its result cannot be held.
class clsStringUtil {
 public:
  // `line` without its blanks (character 32). Tabs and other white space stay.
  // Error 6 (overflow) when a blank has 32767 or more other characters before it: the position of
  // the first blank left is held in 16 bits.
  String RemoveSpaces(std::u16string_view line) const;

  // `toSearch` with the first `toReplace` replaced by `replaceBy`, over and over, until none is
  // left: what a replacement leaves together with its surroundings is replaced too. "aaa" with "b"
  // for "aa" gives "ba"; "a////b" with "/" for "//" gives "a/b". An empty `toReplace` changes
  // nothing.
  //
  // The call never returns when `replaceBy` holds `toReplace` and `toSearch` does too ("aa" for
  // "a"): it grows until memory runs out, or goes on for ever ("a" for "a"). Callers must not pass
  // such pairs. Otherwise the time is in proportion to the text read and inserted.
  String ReplaceAllOccurs(std::u16string_view toSearch, std::u16string_view toReplace,
                          std::u16string_view replaceBy) const;

  // The position of the last character of the last `sought` in `beingSearched`, -1 when there is
  // none: 6 for "bc" in "abcabc". An empty `sought` is found at the end of a text that is not
  // empty.
  std::int32_t OutStr(const String& beingSearched, const String& sought) const;

  // The characters of `s` in reverse order.
  String InvertString(const String& s) const;

  // What stands before the first NUL of `strInput`; all of it when there is none.
  // Error 6 (overflow) when the first NUL stands beyond position 32767.
  String StrNoNull(const String& strInput) const;

  // `strng` with one blank for each tab.
  // Error 6 (overflow) when a tab stands beyond position 32767.
  String ReplaceTabCharacterswithBlank(std::u16string_view strng) const;

  // One blank and `Value` as text: at most 7 significant digits, "." as decimal point in every
  // locale, a digit before it (" 0.5", " -0.5"), an exponent for very large and very small numbers
  // (" 1E+20"). Callers count on the blank, also before a minus.
  String NumStr(float Value) const;
};

}  // namespace kw
