// clsParse: a scanner for the notation of entity files, on texts in memory.
//
// The notation, in short: words are separated by blanks (character 32 only); a word that begins
// with an apostrophe or a double quote runs to the next one of its kind, blanks included; a keyword
// is a word whose value is the next one; lines end with CR LF.
//
//   kw::clsParse parse;
//   kw::String list = u"id 'B 2' nm 'Outlet'";
//   parse.ParseList(list);      // u"id"; list is u"'B 2' nm 'Outlet'"
//   parse.ParseList(list);      // u"B 2"
//   parse.ParseListPlus(list);  // u"nm"
//   parse.ParseListPlus(list);  // u"'Outlet'"; list is u""
#pragma once

#include <cstdint>
#include <string_view>

#include "kwutils/array.h"
#include "kwutils/collection.h"
#include "kwutils/string.h"
#include "kwutils/variant.h"

namespace kw {

// Positions, token and field numbers count from 1; comparisons are exact unless a method says
// otherwise. The same variable may be given for several parameters. A method whose text names no
// error raises none but 7 (out of memory).
class clsParse {
 public:
  // Lists and fields.

  // Takes the first item off `Buf` and returns it trimmed, without its quotes. Leading blanks of
  // `Buf`, then one comma, are skipped before the item; it ends before the next `Seperator` or,
  // quoted, with the closing quote; blanks behind that go too. `Seperator` left out or "" is one
  // blank; else its leading blanks do not count, unless it consists of blanks alone. A value that
  // has no text form counts as left out.
  //
  // After a quoted item as many characters are skipped as the separator has, the closing quote
  // included: with a one-character separator the separator itself stays, for the next call to skip
  // if it is a comma or a blank. A quote that is never closed gives "" and is all that is taken
  // off. Raises no error.
  String ParseList(String& Buf, const Variant& Seperator = Variant::missing()) const;

  // The same; a quoted item is returned in its quotes: u"'a b'". Raises no error.
  String ParseListPlus(String& Buf, const Variant& Seperator = Variant::missing()) const;

  // Cuts `Buf` into items as ParseList does and returns their number. `Fields` is made new, with
  // the items from element 1 on and their number as text in element 0: u"a b" gives u"2", u"a",
  // u"b". Error 10 when `Fields` is fixed or locked.
  //
  //   kw::Array<kw::String> fields;
  //   parse.ParseFields(u"a;'b;c'", u";", fields);  // 2
  //   fields.at(0);                                 // u"2"
  //   fields.at(2);                                 // u"b;c"
  std::int32_t ParseFields(std::u16string_view Buf, const String& Separator,
                           Array<String>& Fields) const;

  // The field number `ix` of `Buf`, cut at every `Sep` and neither trimmed nor unquoted; "" when
  // there are not so many, and when `Sep` is "". Errors: 5 for a number below 1, 13 when `ix` is no
  // number, 6 when it is none of 32 bits.
  //
  //   parse.ParseString(u"a,, c", u",", kw::Variant(3));  // u" c"
  //   parse.ParseString(u"a,, c", u",", kw::Variant(4));  // u""
  String ParseString(std::u16string_view Buf, const String& Sep, Variant ix) const;

  // Tokens.

  // The token number `ScanToTk` of `Buf`, trimmed and without its quotes; 1 when left out. "" when
  // there are not so many tokens, when a quote before its end is never closed, and for a value that
  // is no number from 1 on. Tokens are read like ParseList's items with one blank. Raises no error.
  //
  //   parse.ParseToken(u"id 'B 2'", kw::Variant(2));  // u"B 2"
  String ParseToken(std::u16string_view Buf, const Variant& ScanToTk = Variant::missing()) const;

  // Reads tokens into `tkarray` from element 1 on and counts them in `numTk`: up to number
  // `ScanToTk` (below 1: all), or to a quote that is never closed. A scan that gets to the end of
  // `Buf` reads one further, empty token and counts it, which callers rely on: u"a b" gives 3.
  // Returns 0.
  //
  // The array grows to bounds 0 to `numTk` where it is smaller, and keeps its other elements. Where
  // it cannot grow (fixed, locked, a lower bound that is not 0) the tokens that fit are stored and
  // all are counted. Raises no error.
  //
  //   kw::Array<kw::String> tokens;
  //   std::int32_t count = 0;
  //   parse.ParseTokenArray(u"a 'b c' d", 2, tokens, count);  // 0; count is 2
  //   tokens.at(2);                                           // u"b c"
  std::int32_t ParseTokenArray(std::u16string_view Buf, const std::int32_t& ScanToTk,
                               Array<String>& tkarray, std::int32_t& numTk) const;

  // Takes the first line off `Buf` and returns it without its end, untrimmed. A line ends at a CR;
  // the blanks and then the one LF that follow it go as well. A lone LF ends no line. Raises no
  // error.
  //
  //   kw::String lines = u"one\r\n two";
  //   parse.ParseRecord(lines);  // u"one"; lines is u" two"
  String ParseRecord(String& Buf) const;

