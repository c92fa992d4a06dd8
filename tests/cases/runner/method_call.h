// Calls on one object, as a script or as a compiled client makes them.
#pragma once

#include <string>
#include <vector>

#include "caller_variable.h"
#include "failure_of_status.h"
#include "library.h"

namespace kw::cases {

class MethodCaller {
 public:
  // Makes a fresh object of the class.
  MethodCaller(const Library& library, const std::string& class_name)
      : library_(library), class_name_(class_name), object_(library.create(class_name)) {}

  // The variables of a call, in the order of the parameters.
  std::vector<CallerVariable> variables(const Json& args) const;
  Called call(const std::string& method, std::vector<CallerVariable>& variables) const;

 private:
  const Library& library_;
  std::string class_name_;
  Object object_;
};

}  // namespace kw::cases
