; A confirmation: asks before something is deleted, and answers T or nil.

(defun confirm-delete (what / answer)
  (wex_new_dialog "CONFIRM_DELREC")
  (wex_set_tile "LABEL0" (strcat "Delete " what " from the catalog? This can't be undone."))
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (setq answer (wex_start_dialog))
  (= answer 1))

(ui_session "CONFIRM_DELREC" '((ui_shot "confirm.png") (ui_click "OK")))
(ui_session "CONFIRM_DELREC" '((ui_key "ESC")))

(princ (if (confirm-delete "AB-1492-H4") "deleted" "kept"))
(terpri)
(princ (if (confirm-delete "AB-1492-H5") "deleted" "kept"))
(terpri)
