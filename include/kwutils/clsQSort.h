// clsQSort: quicksorts of arrays of numbers and strings.
#pragma once

#include <cstdint>

#include "kwutils/array.h"
#include "kwutils/boolean.h"
#include "kwutils/string.h"

namespace kw {

// Thirty methods, one family. The first letter tells the element type: d double, f single, i 16-bit
// integer, l 32-bit integer, s string.
//
//   clsQSort sort;
//   auto values = kw::Array<double>::of(0, {3, 1, 2});
//   kw::Array<std::int32_t> order;
//   sort.dQSortIndex(values, order);  // true; order holds 1, 2, 0, values are as they were
//   sort.dQSort(values);              // true; values holds 1, 2, 3
//
// The sorts are not stable, but where they leave equal elements is a promise: every range is split
// around the value in its middle (the sum of its bounds divided by 2, rounded toward zero), both
// scans stop at elements equal to that value and swap them, the smaller side is sorted first. An
// array of equal elements has its order array changed. NaN compares neither below nor above
// anything and splits an array wherever it is met.
//
// Strings compare by code unit (compare method 0) or as text, without regard to case (1). A string
// that was never set is "". Sorting moves strings and copies none.
//
// A sort uses working memory in proportion to the array; where there is none, it works in place.
// The Index entry points need memory for a copy of the values and answer false without it.
class clsQSort {
 public:
  // --- Entry points: all errors answered by false
  //
  // True when the array was sorted, in place, ascending or, with `bDescending`, descending. False
  // after any error: the array was never dimensioned or has no elements, the sum of its bounds
  // exceeds 32 bits, the compare method is neither 0 nor 1. The array may then be partly sorted.
  //
  // The Index methods leave the values as they are and make `lNewOrder` new, with the bounds of the
  // values: element k is the index of the value that comes k-th. They also fail, and leave
  // `lNewOrder` unchanged, when that is fixed or locked.
  //
  //   kw::Array<kw::String> names;
  //   names.redim(1, 2);
  //   names.at(1) = u"a";
  //   names.at(2) = u"B";
  //   sort.sQSort(names, false, 0);          // true; names holds B, a: by code unit
  //   sort.sQSort(names);                    // true; names holds a, B: as text
  //   sort.sQSortIndex(names, order, true);  // true; order holds 2, 1: descending

  Boolean dQSort(Array<double>& dValue, const Boolean& bDescending = false) const;
  Boolean dQSortIndex(const Array<double>& dValue, Array<std::int32_t>& lNewOrder,
                      const Boolean& bDescending = false) const;
  Boolean fQSort(Array<float>& fValue, const Boolean& bDescending = false) const;
  Boolean fQSortIndex(const Array<float>& fValue, Array<std::int32_t>& lNewOrder,
                      const Boolean& bDescending = false) const;
  Boolean iQSort(Array<std::int16_t>& iValue, const Boolean& bDescending = false) const;
  Boolean iQSortIndex(const Array<std::int16_t>& iValue, Array<std::int32_t>& lNewOrder,
                      const Boolean& bDescending = false) const;
  Boolean lQSort(Array<std::int32_t>& lValue, const Boolean& bDescending = false) const;
  Boolean lQSortIndex(const Array<std::int32_t>& lValue, Array<std::int32_t>& lNewOrder,
                      const Boolean& bDescending = false) const;
  Boolean sQSort(Array<String>& sValue, const Boolean& bDescending = false,
                 const std::int32_t& cmCompareMethod = 1) const;
  Boolean sQSortIndex(const Array<String>& sValue, Array<std::int32_t>& lNewOrder,
                      const Boolean& bDescending = false,
                      const std::int32_t& cmCompareMethod = 1) const;

  // --- The sorts themselves: errors reach the caller
  //
  // Asc sorts ascending, Des descending. The Index methods swap the elements of `lngNewOrder` along
  // with the values; they neither dimension nor fill it. One that holds its own indexes holds at k,
  // afterwards, the index that the value at k came from.
  //
  // Errors: 9 (subscript) when the values were never dimensioned or are none, or when the sort
  // would swap an element that `lngNewOrder` does not have; 6 (overflow) when the bounds of a range
  // have no 32-bit sum; 5 (invalid argument) for a compare method other than 0 and 1. What was
  // swapped before an error stays so; at the swap that fails, the values are swapped already.
  //
  //   auto levels = kw::Array<std::int32_t>::of(1, {20, 30, 10});
  //   auto places = kw::Array<std::int32_t>::of(1, {1, 2, 3});
  //   sort.lQSortNRAscIndex(levels, places);
  //   // levels holds 10, 20, 30; places holds 3, 1, 2
  //   sort.lQSortNRDes(levels);
  //   // levels holds 30, 20, 10

  void dQSortNRAsc(Array<double>& dblValues) const;
  void dQSortNRDes(Array<double>& dblValues) const;
  void dQSortNRAscIndex(Array<double>& dblValues, Array<std::int32_t>& lngNewOrder) const;
  void dQSortNRDesIndex(Array<double>& dblValues, Array<std::int32_t>& lngNewOrder) const;
  void fQSortNRAsc(Array<float>& sngValues) const;
  void fQSortNRDes(Array<float>& sngValues) const;
  void fQSortNRAscIndex(Array<float>& sngValues, Array<std::int32_t>& lngNewOrder) const;
  void fQSortNRDesIndex(Array<float>& sngValues, Array<std::int32_t>& lngNewOrder) const;
  void iQSortNRAsc(Array<std::int16_t>& intValues) const;
  void iQSortNRDes(Array<std::int16_t>& intValues) const;
  void iQSortNRAscIndex(Array<std::int16_t>& intValues, Array<std::int32_t>& lngNewOrder) const;
  void iQSortNRDesIndex(Array<std::int16_t>& intValues, Array<std::int32_t>& lngNewOrder) const;
  void lQSortNRAsc(Array<std::int32_t>& lngValues) const;
  void lQSortNRDes(Array<std::int32_t>& lngValues) const;
  void lQSortNRAscIndex(Array<std::int32_t>& lngValues, Array<std::int32_t>& lngNewOrder) const;
  void lQSortNRDesIndex(Array<std::int32_t>& lngValues, Array<std::int32_t>& lngNewOrder) const;
  void sQSortNRAsc(Array<String>& strValues, const std::int32_t& cmCompareMethod) const;
  void sQSortNRDes(Array<String>& strValues, const std::int32_t& cmCompareMethod) const;
  void sQSortNRAscIndex(Array<String>& strValues, Array<std::int32_t>& lngNewOrder,
                        const std::int32_t& cmCompareMethod) const;
  void sQSortNRDesIndex(Array<String>& strValues, Array<std::int32_t>& lngNewOrder,
                        const std::int32_t& cmCompareMethod) const;
};

}  // namespace kw
