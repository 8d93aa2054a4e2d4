// What the modules that bring dialogs must keep to: the plug-in finds dialogs by it, and a check of dialogs
// asks for it. Portable.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// The plug-in holds the key lists of the product's dialogs, the resource module beside it their templates. An
// add-on holds both.
constexpr std::wstring_view PLUGIN_NAME = L"WexDialogs.pgx";
constexpr std::wstring_view RESOURCE_MODULE_NAME = L"WexDialogsRes.dll";

// Ids of the strings that can be key lists; a dialog's template has the id of its key list.
constexpr int FIRST_KEY_LIST_ID = 1500;
constexpr int LAST_KEY_LIST_ID = 3999;
// What a key list has beyond so many characters is cut off.
constexpr size_t KEY_LIST_CHARS = 1499;

// The ids of the controls that are looked at when a dialog starts, besides those of OK and Cancel.
constexpr int FIRST_WALKED_ID = 109;
constexpr int LAST_WALKED_ID = 399;
bool isWalkedId(int id);

// The dialog of reports has a tab control and buttons beside those of its keys, with ids of their own.
constexpr std::wstring_view REPORT_DIALOG = L"report_generator";
constexpr int REPORT_TAB_ID = 100;
// Whether the id is one of these in the dialog of that name, which is in lower case.
bool isReportControl(std::wstring_view dialog, int id);

// The style of a group box that becomes a frame: child, visible, clip-siblings and group box, and no further
// bit.
constexpr uint32_t FRAME_STYLE = 0x54000007;
// The extended style bit that makes a button a slide tile.
constexpr uint32_t SLIDE_EX_STYLE = 0x20000;
