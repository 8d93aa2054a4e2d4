; A walk through the product: a form with a title, stored values, modes, actions, an image button, a message and a nested
; dialog. Work it yourself, or let its session play.

(defun say (text) (wex_set_tile "MSG" text))

(defun look-up ()
  (wex_set_tile "CAT" "1492-H4")
  (wex_set_tile "DESC" "Fuse block, 30 A, DIN rail")
  (wex_set_tile "RATING" "30 A")
  (say "Found in the catalog."))

(defun help ()
  (wex_alert "Choose a part with the folder button, or type its number and description." 2))

(defun take ()
  (setq part (mapcar 'wex_get_tile '("CAT" "DESC" "QTY")))
  (if (= (wex_get_tile "KEEP") "1") (setq part (append part '("keep"))))
  (wex_done_dialog 1))

(defun leave ()
  (wex_new_dialog "CONFIRM_DELREC")
  (wex_set_tile "main_title" "Before You Go")
  (wex_set_tile "LABEL0" "Read the catalog number once more. Is it the one on the part?")
  (wex_set_tile "OK" "&Yes")
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (if (= (wex_start_dialog) 1) (take) (say "Mend the number, then press OK.")))

(wex_new_dialog "ADD_REC")
(wex_set_tile "main_title" "Add Catalog Record - Showcase")
(wex_set_tile "ASMB" "A-100")
(wex_set_tile "QTY" 4)
(wex_set_tile "KEEP" "1")
(wex_mode_tile "MORE" 1)
(wex_mode_tile "CAT" 2)
(wex_setaction_oninit "(say \"Press the folder button to look a part up.\")")
(wex_action_tile "B_CAT" "(look-up)")
(wex_action_tile "HELP" "(help)")
(wex_action_tile "OK" "(leave)")

(ui_session "ADD_REC"
  '((ui_shot "showcase-start.png")
    (ui_click "HELP")
    (ui_click "B_CAT")
    (ui_type "QTY" "12")
    (ui_shot "showcase.png")
    (ui_click "OK")))
(ui_session "CONFIRM_DELREC" '((ui_shot "showcase-nested.png") (ui_click "OK")))

(princ (list 'status (wex_start_dialog) 'part part))
(terpri)
