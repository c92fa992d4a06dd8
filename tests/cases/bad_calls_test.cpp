// What a caller does wrong is answered with a status or an error, never with a crash.
#include "bad_calls.h"

#include <gtest/gtest.h>

#include <thread>

#include "runner/fake_objects.h"

namespace kw::cases {
namespace {

using frame::Kind;
using frame::Parameter;

bool is_run_time_error(HRESULT answer) {
  return (static_cast<std::uint32_t>(answer) & 0xFFFF0000u) == 0x800A0000u;
}

// Done, an error with a number, or one of the statuses that callers know.
void expect_civil(const Parameter&, HRESULT answer) {
  const bool known = answer == status::kOk || is_run_time_error(answer) ||
                     answer == status::kOutOfMemory || answer == status::kTypeMismatch ||
                     answer == status::kPointer || answer == status::kNoInterface;
  EXPECT_TRUE(known) << std::hex << answer;
}

bool is_array(const Parameter& parameter) { return parameter.kind >= Kind::text_array; }

// The kind of an array's elements, as the array that stands there says.
VARTYPE element_of(const Variant& array) {
  return static_cast<VARTYPE>(array.raw().vt & kVtTypeMask);
}

class BadCalls : public ::testing::Test {
 protected:
  BadCaller caller_;
};

TEST_F(BadCalls, ANullReferenceIsAStatusUnlessItMayBeLeftOut) {
  const int made = caller_.each([](const Parameter& one) { return one.by_reference; },
                                [](BadCall& call, std::size_t i) { call.make_null(i); },
                                [](const Parameter& parameter, HRESULT answer) {
                                  if (parameter.optional)
                                    EXPECT_NE(answer, status::kPointer);
                                  else
                                    EXPECT_EQ(answer, status::kPointer);
                                });
  EXPECT_GT(made, 200);
}

TEST_F(BadCalls, ANullPointerForTheResultIsAStatus) {
  int made = 0;
  for (const SlotCall& one : slot_calls()) {
    BadCall call(caller_.library(), one);
    if (call.method().result == Kind::none) continue;
    call.leave_out_result();
    EXPECT_EQ(call.make(), status::kPointer) << one.method;
    ++made;
  }
  EXPECT_GT(made, 60);
}

TEST_F(BadCalls, AnObjectThatIsNoCollectionIsRefused) {
  const int made = caller_.each([](const Parameter& one) { return one.kind == Kind::collection; },
                                [](BadCall& call, std::size_t i) {
                                  const Object foreign =
                                      Object::attach(new FakeObject("", Json::object()));
                                  call.argument(i) = Variant(foreign);
                                },
                                expect_civil);
  EXPECT_GT(made, 15);
}

TEST_F(BadCalls, AnArrayOfTwoDimensionsIsAnError) {
  const int made = caller_.each(
      is_array,
      [](BadCall& call, std::size_t i) {
        SAFEARRAYBOUND bounds[] = {{2, 0}, {3, 1}};
        call.argument(i).address()->parray =
            SafeArrayCreate(element_of(call.argument(i)), 2, bounds);
      },
      expect_civil);
  EXPECT_GT(made, 20);
}

TEST_F(BadCalls, AnArrayOfAnotherKindIsAnError) {
  for (const VARTYPE other : {kVtUi1, kVtVariant, kVtDate})
    caller_.each(
        is_array,
        [&](BadCall& call, std::size_t i) {
          VARIANT& array = *call.argument(i).address();
          array.vt = static_cast<VARTYPE>(kVtArray | other);
          array.parray = SafeArrayCreateVector(other, 0, 5);
        },
        expect_civil);
}

TEST_F(BadCalls, ALockedArrayKeepsItsBounds) {
  caller_.each(
      is_array,
      [](BadCall& call, std::size_t i) {
        VARIANT& array = *call.argument(i).address();
        array.parray = SafeArrayCreateVector(element_of(call.argument(i)), 1, 3);
        SAFEARRAY* const locked = array.parray;
        SafeArrayLock(locked);
        expect_civil(call.method().parameters[i], call.make());
        EXPECT_EQ(array.parray, locked);
        EXPECT_EQ(locked->rgsabound[0].cElements, 3u);
        SafeArrayUnlock(locked);
      },
      expect_civil);
}

TEST_F(BadCalls, ATextMayHoldNul) {
  const int made = caller_.each([](const Parameter& one) { return one.kind == Kind::text; },
                                [](BadCall& call, std::size_t i) {
                                  call.argument(i) =
                                      Variant(String(std::u16string_view(u"a\0b\0", 4)));
                                },
                                expect_civil);
  EXPECT_GT(made, 100);
}

TEST_F(BadCalls, NumbersMayBeAsLargeAsTheyGet) {
  for (const std::int32_t number : {INT32_MAX, INT32_MIN, -1})
    caller_.each([](const Parameter& one) { return one.kind == Kind::int32; },
                 [&](BadCall& call, std::size_t i) { call.argument(i).address()->lVal = number; },
                 expect_civil);
}

TEST_F(BadCalls, AnotherThreadGetsTheStandardStatus) {
  for (const SlotCall& one : slot_calls()) {
    BadCall call(caller_.library(), one);
    HRESULT answer = 0;
    std::thread([&] { answer = call.make(); }).join();
    EXPECT_EQ(answer, status::kWrongThread) << one.method;
  }
}

}  // namespace
}  // namespace kw::cases
