// Late-bound calls on one object, as a script makes them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "caller_variable.h"
#include "library.h"

namespace kw::cases {

struct Failure {
  std::int64_t number = 0;
  std::u16string source;
  std::u16string description;
};

// What one call answers.
struct Called {
  Variant result;
  std::optional<Failure> failure;
};

class MethodCaller {
 public:
  // Makes a fresh object of the class.
  MethodCaller(const Library& library, const std::string& class_name)
      : library_(library), object_(library.create(class_name)) {}

  // The variables of a call, in the order of the parameters.
  std::vector<CallerVariable> variables(const Json& args) const;
  Called call(const std::string& method, std::vector<CallerVariable>& variables) const;

 private:
  const Library& library_;
  Object object_;
};

}  // namespace kw::cases
