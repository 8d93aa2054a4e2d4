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

// Pictures and texts of menus; the numbers of an item's picture and text differ.
#define IDI_COPY                    301
#define IDI_CUT                     302
#define IDI_PASTE                   303
#define IDI_UNDO                    304
#define IDI_REDO                    305
#define IDI_PRINT                   306
#define IDI_SAVE                    307
#define IDI_FIT                     308
#define IDI_EXPAND                  309
#define IDI_COLLAPSE                310

#define IDS_MENU_COPY               321
#define IDS_MENU_COPY_TITLES        322
#define IDS_MENU_SELECT_ALL         323
#define IDS_MENU_FIT_COLUMNS        324
#define IDS_MENU_CUT                325
#define IDS_MENU_COPY_CELLS         326
#define IDS_MENU_PASTE              327
#define IDS_MENU_UNDO               328
#define IDS_MENU_REDO               329
#define IDS_MENU_EXPAND_ALL         330
#define IDS_MENU_COLLAPSE_ALL       331
#define IDS_MENU_PRINT              332
#define IDS_MENU_SAVE_PDF           333
#define IDS_MENU_FIT_DRAWING        334
#define IDS_MENU_STYLE              335
#define IDS_MENU_VIEW               336
#define IDS_MENU_WIREFRAME_2D       337
#define IDS_MENU_WIREFRAME_3D       338
#define IDS_MENU_HIDDEN             339
#define IDS_MENU_SHADED             340
#define IDS_MENU_TOP                341
#define IDS_MENU_FRONT              342
#define IDS_MENU_RIGHT              343
#define IDS_MENU_ISOMETRIC          344
#define IDS_MENU_SELECT_CELLS       345
