; Setting and reading what tiles show, before and during the run.

(defun look (tile what) (cdr (assoc what (ui_look tile))))

(defun in-dialog (name init session)
  (ui_session name session)
  (wex_new_dialog name)
  (wex_setaction_oninit init)
  (wex_start_dialog))

(test "Values that wait in the records show at the start"
  '((ui_session "ADD_REC"
      '((want "ACME" (ui_text "DESC")) (want "12" (ui_text "QTY")) (want T (look "KEEP" "checked"))
        (want "New part" (ui_title)) (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (want nil (wex_set_tile "DESC" "ACME"))
    (wex_set_tile "QTY" 12)
    (wex_set_tile "KEEP" 1)
    (wex_set_tile "MAIN_TITLE" "New part")
    (wex_settitlebar "not kept")
    (want nil (wex_get_tile "DESC"))
    (want -1 (wex_start_dialog))))

(test "A button takes 1 and 0 as its state and anything else as its caption"
  '((in-dialog "ADD_REC" "(wex_set_tile \"KEEP\" \"1\")"
      '((want "1" (wex_get_tile "KEEP"))
        (wex_set_tile "KEEP" "2")
        (want "2" (ui_text "KEEP"))
        (want "1" (wex_get_tile "KEEP"))
        (wex_set_tile "KEEP" 0)
        (want "0" (wex_get_tile "KEEP"))
        (want "0" (wex_get_tile "OK"))
        (ui_click "Cancel")))))

(test "Values of other types are an empty text, and ids reach what keys reach"
  '((in-dialog "ADD_REC" ""
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
        (want "by name" (ui_title))
        (ui_click "Cancel")))))

(test "Modes before the run: disabled, hidden, focused"
  '((ui_session "ADD_REC"
      '((want nil (look "CAT" "enabled")) (want nil (look "QTY" "visible")) (want T (look "ASMB" "focus"))
        (want T (look "DESC" "enabled")) (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_mode_tile "CAT" 1)
    (wex_mode_tile "QTY" 6)
    (wex_mode_tile "ASMB" 2)
    (wex_mode_tile "DESC" "1")
    (want nil (wex_mode_tile "DESC"))
    (wex_start_dialog)))

(test "Modes on a live control; by id the focus doesn't move"
  '((in-dialog "ADD_REC" ""
      '((wex_mode_tile "CAT" 2)
        (want T (look "CAT" "focus"))
        (wex_mode_tile 120 2)
        (want T (look "CAT" "focus"))
        (wex_mode_tile "CAT" 1)
        (want nil (look "CAT" "enabled"))
        (want nil (look "CAT" "focus"))
        (wex_mode_tile "CAT" 0)
        (want T (look "CAT" "enabled"))
        (wex_mode_tile "CAT" 6)
        (want nil (look "CAT" "visible"))
        (wex_mode_tile "CAT" 5)
        (want T (look "CAT" "visible"))
        (wex_mode_tile "CAT" 99)
        (ui_click "Cancel")))))

(test "Mode 3 selects the text of an edit box, so that typing replaces it"
  '((in-dialog "ADD_REC" ""
      '((wex_set_tile "DESC" "old")
        (wex_mode_tile "DESC" 2)
        (wex_mode_tile "DESC" 3)
        (ui_key "X")
        (want "X" (strcase (ui_text "DESC")))
        (ui_click "Cancel")))))

(test "Mode 3 before the run selects the text that the template gives"
  '((ui_session "ADD_REC"
      '((wex_mode_tile "QTY" 2) (ui_char "7") (want "7" (ui_text "QTY")) (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_mode_tile "QTY" 3)
    (wex_start_dialog)))

(test "The value of a list is an entry's number; one that doesn't exist leaves the selection"
  '((ui_session "DISP_ASSYVALS"
      '((wex_set_tile "LST" "99")
        (want "1" (wex_get_tile "LST"))
        (wex_set_tile "LST" "-1")
        (want "1" (wex_get_tile "LST"))
        (wex_set_tile "LST" 2)
        (want "2" (wex_get_tile "LST"))
        (wex_set_tile 112 "abc")
        (want "0" (wex_get_tile "LST"))
        (ui_click "Cancel")))
    (wex_new_dialog "DISP_ASSYVALS")
    (wex_start_list "LST")
    (wex_add_list '("a" "b" "c"))
    (wex_set_tile "LST" "1")
    (wex_start_dialog)))

(test "wex_enable_dialog and wex_settitlebar work on the window"
  '((in-dialog "ADD_REC" ""
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
        (want nil (stringp (catch-error (ui_click "KEEP"))))
        (ui_click "Cancel")))))

(test "wex_alert shows its text over the dialog and gives nil"
  '((want nil (wex_alert "Mind this" 1))
    (want '("Mind this") (ui_alerts))
    (want nil (wex_alert 5))
    (want '("") (ui_alerts))))
