// The statuses that automation functions and interfaces answer.
#pragma once

#include <cstdint>

namespace kw {

using HRESULT = std::int32_t;

namespace status {

constexpr HRESULT from_bits(std::uint32_t bits) { return static_cast<HRESULT>(bits); }

inline constexpr HRESULT kOk = 0;
inline constexpr HRESULT kFalse = 1;
inline constexpr HRESULT kNotImplemented = from_bits(0x80004001);
inline constexpr HRESULT kNoInterface = from_bits(0x80004002);
inline constexpr HRESULT kPointer = from_bits(0x80004003);
inline constexpr HRESULT kAbort = from_bits(0x80004004);
inline constexpr HRESULT kFail = from_bits(0x80004005);
inline constexpr HRESULT kUnexpected = from_bits(0x8000FFFF);
inline constexpr HRESULT kAccessDenied = from_bits(0x80070005);
inline constexpr HRESULT kOutOfMemory = from_bits(0x8007000E);
inline constexpr HRESULT kInvalidArgument = from_bits(0x80070057);
inline constexpr HRESULT kNoAggregation = from_bits(0x80040110);
inline constexpr HRESULT kClassNotAvailable = from_bits(0x80040111);
inline constexpr HRESULT kWrongThread = from_bits(0x8001010E);

// Dispatch statuses: those of late-bound calls, of arrays and of changes of type.
inline constexpr HRESULT kUnknownInterface = from_bits(0x80020001);
inline constexpr HRESULT kMemberNotFound = from_bits(0x80020003);
inline constexpr HRESULT kParameterNotFound = from_bits(0x80020004);  // also: argument left out
inline constexpr HRESULT kTypeMismatch = from_bits(0x80020005);
inline constexpr HRESULT kUnknownName = from_bits(0x80020006);
inline constexpr HRESULT kNoNamedArguments = from_bits(0x80020007);
inline constexpr HRESULT kBadVariableType = from_bits(0x80020008);
inline constexpr HRESULT kException = from_bits(0x80020009);
inline constexpr HRESULT kOverflow = from_bits(0x8002000A);
inline constexpr HRESULT kBadIndex = from_bits(0x8002000B);
inline constexpr HRESULT kUnknownLocale = from_bits(0x8002000C);
inline constexpr HRESULT kArrayIsLocked = from_bits(0x8002000D);
inline constexpr HRESULT kBadParameterCount = from_bits(0x8002000E);
inline constexpr HRESULT kParameterNotOptional = from_bits(0x8002000F);
inline constexpr HRESULT kNotACollection = from_bits(0x80020011);
inline constexpr HRESULT kDivisionByZero = from_bits(0x80020012);

// 0x800A0000 + n is the run-time error of number n (1 to 65535).
inline constexpr HRESULT kRunTimeError = from_bits(0x800A0000);

}  // namespace status

constexpr bool succeeded(HRESULT result) { return result >= 0; }
constexpr bool failed(HRESULT result) { return result < 0; }

}  // namespace kw
