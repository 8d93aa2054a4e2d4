; How the person's work reaches Lisp: names, symbols, order, guards.
(host_warn nil)  ; what the functions refuse is tried on purpose

(test "Each kind of button reports its key, its value and its reason; the keyboard and F1 press buttons too"
  '((in-dialog "ADD_REC"
      '(foreach key '("KEEP" "HELP" "B_CAT" "OK") (wex_action_tile key "(note (list $key $value $reason))"))
      '((ui_click "KEEP") (ui_click "KEEP") (ui_click "HELP") (ui_click "B_CAT")
        (want '(("keep" "1" 1) ("keep" "0" 1) ("help" "0" 1) ("b_cat" "1" 1)) notes)
        (setq notes nil)
        (ui_key "SPACE" "KEEP") (ui_key "ENTER" "DESC") (ui_key "F1" "DESC")
        (want T (look "DESC" "focus"))))
    (want '(("keep" "1" 1) ("ok" "0" 1) ("help" "0" 1)) notes)))

(test "The function's name follows the spelling, and the record of OK has three names"
  '((want 1 (run-dialog "ADD_REC"
      '(want T (wex_action_tile "accept" "(setq pressed \"accept\") (wex_done_dialog 1)"))
      '((ui_click "OK"))))
    (want "accept" pressed)
    (want T (not (null c:OnActionEvent_add_recaccept)))))

(test "An id names the function, and $key is the key all the same"
  '((in-dialog "ADD_REC" '(want T (wex_action_tile 112 "(setq pressed $key)")) '((ui_click 112)))
    (want "help" pressed)
    (want T (not (null c:OnActionEvent_add_rec112)))))

(test "The second of two actions on a tile holds, and one that is bound while the dialog runs changes nothing"
  '((setq presses 0)
    (want 2 (run-dialog "CONFIRM_DELREC"
      '(progn (wex_action_tile "OK" "(wex_done_dialog 1)")
              (wex_action_tile "ok"
                "(setq presses (1+ presses)) (wex_action_tile \"OK\" \"(wex_done_dialog 9)\") (if (= presses 2) (wex_done_dialog 2))"))
      '((ui_click "OK") (ui_click "OK"))))))

(test "Missing and mistyped arguments of wex_action_tile"
  '((want -1 (run-dialog "CONFIRM_DELREC"
      '(progn (want nil (wex_action_tile "OK"))
              (want T (wex_action_tile "OK" 5))
              (want T (wex_action_tile "nobody" "(princ)"))
              (want T (wex_action_tile nil "(princ)"))
              (want nil (wex_setaction_oninit 5)))
      '((ui_click "OK") (ui_close))))
    (want T (not (null c:OnActionEvent_confirm_delrec-1)))))

(test "The start action runs once, before the stored values show"
  '((in-dialog "ADD_REC"
      '(progn (wex_set_tile "DESC" "stored")
              (wex_setaction_oninit "(note (wex_get_tile \"DESC\")) (wex_set_tile \"CAT\" \"from start\")"))
      '((note (ui_text "DESC"))))
    (want '("" "stored") notes)))

(test "Resizing runs the size action with the client area as a point, after the start and not before"
  '((setq $key "untouched")
    (in-dialog "CONFIRM_DELREC"
      '(progn (wex_setaction_oninit "(note 'start)")
              (wex_setaction_onsize "(note (list $value $key))"))
      '((ui_size 420 260) (setq client (mapcar 'float (cdr (assoc "client" (ui_look)))))))
    (want (list 'start (list client "untouched")) notes)))

(test "While an action runs, the click on another button that comes meanwhile is not served"
  '((in-dialog "ADD_REC"
      ; The box pumps messages, and so takes the second click in the middle of the first one's action.
      '(progn (wex_action_tile "HELP" "(note 'help) (wex_alert \"wait\") (note 'help-done)")
              (wex_action_tile "KEEP" "(note 'keep)"))
      '((progn (ui_click "HELP") (ui_click "KEEP")) (ui_click "KEEP")))
    (want '(HELP HELP-DONE KEEP) notes)))
