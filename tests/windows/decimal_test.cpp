// Decimal variables, a kind that only this system converts.
#include <gtest/gtest.h>

#include "kwutils/variant.h"
#include "windows/built_library.h"

namespace kw {
namespace {

using kw::testing::built_object;

TEST(Decimal, AVariableIsChanged) {
  const Variant letter(65.0);
  VARIANT key = {};
  ASSERT_EQ(VariantChangeType(&key, &letter.raw(), 0, kVtDecimal), status::kOk);
  VARIANT reference = {};
  reference.vt = kVtByRef | kVtDecimal;
  reference.byref = &key;
  VARIANT sent[] = {Variant(std::int16_t{0}).raw(), Variant(std::int16_t{10}).raw(),
                    Variant(u"12").release(), Variant(std::int16_t{0}).raw(), reference};
  DISPPARAMS parameters = {sent, nullptr, 5, 0};
  const Object entry = built_object("clsDataEdtUtils");
  constexpr DISPID kCheckInteger = 0x60030000;
  EXPECT_EQ(entry.pointer()->Invoke(kCheckInteger, GUID{}, 0, kDispatchMethod, &parameters, nullptr,
                                    nullptr, nullptr),
            status::kOk);
  VariantClear(&sent[2]);
  key.vt = kVtDecimal;
  EXPECT_EQ(Variant::copy_of(key).to_int32(), 0);
}

}  // namespace
}  // namespace kw
