#include "sort/description.h"

#include "frame/method.h"
#include "kwutils/clsQSort.h"

namespace kw {
namespace {

using frame::method;
using frame::optional;
using C = clsQSort;

std::vector<frame::Method> methods() {
  return {
      method<&C::dQSort>(0, "dQSort", {"dValue", optional("bDescending")},
                         "Sorts doubles; false after an error."),
      method<&C::dQSortIndex>(1, "dQSortIndex", {"dValue", "lNewOrder", optional("bDescending")},
                              "Finds the order of doubles; false after an error."),
      method<&C::fQSort>(2, "fQSort", {"fValue", optional("bDescending")},
                         "Sorts singles; false after an error."),
      method<&C::fQSortIndex>(3, "fQSortIndex", {"fValue", "lNewOrder", optional("bDescending")},
                              "Finds the order of singles; false after an error."),
      method<&C::iQSort>(4, "iQSort", {"iValue", optional("bDescending")},
                         "Sorts 16-bit integers; false after an error."),
      method<&C::iQSortIndex>(5, "iQSortIndex", {"iValue", "lNewOrder", optional("bDescending")},
                              "Finds the order of 16-bit integers; false after an error."),
      method<&C::lQSort>(6, "lQSort", {"lValue", optional("bDescending")},
                         "Sorts 32-bit integers; false after an error."),
      method<&C::lQSortIndex>(7, "lQSortIndex", {"lValue", "lNewOrder", optional("bDescending")},
                              "Finds the order of 32-bit integers; false after an error."),
      method<&C::sQSort>(8, "sQSort",
                         {"sValue", optional("bDescending"), optional("cmCompareMethod", 1)},
                         "Sorts strings; false after an error."),
      method<&C::sQSortIndex>(
          9, "sQSortIndex",
          {"sValue", "lNewOrder", optional("bDescending"), optional("cmCompareMethod", 1)},
          "Finds the order of strings; false after an error."),
      method<&C::dQSortNRAsc>(10, "dQSortNRAsc", {"dblValues"}, "Sorts doubles, ascending."),
      method<&C::dQSortNRDes>(11, "dQSortNRDes", {"dblValues"}, "Sorts doubles, descending."),
      method<&C::dQSortNRAscIndex>(12, "dQSortNRAscIndex", {"dblValues", "lngNewOrder"},
                                   "Sorts doubles and an order array with them, ascending."),
      method<&C::dQSortNRDesIndex>(13, "dQSortNRDesIndex", {"dblValues", "lngNewOrder"},
                                   "Sorts doubles and an order array with them, descending."),
      method<&C::fQSortNRAsc>(19, "fQSortNRAsc", {"sngValues"}, "Sorts singles, ascending."),
      method<&C::fQSortNRDes>(20, "fQSortNRDes", {"sngValues"}, "Sorts singles, descending."),
      method<&C::fQSortNRAscIndex>(21, "fQSortNRAscIndex", {"sngValues", "lngNewOrder"},
                                   "Sorts singles and an order array with them, ascending."),
      method<&C::fQSortNRDesIndex>(22, "fQSortNRDesIndex", {"sngValues", "lngNewOrder"},
                                   "Sorts singles and an order array with them, descending."),
      method<&C::iQSortNRAsc>(23, "iQSortNRAsc", {"intValues"},
                              "Sorts 16-bit integers, ascending."),
      method<&C::iQSortNRDes>(24, "iQSortNRDes", {"intValues"},
                              "Sorts 16-bit integers, descending."),
      method<&C::iQSortNRAscIndex>(
          25, "iQSortNRAscIndex", {"intValues", "lngNewOrder"},
          "Sorts 16-bit integers and an order array with them, ascending."),
      method<&C::iQSortNRDesIndex>(
          26, "iQSortNRDesIndex", {"intValues", "lngNewOrder"},
          "Sorts 16-bit integers and an order array with them, descending."),
      method<&C::lQSortNRAsc>(27, "lQSortNRAsc", {"lngValues"},
                              "Sorts 32-bit integers, ascending."),
      method<&C::lQSortNRDes>(28, "lQSortNRDes", {"lngValues"},
                              "Sorts 32-bit integers, descending."),
      method<&C::lQSortNRAscIndex>(
          29, "lQSortNRAscIndex", {"lngValues", "lngNewOrder"},
          "Sorts 32-bit integers and an order array with them, ascending."),
      method<&C::lQSortNRDesIndex>(
          30, "lQSortNRDesIndex", {"lngValues", "lngNewOrder"},
          "Sorts 32-bit integers and an order array with them, descending."),
      method<&C::sQSortNRAsc>(31, "sQSortNRAsc", {"strValues", "cmCompareMethod"},
                              "Sorts strings, ascending."),
      method<&C::sQSortNRDes>(32, "sQSortNRDes", {"strValues", "cmCompareMethod"},
                              "Sorts strings, descending."),
      method<&C::sQSortNRAscIndex>(33, "sQSortNRAscIndex",
                                   {"strValues", "lngNewOrder", "cmCompareMethod"},
                                   "Sorts strings and an order array with them, ascending."),
      method<&C::sQSortNRDesIndex>(34, "sQSortNRDesIndex",
                                   {"strValues", "lngNewOrder", "cmCompareMethod"},
                                   "Sorts strings and an order array with them, descending."),
  };
}

}  // namespace

const frame::ClassTable& clsQSort_table() {
  static const frame::ClassTable table = frame::table_of<clsQSort>({
      .name = "clsQSort",
      .class_id = {0x04C4EC54, 0xEDAB, 0x4FC0, {0xBA, 0xFA, 0x19, 0x32, 0x9F, 0x9F, 0xF6, 0xCC}},
      .interface_id =
          {0xDEC8C1FB, 0x81EA, 0x485B, {0xB7, 0x65, 0x2B, 0xA9, 0x1E, 0x8F, 0x23, 0x1D}},
      .version = {1, 0},
      .help = "Sorts arrays of numbers and strings",
      .methods = methods(),
  });
  return table;
}

}  // namespace kw
