; The functions are there in every document, and go with the last one.

(setq all-functions
  '(wex_new_dialog wex_start_dialog wex_done_dialog wex_unload_dialog wex_load_dialog wex_action_tile wex_set_tile
    wex_mode_tile wex_get_attr wex_get_tile wex_start_image wex_vector_image wex_fill_image wex_dimx_tile
    wex_dimy_tile wex_slide_image wex_end_image wex_start_list wex_add_list wex_end_list wex_setaction_oninit
    wex_setaction_onsize wex_listctrl_addcolumn wex_listctrl_additem wex_listctrl_setitem wex_listctrl_setcolumnwidth
    wex_listctrl_getcolumnwidth wex_listctrl_showgridlines wex_listctrl_setcolumns wex_listctrl_setcolumnreference
    wex_listctrl_deletecolumn wex_listctrl_renamecolumn wex_listctrl_getcolcount wex_listctrl_allowsorting
    wex_listctrl_getselectednths wex_listctrl_enabledbclk wex_listctrl_keephighlight wex_listctrl_setitemcount
    wex_loadpicturefile wex_setresizing wex_setminresizing wex_setmaxresizing wex_settitlebar wex_grid_setrowcolumns
    wex_grid_setcell wex_grid_getcell wex_grid_clearcells wex_tab_add wex_grid_setrowheight wex_grid_setcolumnwidth
    wex_tree_insertparent wex_tree_insertchild wex_tree_insertparentafter wex_tree_insertchildafter
    wex_tree_setitemdata wex_tree_getitemdata wex_tree_setitemtext wex_tree_getitemtext wex_tree_setitemimages
    wex_tree_getitemimages wex_tree_deleteitem wex_tree_deleteallitems wex_tree_sortchildren wex_tree_getcursel
    wex_tree_selectitem wex_tree_getparent wex_tree_getcount wex_tree_expanditem wex_tree_setupimagelist
    wex_edit_setasnumeric wex_edit_setasangular wex_grid_sortcolbytext wex_movecontrol wex_start_controlmove
    wex_end_controlmove wex_enable_dialog wex_grid_getcolumncount wex_grid_setrow wex_edit_seteditlimit
    wex_grid_addrow wex_grid_getrowcount wex_grid_setjustification wex_alert wex_fp_setupdatasrc wex_fp_cleardatasrc
    wex_fp_getcount wex_fp_getitem wex_fp_setitem wex_fp_additem wex_fp_remitem wex_fp_getadded wex_fp_getmodified
    wex_fp_getdeleted wex_fp_savedb))

(defun missing () (remove-if 'boundp all-functions))

(test "A second document has them too, and they stay when it closes"
  '((want nil (missing))
    (host_open_document)
    (want nil (missing))
    (host_close_document)
    (want nil (missing))))

(test "They go with the last document and come with the next one"
  '((host_close_document)
    (want all-functions (missing))
    (host_open_document)
    (want nil (missing))
    (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (wex_new_dialog "CONFIRM_DELREC")
    (want -1 (wex_start_dialog))))
