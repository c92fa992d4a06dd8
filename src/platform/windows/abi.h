// How functions of the automation ABI are called and imported on this system. One header of this
// name exists per system; the build publishes the right one.
#pragma once

// The calling convention of interface functions and of the automation functions.
#define KW_STDCALL __stdcall

// Marks a function that the system's automation library exports.
#define KW_AUTOMATION_API __declspec(dllimport)

// Marks a function that this library exports; on this system the definition file does.
#define KW_EXPORT
