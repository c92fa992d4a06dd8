// How a late-bound argument is read as a parameter's kind, and how a changed value goes back.
#pragma once

#include "kwutils/automation.h"
#include "kwutils/object.h"
#include "kwutils/variant.h"

namespace kw::frame {

// The caller's variable behind an argument: by-reference variants are followed.
VARIANT& variable_of(VARIANT& argument) noexcept;

// Whether a changed value can reach the caller: the argument refers to a variable of theirs.
bool is_variable(const VARIANT& argument) noexcept;

// The storage of a value of exactly this kind in the caller's variable, to be worked on in place;
// null when the variable is of another kind, or the argument no variable.
void* storage_of(VARIANT& argument, VARTYPE kind) noexcept;

// The same for an argument that is only read: a value by value will do.
void* readable_storage_of(VARIANT& argument, VARTYPE kind) noexcept;

// The argument's value as `kind`, by the automation rules. Throws the status of a refused
// conversion.
struct Refused {
  HRESULT status;
};
Variant coerced(const VARIANT& argument, VARTYPE kind);

// A reference to the object that an argument holds; nothing for Empty, Nothing and Null.
Object object_in(const VARIANT& argument);

// Puts a changed value into the caller's variable: in the variable's own kind where it has one,
// else (an unset or variant variable whose kind cannot hold it) as it is.
void write_back(VARIANT& argument, Variant value);

}  // namespace kw::frame
