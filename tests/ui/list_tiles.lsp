; Filling list boxes and combo boxes, before and during the run, and what a selection tells Lisp.

(defun note (what) (setq notes (append notes (list what))))

(defun fill (tile items)
  (wex_start_list tile)
  (wex_add_list items)
  (wex_end_list))

(defun in-lists (init session)
  (ui_session "DISP_ASSYVALS" session)
  (wex_new_dialog "DISP_ASSYVALS")
  (eval init)
  (wex_start_dialog))

(test "Rows that wait in the record show in order, with the first one selected"
  '((in-lists '(progn (fill "LST" '("one" "two" "three")))
      '((want '("one" "two" "three") (ui_items "LST"))
        (want "0" (wex_get_tile "LST"))
        (ui_click "Cancel")))))

(test "A value selects a row at the start, and one that doesn't exist selects none"
  '((in-lists '(progn (wex_set_tile "LST" "2") (fill "LST" '("one" "two" "three")))
      '((want "2" (wex_get_tile "LST")) (ui_click "Cancel")))
    (in-lists '(progn (fill "LST" '("one" "two")) (wex_set_tile "LST" "7"))
      '((want "-1" (wex_get_tile "LST")) (ui_click "Cancel")))))

(test "Items are strings and lists of strings, up to the first element that is none"
  '((in-lists '(progn (wex_start_list "LST")
                      (want nil (wex_add_list "a"))
                      (wex_add_list '("b" "c" 5 "d"))
                      (wex_add_list 7)
                      (want nil (wex_end_list))
                      (wex_add_list "after the end"))
      '((want '("a" "b" "c" "after the end") (ui_items "LST")) (ui_click "Cancel")))))

(test "On a live list box operation 3 empties, 2 appends, 1 changes the selected entry"
  '((in-lists '(fill "LST" '("one" "two" "three"))
      '((wex_start_list "LST" 2)
        (wex_add_list "four")
        (want '("one" "two" "three" "four") (ui_items "LST"))
        (wex_set_tile "LST" "1")
        (wex_start_list "LST" 1)
        (wex_add_list "TWO")
        (want '("one" "TWO" "three" "four") (ui_items "LST"))
        (want "-1" (wex_get_tile "LST"))
        (wex_add_list "five")
        (want '("one" "TWO" "three" "four" "five") (ui_items "LST"))
        (fill 112 '("new"))
        (want '("new") (ui_items "LST"))
        (ui_click "Cancel")))))

(test "The operation of a list that was started before the run counts as the tile's mode"
  '((in-lists '(progn (wex_start_list "LST" 1) (wex_add_list "x"))
      '((want nil (cdr (assoc "enabled" (ui_look "LST")))) (ui_click "Cancel")))
    (in-lists '(progn (wex_start_list "LST" 2) (wex_add_list "x"))
      '((want T (cdr (assoc "focus" (ui_look "LST")))) (ui_click "Cancel")))))

(test "A row without a list shows an alert; without a dialog nothing happens"
  '((want nil (wex_add_list "x"))
    (want nil (wex_start_list "LST"))
    (want nil (wex_end_list))
    (want nil (ui_alerts))
    (in-lists '(progn (wex_add_list "x") (want 1 (length (ui_alerts))))
      '((ui_click "Cancel")))))

(test "Selecting an entry tells its index"
  '((setq notes nil)
    (in-lists '(progn (fill "LST" '("one" "two" "three"))
                      (wex_action_tile "LST" "(note (list $key $value $reason))"))
      '((ui_pick "LST" 1) (ui_pick "LST" "three") (ui_click "Cancel")))
    (want '(("lst" "1" 4) ("lst" "2" 4)) notes)))

(test "A double click presses OK where something is selected"
  '((setq notes nil)
    (in-lists '(progn (fill "LST" '("one" "two"))
                      (wex_action_tile "OK" "(note (list $key (wex_get_tile \"LST\"))) (wex_done_dialog 1)"))
      '((ui_dblclick "LST" 1)))
    (want '(("ok" "1")) notes)))

(test "A combo box shows nothing without a value, and its text is what is read"
  '((setq notes nil)
    (ui_session "ADD_REC"
      '((want "" (wex_get_tile "TYPE"))
        (wex_set_tile "TYPE" "1")
        (want "relay" (wex_get_tile "TYPE"))
        (ui_pick "TYPE" "fuse")
        (want "MAKER B" (wex_get_tile "MFG"))
        (wex_start_list "TYPE" 2)
        (wex_add_list '("switch"))
        (want '("fuse" "relay" "switch") (ui_items "TYPE"))
        (wex_start_list "TYPE")
        (want nil (ui_items "TYPE"))
        (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (fill "TYPE" '("fuse" "relay"))
    (fill "MFG" '("MAKER A" "MAKER B"))
    (wex_set_tile "MFG" "1")
    (wex_action_tile "TYPE" "(note (list $key $value $reason))")
    (wex_start_dialog)
    (want '(("type" "0" 4)) notes)))

(test "Ten thousand entries added to a list that shows"
  '((in-lists nil
      '((setq many nil)
        (repeat 10000 (setq many (cons "entry" many)))
        (fill "LST" many)
        (want 10000 (length (ui_items "LST")))
        (ui_click "Cancel")))))
