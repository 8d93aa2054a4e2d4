; Filling list boxes and combo boxes, before and during the run, and what a selection tells Lisp.
(host_warn nil)  ; what the functions refuse is tried on purpose

(defun in-lists (prepared session) (in-dialog "DISP_ASSYVALS" prepared session))

(test "A value selects a row at the start, and one that doesn't exist selects none"
  '((in-lists '(progn (wex_set_tile "LST" "2") (fill "LST" '("one" "two" "three")))
      '((want "2" (wex_get_tile "LST"))))
    (in-lists '(progn (fill "LST" '("one" "two")) (wex_set_tile "LST" "2"))
      '((want "-1" (wex_get_tile "LST"))))))

(test "Items are strings and lists of strings, up to the first element that is none"
  '((in-lists '(progn (wex_start_list "LST")
                      (want nil (wex_add_list "a"))
                      (wex_add_list '("b" "c" 5 "d"))
                      (wex_add_list 7)
                      (want nil (wex_end_list))
                      (wex_add_list "after the end"))
      '((want '("a" "b" "c" "after the end") (ui_items "LST"))))))

(test "The operation of a list that was started before the run counts as the tile's mode"
  '((in-lists '(progn (wex_start_list "LST" 1) (wex_add_list "x")) '((want nil (look "LST" "enabled"))))
    (in-lists '(progn (wex_start_list "LST" 2) (wex_add_list "x")) '((want T (look "LST" "focus"))))
    ; Operation 3 is the mode that selects text, which a list doesn't know.
    (in-lists '(progn (wex_mode_tile "LST" 1) (fill "LST" '("one"))) '((want T (look "LST" "enabled"))))))

(test "Operation -1 leaves the mode to the control, and what is added later follows from that"
  '((in-lists '(progn (wex_start_list "LST" -1) (wex_add_list '("one" "two")))
      '((want T (look "LST" "enabled"))
        (want "0" (wex_get_tile "LST"))
        (wex_add_list "three")
        (want '("one" "two" "three") (ui_items "LST"))
        (wex_start_list "LST" -1)
        (wex_add_list "four")
        (want '("one" "two" "three" "four") (ui_items "LST"))))
    ; Here the template disables the list, and 1 changes the selected row.
    (in-dialog "ODD_KINDS" '(progn (wex_start_list "OFF" -1) (wex_add_list '("one" "two")))
      '((want nil (look "OFF" "enabled"))
        (wex_add_list "ONE")
        (want '("ONE" "two") (ui_items "OFF"))))))

(test "A tile that can't be found leaves the open list open, and rows of an unknown key never show"
  '((in-lists '(progn (wex_start_list "LST") (wex_add_list "a") (wex_start_list nil) (wex_add_list "b"))
      '((want '("a" "b") (ui_items "LST"))
        (wex_start_list "nobody")
        (wex_add_list "c")
        (want '("a" "b") (ui_items "LST"))))
    (want nil (ui_alerts))))

(test "The record holds the rows of the start alone, until a list is started on the live tile; and a setting of double clicks that comes too late"
  '((wex_new_dialog "DISP_ASSYVALS")
    ; The nested dialog, made and never started, goes in the place of this one, which so runs again.
    (wex_action_tile "B_BOM" "(wex_new_dialog \"CONFIRM_DELREC\")")
    (fill "LST" '("one" "two"))
    (foreach session '(((wex_add_list "three") (want '("one" "two" "three") (ui_items "LST"))
                        (wex_listctrl_enabledbclk "LST" nil) (want 2 (length (ui_alerts))) (ui_click "B_BOM"))
                       ((want '("one" "two") (ui_items "LST")) (ui_dblclick "LST" 0) (wex_start_list "LST" 2) (ui_click "B_BOM"))
                       ((want nil (ui_items "LST"))))
      (ui_session "DISP_ASSYVALS" (append session '((ui_click "Cancel"))))
      (wex_start_dialog))))

(test "A row without a list shows an alert"
  '((in-lists '(progn (wex_add_list "x") (want 1 (length (ui_alerts)))
                      (wex_add_list '("x" "y" 5 "z")) (want 2 (length (ui_alerts))))
      nil)))

(test "With multiple selection all selected rows are told, and none of them too; a double click presses OK"
  '((want 3 (run-dialog "DISP_LOCS_ON_DWG_MULT"
      '(progn (fill "LST" '("a" "b" "c" "d" "e" "f"))
              (wex_action_tile "LST" "(note (list $key $value $reason))")
              (wex_action_tile "OK" "(wex_done_dialog 3)"))
      '((want nil (look "LST" "selected"))
        (ui_pick "LST" '(5 0 2))
        (want '(0 2 5) (look "LST" "selected"))
        (ui_pick "LST" '(3 3))
        (ui_dblclick "LST" 1))))
    (want '(("lst" "5" 4) ("lst" "0 5" 4) ("lst" "0 2 5" 4) ("lst" "3" 4) ("lst" "" 4) ("lst" "1" 4)) notes)))

(test "A double click with nothing selected disables OK, until Lisp enables it"
  '((in-lists nil
      '((ui_dblclick "LST")
        (want nil (look "OK" "enabled"))
        (fill "LST" '("one"))
        (ui_pick "LST" 0)
        (want nil (look "OK" "enabled"))
        (wex_mode_tile "OK" 0)
        (want T (look "OK" "enabled"))))))

(test "A double click on an entry presses OK, one that is disabled too, and not while an action runs"
  '((run-dialog "DISP_ASSYVALS"
      '(progn (fill "LST" '("one" "two"))
              (wex_action_tile "OK" "(note (list $key (wex_get_tile \"LST\"))) (wex_done_dialog 1)")
              (wex_action_tile "B_BOM" "(wex_alert \"wait\") (note 'bom)"))
      '((wex_mode_tile "OK" 1)
        ; The box pumps messages, and so takes the double click in the middle of the action.
        (progn (ui_click "B_BOM") (ui_dblclick "LST" 0))
        (want '(bom) notes)
        (ui_dblclick "LST" 1)))
    (want '(bom ("ok" "1")) notes)))

(test "A double click does nothing in a list box whose record says so before the run; later that can't be changed"
  '((in-lists '(progn (fill "LST" '("one"))
                      (wex_listctrl_enabledbclk "LST" nil)
                      (wex_action_tile "OK" "(wex_done_dialog 1)"))
      '((want nil (ui_alerts))
        (wex_listctrl_enabledbclk "LST" T)
        (ui_dblclick "LST" 0)
        (want "0" (wex_get_tile "LST"))
        (fill "LST" nil)
        (ui_dblclick "LST")
        (want T (look "OK" "enabled"))))))

