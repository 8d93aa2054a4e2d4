#include "src/shell/LispInvoke.h"

void invokeLisp(const wchar_t* function, const wchar_t* text) {
    const OwnedChain call(text ? hostBuildList(HV_STRING, function, HV_STRING, text, 0)
                               : hostBuildList(HV_STRING, function, 0));
    HostValue* result = nullptr;
    hostInvoke(call.get(), &result);
    hostRelRb(result);
}
