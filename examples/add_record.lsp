; A form with validation and a nested dialog: OK insists on a description and a quantity, and asks before it takes a large one.

(defun complain (tile text)
  (wex_set_tile "MSG" text)
  (wex_mode_tile tile 2)
  (wex_mode_tile tile 3))

(defun sure-of (quantity)
  (wex_new_dialog "CONFIRM_DELREC")
  (wex_set_tile "main_title" "Large Quantity")
  (wex_set_tile "LABEL0" (strcat "Really " (itoa quantity) " pieces?"))
  (wex_set_tile "OK" "&Yes")
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (= (wex_start_dialog) 1))

(defun take-record (/ description quantity)
  (setq description (wex_get_tile "DESC")
        quantity (atoi (wex_get_tile "QTY")))
  (cond ((= description "") (complain "DESC" "Please describe the part."))
        ((< quantity 1) (complain "QTY" "Please give a quantity of 1 or more."))
        ((and (> quantity 100) (not (sure-of quantity))) (complain "QTY" "Please mend the quantity."))
        (T (setq record (list (wex_get_tile "CAT") description quantity))
           (wex_done_dialog 1))))

(defun ask-record (/ record)
  (wex_new_dialog "ADD_REC")
  (wex_mode_tile "CAT" 2)
  (wex_action_tile "OK" "(take-record)")
  (wex_start_dialog)
  record)

(ui_session "ADD_REC"
  '((ui_type "CAT" "1492-h4")
    (ui_click "OK")
    (ui_shot "add_record.png")
    (ui_type "DESC" "Fuse block, 30 A")
    (ui_type "QTY" "250")
    (ui_click "OK")))
(ui_session "CONFIRM_DELREC" '((ui_shot "add_record_nested.png") (ui_click "OK")))

(print (ask-record))
(terpri)