(test "A combo box shows nothing without a value, and its text is what is read"
  '((in-dialog "ADD_REC"
      '(progn (fill "TYPE" '("fuse" "relay"))
              (fill "MFG" '("MAKER A" "MAKER B"))
              (wex_set_tile "MFG" "1")
              (wex_action_tile "TYPE" "(note (list $key $value $reason))"))
      '((want "" (wex_get_tile "TYPE"))
        (want "MAKER B" (wex_get_tile "MFG"))
        (wex_set_tile "TYPE" "1")
        (want "relay" (wex_get_tile "TYPE"))
        (ui_pick "TYPE" "fuse")
        (want '(("type" "0" 4)) notes)
        (wex_start_list 125 2)
        (wex_add_list '("switch"))
        (want '("fuse" "relay" "switch") (ui_items "TYPE"))
        (wex_set_tile "TYPE" "1")
        (wex_start_list "TYPE" 1)
        (wex_add_list "RELAY")
        (want '("fuse" "RELAY" "switch") (ui_items "TYPE"))
        (want "" (wex_get_tile "TYPE"))
        (wex_add_list "plug")
        (want '("fuse" "RELAY" "switch" "plug") (ui_items "TYPE"))
        (wex_start_list "TYPE" 2.0)
        (want nil (ui_items "TYPE"))
        (fill "TYPE" (mapcar 'itoa (range 30)))
        (ui_pick "TYPE" 25)
        (want "25" (wex_get_tile "TYPE"))))))

(test "Rows that the start action puts in keep the value that was stored before, and a negative one clears"
  '((defun start ()
      (fill "TYPE" '("a" "b" "c"))
      (fill "MFG" '("one" "two"))
      (wex_set_tile "MFG" "1")
      (want "two" (wex_get_tile "MFG"))
      (wex_set_tile "MFG" "-1")
      (want "two" (wex_get_tile "MFG")))
    (in-dialog "ADD_REC" '(progn (wex_set_tile "TYPE" "1") (wex_setaction_oninit "(start)"))
      '((want "b" (wex_get_tile "TYPE")) (want "" (wex_get_tile "MFG"))))))

(test "A list that is hidden stays hidden when rows are added"
  '((in-lists '(fill "LST" '("one"))
      '((wex_mode_tile "LST" 6)
        (wex_add_list '("two" "three"))
        (want nil (look "LST" "visible"))
        (wex_mode_tile "LST" 5)
        (want '("one" "two" "three") (ui_items "LST"))))))
