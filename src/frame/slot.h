// A method's slot: the adapter from the wire's arguments to the native ones, made from the type of
// the member function.
#pragma once

#include <type_traits>
#include <utility>

#include "frame/failure.h"
#include "frame/kind.h"
#include "frame/object.h"
#include "frame/unaliased.h"

namespace kw::frame {

// The description of a parameter that a caller of `slot` handed no pointer for; null when callers
// may not leave it out.
const Parameter* optional_parameter(const ClassTable& of_class, void (*slot)(),
                                    std::size_t index) noexcept;

// One argument on its way in. By-reference arguments are worked on in place: the native type is
// laid out as its wire form.
template <class P>
class FromWire {
 public:
  FromWire(Wire<P> wire) noexcept : wire_(wire) {}
  bool absent() const noexcept { return kByReference<P> && wire_ == nullptr; }
  void use_default(std::int32_t value) noexcept {
    if constexpr (std::is_same_v<NativeOf<P>, Variant>) {
      default_ = Variant::missing();
    } else if constexpr (std::is_same_v<NativeOf<P>, Boolean>) {
      default_ = Boolean::from_bits(static_cast<std::int16_t>(value));
    } else if constexpr (std::is_arithmetic_v<NativeOf<P>>) {
      default_ = static_cast<NativeOf<P>>(value);
    }
    wire_ = reinterpret_cast<Wire<P>>(&default_);
  }
  P native() noexcept { return reinterpret_cast<P>(*wire_); }

 private:
  Wire<P> wire_;
  NativeOf<P> default_{};
};

template <class P>
requires(!kByReference<P>) class FromWire<P> {
 public:
  FromWire(Wire<P> wire) noexcept : wire_(wire) {}
  static constexpr bool absent() noexcept { return false; }
  void use_default(std::int32_t) noexcept {}
  P native() {
    if constexpr (std::is_same_v<P, std::u16string_view>)
      return {wire_, wire_ != nullptr ? SysStringLen(wire_) : 0};
    else if constexpr (std::is_same_v<P, Variant>)
      return Variant::copy_of(wire_);
    else if constexpr (std::is_same_v<P, Boolean>)
      return Boolean::from_bits(wire_);
    else
      return wire_;
  }

 private:
  Wire<P> wire_;
};

template <class R>
void to_wire(R&& result, typename Native<std::remove_cvref_t<R>>::Wire* out) {
  using T = std::remove_cvref_t<R>;
  if constexpr (std::is_arithmetic_v<T>)
    *out = result;
  else if constexpr (std::is_same_v<T, Boolean>)
    *out = result.bits();
  else
    *out = result.release();
}

// What the slots of all members share.
template <auto Member, class T, class R, class... P>
struct SlotBase {
  // Fills in what an absent optional argument stands for; false for one that must be there.
  template <std::size_t... I>
  static bool complete([[maybe_unused]] const ClassTable& table, [[maybe_unused]] void (*slot)(),
                       std::index_sequence<I...>, FromWire<P>&... arguments) noexcept {
    [[maybe_unused]] const auto one = [&](auto& argument, std::size_t index) {
      if (!argument.absent()) return true;
      const Parameter* parameter = optional_parameter(table, slot, index);
      if (parameter != nullptr) argument.use_default(parameter->default_value);
      return parameter != nullptr;
    };
    return (one(arguments, I) && ...);
  }

  template <class Body>
  static HRESULT guarded(ObjectBase& self, Body&& body) noexcept {
    if (!self.on_own_thread()) return status::kWrongThread;
    const CallGuard guard(self);
    try {
      return body();
    } catch (...) {
      return publish(current_failure(self.table), self.table);
    }
  }

  static R call(ObjectBase& self, FromWire<P>&... arguments) {
    return call_unaliased<Member, T, P...>(instance_of<T>(self), arguments.native()...);
  }
};

template <auto Member, class T, class R, class... P>
struct SlotOf : SlotBase<Member, T, R, P...> {
  using Base = SlotBase<Member, T, R, P...>;
  using Out = typename Native<R>::Wire;

  static HRESULT KW_STDCALL slot(ObjectBase* self, Wire<P>... wire, Out* out) noexcept {
    const auto body = [&](FromWire<P>... arguments) -> HRESULT {
      if (out == nullptr ||
          !Base::complete(self->table, address(), std::index_sequence_for<P...>(), arguments...))
        return status::kPointer;
      to_wire(Base::call(*self, arguments...), out);
      return status::kOk;
    };
    return Base::guarded(*self, [&] { return body(FromWire<P>(wire)...); });
  }
  static auto address() noexcept { return reinterpret_cast<void (*)()>(&slot); }
};

template <auto Member, class T, class... P>
struct SlotOf<Member, T, void, P...> : SlotBase<Member, T, void, P...> {
  using Base = SlotBase<Member, T, void, P...>;

  static HRESULT KW_STDCALL slot(ObjectBase* self, Wire<P>... wire) noexcept {
    const auto body = [&](FromWire<P>... arguments) -> HRESULT {
      if (!Base::complete(self->table, address(), std::index_sequence_for<P...>(), arguments...))
        return status::kPointer;
      Base::call(*self, arguments...);
      return status::kOk;
    };
    return Base::guarded(*self, [&] { return body(FromWire<P>(wire)...); });
  }
  static auto address() noexcept { return reinterpret_cast<void (*)()>(&slot); }
};

}  // namespace kw::frame
