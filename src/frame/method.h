// Describes one method: its published facts beside the member function that gives all the rest.
#pragma once

#include <initializer_list>
#include <stdexcept>
#include <string_view>

#include "frame/description.h"
#include "frame/late_bound.h"
#include "frame/slot.h"

namespace kw::frame {

// Members that are const functions and those that are not are described alike.
template <auto Member, class Type = decltype(Member)>
struct Adapters;

template <auto Member, class T, class R, class... P>
struct AdaptersOf {
  using Result = R;
  static auto slot() noexcept { return SlotOf<Member, T, R, P...>::address(); }
  static constexpr HRESULT (*invoke)(ObjectBase&, Arguments&,
                                     VARIANT*) = &LateCall<Member, T, R, P...>::invoke;

  static std::vector<Parameter> parameters(std::initializer_list<ParameterName> names) {
    if (names.size() != sizeof...(P)) throw std::logic_error("a parameter has no name");
    std::vector<Parameter> result;
    const auto* name = names.begin();
    (result.push_back(parameter<P>(*name++)), ...);
    return result;
  }

 private:
  template <class Q>
  static Parameter parameter(const ParameterName& name) {
    return {name.name, Native<NativeOf<Q>>::kind, kByReference<Q>, name.optional,
            name.default_value};
  }
};

template <auto Member, class T, class R, class... P>
struct Adapters<Member, R (T::*)(P...)> : AdaptersOf<Member, T, R, P...> {};
template <auto Member, class T, class R, class... P>
struct Adapters<Member, R (T::*)(P...) const> : AdaptersOf<Member, T, R, P...> {};

// `id`: the dispatch number. `names`: the published parameter names, in order.
template <auto Member>
Method member(DISPID id, std::string_view name, std::initializer_list<ParameterName> names,
              std::string_view help) {
  using A = Adapters<Member>;
  Method result;
  result.name = name;
  result.id = id;
  result.help = help;
  result.parameters = A::parameters(names);
  if constexpr (!std::is_void_v<typename A::Result>)
    result.result = Native<typename A::Result>::kind;
  result.slot = A::slot();
  result.invoke = A::invoke;
  return result;
}

// A method of a class, by the number that follows the first of all members.
template <auto Member>
Method method(std::uint16_t number, std::string_view name,
              std::initializer_list<ParameterName> names, std::string_view help) {
  return member<Member>(kFirstMember + number, name, names, help);
}

// The table of a class whose native form is T.
template <class T>
ClassTable table_of(ClassDescription description) {
  return ClassTable(std::move(description), &ObjectOf<T>::create, &ObjectOf<T>::destroy);
}

}  // namespace kw::frame
