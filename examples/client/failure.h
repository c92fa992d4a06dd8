// From the status of a call to an exception with the library's own words.
#pragma once

#include <windows.h>

// Throws std::runtime_error (source and description of the error) when the call failed.
void check(HRESULT status);
