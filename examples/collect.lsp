; Results into a list: the form comes again until it is cancelled, and what was entered is kept in a list.

(setq records nil)

(defun enter-one (/ record)
  (wex_new_dialog "ADD_REC")
  (wex_set_tile "main_title" (strcat "Part " (itoa (1+ (length records)))))
  (if keep (progn (wex_set_tile "KEEP" "1") (wex_set_tile "DESC" (cadr (car records)))))
  (wex_action_tile "OK"
    "(setq record (list (wex_get_tile \"CAT\") (wex_get_tile \"DESC\"))
           keep (= (wex_get_tile \"KEEP\") \"1\"))
     (wex_done_dialog 1)")
  (wex_start_dialog)
  (if record (setq records (cons record records)))
  record)

(ui_session "ADD_REC" '((ui_type "CAT" "700-hk32") (ui_type "DESC" "Relay, 24 V") (ui_click "KEEP") (ui_click "OK")))
(ui_session "ADD_REC" '((ui_shot "collect.png") (ui_type "CAT" "700-hk36") (ui_click "OK")))
(ui_session "ADD_REC" '((ui_click "Cancel")))

(while (enter-one))
(foreach record (reverse records) (print record))
(terpri)