  // The value that follows the keyword `Token` on the first line of `Buf`; "" when it does not
  // stand there as a word. A place that an odd number of apostrophes precedes lies in quoted text
  // and does not count. With `numTk` above 0, `tkarray` is made new with bounds 0 to `numTk` and
  // takes the `numTk` tokens that follow the keyword, from element 1 on; element 1 is returned.
  // Raises no error.
  //
  //   kw::Array<kw::String> values;
  //   parse.ParseValuewithTokenandCheck(u"nm 'x id y' id 7", u"id", values, 0);  // u"7"
  //   parse.ParseValuewithTokenandCheck(u"xy 1.5 2.5", u"xy", values, 2);        // u"1.5"
  //   values.at(2);                                                              // u"2.5"
  String ParseValuewithTokenandCheck(std::u16string_view Buf, const String& Token,
                                     Array<String>& tkarray, std::int32_t numTk) const;

  // Structures: they begin with a word in upper case and end with it in lower case.

  // The words of the first sub-entity `Token` (any case) of `Entity`, quotes kept, one blank
  // between them. "" when there is none or its closing word occurs nowhere in `Entity`; to the end
  // of `Entity` when that occurs, but not as a word. Line ends separate words here.
  //
  //   parse.ParseSubEntity(u"NODE a 'b c' d node", u"node");  // u"a 'b c' d"
  String ParseSubEntity(std::u16string_view Entity, std::u16string_view Token) const;

  // Replaces `colBuffer` by a new collection of the texts of all sub-entities `Token`, without
  // keys, and returns their number. A last one that is not closed is left out.
  //
  //   kw::Collection parts;
  //   parse.ParseSubEntitiesIntoColl(u"X a x X 'b c' x", u"x", parts);  // 2
  //   parts.item(2).text();                                             // u"'b c'"
  std::int32_t ParseSubEntitiesIntoColl(std::u16string_view Entity, std::u16string_view Token,
                                        Collection& colBuffer) const;

  // Replaces `collList` by a new collection of the words between `StartToken`, exactly as given,
  // and its lower-case form, without quotes and keys, and returns their number. What stands in
  // `Entity` up to the closing word is taken off; what follows it on its line stays, with CR LF.
  // Without the closing word in `Entity` nothing is read.
  //
  //   kw::String entity = u"LST 'p q' r lst rest";
  //   kw::Collection words;
  //   parse.ParseTokenListIntoColl(entity, u"LST", words);  // 2; entity is u"rest\r\n"
  //   words.item(1).text();                                 // u"p q"
  std::int32_t ParseTokenListIntoColl(String& Entity, std::u16string_view StartToken,
                                      Collection& collList) const;

  // Rebuilds `Entity` with `replacestring` for the value after each keyword `Token` (any case,
  // blanks around it ignored): items with one blank after each, quotes kept. Line ends separate
  // nothing here. `Entity` is empty afterwards.
  //
  //   entity = u"id 3 nm 'old'";
  //   parse.ReplaceEntity(entity, u"NM", u"'new'");  // u"id 3 nm 'new' "; entity is u""
  String ReplaceEntity(String& Entity, const String& Token, const String& replacestring) const;

  // Tables.

  // Takes the first table off `Buf`, with all that precedes it, and returns its text as it stands:
  // from the line after the one that begins with "TBLE" to "tble", less one CR LF at its end.
  // Without a "TBLE" line all of `Buf` is taken off; without "tble", the line and the three
  // characters that follow it, which callers rely on.
  //
  //   kw::String table = u"head\r\nTBLE\r\n1 2 <\r\ntble tail";
  //   parse.ParseTable(table);  // u"1 2 <"; table is u" tail"
  String ParseTable(String& Buf) const;

  // Takes the first table off `Entity`, with all that precedes it, and stores its rows: each is its
  // words without quotes and one blank after each, then u"< " and CR LF. What follows "tble" on its
  // line stays in `Entity`, with CR LF. Rows are numbered on from `numRows`, which callers set to 0
  // before; `numRows` and the result are the number of the last row. `Table` is made new, with
  // bounds 1 to `numRows`. Without "tble" in `Entity` nothing is taken off, `numRows` and the
  // result are 0, and `Table` has one empty element.
  //
  // Errors: 9 when the table has no rows and `numRows` is below 1, and when rows cannot be numbered
  // on from it (it is negative or far above the number of rows); 10 when `Table` is fixed or
  // locked.
  //
  //   kw::String levels = u"TBLE 1 'a b' < 3 4 < tble";
  //   kw::Array<kw::String> rows;
  //   std::int32_t last = 0;
  //   parse.ParseTableList(levels, rows, last);  // 2; last is 2
  //   rows.at(1);                                // u"1 a b < \r\n"
  std::int32_t ParseTableList(String& Entity, Array<String>& Table, std::int32_t& numRows) const;

 private:
  std::int32_t table_growth_step_ = 5000;  // rows by which ParseTableList lets its array grow
};

}  // namespace kw
