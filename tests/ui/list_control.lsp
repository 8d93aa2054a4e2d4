; Columns and rows of list controls: before the run, live, and what the functions refuse.
(host_warn nil)  ; what the functions refuse is tried on purpose

; `before` runs without a window, `init` as the start action.
(defun in-tables (before init session)
  (in-dialog "ODD_TABLES" '(progn (wex_setaction_oninit init) (eval before)) session))

(defun titles (tile) (mapcar 'car (ui_columns tile)))
(defun widths (tile) (mapcar 'cadr (ui_columns tile)))

(setq three-columns "(wex_listctrl_setcolumns \"TABLE\" \"x\tName\tSize\tMaker\")")

(test "A column text makes columns before the run and live, and never replaces any"
  '((in-tables '(progn (wex_listctrl_setcolumns "TABLE" "x\tName\tSize") (wex_listctrl_setcolumns 113 "Name")) ""
      '((want '("Name" "Size") (titles "TABLE"))
        (want 2 (wex_listctrl_getcolcount "TABLE"))
        (want nil (ui_columns "SORTED"))
        (want 0 (wex_listctrl_getcolcount "SORTED"))
        (wex_listctrl_setcolumns "TABLE" "x\tOther")
        (want '("Name" "Size") (titles "TABLE"))
        (wex_listctrl_setcolumns "SORTED" "\tA\t\tB\t\t")
        (want '("A" "" "B") (titles "SORTED"))))
    (in-tables '(progn (wex_listctrl_setcolumns "TABLE" "x\tName") (wex_listctrl_setcolumns "TABLE" 5)) ""
      '((want nil (ui_columns "TABLE"))))
    (in-tables '(wex_listctrl_setcolumns "TABLE" "x\tWaiting") three-columns
      '((want '("Name" "Size" "Maker") (titles "TABLE"))))))

(test "Rows that waited show in the order of the calls, above those that the start action added"
  '((in-tables '(progn (wex_listctrl_setcolumns "TABLE" "x\tName\tSize\tMaker")
                       (fill "TABLE" '("one\tA" "two" "three\tC\tc\ttoo many\tcells")))
      "(wex_listctrl_additem \"TABLE\" \"early\")"
      '((want '("one\tA\t" "two\t\t" "three\tC\tc") (butlast (ui_items "TABLE")))
        (want "early\t\t" (last (ui_items "TABLE")))))))

(test "Waiting rows lose the blanks at the ends of their cells unless they have one cell; live rows keep them"
  '((in-tables '(fill "TABLE" '(" a \tb  \t " "alone  ")) three-columns
      '((want '(" a\tb\t" "alone  \t\t") (ui_items "TABLE"))
        (wex_add_list '(" a \tb  \t " "alone  " "a\tb\t"))
        (want '(" a \tb  \t " "alone  \t\t" "a\tb\t") (cddr (ui_items "TABLE")))))))

(test "In a list that sorts itself equal rows stand as when the last comes first, and a live row's cells go to the last row"
  ; Wine puts an equal row above those that are there.
  '((in-tables '(progn (wex_listctrl_setcolumns "SORTED" "x\tName\tSize") (fill "SORTED" '("b\t1" "a\t1" "b\t2" "a\t2"))) ""
      '((want '("a\t1" "a\t2" "b\t1" "b\t2") (ui_items "SORTED"))
        (wex_listctrl_additem "SORTED" "0\tnew")
        (want '("0\t" "a\t1" "a\t2" "b\t1" "b\tnew") (ui_items "SORTED"))))))

(test "A value selects the row that it names at the start, and none that isn't there"
  '((foreach row '(("1" "1") ("0" "0") ("3" "-1") ("-1" "-1") ("two" "0") ("" "-1"))
      (setq value (car row) selected (cadr row))
      (in-tables '(progn (wex_set_tile "TABLE" value) (fill "TABLE" '("one" "two" "three"))) three-columns
        '((want selected (wex_get_tile "TABLE")))))))

(test "wex_set_tile adds to the selection; by key alone a negative row clears it"
  '((in-tables '(fill "TABLE" '("one" "two" "three")) three-columns
      '((wex_set_tile "TABLE" "2")
        (wex_set_tile 112 1)
        (wex_set_tile "TABLE" "3")
        (want '(1 2) (look "TABLE" "selected"))
        (wex_set_tile 112 -1)
        (want '(1 2) (look "TABLE" "selected"))
        (wex_set_tile "TABLE" -1)
        (want nil (look "TABLE" "selected"))))))

(test "wex_listctrl_additem adds a row or sets one cell, and is also called wex_listctrl_setitem"
  '((foreach put-row '(wex_listctrl_additem wex_listctrl_setitem)
      (in-tables '(fill "TABLE" '("one\tA" "two\tB" "three\tC")) three-columns
        '((apply put-row '("TABLE" "four\tD\t"))
          (apply put-row '("TABLE" 1 2 "a\tb"))
          (apply put-row '(112 0 0 "ONE"))
          (want '("ONE\tA\t" "two\tB\ta\tb" "three\tC\t" "four\tD\t") (ui_items "TABLE"))
          (apply put-row '("TABLE" 4 1 "new\tE"))
          (apply put-row '("TABLE" -1 1 "newer"))
          (want '("new\tE\t" "newer\t\t") (cdr (member "four\tD\t" (ui_items "TABLE"))))
          (apply put-row '("TABLE" 2 1 nil))
          (want "three\t\t" (caddr (ui_items "TABLE")))
          ; Cells and rows that aren't there, and chains that end early.
          (foreach arguments '((-5 0 "x") (0 "x") (0 3 "x") (0 -1 "x") (0) (0 1) ())
            (apply put-row (cons "TABLE" arguments)))
          (want "ONE\tA\t" (car (ui_items "TABLE")))
          (want 6 (length (ui_items "TABLE")))
          (foreach arguments '((nil) (7 "no column") (8 nil) ("text first" 1 2)) (apply put-row (cons "TABLE" arguments)))
          (want '("\t\t" "no column\t\t" "\t\t" "text first\t\t") (nthcdr 6 (ui_items "TABLE")))
          (apply put-row '("TABLE" 6 0 5 "behind the text's place"))
          (want "\t\t" (nth 6 (ui_items "TABLE"))))))))

(test "Columns are added, renamed, counted and deleted; the cells behind a deleted column move up"
  '((in-tables '(fill "TABLE" '("one\tA\ta")) three-columns
      '((wex_listctrl_addcolumn "TABLE" "Last  ")
        (wex_listctrl_renamecolumn "TABLE" 0 "First")
        (wex_listctrl_renamecolumn 112 2 "")
        (wex_listctrl_renamecolumn "TABLE" 9 "None")
        (want '("First" "Size" "" "Last  ") (titles "TABLE"))
        (want 4 (wex_listctrl_getcolcount 112))
        (wex_listctrl_deletecolumn "TABLE" 1)
        (wex_listctrl_deletecolumn "TABLE" 9)
        (want '("First" "" "Last  ") (titles "TABLE"))
        (want '("one\ta\t") (ui_items "TABLE"))))))

(test "Widths are at 96 dots per inch when a column is added and asked for, and device pixels when set"
  '((in-tables nil ""
      '((wex_listctrl_addcolumn "TABLE" "C")
        (foreach width '(-1 100 0 33) (wex_listctrl_addcolumn "TABLE" "C" width))
        (want (mapcar '(lambda (width) (fix (+ 0.5 (* scale width)))) '(75 75 100 0 33)) (widths "TABLE"))
        (want '(75 75 100 0 33) (mapcar '(lambda (at) (wex_listctrl_getcolumnwidth "TABLE" at)) '(0 1 2 3 4)))
        (wex_listctrl_setcolumnwidth "TABLE" 2 100)
        (want 100 (caddr (widths "TABLE")))
        (want (fix (+ 0.5 (/ 100 scale))) (wex_listctrl_getcolumnwidth "TABLE" 2))
        (want 0 (wex_listctrl_getcolumnwidth "TABLE" 5))))))

(test "Width -2 fits the contents, -1 and none fit the title"
  '((in-tables '(fill "TABLE" '("i" "a rather long cell")) "(wex_listctrl_setcolumns \"TABLE\" \"x\tA title longer than any cell of its column\")"
      '((wex_listctrl_setcolumnwidth "TABLE" 0 -2)
        (setq contents (car (widths "TABLE")))
        (wex_listctrl_setcolumnwidth "TABLE" 0 -1)
        (setq header (car (widths "TABLE")))
        (want T (< 20 contents header))
        (wex_listctrl_setcolumnwidth "TABLE" 0 7)
        (wex_listctrl_setcolumnwidth "TABLE" 0)
        (want header (car (widths "TABLE")))))))

(test "Grid lines come with T and stay"
  '((in-tables nil three-columns
      '((want nil (look "TABLE" "gridlines"))
        (wex_listctrl_showgridlines "TABLE" nil)
        (want 1 (alerts))
        (want nil (wex_listctrl_showgridlines "TABLE"))
        (want nil (look "TABLE" "gridlines"))
        (wex_listctrl_showgridlines "TABLE" T)
        (want 0 (alerts))
        (wex_listctrl_showgridlines "TABLE" 1)
        (want 1 (alerts))
        (want T (look "TABLE" "gridlines"))))))

(test "wex_listctrl_setcolumnreference loads the rows that waited anew, as long as they wait"
  '((in-tables '(fill "TABLE" '("one\tA  " "two\tB")) three-columns
      '((wex_listctrl_additem "TABLE" "three")
        (wex_listctrl_setcolumnreference "TABLE" "")
        (wex_listctrl_setcolumnreference "TABLE" 5)
        (want 3 (length (ui_items "TABLE")))
        (wex_listctrl_setcolumnreference "TABLE" "x\tOther")
        (want '("one\tA\t" "two\tB\t") (ui_items "TABLE"))
        (want '("Name" "Size" "Maker") (titles "TABLE"))
        (wex_start_list "TABLE" 2)
        (wex_add_list "three")
        (wex_listctrl_setcolumnreference "TABLE" "x\tOther")
        (want 3 (length (ui_items "TABLE")))))))

(test "The count of a list without items of its own"
  '((in-tables nil "(wex_listctrl_addcolumn \"VIRTUAL\" \"Name\")"
      '((foreach row '((5 5) (-1 5) ("7" 5) (nil 5) (40000 40000) (0 0))
          (wex_listctrl_setitemcount "VIRTUAL" (car row))
          (want (cadr row) (length (ui_items "VIRTUAL"))))
        (wex_listctrl_setitemcount "VIRTUAL" 2)
        (want '("" "") (ui_items "VIRTUAL"))))))

(test "A list control that isn't looked at takes columns and rows all the same"
  '((in-tables '(fill 401 '("waiting\tw")) "(wex_listctrl_setcolumns 401 \"x\tName\tSize\")"
      '((wex_listctrl_additem 401 "one\tA")
        (wex_listctrl_setitemcount 401 3)
        (want '("waiting\tw" "one\tA") (ui_items 401))
        (wex_listctrl_setcolumnreference 401 "x\tName")
        (want '("waiting\tw") (ui_items 401))
        (want 0 (alerts))))))

; Every function with arguments that would do, and how many alerts it gives on a tile of another class.
(setq calls '((wex_listctrl_addcolumn ("Title") 1) (wex_listctrl_additem ("row") 1) (wex_listctrl_setitem ("row") 1)
              (wex_listctrl_setcolumnwidth (0 50) 1) (wex_listctrl_getcolumnwidth (0) 1)
              (wex_listctrl_showgridlines (T) 1) (wex_listctrl_setcolumns ("x\tA") 2)
              (wex_listctrl_setcolumnreference ("x\tA") 2) (wex_listctrl_deletecolumn (0) 1)
              (wex_listctrl_renamecolumn (0 "Title") 1) (wex_listctrl_getcolcount () 2)
              (wex_listctrl_setitemcount (5) 1) (wex_listctrl_allowsorting (T) 1) (wex_listctrl_getselectednths () 1)
              (wex_listctrl_enabledbclk (T) 2) (wex_listctrl_keephighlight (T) 1)))

(test "Without arguments one alert; without a dialog, a window or such a tile none"
  '((foreach call calls
      (want nil (apply (car call) nil))
      (want 1 (alerts))
      (want nil (apply (car call) (cons "TABLE" (cadr call)))))
    (want 0 (alerts))
    (in-tables '(foreach call calls (want nil (apply (car call) (cons "TABLE" (cadr call))))) ""
      '((want '("A") (titles "TABLE"))
        (want nil (ui_items "TABLE"))
        (foreach call calls (want nil (apply (car call) (cons "NOBODY" (cadr call)))))
        (want 0 (alerts))))))

(test "On a tile of another class each function gives its alerts and changes nothing"
  '((in-tables nil ""
      '((foreach call calls
          (want nil (apply (car call) (cons "BUTTON" (cadr call))))
          (want (list (car call) (caddr call)) (list (car call) (alerts))))
        (want "&Button" (ui_text "BUTTON"))
        (wex_listctrl_setcolumnreference "BUTTON" "")
        (want nil (wex_listctrl_setcolumnreference "BUTTON"))
        (want nil (wex_listctrl_setitemcount "BUTTON"))
        (want 0 (alerts))))))

(test "Arguments that are missing or of another type change nothing and give no alert"
  '((in-tables '(fill "TABLE" '("one\tA\ta")) three-columns
      '((foreach call '((wex_listctrl_addcolumn "TABLE") (wex_listctrl_addcolumn "TABLE" 5) (wex_listctrl_additem "TABLE")
                        (wex_listctrl_setcolumnwidth "TABLE") (wex_listctrl_setcolumnwidth "TABLE" "0" 50)
                        (wex_listctrl_setcolumnwidth "TABLE" -1 50) (wex_listctrl_getcolumnwidth "TABLE")
                        (wex_listctrl_getcolumnwidth "TABLE" 40000) (wex_listctrl_getcolumnwidth "TABLE" -1)
                        (wex_listctrl_setcolumns "TABLE") (wex_listctrl_deletecolumn "TABLE")
                        (wex_listctrl_deletecolumn "TABLE" -1) (wex_listctrl_renamecolumn "TABLE" 0)
                        (wex_listctrl_renamecolumn "TABLE" "0" "X") (wex_listctrl_renamecolumn "TABLE" 0 5)
                        (wex_listctrl_renamecolumn "TABLE" -1 "X") (wex_listctrl_setitemcount "TABLE")
                        (wex_listctrl_allowsorting "TABLE") (wex_listctrl_enabledbclk "TABLE")
                        (wex_listctrl_keephighlight "TABLE"))
          (setq before (ui_columns "TABLE"))
          (want nil (eval call))
          (want (list call before) (list call (ui_columns "TABLE"))))
        (want '("one\tA\ta") (ui_items "TABLE"))
        (want 0 (alerts))))))

(test "The list of footprints stays empty without its records, whatever waits for it"
  '((in-dialog "LOOKUP_FP"
      '(progn (wex_listctrl_setcolumns "DLST" "x\tCatalog\tName")
              (fill "DLST" '("one" "two"))
              (wex_set_tile "DLST" "1"))
      '((want nil (ui_items "DLST"))
        (want "-1" (wex_get_tile "DLST"))
        (want '("Catalog" "Name") (titles "DLST"))))))
