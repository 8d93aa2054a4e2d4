; What the functions of sessions do is what a person's hands would do.

(defun in-list (session)
  (in-dialog "PICK_DWGS"
    '(progn (fill-table "LST1" (append three-rows '("delta\t1"))) (wex_action_tile "LST1" "(note $value)"))
    session))
(defun selected (tile) (look tile "selected"))

(test "A key is let go behind the character that it makes, and where the focus is then"
  '((in-list
      '((ui_pick "LST1" 0)
        (setq notes nil)
        (ui_key "G" "LST1")
        (want '("2") notes)
        (setq notes nil)
        (ui_key "SHIFT+TAB") (ui_key "TAB")
        (want T (look "LST1" "focus"))
        (want '("2") notes)))))

(test "Typing where the focus is already doesn't click there"
  '((in-list
      '((ui_pick "LST1" 0)
        (setq notes nil)
        ; The character selects a row, and only a click or a key is told.
        (ui_type "LST1" "g")
        (want '(2) (selected "LST1"))
        (want nil notes)))))

(test "Shift and Ctrl are held for a key and for a click, and let go behind it"
  '((in-list
      '((ui_pick "LST1" 0)
        (ui_key "SHIFT+DOWN") (want '(0 1) (selected "LST1"))
        (ui_key "DOWN") (want '(2) (selected "LST1"))
        (ui_pick "LST1" 0 "SHIFT") (want '(0 1 2) (selected "LST1"))
        (ui_pick "LST1" 1 1 "CTRL") (want '(0 2) (selected "LST1"))
        (ui_pick "LST1" '(3 0)) (want '(0 3) (selected "LST1"))
        (ui_pick "LST1" 2) (want '(2) (selected "LST1"))
        (want T (stringp (refused '(ui_pick "LST1" 2 "ALT"))))))))

(test "A drag over entries takes those between; from far apart it is refused"
  '((in-dialog "ODD_KINDS"
      '(fill "MULTI" '("a" "b" "c" "d" "e" "f" "g" "h" "i" "j" "k" "l"))
      '((ui_sweep "MULTI" "b" "d") (want '(1 2 3) (selected "MULTI"))
        (ui_sweep "MULTI" 2 0) (want '(0 1 2) (selected "MULTI"))
        (ui_hold "MULTI" "c") (ui_release "MULTI" "e") (want '(2 3 4) (selected "MULTI"))
        (want T (stringp (refused '(ui_sweep "MULTI" 0 11))))))))

(test "The mouse leads the area of a grid to a cell while its button is held"
  '((in-dialog "EDIT_NONWD_ATTRS" '(wex_setaction_oninit "(wex_grid_setrowcolumns \"LST\" 9 4)")
      '((ui_hold "LST" 108 30) (ui_hover "LST" 4 3) (want '(4 3) (cddr (car (look "LST" "ranges"))))
        (ui_hover "LST" 2 3) (want '(2 3) (cddr (car (look "LST" "ranges"))))
        (ui_release "LST" 108 30) (ui_hover "LST" 4 3) (want nil (equal '(4 3) (cddr (car (look "LST" "ranges")))))))))

(test "After a lost release of its button a press beside the cells frees the mouse of a grid"
  '((in-dialog "EDIT_NONWD_ATTRS" '(wex_setaction_oninit "(wex_grid_setrowcolumns \"LST\" 9 4)")
      '((ui_hold "LST" 108 30) (ui_click "LST" 2000 2000)
        (want T (stringp (refused '(ui_click "LST" 2000 2000))))))))

; The box that is left runs the action.
(defun leave-and-click (action)
  (run-dialog "ADD_REC"
    (list 'progn (list 'wex_action_tile "DESC" action)
          '(wex_action_tile "HELP" "(note $key)")
          '(wex_action_tile "OK" "(wex_done_dialog 7)"))
    '((ui_type "DESC" "one") (ui_click "HELP") (want '("help") notes)
      (ui_type "DESC" "two") (ui_click "OK"))))

(test "A click arrives also where the box that is left shows an alert or runs a dialog, by either input"
  '((foreach input '("POSTED" "REAL" "POSTED")
      (ui_input input)
      (setq notes nil)
      (want 7 (leave-and-click "(wex_alert \"Mind this\" 2)"))
      (setq notes nil)
      (repeat 2 (ui_session "CONFIRM_DELREC" '((ui_click "OK"))))
      (want 7 (leave-and-click "(wex_new_dialog \"CONFIRM_DELREC\") (wex_start_dialog)")))))

(test "A new line may bring up a box: what is typed behind it comes when that was answered"
  '((in-dialog "ODD_KINDS"
      '(wex_action_tile "LINES" "(note $value) (wex_alert \"Mind this\" 2)")
      '((ui_type "LINES" "a\nb") (want '("a") notes) (want "a\r\nb" (wex_get_tile "LINES"))))))

(test "A tab is reached in either direction, however far it is scrolled off"
  '((in-dialog "ODD_TABS"
      '(setq n 0)
      '((repeat 30 (setq n (1+ n)) (wex_tab_add "TAB" (strcat "A long name of page " (itoa n))))
        (foreach tab '(29 3 17 0 28 27 1) (ui_pick "TAB" tab))
        (ui_pick "TAB" 29) (want '(29) (selected "TAB"))
        (ui_pick "TAB" 5) (want '(5) (selected "TAB"))
        (ui_pick "TAB" 0) (want '(0) (selected "TAB"))
        (ui_pick "TAB" 12) (want '(12) (selected "TAB"))
        (ui_pick "TAB" 11) (want '(11) (selected "TAB"))))))

(test "Long texts of rows and tabs are given whole"
  '((setq long "0123456789")
    (repeat 10 (setq long (strcat long long)))
    (in-dialog "ODD_TABLES" nil
      '((wex_listctrl_setcolumns "TABLE" "\tName")
        (fill "TABLE" (list long))
        (want 10240 (strlen (car (ui_items "TABLE"))))))))

(test "What a person can't size is not dragged"
  '((run-dialog "ADD_REC" '(wex_setresizing "DESC" 25)
      '((setq before (cdr (assoc "client" (ui_look))))
        (wex_enable_dialog nil)
        (want T (stringp (refused '(ui_drag "GRIP" 20 20))))
        (want before (cdr (assoc "client" (ui_look))))
        (wex_enable_dialog T)
        (ui_drag "GRIP" 20 20)
        (want nil (equal before (cdr (assoc "client" (ui_look)))))
        (ui_click "Cancel")))))
