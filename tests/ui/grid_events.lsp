; What a person does in a grid, and what the program hears of it.
(host_warn nil)  ; what the functions refuse is tried on purpose

; A grid of three rows and two columns behind the headers: to edit, and a choice.
(defun fill-grid ()
  (wex_grid_setrowcolumns "LST" 3 3)
  (foreach row '(1 2 3)
    (wex_grid_setcell "LST" row 1 100 (strcat "t" (itoa row)))
    (wex_grid_setcell "LST" row 2 52500 "red" "red\ngreen\nblue")))

; The session begins with the first cell as the current one, and nothing told.
(defun in-events (session)
  (in-dialog "EDIT_NONWD_ATTRS" '(wex_action_tile "LST" "(note (list $value $reason))")
    (append '((fill-grid) (ui_pick "LST" 1 1) (told)) session)))

(defun shown () (ui_items "LST"))
(defun current () (look "LST" "current"))
(defun cell (row column what) (cdr (assoc what (ui_cell "LST" row column))))
(defun text-of (row column) (wex_grid_getcell "LST" row column))
(defun keys (names) (foreach name names (ui_key name)))

(test "A selection is told once it stands, by its first row: a cell, a row, a column, a range, all"
  '((in-events
      '((ui_pick "LST" 2 1) (want '(("2" 4)) (told)) (want '(2 1) (current)) (want '((2 1 2 1)) (look "LST" "ranges"))
        (ui_pick "LST" 3 0) (want '(("3" 4)) (told)) (want '((3 1 3 2)) (look "LST" "ranges"))
        (ui_header "LST" 2) (want '(("1" 4)) (told)) (want '((1 2 3 2)) (look "LST" "ranges"))
        (ui_pick "LST" 2 1 3 2) (want '(("2" 4)) (told)) (want '((2 1 3 2)) (look "LST" "ranges"))
        (ui_pick "LST" 3 2 1 1) (want '(("1" 4)) (told))
        (ui_pick "LST" 3 1 "SHIFT") (want '(("3" 4)) (told))
        (ui_pick "LST" 1 1 "CTRL") (want '(("1" 4)) (told)) (want 2 (length (look "LST" "ranges")))
        (ui_pick "LST" 0 0) (want '(("1" 4)) (told)) (want '((1 1 3 2)) (look "LST" "ranges"))))))

(test "Arrows move and are told, with Shift they extend; at the edge nothing is told"
  '((in-events
      '((keys '("DOWN" "RIGHT" "UP" "UP"))
        (want '(("2" 4) ("2" 4) ("1" 4)) (told))
        (want '(1 2) (current))
        (keys '("SHIFT+DOWN" "SHIFT+LEFT"))
        (want '(("1" 4) ("1" 4)) (told))
        (want '((1 1 2 2)) (look "LST" "ranges"))
        (keys '("CTRL+END" "CTRL+HOME" "END" "HOME" "CTRL+A"))
        (want '(("3" 4) ("1" 4) ("1" 4) ("1" 4) ("1" 4)) (told))))))

(test "The action hears the tile's key in lower case, whatever the program calls it"
  '((in-dialog "EDIT_NONWD_ATTRS" '(wex_action_tile "Lst" "(note $key)")
      '((fill-grid) (ui_pick "LST" 2 1) (ui_type "LST" "x") (want '("lst" "lst") notes)))))

(test "Each change of an open cell is told; Enter takes it and moves down, Tab right, F2 keeps the text"
  '((in-events
      '((ui_type "LST" "ab")
        (want '(((1 1 "a") 7) ((1 1 "ab") 7)) (told))
        (want '("ab" "ab" T) (list (text-of 1 1) (cell 1 1 "text") (cell 1 1 "edited")))
        (ui_key "ENTER")
        (want '(("2" 4)) (told))
        (want '((2 1) nil) (list (current) (cell 1 1 "edited")))
        (keys '("F2" "END" "1" "TAB"))
        (want '(((2 1 "t21") 7) ("2" 4)) (told))
        (want '((2 2) "\tt21\tred") (list (current) (cadr (shown))))))))

(test "What is typed stays when the focus leaves, and Esc closes the dialog with it"
  '((in-events
      '((ui_type "LST" "left")
        (ui_type "VALUE" "x")
        (want '("left" nil) (list (text-of 1 1) (cell 1 1 "edited")))))
    (want -1 (run-dialog "EDIT_NONWD_ATTRS" nil '((fill-grid) (ui_pick "LST" 1 1) (ui_type "LST" "x") (ui_key "ESC"))))))

(test "Enter presses OK only while no cell is open"
  '((want 7 (run-dialog "EDIT_NONWD_ATTRS" '(wex_action_tile "OK" "(wex_done_dialog 7)")
              '((fill-grid) (ui_pick "LST" 1 1) (ui_type "LST" "x") (ui_key "ENTER")
                (want '(2 1) (current))
                (ui_key "ENTER"))))))

(test "A choice is taken from the list, by its first letters, and by an arrow"
  '((in-events
      '((ui_pick "LST" 1 2) (told)
        (keys '("ALT+DOWN" "DOWN" "ENTER" "ENTER"))
        (want '(((1 2 "green") 7) ("2" 4)) (told))
        (ui_type "LST" "b")
        (want '(((2 2 "blue") 7)) (told))
        (keys '("UP" "ENTER"))
        (want '(((2 2 "green") 7) ("3" 4)) (told))
        (want '("\tt1\tgreen" "\tt2\tgreen" "\tt3\tred") (shown))
        (ui_type "LST" "gr")
        (want '(((3 2 "green") 7)) (told))))))

(test "A box is ticked by a click and by the space bar"
  '((in-events
      '((wex_grid_setcell "LST" 1 1 52501 "0")
        (wex_grid_setcell "LST" 2 1 52501 "no" "no\nyes")
        (ui_key "SPACE")
        (want '(((1 1 "1") 7)) (told))
        (ui_pick "LST" 2 1)
        (want '(("2" 4) ((2 1 "yes") 7)) (told))))))

(test "Cells to be read only, headers and faces take nothing from a person, and Lisp reads them all"
  '((in-events
      '((wex_grid_setcell "LST" 1 1 52513 "read") (wex_grid_setcell "LST" 2 1 52520 "push") (wex_grid_setcell "LST" 3 1 52533 "face")
        (foreach place '((1 1) (2 1) (3 1) (1 0))
          (apply 'ui_pick (cons "LST" place))
          (ui_type "LST" "x") (ui_key "F2")
          (if (> (cadr place) 0) (ui_key "DELETE")))
        (want '("\tread\tred" "\tpush\tred" "\tface\tred") (shown))
        (want nil (remove-if '(lambda (event) (= (cadr event) 4)) (told)))))))

(setq ends '(((ui_pick "LST" 2 1) 4) ((ui_key "DOWN") 4) ((ui_pick "LST" 1 1 3 2) 4) ((ui_type "LST" "xyz") 7) ((ui_key "DELETE") 7)
             ((ui_key "CTRL+V") 7)
             ((progn (wex_grid_setcell "LST" 1 1 52501 "0") (ui_key "SPACE")) 7)))

(test "An event may end the dialog, in the middle of typing, a paste, a deletion or a tick"
  '((foreach end ends
      (want 5
        (run-dialog "EDIT_NONWD_ATTRS" '(wex_action_tile "LST" "(if (and armed (= $reason reason)) (progn (note $value) (wex_done_dialog 5)))")
          (list '(setq armed nil reason (cadr end)) '(fill-grid) '(ui_pick "LST" 2 1) '(ui_key "CTRL+C") '(ui_pick "LST" 1 1)
                '(setq armed T) (car end)))))
    (want 7 (length notes))))

(test "An event may run another dialog"
  '((ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (in-dialog "EDIT_NONWD_ATTRS"
      '(wex_action_tile "LST"
         "(if (= $reason 7) (progn (wex_new_dialog \"CONFIRM_DELREC\") (note $value) (wex_start_dialog) (wex_grid_setcell \"LST\" 3 1 -1 \"told\")))")
      '((fill-grid) (ui_pick "LST" 1 1)
        (ui_type "LST" "x")
        (ui_wait notes)
        (want "told" (text-of 3 1))
        (want '((1 1 "x")) notes)))))

(test "The drive brings a cell into view, double-clicks it open, and tells what is first in view"
  '((in-events
      '((wex_grid_setrowcolumns "LST" 1000 30)
        (ui_pick "LST" 900 25)
        (want '(900 25) (current))
        (want T (apply '<= (list 880 (car (look "LST" "first")) 900)))
        (want T (apply '<= (list 20 (cadr (look "LST" "first")) 25)))
        (ui_dblclick "LST" 900 25)
        (want T (cell 900 25 "edited"))
        (ui_type "LST" "deep")
        (want "deep" (text-of 900 25))
        (want 1000 (length (shown)))))))
