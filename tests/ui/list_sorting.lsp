; Sorting a list control by clicks on its header.
(host_warn nil)  ; what the functions refuse is tried on purpose

(defun in-list (rows session)
  (in-dialog "PICK_DWGS"
    '(progn (wex_listctrl_setcolumns "LST1" "\tName\tSize\tLength")
            (fill "LST1" rows)
            (wex_action_tile "LST1" "(note $value)")
            (wex_setaction_oninit "(wex_listctrl_allowsorting \"LST1\" T)"))
    session))

(setq three '("alpha\t10\t2'" "beta\t9\t1'-6\"" "gamma\t100\t20"))

; The first letters of the rows, in their order.
(defun order () (apply 'strcat (mapcar '(lambda (row) (substr row 1 1)) (ui_items "LST1"))))
(defun directions () (mapcar 'caddr (ui_columns "LST1")))
(defun selected () (look "LST1" "selected"))

(test "Clicks on a head sort up, down and up again, and another head starts up"
  '((in-list three
      '((want '(0 0 0) (directions))
        (ui_header "LST1" 1)
        (want "bag" (order))
        (want '(0 1 0) (directions))
        (ui_header "LST1" 1)
        (want "gab" (order))
        (wex_listctrl_renamecolumn "LST1" 1 (apply 'strcat (mapcar '(lambda (i) "x") (range 300))))
        (want '(255 -1) (list (strlen (car (cadr (ui_columns "LST1")))) (cadr (directions))))
        (ui_header "LST1" 1)
        (want "bag" (order))
        (ui_header "LST1" 1)
        (ui_header "LST1" 2)
        (want "bga" (order))
        (want '(0 0 1) (directions))
        (ui_header "LST1" 0)
        (want '("alpha\t10\t2'" "beta\t9\t1'-6\"" "gamma\t100\t20") (ui_items "LST1"))
        (want nil notes)))))

(test "The arrow goes when the list is filled anew, and the next click still turns the direction"
  '((in-list three
      '((ui_header "LST1" 1)
        (fill "LST1" three)
        (want '(0 0 0) (directions))
        (want "abg" (order))
        (ui_header "LST1" 1)
        (want '(0 -1 0) (directions))))))

(test "Unless sorting is allowed a head does nothing; once allowed, it stays so"
  '((in-list three
      '((wex_listctrl_setcolumns "LST2" "\tName")
        (wex_listctrl_additem "LST2" "b")
        (wex_listctrl_additem "LST2" "a")
        (ui_header "LST2" 0)
        (ui_key "CTRL+1" "LST2")
        (want '("b" "a") (ui_items "LST2"))
        (want '(0) (mapcar 'caddr (ui_columns "LST2")))
        (wex_listctrl_allowsorting "LST2" T)
        (wex_listctrl_allowsorting "LST2" nil)
        (want 1 (length (ui_alerts)))
        (ui_header "LST2" 0)
        (want '("a" "b") (ui_items "LST2"))))))

(test "The selection goes with its rows, and the row touched last keeps its number"
  '((in-list three
      '((ui_pick "LST1" '(1 2))
        (ui_header "LST1" 1)
        (want "bag" (order))
        (want '(0 2) (selected))
        (want '(0 2) (wex_listctrl_getselectednths "LST1"))
        (wex_set_tile "LST1" "-1")
        (ui_dblclick "LST1")
        (want '(2) (selected))
        (ui_key "F2" "LST1")
        (want '("1" "1 2" "2") notes)))))

(test "Rows that come later are not sorted in, and a changed cell doesn't change the next direction"
  '((in-list three
      '((ui_header "LST1" 1)
        (wex_listctrl_additem "LST1" "delta\t1")
        (want "bagd" (order))
        (wex_listctrl_setitem "LST1" 0 1 "1000")
        (ui_header "LST1" 1)
        (want "bgad" (order))
        (want '(0 -1 0) (directions))))))

(test "Ctrl and a digit sort as a click on the head does, and the key is told once"
  '((in-list three
      '((ui_key "CTRL+2" "LST1")
        (want "bag" (order))
        (ui_key "CTRL+2")
        (want "gab" (order))
        (ui_header "LST1" 1)
        (want "bag" (order))
        (ui_key "CTRL+9")
        (ui_key "1")
        (ui_key "CTRL+SHIFT+2")
        (want "bag" (order))
        (ui_key "CTRL+2")
        (want "gab" (order))
        (want '("" "" "" "" "" "") notes)))))

(test "Where heads can't be clicked the keys don't sort either"
  '((in-dialog "ODD_TABLES" '(wex_listctrl_setcolumns "SORTED" "\tName\tSize")
      '((fill "SORTED" '("a\t2" "b\t1"))
        (wex_listctrl_allowsorting "SORTED" T)
        (ui_key "CTRL+2" "SORTED")
        (want '("a\t2" "b\t1") (ui_items "SORTED"))))))

(test "The rows of a source are not the list's to sort"
  '((in-dialog "LOOKUP_FP" nil
      '((wex_listctrl_addcolumn "DLST" "Name")
        (wex_listctrl_allowsorting "DLST" T)
        (wex_listctrl_setitemcount "DLST" 1000000)
        (ui_header "DLST" 0)
        (want '(0) (mapcar 'caddr (ui_columns "DLST")))
        (ui_pick "DLST" 999999)
        (want '(999999) (wex_listctrl_getselectednths "DLST"))
        (ui_pick "DLST" 32767)
        (want '(32767) (wex_listctrl_getselectednths "DLST"))))))
