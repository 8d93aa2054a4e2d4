; What a person does to a list control with mouse and keys, and what Lisp is told of it.
(host_warn nil)  ; what the functions refuse is tried on purpose

; A session on a list of three rows in which several can be selected, and then Cancel.
(defun in-list (init session)
  (setq notes nil)
  (in-dialog "PICK_DWGS"
    '(progn (fill-table "LST1" three-rows)
            (wex_action_tile "LST1" "(note (list $key $value $reason))")
            (eval init))
    session))

; One that ends by itself, on a list that has room for one selected row. Gives the status.
(defun in-single-list (init session)
  (setq notes nil)
  (run-dialog "CAT_PICK_LST"
    '(progn (fill-table "LST" three-rows)
            (wex_action_tile "LST" "(note (list $value $reason))")
            (eval init))
    session))

(defun selected () (look "LST1" "selected"))
(defun has-focus (tile) (look tile "focus"))

(test "A press tells the selected rows: with none left, the left button the row under it; with none before, the right one nothing"
  '((in-list nil
      '((ui_rclick "LST1" 2)
        (want '(("lst1" "" 5)) (told))
        (want '(2) (selected))
        (ui_rclick "LST1" 0)
        (want '(("lst1" "0" 5)) (told))
        (ui_pick "LST1" '(2 0))
        (want '(("lst1" "2" 5) ("lst1" "0 2" 5)) (told))
        (want '(0 2) (wex_listctrl_getselectednths "LST1"))
        (ui_pick "LST1" '(1 1))
        (want '(("lst1" "1" 5) ("lst1" "1" 5)) (told))
        (want nil (selected))))))

(test "A press beside the rows does nothing at all"
  '((in-list nil
      '((ui_pick "LST1" 1)
        (wex_mode_tile "UNSELECT" 2)
        (told)
        (ui_click "LST1")
        (ui_rclick "LST1")
        (want '(1) (selected))
        (want nil (has-focus "LST1"))
        (want nil (told))
        (ui_pick "LST1" 2)
        (want T (has-focus "LST1"))
        (wex_mode_tile "UNSELECT" 2)
        (ui_rclick "LST1" 2)
        (want T (has-focus "LST1"))))))

(test "Each key that is released in it tells the selected rows, once; the Tab that leaves is released elsewhere"
  '((in-list nil
      '((ui_key "F2" "LST1")
        (want '(("lst1" "" 5)) (told))
        (ui_pick "LST1" 0)
        (told)
        (ui_key "SHIFT+DOWN")
        (want '(("lst1" "0 1" 5)) (told))
        (ui_key "TAB")
        (want nil (has-focus "LST1"))
        (want nil (told))
        (ui_key "SHIFT+TAB")
        (want T (has-focus "LST1"))
        (want '(("lst1" "0 1" 5)) (told))))))

(test "OK without an action is pressed also where the action has ended the dialog already"
  '((want -1 (in-single-list '(wex_action_tile "LST" "(if (= $reason 10) (wex_done_dialog 4))")
               '((ui_dblclick "LST" 2))))
    (want 4 (in-single-list '(progn (wex_action_tile "LST" "(if (= $reason 10) (wex_done_dialog 4))")
                                    (wex_action_tile "OK" "(note \"ok\")"))
              '((ui_dblclick "LST" 2))))
    (want '("ok") notes)))

(test "A double click leaves the focus on the list, and presses OK also where it is disabled"
  '((foreach mode '(0 1)
      (want 7 (in-single-list '(progn (wex_action_tile "OK" "(note (has-focus \"LST\")) (wex_done_dialog 7)")
                                      (wex_mode_tile "OK" mode))
                '((ui_dblclick "LST" 0))))
      (want T (last notes)))))

; The second press of a double click beside the rows is the only one that the control gets. This platform
; keeps a selection there, so it is Lisp that clears it.
(test "A double click beside the rows brings back the row touched last"
  '((in-list '(wex_action_tile "OK" "(note \"ok\")")
      '((ui_pick "LST1" 1)
        (wex_set_tile "LST1" "-1")
        (want nil (selected))
        (told)
        (ui_dblclick "LST1")
        (want '(1) (selected))
        (want nil (told))
        ; Of several selected rows a double click touches the first one, wherever it was.
        (ui_pick "LST1" 0)
        (ui_dblclick "LST1" 2 "CTRL")
        (wex_set_tile "LST1" "-1")
        (ui_dblclick "LST1")
        (want '(0) (selected))
        (ui_rclick "LST1" 2)
        (wex_set_tile "LST1" "-1")
        (ui_dblclick "LST1")
        (want '(2) (selected))
        (wex_start_list "LST1")
        (wex_add_list '("only\t1"))
        (ui_dblclick "LST1")
        (want nil (selected))))))

(test "Beside the rows a double click with a selection, or before any row was touched, does nothing"
  '((in-list nil
      '((ui_dblclick "LST1")
        (want nil (selected))
        (wex_set_tile "LST1" "0")
        (told)
        (ui_dblclick "LST1")
        (want '(0) (selected))
        (want nil (told))))))

(test "The arrow keys count as touching the row that they go to"
  '((foreach press '((1 "DOWN" (2)) (1 "UP" (0)) (0 "UP" (0)) (2 "DOWN" nil) (1 "HOME" (1)))
      (in-list nil
        '((ui_pick "LST1" (car press))
          (ui_key (cadr press))
          (wex_set_tile "LST1" "-1")
          (ui_dblclick "LST1")
          (want (caddr press) (selected)))))))

(test "Without double clicks the second press is no press at all"
  '((setq rows '((ui_dblclick "LST" 1) (want '(("1" 5)) (told))
                 (wex_set_tile "LST" "-1") (ui_dblclick "LST") (want nil (wex_listctrl_getselectednths "LST"))
                 (wex_listctrl_enabledbclk "LST" T) (ui_dblclick "LST" 2)))
    (foreach off '((wex_listctrl_enabledbclk "LST" nil) (wex_listctrl_enabledbclk 114 7))
      (want -1 (in-single-list off rows))
      (want '(("2" 5) ("2" 10)) notes))
    (in-single-list nil
      '((wex_listctrl_enabledbclk "lst" nil) (ui_dblclick "LST" 1) (want '(("1" 5)) (told)) (ui_key "ESC")))))

; A list whose template says nothing of how it looks.
(defun in-kinds (session)
  (in-dialog "ODD_KINDS"
    '(progn (fill-table "LISTVIEW" three-rows) (wex_action_tile "LISTVIEW" "(note $value)"))
    session))

; The color of the second row at the right of its text.
(defun row-color () (ui_pixel "LISTVIEW" 60 42))

(test "The selection keeps its color when the focus leaves, until Lisp lets it fade"
  '((in-kinds
      '((setq bare (row-color))
        (ui_pick "LISTVIEW" 1)
        (setq kept (row-color))
        (want nil (= kept bare))
        (wex_mode_tile "EDIT" 2)
        (want nil (has-focus "LISTVIEW"))
        (want kept (row-color))
        (wex_mode_tile "LISTVIEW" 2)
        (wex_listctrl_keephighlight "LISTVIEW" 1)
        (want kept (row-color))
        (wex_mode_tile "EDIT" 2)
        (want nil (member (row-color) (list kept bare)))
        (wex_listctrl_keephighlight "LISTVIEW" T)
        (ui_pick "LISTVIEW" 1)
        (wex_mode_tile "EDIT" 2)
        (want kept (row-color))))))

(test "Copying puts titles and selected rows on the clipboard, where a cell can't look like more; the keys are told as ever"
  '((in-kinds
      '((ui_pick "LISTVIEW" '(0 2))
        (told)
        (ui_key "CTRL+C")
        (want '("0 2") (told))
        (paste)
        (want "Name\tSize\r\nalpha\t10\r\ngamma\t100\r\n" (wex_get_tile "LINES"))
        (ui_pick "LISTVIEW" 1)
        (wex_listctrl_setitem "LISTVIEW" 1 0 "b\teta\r\n")
        (ui_key "CTRL+INSERT")
        (paste)
        (want "Name\tSize\r\nb eta  \t9\r\n" (wex_get_tile "LINES"))
        (wex_set_tile "LISTVIEW" "-1")
        (ui_key "CTRL+C" "LISTVIEW")
        (ui_key "C" "LISTVIEW")
        (paste)
        (want "Name\tSize\r\nb eta  \t9\r\n" (wex_get_tile "LINES"))))))
