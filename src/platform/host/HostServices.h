// The host's services beside its Lisp: messages to the person, files, windows, the display scale.
#pragma once

#include <windows.h>

#include <cstdint>

#include "src/platform/host/HostApi.h"

// The word that pluginGetApiVersion reports.
constexpr uint32_t HOST_API_VERSION = 0x00240001;

// A modal alert box with one OK button.
HOST_API void hostAlert(const wchar_t* text);
// Prints on the host's command line. Takes the wide printf formats; %s is wide text.
HOST_API int hostPrintf(const wchar_t* format, ...);
// Readies the host's own user interface parts. Called once, while the plug-in is being attached.
HOST_API void hostInitUiLibrary();
// HOST_NORMAL while the graphics screen is in front.
HOST_API int hostGraphScr();
// The host's main frame window; null in a host without one.
HOST_API HWND hostGetMainFrame();
// Device pixels to one pixel of 96 dots per inch, on that monitor or, with null, the primary one.
HOST_API double hostMonitorDpiXScale(HMONITOR monitor);
HOST_API double hostMonitorDpiYScale(HMONITOR monitor);

// Loads modules of managed code. The order of the functions is the order of their slots.
class HostManagedHost {
  public:
    virtual void notCalled() = 0;
    // Loads the module of that file name, which GetModuleHandle finds from then on. 0 on success, otherwise
    // the system's error code.
    virtual int32_t loadModule(const wchar_t* fileName) = 0;

  protected:
    ~HostManagedHost() = default;
};

// The host's own, which lives as long as the process; null in a host without managed code.
HOST_API HostManagedHost* hostGetManagedHost();

// Finds a file by its name: as it stands, then in the host's support folders. HOST_NORMAL with the whole path
// in `found`, which has room for `size` characters with the NUL; HOST_ERROR where there is no such file or
// its path has no room there.
HOST_API int hostFindFile(const wchar_t* name, wchar_t* found, size_t size);
// The colors of the drawing area, 0x00BBGGRR: the background first. `colors` has room for `count`; what the
// host has no more of is 0. HOST_ERROR where it knows none.
HOST_API int hostGetCurrentColors(uint32_t* colors, size_t count);

HOST_API int hostMemFileCreate(const wchar_t* path, const wchar_t* text, bool overwrite, bool unicode);
HOST_API int hostMemFileDelete(const wchar_t* path);

// Text files that the host's Lisp can load.
struct HostMemFile {
    // Writes `text` whole, replacing what is there when `overwrite`, with a byte order mark when `unicode`.
    // 0 on success, otherwise the system's error code.
    static int createTextFile(const wchar_t* path, const wchar_t* text, bool overwrite, bool unicode) {
        return hostMemFileCreate(path, text, overwrite, unicode);
    }
    // 0 on success, otherwise the system's error code.
    static int deleteFile(const wchar_t* path) { return hostMemFileDelete(path); }
};
