; Setting and reading what tiles show, before and during the run.
(host_warn nil)  ; what the functions refuse is tried on purpose

(test "A button takes 1 and 0 as its state and anything else as its caption"
  '((in-dialog "ADD_REC" '(wex_setaction_oninit "(wex_set_tile \"KEEP\" \"1\")")
      '((want "1" (wex_get_tile "KEEP"))
        (wex_set_tile "KEEP" "2")
        (want "2" (ui_text "KEEP"))
        (want "1" (wex_get_tile "KEEP"))
        (wex_set_tile "KEEP" 0)
        (want "0" (wex_get_tile "KEEP"))
        (want "0" (wex_get_tile "OK"))))))

(test "Values of other types are an empty text, and ids reach what keys reach"
  '((in-dialog "ADD_REC" nil
      '((wex_set_tile "DESC" "x")
        (wex_set_tile "DESC" 2.5)
        (want "" (wex_get_tile "DESC"))
        (wex_set_tile 122 "by id")
        (want "by id" (wex_get_tile "DESC"))
        (wex_set_tile "DESC" 70000)
        (want "70000" (wex_get_tile 122))
        (want nil (wex_set_tile "DESC"))
        (want nil (wex_get_tile "nobody"))
        (want nil (wex_get_tile 399))
        (wex_set_tile "nobody" "x")
        (wex_set_tile "add_rec" "by name")
        (want "by name" (ui_title))
        (wex_set_tile "ADD_REC" "the name is in lower case")
        (want "by name" (ui_title))))))

(test "Modes before the run: disabled, hidden, focused, and the text that the template gives selected"
  '((in-dialog "ADD_REC"
      '(progn (wex_mode_tile "CAT" 1) (wex_mode_tile "B_CAT" 6) (wex_mode_tile "KEEP" 2) (wex_mode_tile "ASMB" 2) (wex_mode_tile "QTY" 3)
              (wex_mode_tile "DESC" "1") (want nil (wex_mode_tile "DESC")))
      '((want nil (look "CAT" "enabled")) (want nil (look "B_CAT" "visible")) (want T (look "ASMB" "focus"))
        (want T (look "DESC" "enabled"))
        (wex_mode_tile "QTY" 2) (ui_char "7") (want "7" (ui_text "QTY"))
        ; The dialog paints where a tile was: the focus stays where it is now.
        (wex_mode_tile "CAT" 6) (want T (look "QTY" "focus"))))))

(test "Modes on a live control; by id the focus doesn't move"
  '((in-dialog "ADD_REC" nil
      '((wex_mode_tile "CAT" 2)
        (want T (look "CAT" "focus"))
        (wex_mode_tile 120 2)
        (want T (look "CAT" "focus"))
        (wex_mode_tile "CAT" 1)
        (want nil (look "CAT" "enabled"))
        (want nil (look "CAT" "focus"))
        ; The dialog has it, and hands it on to one of its controls.
        (want 1 (length (remove-if-not '(lambda (id) (look id "focus")) (cdr (assoc "controls" (ui_look))))))
        (wex_mode_tile "CAT" 0)
        (want T (look "CAT" "enabled"))
        (wex_mode_tile "CAT" 6)
        (want nil (look "CAT" "visible"))
        (wex_mode_tile "CAT" 5)
        (want T (look "CAT" "visible"))
        (wex_mode_tile "CAT" 99)
        (wex_set_tile "DESC" "old")
        (wex_mode_tile "DESC" 2)
        (wex_mode_tile "DESC" 3)
        (ui_char "x")
        (want "x" (ui_text "DESC"))))))

(test "A combo box that is disabled while its edit box has the focus hands the keyboard on"
  '((in-dialog "ADD_REC" nil
      '((wex_mode_tile "MFG" 2)
        (ui_char "A")
        (want "A" (ui_text "MFG"))
        (wex_mode_tile "MFG" 1)
        (want nil (look "MFG" "focus"))
        (want 1 (length (remove-if-not '(lambda (id) (look id "focus")) (cdr (assoc "controls" (ui_look))))))))))

(test "wex_enable_dialog and wex_settitlebar work on the window"
  '((in-dialog "ADD_REC" nil
      '((wex_settitlebar "Renamed")
        (want "Renamed" (ui_title))
        (wex_settitlebar 5)
        (want "" (ui_title))
        (foreach call '((wex_enable_dialog 0) (wex_enable_dialog nil))
          (eval call)
          (want T (stringp (catch-error (ui_click "KEEP"))))
          (wex_enable_dialog))
        (wex_enable_dialog 0)
        (wex_enable_dialog "any other flag")
        (want nil (stringp (catch-error (ui_click "KEEP"))))))))

(test "wex_alert shows its text over the dialog and gives nil"
  '((want nil (wex_alert "Mind this" 1))
    (want '("Mind this") (ui_alerts))
    (want nil (wex_alert 5))
    (want '("") (ui_alerts))))
