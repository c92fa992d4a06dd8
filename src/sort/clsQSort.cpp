#include "kwutils/clsQSort.h"

#include "sort/array_sorts.h"

namespace kw {

using sort::AsNumbers;
using sort::AsTexts;
using Order = Array<std::int32_t>;

namespace {

constexpr bool kAscending = false;
constexpr bool kDescending = true;

}  // namespace

Boolean clsQSort::dQSort(Array<double>& dValue, const Boolean& bDescending) const {
  return sort::try_sort(AsNumbers{}, bDescending, dValue);
}
Boolean clsQSort::dQSortIndex(const Array<double>& dValue, Order& lNewOrder,
                              const Boolean& bDescending) const {
  return sort::try_find_order(AsNumbers{}, bDescending, dValue, lNewOrder);
}
Boolean clsQSort::fQSort(Array<float>& fValue, const Boolean& bDescending) const {
  return sort::try_sort(AsNumbers{}, bDescending, fValue);
}
Boolean clsQSort::fQSortIndex(const Array<float>& fValue, Order& lNewOrder,
                              const Boolean& bDescending) const {
  return sort::try_find_order(AsNumbers{}, bDescending, fValue, lNewOrder);
}
Boolean clsQSort::iQSort(Array<std::int16_t>& iValue, const Boolean& bDescending) const {
  return sort::try_sort(AsNumbers{}, bDescending, iValue);
}
Boolean clsQSort::iQSortIndex(const Array<std::int16_t>& iValue, Order& lNewOrder,
                              const Boolean& bDescending) const {
  return sort::try_find_order(AsNumbers{}, bDescending, iValue, lNewOrder);
}
Boolean clsQSort::lQSort(Array<std::int32_t>& lValue, const Boolean& bDescending) const {
  return sort::try_sort(AsNumbers{}, bDescending, lValue);
}
Boolean clsQSort::lQSortIndex(const Array<std::int32_t>& lValue, Order& lNewOrder,
                              const Boolean& bDescending) const {
  return sort::try_find_order(AsNumbers{}, bDescending, lValue, lNewOrder);
}
Boolean clsQSort::sQSort(Array<String>& sValue, const Boolean& bDescending,
                         const std::int32_t& cmCompareMethod) const {
  return sort::try_sort(AsTexts{cmCompareMethod}, bDescending, sValue);
}
Boolean clsQSort::sQSortIndex(const Array<String>& sValue, Order& lNewOrder,
                              const Boolean& bDescending,
                              const std::int32_t& cmCompareMethod) const {
  return sort::try_find_order(AsTexts{cmCompareMethod}, bDescending, sValue, lNewOrder);
}

void clsQSort::dQSortNRAsc(Array<double>& dblValues) const {
  sort::sort_array(AsNumbers{}, kAscending, dblValues);
}
void clsQSort::dQSortNRDes(Array<double>& dblValues) const {
  sort::sort_array(AsNumbers{}, kDescending, dblValues);
}
void clsQSort::dQSortNRAscIndex(Array<double>& dblValues, Order& lngNewOrder) const {
  sort::sort_array(AsNumbers{}, kAscending, dblValues, lngNewOrder);
}
void clsQSort::dQSortNRDesIndex(Array<double>& dblValues, Order& lngNewOrder) const {
  sort::sort_array(AsNumbers{}, kDescending, dblValues, lngNewOrder);
}

void clsQSort::fQSortNRAsc(Array<float>& sngValues) const {
  sort::sort_array(AsNumbers{}, kAscending, sngValues);
}
void clsQSort::fQSortNRDes(Array<float>& sngValues) const {
  sort::sort_array(AsNumbers{}, kDescending, sngValues);
}
void clsQSort::fQSortNRAscIndex(Array<float>& sngValues, Order& lngNewOrder) const {
  sort::sort_array(AsNumbers{}, kAscending, sngValues, lngNewOrder);
}
void clsQSort::fQSortNRDesIndex(Array<float>& sngValues, Order& lngNewOrder) const {
  sort::sort_array(AsNumbers{}, kDescending, sngValues, lngNewOrder);
}

void clsQSort::iQSortNRAsc(Array<std::int16_t>& intValues) const {
  sort::sort_array(AsNumbers{}, kAscending, intValues);
}
void clsQSort::iQSortNRDes(Array<std::int16_t>& intValues) const {
  sort::sort_array(AsNumbers{}, kDescending, intValues);
}
void clsQSort::iQSortNRAscIndex(Array<std::int16_t>& intValues, Order& lngNewOrder) const {
  sort::sort_array(AsNumbers{}, kAscending, intValues, lngNewOrder);
}
void clsQSort::iQSortNRDesIndex(Array<std::int16_t>& intValues, Order& lngNewOrder) const {
  sort::sort_array(AsNumbers{}, kDescending, intValues, lngNewOrder);
}

void clsQSort::lQSortNRAsc(Array<std::int32_t>& lngValues) const {
  sort::sort_array(AsNumbers{}, kAscending, lngValues);
}
void clsQSort::lQSortNRDes(Array<std::int32_t>& lngValues) const {
  sort::sort_array(AsNumbers{}, kDescending, lngValues);
}
void clsQSort::lQSortNRAscIndex(Array<std::int32_t>& lngValues, Order& lngNewOrder) const {
  sort::sort_array(AsNumbers{}, kAscending, lngValues, lngNewOrder);
}
void clsQSort::lQSortNRDesIndex(Array<std::int32_t>& lngValues, Order& lngNewOrder) const {
  sort::sort_array(AsNumbers{}, kDescending, lngValues, lngNewOrder);
}

void clsQSort::sQSortNRAsc(Array<String>& strValues, const std::int32_t& cmCompareMethod) const {
  sort::sort_array(AsTexts{cmCompareMethod}, kAscending, strValues);
}
void clsQSort::sQSortNRDes(Array<String>& strValues, const std::int32_t& cmCompareMethod) const {
  sort::sort_array(AsTexts{cmCompareMethod}, kDescending, strValues);
}
void clsQSort::sQSortNRAscIndex(Array<String>& strValues, Order& lngNewOrder,
                                const std::int32_t& cmCompareMethod) const {
  sort::sort_array(AsTexts{cmCompareMethod}, kAscending, strValues, lngNewOrder);
}
void clsQSort::sQSortNRDesIndex(Array<String>& strValues, Order& lngNewOrder,
                                const std::int32_t& cmCompareMethod) const {
  sort::sort_array(AsTexts{cmCompareMethod}, kDescending, strValues, lngNewOrder);
}

}  // namespace kw
