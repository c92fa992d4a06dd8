// Late-bound calls: by name or by number, with variants.
#pragma once

#include <tuple>
#include <type_traits>
#include <utility>

#include "frame/arguments.h"
#include "frame/late_argument.h"
#include "frame/object.h"
#include "frame/unaliased.h"

namespace kw::frame {

// The two slots of IDispatch that do the work.
HRESULT KW_STDCALL get_ids_of_names(ObjectBase* self, const GUID* reserved, OLECHAR** names,
                                    std::uint32_t count, LCID locale, DISPID* ids) noexcept;
HRESULT KW_STDCALL invoke(ObjectBase* self, DISPID member, const GUID* reserved, LCID locale,
                          std::uint16_t flags, DISPPARAMS* parameters, VARIANT* result,
                          EXCEPINFO* exception, std::uint32_t* bad_argument) noexcept;

// Hands a result over as a variant.
template <class R>
void to_variant(R value, VARIANT* out) {
  if constexpr (std::is_same_v<R, Unknown>) {
    out->vt = kVtUnknown;
    out->punkVal = value.release();
  } else if constexpr (std::is_same_v<R, Collection>) {
    *out = Variant(value.object()).release();
  } else {
    *out = Variant(std::move(value)).release();
  }
}

// Builds one argument; a refusal tells which.
template <class P>
LateArgument<P> late_argument(const Arguments& arguments, std::size_t position) {
  try {
    return LateArgument<P>(arguments.at(position), arguments.parameter(position));
  } catch (const Refused& refused) {
    throw BadArgument{refused.status, position};
  }
}

template <class P>
void finish_argument(LateArgument<P>& argument, std::size_t position) {
  try {
    argument.finish();
  } catch (const Refused& refused) {
    throw BadArgument{refused.status, position};
  }
}

// The late-bound form of a member function. Throws what the member throws, or BadArgument; changes
// made by reference go back to the caller in either case.
template <auto Member, class T, class R, class... P>
struct LateCall {
  static HRESULT invoke(ObjectBase& self, Arguments& arguments, VARIANT* result) {
    return invoke(self, arguments, result, std::index_sequence_for<P...>());
  }

 private:
  template <std::size_t... I>
  static HRESULT invoke(ObjectBase& self, [[maybe_unused]] Arguments& arguments,
                        [[maybe_unused]] VARIANT* result, std::index_sequence<I...>) {
    std::tuple<LateArgument<P>...> natives{late_argument<P>(arguments, I)...};
    const auto call = [&]() -> R {
      return call_unaliased<Member, T, P...>(instance_of<T>(self),
                                             std::get<I>(natives).native()...);
    };
    const auto finish = [&] { (finish_argument<P>(std::get<I>(natives), I), ...); };
    const auto guarded_call = [&]() -> R {
      try {
        return call();
      } catch (...) {
        try {
          finish();
        } catch (const BadArgument&) {
          // The method's own failure is the one to report.
        }
        throw;
      }
    };
    if constexpr (std::is_void_v<R>) {
      guarded_call();
      finish();
    } else {
      // Without a result where a changed argument cannot go back.
      R value = guarded_call();
      finish();
      if (result != nullptr) to_variant(std::move(value), result);
    }
    return status::kOk;
  }
};

}  // namespace kw::frame
