// The arguments of a late-bound call: from the command line, and as JSON.
#pragma once

#include <optional>
#include <string_view>

#include "frame/description.h"
#include "kwutils/automation.h"
#include "kwutils/variant.h"
#include "tool/json_writer.h"

namespace kw::tool {

// The value that an argument of the command line stands for, by the kind of its parameter:
//
//   text               the argument as it is
//   numbers            numeric text
//   boolean            true, false or a number
//   variant            what JSON it is: a number, true, false, "text", a collection; else text
//   arrays             a JSON list (lower bound 0), {"lower": 1, "values": [...]}, or null: never
//                      dimensioned
//   collection         a JSON list, or an object whose names are the keys; nothing: no collection
//   object             nothing
//
// Fails as wrong usage, with the parameter's name, when it stands for none.
Variant read_argument(std::string_view text, const frame::Parameter& parameter);

// What a parameter that was left out begins with, where the method may set it: an empty text, zero,
// an array that was never dimensioned, no object.
Variant initial_value(const frame::Parameter& parameter);

void write_value(JsonWriter& json, const VARIANT& value);

// An argument in the form in which it is handed over. By reference, the value is the variable.
VARIANT argument_for(Variant& value, const frame::Parameter& parameter);

}  // namespace kw::tool
