// What a call of a method that does nothing costs: through a C++ virtual function, through its
// slot, late-bound by number, late-bound by name.
#include <benchmark/benchmark.h>

#include <memory>

#include "frame/factory.h"
#include "frame/method.h"

namespace kw::bench {

// The object as a client's compiler sees it, and its peer. Both have external linkage, so that the
// compiler cannot know all of their implementations and call one directly.
struct IEmpty : IDispatch {
  virtual HRESULT KW_STDCALL Nothing() = 0;

 protected:
  ~IEmpty() = default;
};

struct Peer {
  virtual HRESULT nothing() = 0;
  virtual ~Peer() = default;
};

struct PeerImplementation : Peer {
  __attribute__((noipa)) HRESULT nothing() override { return status::kOk; }
};

namespace {

class Empty {
 public:
  void Nothing() {}
};

const frame::ClassTable& table() {
  static const frame::ClassTable result = [] {
    frame::ClassDescription description;
    description.name = "clsEmpty";
    description.methods = {frame::method<&Empty::Nothing>(0, "Nothing", {}, "Does nothing.")};
    return frame::table_of<Empty>(std::move(description));
  }();
  return result;
}

Object make_empty() {
  void* object = nullptr;
  frame::create_object(table(), kIidDispatch, &object);
  return Object::attach(static_cast<IDispatch*>(object));
}

void virtual_call(benchmark::State& state) {
  std::unique_ptr<Peer> peer = std::make_unique<PeerImplementation>();
  Peer* called = peer.get();
  for (auto step : state) {
    static_cast<void>(step);
    benchmark::DoNotOptimize(called);
    benchmark::DoNotOptimize(called->nothing());
  }
}

void slot_call(benchmark::State& state) {
  const Object object = make_empty();
  auto* called = static_cast<IEmpty*>(object.pointer());
  for (auto step : state) {
    static_cast<void>(step);
    benchmark::DoNotOptimize(called);
    benchmark::DoNotOptimize(called->Nothing());
  }
}

void late_bound_by_number(benchmark::State& state) {
  const Object object = make_empty();
  DISPPARAMS none = {};
  for (auto step : state) {
    static_cast<void>(step);
    benchmark::DoNotOptimize(object.pointer()->Invoke(
        frame::kFirstMember, kNullGuid, 0, kDispatchMethod, &none, nullptr, nullptr, nullptr));
  }
}

void late_bound_by_name(benchmark::State& state) {
  const Object object = make_empty();
  char16_t name[] = u"NOTHING";
  char16_t* names[] = {name};
  DISPPARAMS none = {};
  for (auto step : state) {
    static_cast<void>(step);
    DISPID id = 0;
    object.pointer()->GetIDsOfNames(kNullGuid, names, 1, 0, &id);
    benchmark::DoNotOptimize(object.pointer()->Invoke(id, kNullGuid, 0, kDispatchMethod, &none,
                                                      nullptr, nullptr, nullptr));
  }
}

BENCHMARK(virtual_call)->Name("virtual_call");
BENCHMARK(slot_call)->Name("slot_call");
BENCHMARK(late_bound_by_number)->Name("late_bound_by_number");
BENCHMARK(late_bound_by_name)->Name("late_bound_by_name");

}  // namespace
}  // namespace kw::bench
