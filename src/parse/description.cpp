#include "parse/description.h"

#include "frame/method.h"
#include "kwutils/clsParse.h"

namespace kw {
namespace {

using frame::method;
using frame::optional;
using C = clsParse;

std::vector<frame::Method> methods() {
  return {
      method<&C::ParseList>(0, "ParseList", {"Buf", optional("Seperator")},
                            "Takes the first item off a list, without its quotes."),
      method<&C::ParseFields>(1, "ParseFields", {"Buf", "Separator", "Fields"},
                              "Splits a text into its items."),
      method<&C::ParseString>(2, "ParseString", {"Buf", "Sep", "ix"},
                              "The field of a number, between separators."),
      method<&C::ParseTokenArray>(3, "ParseTokenArray", {"Buf", "ScanToTk", "tkarray", "numTk"},
                                  "Cuts a text into its tokens."),
      method<&C::ParseToken>(4, "ParseToken", {"Buf", optional("ScanToTk")},
                             "The token of a number."),
      method<&C::ParseTable>(5, "ParseTable", {"Buf"}, "Takes the text of a table off."),
      method<&C::ParseTableList>(6, "ParseTableList", {"Entity", "Table", "numRows"},
                                 "Takes the rows of a table off."),
      method<&C::ParseRecord>(7, "ParseRecord", {"Buf"}, "Takes the first line off."),
      method<&C::ParseValuewithTokenandCheck>(8, "ParseValuewithTokenandCheck",
                                              {"Buf", "Token", "tkarray", "numTk"},
                                              "The value that follows a keyword outside quotes."),
      method<&C::ParseListPlus>(9, "ParseListPlus", {"Buf", optional("Seperator")},
                                "Takes the first item off a list, with its quotes."),
      method<&C::ReplaceEntity>(10, "ReplaceEntity", {"Entity", "Token", "replacestring"},
                                "Replaces the value that follows a keyword."),
      method<&C::ParseTokenListIntoColl>(11, "ParseTokenListIntoColl",
                                         {"Entity", "StartToken", "collList"},
                                         "Takes a list of words off into a collection."),
      method<&C::ParseSubEntity>(12, "ParseSubEntity", {"Entity", "Token"},
                                 "The text of the first sub-entity."),
      method<&C::ParseSubEntitiesIntoColl>(13, "ParseSubEntitiesIntoColl",
                                           {"Entity", "Token", "colBuffer"},
                                           "The texts of all sub-entities, as a collection."),
  };
}

}  // namespace

const frame::ClassTable& clsParse_table() {
  static const frame::ClassTable table = frame::table_of<clsParse>({
      .name = "clsParse",
      .class_id = {0x141AA2DD, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .interface_id =
          {0xE8C76283, 0x7233, 0x48E0, {0xBA, 0x4E, 0x4B, 0xF5, 0xFD, 0x09, 0x99, 0x46}},
      .version = {1, 6},
      .help = "Scans the notation of entity files held in a text",
      .earlier_versions = 6,
      .methods = methods(),
  });
  return table;
}

}  // namespace kw
