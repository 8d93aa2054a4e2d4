; How the person's work reaches Lisp: names, symbols, order, guards.

(defun note (what) (setq notes (append notes (list what))))

(test "Each kind of button reports its key, its value and its reason"
  '((setq notes nil)
    (ui_session "ADD_REC"
      '((ui_click "KEEP") (ui_click "KEEP") (ui_click "HELP") (ui_click "B_CAT") (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (foreach key '("KEEP" "HELP" "B_CAT") (wex_action_tile key "(note (list $key $value $reason))"))
    (wex_start_dialog)
    (want '(("keep" "1" 1) ("keep" "0" 1) ("help" "0" 1) ("b_cat" "1" 1)) notes)))

(test "An edit box reports its text once, when the focus leaves it and before the button that takes it"
  '((setq notes nil)
    (ui_session "ADD_REC" '((ui_type "DESC" "ACME") (ui_click "HELP") (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_action_tile "DESC" "(note (list $key $value $reason))")
    (wex_action_tile "HELP" "(note $key)")
    (wex_start_dialog)
    (want '(("desc" "ACME" 2) "help") notes)))

(test "The function's name follows the spelling, and the record of OK has three names"
  '((ui_session "ADD_REC" '((ui_click "OK")))
    (wex_new_dialog "ADD_REC")
    (want T (wex_action_tile "accept" "(setq pressed \"accept\") (wex_done_dialog 1)"))
    (want 1 (wex_start_dialog))
    (want "accept" pressed)
    (want T (not (null c:OnActionEvent_add_recaccept)))))

(test "An id names the function, and $key is the key all the same"
  '((ui_session "ADD_REC" '((ui_click 112) (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (want T (wex_action_tile 112 "(setq pressed $key)"))
    (wex_start_dialog)
    (want "help" pressed)
    (want T (not (null c:OnActionEvent_add_rec112)))))

(test "The second of two actions on a tile holds"
  '((ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (wex_new_dialog "CONFIRM_DELREC")
    (wex_action_tile "OK" "(wex_done_dialog 1)")
    (wex_action_tile "ok" "(wex_done_dialog 2)")
    (want 2 (wex_start_dialog))))

(test "Missing and mistyped arguments of wex_action_tile"
  '((wex_new_dialog "CONFIRM_DELREC")
    (want nil (wex_action_tile "OK"))
    (want T (wex_action_tile "OK" 5))
    (want T (wex_action_tile "nobody" "(princ)"))
    (want T (wex_action_tile nil "(princ)"))
    (want nil (wex_setaction_oninit 5))
    (ui_session "CONFIRM_DELREC" '((ui_click "OK") (ui_close)))
    (want -1 (wex_start_dialog))
    (want T (not (null c:OnActionEvent_confirm_delrec-1)))))

(test "An action that is bound while the dialog runs changes nothing"
  '((ui_session "CONFIRM_DELREC" '((ui_click "OK") (ui_click "OK") (ui_close)))
    (wex_new_dialog "CONFIRM_DELREC")
    (setq presses 0)
    (wex_action_tile "OK" "(setq presses (1+ presses)) (wex_action_tile \"OK\" \"(wex_done_dialog 9)\")")
    (want -1 (wex_start_dialog))
    (want 2 presses)))

(test "The start action runs once, before the stored values show"
  '((setq notes nil)
    (ui_session "ADD_REC" '((note (ui_text "DESC")) (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_set_tile "DESC" "stored")
    (wex_setaction_oninit "(note (wex_get_tile \"DESC\")) (wex_set_tile \"CAT\" \"from start\")")
    (wex_start_dialog)
    (want '("" "stored") notes)))

(test "Resizing runs the size action with the client area as a point, after the start and not before"
  '((setq notes nil)
    (ui_session "CONFIRM_DELREC" '((ui_size 420 260) (ui_click "OK")))
    (wex_new_dialog "CONFIRM_DELREC")
    (setq $key "untouched")
    (wex_setaction_oninit "(note 'start)")
    (wex_setaction_onsize "(note (list (type (car $value)) (length $value) $key))")
    (wex_start_dialog)
    (want '(START (REAL 2 "untouched")) notes)))

(test "F1 presses the Help button, which need not have the focus"
  '((setq notes nil)
    (ui_session "ADD_REC" '((ui_key "F1" "DESC") (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_action_tile "HELP" "(note (list $key $value $reason))")
    (wex_start_dialog)
    (want '(("help" "0" 1)) notes)))

(test "The keyboard presses buttons: Enter the default one, Space and mnemonics"
  '((setq notes nil)
    (ui_session "ADD_REC" '((ui_key "SPACE" "KEEP") (ui_key "ENTER" "DESC") (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_action_tile "KEEP" "(note $value)")
    (wex_action_tile "OK" "(note $key)")
    (wex_start_dialog)
    (want '("1" "ok") notes)))

(test "While an action runs, the click on another button that comes meanwhile is not served"
  '((setq notes nil)
    (ui_session "ADD_REC" '((progn (ui_click "HELP") (ui_click "KEEP")) (ui_click "KEEP") (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    ; The box pumps messages, and so takes the second click in the middle of the first one's action.
    (wex_action_tile "HELP" "(note 'help) (wex_alert \"wait\") (note 'help-done)")
    (wex_action_tile "KEEP" "(note 'keep)")
    (wex_start_dialog)
    (want '(HELP HELP-DONE KEEP) notes)))
