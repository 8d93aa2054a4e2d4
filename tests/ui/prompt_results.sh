#!/bin/bash
# At the prompt "no value" prints nothing where nil prints nil, so here the two can be told apart.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# Each line: a call, and behind "=>" what the prompt prints for it.
table='
(wex_get_attr 1) =>
(wex_load_dialog 1) => nil
(wex_unload_dialog) => nil
(wex_start_dialog) =>
(wex_done_dialog 1) =>
(wex_set_tile) => [alert]
(wex_set_tile "A") => nil
(wex_set_tile "A" "x") =>
(wex_get_tile "A") =>
(wex_mode_tile "A") => nil
(wex_mode_tile "A" 1) =>
(wex_action_tile "A") => nil
(wex_action_tile "A" "x") =>
(wex_setaction_oninit "x") =>
(wex_setaction_onsize 5) =>
(wex_dimy_tile 112) => 0
(wex_dimx_tile "A") => 0
(wex_enable_dialog) =>
(wex_settitlebar "x") => nil
(wex_start_image "A") =>
(wex_vector_image "A") => nil
(wex_vector_image "A" 1) => -1
(wex_fill_image "A") =>
(wex_slide_image 0) => -1
(wex_slide_image 0 0 9 9 "x") =>
(wex_end_image) =>
(wex_loadpicturefile "A") => -1
(wex_loadpicturefile "A" "nobody.png") => -1
(wex_loadpicturefile "A" 5) =>
(wex_start_list "A") =>
(wex_add_list "A") =>
(wex_end_list) => nil
(wex_grid_setcell "A" 1 1 1 1) => nil
(wex_grid_getrowcount "A") => nil
(wex_grid_addrow) => [alert]
(wex_edit_setasnumeric "A") => nil
(wex_edit_setasangular "A" 1 1) => nil
(wex_edit_seteditlimit "A") => nil
(wex_edit_seteditlimit "A" 5) => nil
(wex_setresizing "A") => nil
(wex_setresizing "A" 1) =>
(wex_setminresizing 1) => nil
(wex_setminresizing 1 1) =>
(wex_setmaxresizing 1) => nil
(wex_setmaxresizing 1 1) =>
(wex_start_controlmove 1) =>
(wex_movecontrol "A" 1 1 1 1) => nil
(wex_end_controlmove) =>
(wex_edit_setasnumeric) => [alert]
(wex_setresizing) => [alert]
(wex_movecontrol) => [alert]
(wex_listctrl_setcolumns) => [alert]
(wex_listctrl_setcolumns "A") => nil
(wex_listctrl_setcolumns "A" "x") =>
(wex_listctrl_setcolumnreference "A") => nil
(wex_listctrl_setcolumnreference "A" "x") =>
(wex_listctrl_additem "A" "x") => nil
(wex_listctrl_setitemcount "A" 5) => nil
(wex_listctrl_allowsorting "A" T) => nil
(wex_listctrl_getselectednths "A") => nil
(wex_listctrl_enabledbclk "A") => nil
(wex_listctrl_enabledbclk "A" T) =>
(wex_listctrl_keephighlight "A" T) => nil
(wex_listctrl_keephighlight) => [alert]
(wex_fp_getcount) => 0
(wex_fp_getitem 0) =>
(wex_fp_getadded) =>
(wex_fp_savedb) =>
(wex_fp_setupdatasrc) =>
(wex_fp_additem) =>
(wex_fp_additem 5) =>
(wex_fp_getitem -1) =>
(wex_fp_setitem 0) =>
(wex_fp_remitem "0") =>
(wex_fp_getmodified) => nil
(wex_fp_savedb) =>
(wex_fp_cleardatasrc) =>
(wex_new_dialog) => [alert]
(wex_new_dialog "CONFIRM_DELREC") => T
(wex_set_tile "OK" "x") =>
(wex_set_tile "OK") => nil
(wex_get_tile "OK") => nil
(wex_mode_tile "OK" 0) =>
(wex_listctrl_setcolumns "OK") => nil
(wex_listctrl_setcolumns "OK" 5) =>
(wex_listctrl_setcolumnreference "OK" "x") =>
(wex_listctrl_getcolcount "OK") => nil
(wex_action_tile "OK") => nil
(wex_action_tile "OK" 5) => T
(wex_setaction_oninit 5) =>
(wex_settitlebar "x") => nil
(wex_start_list "OK") =>
(wex_add_list 5) =>
(wex_setresizing "OK" "x") =>
(wex_setminresizing "x" 100) =>
(wex_movecontrol "OK" 1 1 1 1) => nil
(wex_listctrl_enabledbclk "OK" nil) =>
(wex_listctrl_keephighlight "OK" nil) => nil
(wex_done_dialog) => nil
(wex_enable_dialog nil) =>
(wex_new_dialog "NO_SUCH") => [alert] nil
(wex_settitlebar) => [alert]
'

calls=$(sed -n 's/ =>.*//p' <<<"$table")
wanted=$(sed -n 's/.* => *//p' <<<"$table" | tr ' ' '\n' | sed '/^$/d')
# An alert counts by its mark alone: its words are the resource module's.
printed=$(./wexhost --headless --no-warn --timeout 60 -i <<<"$calls" 2>&1 | tr -d '\r' | sed 's/^\[alert\].*/[alert]/; /^$/d')
diff -u <(echo "$wanted") <(echo "$printed")
