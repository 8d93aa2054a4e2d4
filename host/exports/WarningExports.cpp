// The export of HostWarnings.h. It lets no exception out: the plug-in has a run-time of its own.
#include "src/platform/host/HostWarnings.h"

#include <exception>

#include "host/documents/CallFrame.h"
#include "host/services/Host.h"
#include "src/platform/host/HostValue.h"

int hostWarn(int32_t kind, const wchar_t* words, const wchar_t* wanted, const wchar_t* const* candidates,
             size_t count) {
    try {
        const CallFrame* frame = CallFrame::current();
        const Warnings::Site site = frame ? Warnings::Site{frame->place(), frame->name(), kind}
                                          : Warnings::Site{host().lisp().placeMark(), {}, kind};
        if (!words) return host().warnings().isNew(site) ? HOST_NORMAL : HOST_ERROR;
        const std::vector<std::wstring> names(candidates, candidates + (candidates ? count : 0));
        return host().warn(site, words, wanted ? wanted : L"", names) ? HOST_NORMAL : HOST_ERROR;
    } catch (const std::exception&) {
        return HOST_ERROR;
    }
}
