// What a late-bound call costs beside the system's own way from a call by number to a slot. Both
// are measured in turns in one run, and the best of many rounds counts, so that a busy machine does
// not decide.
#include <gtest/gtest.h>
#include <windows.h>
// After the system's general header.
#include <oleauto.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

constexpr GUID kStringUtil = {
    0x141AA2E6, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}};
constexpr DISPID kStrNoNull = 0x60030004;
constexpr int kRounds = 40;
constexpr int kCalls = 5000;

IDispatch* make_object() {
  using GetClassObject = HRESULT(__stdcall*)(REFCLSID, REFIID, void**);
  const FARPROC found = GetProcAddress(LoadLibraryA(KW_LIBRARY), "DllGetClassObject");
  const auto get = reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(found));
  IClassFactory* factory = nullptr;
  IDispatch* object = nullptr;
  if (get(kStringUtil, IID_IClassFactory, reinterpret_cast<void**>(&factory)) != S_OK)
    return nullptr;
  factory->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(&object));
  factory->Release();
  return object;
}

// Nanoseconds a call.
template <class Call>
double cost(Call call) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < kCalls; ++i) call();
  const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
  return time.count() / kCalls;
}

TEST(DispatchCost, IsAtMostHalfOfTheSystemsOwn) {
  IDispatch* object = make_object();
  ASSERT_NE(object, nullptr);
  ITypeInfo* info = nullptr;
  ASSERT_EQ(object->GetTypeInfo(0, 0x409, &info), S_OK);

  BSTR text = SysAllocString(reinterpret_cast<const OLECHAR*>(u"pump"));
  VARIANTARG argument;
  argument.vt = VT_BYREF | VT_BSTR;
  argument.pbstrVal = &text;
  DISPPARAMS parameters = {&argument, nullptr, 1, 0};
  HRESULT answer = S_OK;
  const auto finish = [&](HRESULT one, VARIANT& result) {
    if (one != S_OK) answer = one;
    VariantClear(&result);
  };
  const auto own = [&] {
    VARIANT result;
    VariantInit(&result);
    finish(object->Invoke(kStrNoNull, IID_NULL, 0x409, DISPATCH_METHOD, &parameters, &result,
                          nullptr, nullptr),
           result);
  };
  const auto systems = [&] {
    VARIANT result;
    VariantInit(&result);
    finish(
        info->Invoke(object, kStrNoNull, DISPATCH_METHOD, &parameters, &result, nullptr, nullptr),
        result);
  };

  double best_own = cost(own), best_systems = cost(systems);
  for (int round = 1; round < kRounds; ++round) {
    best_own = std::min(best_own, cost(own));
    best_systems = std::min(best_systems, cost(systems));
  }
  RecordProperty("own_ns", static_cast<int>(best_own));
  RecordProperty("system_ns", static_cast<int>(best_systems));
  EXPECT_EQ(answer, S_OK);
  EXPECT_LE(best_own, best_systems / 2) << "own " << best_own << " ns, system's " << best_systems;
  std::printf("a late-bound call: %.0f ns, through the system: %.0f ns\n", best_own, best_systems);
  info->Release();
  object->Release();
  SysFreeString(text);
}

}  // namespace
