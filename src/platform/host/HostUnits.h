// The host's notations of distances and angles.
//
// Linear units: 1 scientific, 2 decimal, 3 engineering, 4 architectural, 5 fractional. Angular units: 1
// decimal degrees, 2 degrees, minutes and seconds, 3 grads, 4 radians, 5 surveyor's bearings; angles are
// radians. Precision is 0 to 8, and -1 stands for 4. All give HOST_NORMAL, or HOST_ERROR for a text, a unit,
// a precision or a value that can't be converted and for a buffer that is too short.
#pragma once

#include "src/platform/host/HostApi.h"
#include "src/platform/host/HostValue.h"

HOST_API int hostDisToF(const wchar_t* text, int unit, double* result);
HOST_API int hostAngToF(const wchar_t* text, int unit, double* result);
// `length` counts the characters of the buffer, the NUL included.
HOST_API int hostRToS(double value, int unit, int precision, wchar_t* buffer, int length);
HOST_API int hostAngToS(double value, int unit, int precision, wchar_t* buffer, int length);
