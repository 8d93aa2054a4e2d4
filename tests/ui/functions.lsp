; The functions are there in every document, and go with the last one.

(setq some-functions
  '(wex_new_dialog wex_start_list wex_listctrl_addcolumn wex_grid_setcell wex_tab_add wex_tree_insertchild
    wex_edit_setasnumeric wex_alert wex_fp_savedb))

(defun missing () (remove-if 'boundp some-functions))

(test "A second document has them too, and they stay when it closes"
  '((want nil (missing))
    (host_open_document)
    (want nil (missing))
    (host_close_document)
    (want nil (missing))))

(test "They go with the last document and come with the next one"
  '((host_close_document)
    (want some-functions (missing))
    (host_open_document)
    (want nil (missing))
    (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (wex_new_dialog "CONFIRM_DELREC")
    (want -1 (wex_start_dialog))))
