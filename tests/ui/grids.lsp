; Grids: how Lisp shapes and fills the table, what a grid shows at its start, and what the functions refuse.
(host_warn nil)  ; what the functions refuse is tried on purpose

(defun in-grid (rows columns session)
  (in-dialog "EDIT_NONWD_ATTRS" nil (cons (list 'wex_grid_setrowcolumns "LST" rows columns) session)))

(defun counts () (list (wex_grid_getrowcount "LST") (wex_grid_getcolumncount "LST")))
(defun cell (row column what) (cdr (assoc what (ui_cell "LST" row column))))
(defun text-of (row column) (wex_grid_getcell "LST" row column))
(defun shown () (ui_items "LST"))
(defun put (row column code value) (wex_grid_setcell "LST" row column code value))
; What the cells of that row or column are, from the header on.
(defun along (row what) (mapcar '(lambda (column) (cell row column what)) (range (1+ (cadr (counts))))))
(defun down (column what) (mapcar '(lambda (row) (cell row column what)) (range (1+ (car (counts))))))
(defun answers (functions arguments) (mapcar '(lambda (f) (apply f arguments)) functions))

(test "A grid begins empty; the count of columns includes that of the headers; what is no number is 0"
  '((in-dialog "EDIT_NONWD_ATTRS" nil
      '((want '(0 0) (counts))
        (foreach way '(((10 5) (10 4)) ((10 0) (10 0)) ((10 -3) (10 0)) ((3.9 3.9) (3 2)) (("x" T) (0 0)) ((7 2) (7 1))
                       ((-1 2) (7 1)) ((40000 2) (40000 1)) ((2000000000 2000000000) (40000 1)))
          (want nil (apply 'wex_grid_setrowcolumns (cons "LST" (car way))))
          (want (cadr way) (counts)))))))

(test "Two rows or more get a header to read only, which a second call leaves as it is; a single row keeps its own"
  '((in-grid 1 3
      '((want '(0 0) (down 0 "type"))
        (wex_grid_setrowcolumns "LST" 2 3)
        (want '(0 52513 52513) (down 0 "type"))
        (want '(nil T T) (down 0 "readonly"))
        (want (list (cell 1 1 "interior") nil) (list (cell 1 0 "interior") (= (cell 1 0 "interior") (cell 0 0 "interior"))))
        (put 1 0 -1 "head")
        (wex_grid_setrowcolumns "LST" 3 3)
        (want '("" "head" "" "") (down 0 "text"))))))

(test "Heights and widths are pixels, of shorts only; a real names a row"
  '((in-grid 5 3
      '((wex_grid_setrowheight "LST" 3.9 40)
        (foreach height '("50" 50.0 40000 -4) (wex_grid_setrowheight "LST" 3 height))
        (wex_grid_setrowheight "LST" 99 50)
        (want '(17 17 17 40 17 17) (down 1 "height"))
        (wex_grid_setcolumnwidth "LST" 0 20)
        (wex_grid_setcolumnwidth "LST" 2 0)
        (want '(20 72 0) (along 1 "width"))))))

(test "Clearing takes the values, with T or a number but 0 all else too; corners in any order, also outside"
  '((foreach flag '(nil (0) (nil) ("x") (T) (1))
      (in-grid 3 3
        '((foreach row '(1 2 3) (foreach column '(0 1 2) (put row column 52513 "x")))
          (apply 'wex_grid_clearcells (append '("LST" 2 1 1 9) flag))
          (want '("x\t\t" "x\t\t" "x\tx\tx") (shown))
          (want (cond ((member flag '((T) (1))) '(52513 52512 52512)) (T '(52513 52513 52513))) (along 1 "type"))
          (wex_grid_clearcells "LST" 0 0 -1 -1)
          (want '("\t\t" "\t\t" "\t\t") (shown)))))
    (in-grid 2 1 '((put 1 0 -1 "x") (wex_grid_clearcells "LST" 0 0 9 9) (want 0 (cadr (counts)))))))

(test "Justification aligns all cells of the column but those of the last row; only C and R are more than left"
  '((in-grid 5 3
      '((want nil (wex_grid_setjustification "LST" 1 "R"))
        (want '(2 2 2 2 2 0) (down 1 "align"))
        (foreach way '(("C" 1) ("c" 0) ("R" 2) ("CENTER" 0) ("C" 1) (5 0))
          (wex_grid_setjustification "LST" 2.5 (car way))
          (want (cadr way) (cell 1 2 "align")))
        (want nil (wex_grid_setjustification "LST" -1 "R"))
        (wex_grid_setjustification "LST" 2000000000 "R")
        (mapcar '(lambda (row text) (wex_grid_setrow "LST" row text)) '(1 2) '("all" "a\tb"))
        (want '((0 2 0) (0 2 0)) (list (along 1 "align") (along 2 "align")))))
    (in-grid 0 3 '((wex_grid_setjustification "LST" 1 "R") (want '(0) (down 1 "align"))))))

(test "A value becomes text: numbers, T and nil; a real shows its places and keeps its value"
  '((in-grid 9 3
      '((mapcar '(lambda (row value) (want nil (put row 1 2 value)))
                '(1 2 3 4 5 6 7) '(5 40000 1.5 "text" T nil (1 2)))
        (want '("5" "40000" "1.5" "text" "True" "False" "") (mapcar '(lambda (row) (text-of row 1)) '(1 2 3 4 5 6 7)))
        (want '("1.50" 2) (list (cell 3 1 "text") (cell 3 1 "places")))
        (put 8 1 "no code" 0.125)
        (want '("0.125" -1) (list (cell 8 1 "text") (cell 8 1 "places")))
        (put 0 1 52513 "Head")
        (want '("Head" 0) (list (text-of 0 1) (cell 0 1 "type")))
        (put 99 1 -1 "outside") (put 1 99 -1 "outside") (put -1 1 -1 "outside")
        (want '("" "") (list (text-of 99 1) (text-of -1 -1)))))))

(test "The code of a text tells its control: 100 and 101 to edit, from 52500 up the type itself, below nothing"
  '((in-grid 11 3
      '((setq row 0)
        (foreach way '((-1 52512 nil nil) (2 52512 nil nil) (52499 52512 nil nil) (100 52512 nil nil) (101 52512 nil T) (52512 52512 nil nil) (52500 52500 nil nil)
                       (52513 52513 T nil) (52520 52520 nil nil) (52533 52533 nil nil))
          (put (setq row (1+ row)) 2 (car way) "x")
          (want (cdr way) (mapcar '(lambda (what) (cell row 2 what)) '("type" "readonly" "wrap"))))
        (want T (= (cell 9 2 "interior") (cell 10 2 "interior")))
        (want nil (= (cell 9 2 "interior") (cell 8 2 "interior")))
        ; The color stays with a cell that is made one to edit.
        (put 9 2 100 "x")
        (want (cell 10 2 "interior") (cell 9 2 "interior"))))))

(test "The header of a row gets the window's color but for a push button; a type from 52500 up takes choices"
  '((in-grid 1 3
      '((wex_grid_addrow "LST" "\tx")
        (setq window (cell 2 0 "interior") face (cell 1 0 "interior"))
        (want nil (= window face))
        (put 1 0 52520 "push")
        (want nil (= window (cell 1 0 "interior")))
        (put 0 0 2 '(1 2))
        (want face (cell 0 0 "interior"))
        (put 1 0 2 '(1 2))
        (want (list window "push") (list (cell 1 0 "interior") (cell 1 0 "text")))
        (foreach code '(52500 52513 52533 52000 100)
          (wex_grid_setcell "LST" 1 1 code "a" "a\nbb\r\nc")
          (want (if (>= code 52500) '("a" "bb" "c")) (cell 1 1 "choices"))
          (if (= code 52533) (wex_grid_clearcells "LST" 1 1 1 1 T)))
        (wex_grid_setcell "LST" 1 2 100 "a" "a\nb")
        (wex_grid_setcell "LST" 1 2 52500 "a")
        (want '(52500 nil) (list (cell 1 2 "type") (cell 1 2 "choices")))))))

(test "Cells that are to be read only take what Lisp writes, and nothing that the kept sort would"
  '((in-grid 4 3
      '((mapcar '(lambda (row text) (wex_grid_setrow "LST" row text)) '(1 2 3 4) '("r1\tb\t1" "r2\ta\t2" "r3\tc\t3" "r4\t0\t4"))
        (put 1 1 -1 "z")
        (setq before (shown))
        (wex_grid_sortcolbytext "LST" 1 T)
        (want before (shown))))
    (in-grid 4 2
      '((foreach row '(1 2 3) (put row 1 (nth row '(0 101 100 100)) (nth row '("" "b" "a" "c"))))
        (wex_grid_sortcolbytext "LST" 1 T)
        (want '("\tb" "\ta" "\tc" "\t") (shown))
        (want '(nil T nil) (mapcar '(lambda (row) (cell row 1 "wrap")) '(1 2 3)))
        (wex_grid_sortcolbytext "LST" 1)
        (want '("\tb" "\ta" "\tc" "\t") (shown))))))

(test "A row's text lies across its cells, one field in all; the new row's number is told"
  '((in-grid 0 3
      '((want '(1 2 3) (mapcar '(lambda (text) (wex_grid_addrow "LST" text)) '("a\tb\tc" "all" "")))
        (want '("a\tb\tc" "all\tall\tall" " \t \t ") (shown))
        (want '((0 0 0) (1 1 1) (1 1 1)) (mapcar '(lambda (row) (along row "merge")) '(1 2 3)))
        (ui_pick "LST" 2 2)
        (want '((2 1 2 2)) (look "LST" "ranges"))
        (want nil (wex_grid_setrow "LST" 1 "x\t\tz"))
        (want "x\tb\tz" (car (shown)))
        (want 4 (wex_grid_addrow "LST" 5))
        (want nil (wex_grid_setrow "LST" -1 "last\t1"))
        (wex_grid_setrow "LST" 9 "outside\tx")
        (want 5 (car (counts)))
        (want '(17 16 16 16 16 16) (down 1 "height"))
        (want '(52513 T T) (mapcar '(lambda (what) (cell 1 1 what)) '("type" "readonly" "wrap")))))))

(test "The merge flag and the vertical code; wex_grid_setrow needs both or neither"
  '((in-grid 0 2
      '((foreach way '((nil (0 0)) ((T) (1 1)) ((nil) (0 0)) ((0) (1 1)) ((T 0) (3 1)) ((nil 0) (2 0)) ((T 1) (3 3)) ((T "x") (1 1)))
          (setq row (apply 'wex_grid_addrow (append '("LST" "a\tb") (car way))))
          (want (cadr way) (along row "merge"))
          (if (/= (length (car way)) 1) (apply 'wex_grid_setrow (append (list "LST" row "c\td") (car way))))
          (want (list (cadr way) (if (= (length (car way)) 1) "a\tb" "c\td")) (list (along row "merge") (last (shown)))))
        (foreach flag '(T nil 0) (wex_grid_setrow "LST" 1 "refused\tx" flag))
        (want "c\td" (car (shown)))
        (wex_grid_addrow "LST" "---\tx" T)
        (want '(0 0) (along (car (counts)) "merge"))))))

(setq columns 4)
(defun listed (lines ending session)
  (setq given lines how ending)
  (in-dialog "EDIT_NONWD_ATTRS"
    '(progn (wex_setaction_oninit
              "(wex_grid_setrowcolumns \"LST\" 2 columns)
               (mapcar '(lambda (c code) (wex_grid_setjustification \"LST\" c code)) '(0 2 3) '(\"C\" \"R\" \"R\"))
               (wex_grid_setrowcolumns \"LST\" 1 columns)")
            (wex_start_list "LST")
            (wex_add_list given)
            (apply 'wex_end_list how))
    session))

(test "Lines that waited become rows: one field in all columns, two up to the last, more in their own"
  '((listed '("a" "a\tb" "a\t b \tc" "---\tx\ty" "" " a \t b" "   " " \tb\tc") '(T)
      '((want '("a\ta\ta\ta" "a\ta\ta\tb" "a\tb\tc\t" "---\tx\ty\t" " \t \t \t " "a\ta\ta\tb" "\t\t\t" " \tb\tc\t") (shown))
        (want '((1 1 1 1) (1 1 1 1) (0 1 1 0) (0 0 0 0)) (mapcar '(lambda (row) (along row "merge")) '(1 2 3 4)))
        (want '((0 0 0 0) (0 0 0 2) (1 0 2 0)) (mapcar '(lambda (row) (along row "align")) '(1 2 3)))))
    (listed '("a" "b" "c") nil '((want 3 (car (counts)))))))

(test "A table without columns takes no lines at the start, but those that still wait when a list ends"
  '((setq columns 1)
    (listed '("a" "b") nil '((want '(1 0) (counts)) (wex_end_list) (want '((2 0) ("a" "b")) (list (counts) (shown)))))
    (setq columns 4)))

(test "A line whose key field is empty is folded into the one above, which grows"
  '((listed '("AB\tCD" "\tEF") '(nil 0) '((want '("CD\nEF\tCD\nEF\tCD\nEF\tCD\nEF") (shown)) (want 30 (cell 1 0 "height"))))
    (listed '("A\tCD" "\tEF") '(nil 0) '((want 2 (car (counts)))))
    (listed '("AB\tCD" "\tEF") '(nil "0") '((want 2 (car (counts)))))))

(test "A live grid takes no lines: a new list empties it, by key also a table without columns; the end adds what waited again"
  '((in-grid 3 3
      '((foreach row '(1 2 3) (put row 1 101 "x"))
        (fill "LST" '("a\tb" "c\td"))
        (want '((1 2) ("\t\t")) (list (counts) (shown)))
        (foreach operation '(1 2 -1) (wex_start_list "LST" operation) (wex_add_list "a") (wex_end_list))
        (want 1 (car (counts)))
        (wex_grid_setrowcolumns "LST" 3 1)
        (wex_start_list 114)
        (want '(1 0) (counts))
        (wex_start_list "LST")
        (want '(1 1) (counts))))
    (listed '("a\tb\tc" "d\te\tf") nil
      '((want nil (wex_end_list T))
        (want '("a\tb\tc\t" "a\tb\tc\t" "d\te\tf\t") (shown))
        (want '(0 1 1 0) (along 2 "merge"))))))

(test "The value makes a row the current one, counted from 0 and never the first; nobody is told"
  ; A grid that gets the focus without a current cell takes the first one.
  '((foreach way '(("0" (1 1)) ("1" (2 0)) ("2" (3 0)) ("3" (1 1)) ("x" (1 1)) ("-1" (1 1)) ("" (1 1)))
      (setq value (car way))
      (in-dialog "EDIT_NONWD_ATTRS"
        '(progn (wex_action_tile "LST" "(note $value)") (wex_set_tile "LST" value)
                (wex_setaction_oninit "(wex_grid_setrowcolumns \"LST\" 3 2)"))
        (list (list 'want (list 'quote (cadr way)) '(look "LST" "current")) '(want nil notes))))))

(test "A grid is shown and enabled without its frame, whatever its template says; a mode counts"
  '((in-dialog "ODD_GRIDS" '(wex_setaction_oninit "(setq at-start (look \"GRID\" \"enabled\"))")
      '((want T at-start)
        (want T (look "GRID" "visible"))))
    (in-dialog "ODD_GRIDS" '(wex_mode_tile "GRID" 1) '((want nil (look "GRID" "enabled"))))))

(setq all-functions '(wex_grid_setrowcolumns wex_grid_setrowheight wex_grid_setcolumnwidth wex_grid_getcolumncount
  wex_grid_clearcells wex_grid_setjustification wex_grid_setcell wex_grid_getcell wex_grid_setrow wex_grid_addrow
  wex_grid_sortcolbytext wex_grid_getrowcount))
(setq enough '(1 1 1 1 1))

(test "Another control gets one alert and nil, but 0 for the count of rows; no control and no dialog get nil in silence"
  '((setq nils (mapcar '(lambda (f) nil) all-functions))
    (in-dialog "ODD_GRIDS" nil
      '((want (append (butlast nils) '(0)) (answers all-functions (cons "LIST" enough)))
        (want (length all-functions) (alerts))
        (want (append (butlast nils) '(0)) (answers all-functions '("LIST")))
        (want (length all-functions) (alerts))
        (want nils (answers all-functions (cons "nowhere" enough)))
        (want nils (answers all-functions (cons T enough)))
        (want (append (butlast nils) '(0)) (answers all-functions (cons 450 enough)))
        (want 0 (alerts))))
    (want nils (answers all-functions (cons "GRID" enough)))
    (want 0 (alerts))
    (want nils (answers all-functions nil))
    (want (length all-functions) (alerts))))

(test "A missing argument, the column -1 and a table without columns give nil and change nothing"
  '((in-grid 2 2
      '((put 1 1 -1 "x")
        (foreach form '((wex_grid_setrowcolumns "LST") (wex_grid_setrowcolumns "LST" 9) (wex_grid_setrowheight "LST" 1)
                        (wex_grid_setcolumnwidth "LST" 1) (wex_grid_clearcells "LST" 1 1 1) (wex_grid_setjustification "LST" 1)
                        (wex_grid_setcell "LST" 1 1 100) (wex_grid_setcell "LST" 1 -1 -1 "y") (wex_grid_getcell "LST" 1)
                        (wex_grid_setrow "LST" 1) (wex_grid_addrow "LST") (wex_grid_sortcolbytext "LST"))
          (want nil (eval form))
          (want '((2 1) ("\tx" "\t")) (list (counts) (shown))))
        (wex_grid_setrowcolumns "LST" 2 1)
        (put 1 0 -1 "y")
        (want "" (text-of 1 0))))))

(test "The labels of the grids lead to them; a second grid in a dialog is one of its own"
  '((foreach way '(("INSERT_SEC_TRM_PINGRID" "PINS" "ALT+P") ("INSERT_SEC_TRM_CAT_PINGRID" "PINS" "ALT+P")
                   ("CONNECTOR_PINS_IN_USE" "LST" "ALT+P") ("XREF_SETUP_TABLE" "COLS" "ALT+C") ("XREF_SETUP_TABLE" "SAMPLE" "ALT+S"))
      (in-dialog (car way) nil '((ui_key (caddr way)) (want T (look (cadr way) "focus")))))
    (in-dialog "XREF_SETUP_TABLE" '(progn (wex_action_tile "COLS" "(note $key)") (wex_action_tile "SAMPLE" "(note $key)"))
      '((wex_grid_setrowcolumns "COLS" 2 2) (wex_grid_setrowcolumns "SAMPLE" 3 2)
        (ui_pick "SAMPLE" 3 1) (ui_pick "COLS" 2 1)
        (want '("sample" "cols") notes)
        (want '((3 1) (2 1)) (list (look "SAMPLE" "current") (look "COLS" "current")))))))

(test "The rows that the drive gives are those that were asked for"
  '((in-grid 5 2
      '((foreach row '(1 2 3 4 5) (put row 1 -1 (itoa row)))
        (want '("\t4" "\t5") (ui_items "LST" 3))
        (want '("\t2" "\t3") (ui_items "LST" 1 2))
        (foreach none '((5) (9 2) (0 0) (2 -1)) (want nil (apply 'ui_items (cons "LST" none))))))))
