// The module-wide state of the plug-in: which module it is and where its resources are.
#pragma once

#include <windows.h>

#include <memory>

#include "src/platform/base/CString.h"
#include "src/platform/mfc/ModuleState.h"

// The resource module as a part of the class library's resource search.
struct WexResourceModule {
    int32_t attached = 0;
    HMODULE defaultResource = nullptr;  // the current resource handle as found at attach
    HMODULE moduleResource = nullptr;   // equal to g_resourceInstance
    AFX_EXTENSION_MODULE extension;
    std::unique_ptr<CDynLinkLibrary> library;
};

extern HMODULE g_moduleInstance;    // the plug-in itself, which holds the key lists
extern HMODULE g_resourceInstance;  // "WexDialogsRes.dll"; null when it could not be loaded
extern WexResourceModule g_resourceModule;

// The four captions by which image buttons are known, loaded when the plug-in is initialised. A and B come
// from one string. kept: programs' templates depend on it.
extern CString g_buttonCaptionA;
extern CString g_buttonCaptionB;
extern CString g_buttonCaptionC;
extern CString g_buttonCaptionD;

// The full path of a loaded module's file; of the host's executable for null.
std::wstring modulePath(HMODULE module);

// Finds and loads the resource module and makes it a part of the resource search.
// Gives 1, or 3 when the module could not be loaded, which has then been shown in a message box.
int attachModule(HMODULE instance);
int detachModule();

// Texts of the resource module by string id, "" where it is missing.
enum TextId : UINT {
    TEXT_TRUE = 100,
    TEXT_FALSE = 101,
    TEXT_ALERT_CAPTION = 102,
    TEXT_REPORT_TAB = 103,
    TEXT_DRAWING_TAB = 104,
    TEXT_EMPTY_TAB = 105,
    TEXT_NO_LIST_OPEN = 106,
    TEXT_NOT_A_LIST_CONTROL = 107,
    TEXT_NO_SUCH_DIALOG = 108,
    TEXT_NOT_A_GRID = 110,
    TEXT_DIALOG_NOT_MADE = 111,
    TEXT_NO_ARGUMENTS = 112,
    TEXT_UNUSABLE_FOR_LIST_CONTROL = 113,
    TEXT_BUTTON_CAPTION_A = 114,
    TEXT_BUTTON_CAPTION_C = 116,
    TEXT_BUTTON_CAPTION_D = 117,
    TEXT_REPORT_HELP_TITLE = 118,
    TEXT_REPORT_HELP = 119,
    TEXT_PDF_NOT_SAVED = 120,
};

// A text of the resource module itself, and one through the current resource handle, as inside a
// ResourceScope.
CString resourceText(TextId id);
CString currentText(TextId id);

// Shows the text of that id through the current resource handle in the host's alert box.
void alertText(TextId id);
