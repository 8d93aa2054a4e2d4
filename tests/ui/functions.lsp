; The functions are there in every document, and go with the last one.

; The first, the last and some between them: each session calls its own.
(setq all-functions '(wex_new_dialog wex_start_dialog wex_listctrl_additem wex_grid_setcell wex_tree_insertchild wex_fp_savedb))

(defun missing () (remove-if 'boundp all-functions))

(test "A second document has them too, and they stay when it closes; they go with the last one and come with the next"
  '((host_open_document)
    (want nil (missing))
    (host_close_document)
    (want nil (missing))
    (host_close_document)
    (want all-functions (missing))
    (host_open_document)
    (want nil (missing))
    (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (wex_new_dialog "CONFIRM_DELREC")
    (want -1 (wex_start_dialog))))
