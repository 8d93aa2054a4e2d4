// The node of every list that crosses between the host's Lisp and the plug-in. Portable.
#pragma once

#include <cstdint>

// What a node holds. The numbers are part of the host's interface.
enum HostValueType : int16_t {
    HV_NONE = 5000,    // no payload; ends the arguments of hostBuildList
    HV_REAL = 5001,    // realValue
    HV_POINT = 5002,   // pointValue: x, y; a Lisp list of exactly two reals
    HV_SHORT = 5003,   // shortValue; a Lisp integer from -32768 to 32767, and a control id
    HV_ANGLE = 5004,   // realValue, radians
    HV_STRING = 5005,  // stringValue
    HV_ORIENT = 5008,  // realValue, radians
    HV_LONG = 5010,    // longValue; a Lisp integer beyond HV_SHORT's range, and a handle that goes to Lisp
    HV_LIST_BEGIN = 5016,  // no payload; every other Lisp list lies flat between this and HV_LIST_END
    HV_LIST_END = 5017,    // no payload
    HV_NIL = 5019,         // no payload
    HV_TRUE = 5021,        // no payload
};

// The status that host calls return on success.
constexpr int HOST_NORMAL = 5100;
// The status that host calls return on failure.
constexpr int HOST_ERROR = -5001;

// What a registered Lisp function returns: its result has been set with a hostRet... call.
constexpr int32_t RESULT_SET = 1;

struct HostValue {
    HostValue* next;  // null ends the chain
    int16_t type;     // a HostValueType
    union {
        int16_t shortValue;
        int32_t longValue;
        double realValue;
        double pointValue[3];  // x, y and, unused here, z
        wchar_t* stringValue;  // NUL-terminated, in the host's memory
    } value;
};
