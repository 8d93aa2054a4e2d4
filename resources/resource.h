// Ids of the resources but for the dialogs, whose files tell theirs.
#pragma once

#include <windows.h>

// Texts. True and False stand in the plug-in's table too.
#define IDS_TRUE                    100
#define IDS_FALSE                   101
#define IDS_ALERT_CAPTION           102
#define IDS_REPORT_TAB_TABLE        103
#define IDS_REPORT_TAB_DRAWING      104
#define IDS_REPORT_TAB_BLANK        105
#define IDS_NO_LIST_OPEN            106
#define IDS_NOT_A_LIST_CONTROL      107
#define IDS_NO_SUCH_DIALOG          108
#define IDS_NOT_A_GRID              110
#define IDS_DIALOG_NOT_MADE         111
#define IDS_NO_ARGUMENTS            112
#define IDS_UNUSABLE_FOR_LIST       113
#define IDS_BUTTON_CAPTION_A        114
#define IDS_BUTTON_CAPTION_C        116
#define IDS_BUTTON_CAPTION_D        117
#define IDS_REPORT_HELP_TITLE       118
#define IDS_REPORT_HELP             119
#define IDS_PDF_NOT_SAVED           120

// Pictures of image buttons.
#define IDI_ARROWS_LEFT             209
#define IDI_ARROWS_RIGHT            210
#define IDI_PICK                    211
#define IDI_BROWSE                  212
#define IDI_UP                      1005
#define IDI_DOWN                    1006

// Pictures of tree items.
#define IDI_PROJECT                 101
#define IDI_FOLDER                  102
#define IDI_FOLDER_OPEN             103
#define IDI_DRAWING                 104
#define IDI_PART                    105
#define IDI_CONNECTOR               106
#define IDI_TERMINAL                107
