; Lays out a table of cross-references: each row of the first grid is a column of the table, shown or not, under a title that can be
; edited, and is moved by the buttons. The second grid shows a sample of the table as it will be.

; Whether the column is shown, its title, and what the sample has in it.
(setq columns '((T "Reference" "4.118" "7.305") (T "Device" "-K1" "-K2") (nil "Location" "+A1" "+B2") (T "Remark" "coil" "contact")))

(setq edited 100 box 52501)  ; control types
(setq @shown 1 @title 2)
(setq titled T)
(setq current 1)  ; the row that the buttons move: its head is an arrow

(defun rows () (range 1 (1+ (length columns))))
(defun put-head (row) (wex_grid_setcell "COLS" row 0 -1 (if (= row current) ">" (itoa row))))

(defun put-column (row column)
  (put-head row)
  (wex_grid_setcell "COLS" row @shown box (if (car column) "1" "0"))
  (wex_grid_setcell "COLS" row @title edited (cadr column)))

; The sample's own column of heads is hidden. A row without a tab is the title, across all columns.
(defun show-sample (/ shown column)
  (setq shown (remove-if '(lambda (column) (null (car column))) columns) column 0)
  (wex_grid_setrowcolumns "SAMPLE" 0 1)
  (wex_grid_setrowcolumns "SAMPLE" 0 (1+ (length shown)))
  (wex_grid_setcolumnwidth "SAMPLE" 0 0)
  (foreach title (mapcar 'cadr shown) (wex_grid_setcell "SAMPLE" 0 (setq column (1+ column)) -1 title))
  (if titled (wex_grid_addrow "SAMPLE" "Cross-references"))
  (foreach field '(caddr cadddr)
    (wex_grid_addrow "SAMPLE" (strcat "\t" (string-join (mapcar field shown) "\t")))))

(defun start ()
  (wex_grid_setrowcolumns "COLS" (length columns) 3)
  (foreach head '((0 "" 30) (1 "Shown" 50) (2 "Title" 200))
    (wex_grid_setcell "COLS" 0 (car head) -1 (cadr head))
    (wex_grid_setcolumnwidth "COLS" (car head) (caddr head)))
  (mapcar 'put-column (rows) columns)
  (show-sample))

(defun select (row) (setq current row) (mapcar 'put-head (rows)))

(defun read-columns ()
  (setq columns
    (mapcar '(lambda (row column)
               (append (list (= (wex_grid_getcell "COLS" row @shown) "1") (wex_grid_getcell "COLS" row @title)) (cddr column)))
      (rows) columns))
  (show-sample))

(defun event () (if (= $reason 4) (select (atoi $value)) (read-columns)))

(defun move (by / to row moved)
  (setq to (+ current by) row 0)
  (if (<= 1 to (length columns))
    (progn
      (setq moved (nth (1- current) columns) columns
        (mapcar '(lambda (column)
                   (setq row (1+ row))
                   (cond ((= row to) moved) ((= row current) (nth (1- to) columns)) (T column)))
          columns))
      (setq current to)
      (mapcar 'put-column (rows) columns)
      (show-sample))))

(defun lay-out-table ()
  (wex_new_dialog "XREF_SETUP_TABLE")
  (wex_set_tile "TITLE" "1")
  (wex_setaction_oninit "(start)")
  (wex_action_tile "COLS" "(event)")
  (wex_action_tile "UP" "(move -1)")
  (wex_action_tile "DOWN" "(move 1)")
  (wex_action_tile "TITLE" "(setq titled (= $value \"1\")) (show-sample)")
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (foreach anchor '(("COLS" 63) ("UP" 35) ("DOWN" 35) ("TITLE" 39) ("LABEL1" 39) ("SAMPLE" 64) ("OK" 75) ("Cancel" 75) ("HELP" 75))
    (wex_setresizing (car anchor) (cadr anchor)))
  (wex_setminresizing 300 280)
  (wex_start_dialog))

; What a person does when nobody is there.
(defun tell (what) (princ what) (terpri))
(defun tell-sample () (foreach row (ui_items "SAMPLE") (tell row)) (terpri))

(ui_session "XREF_SETUP_TABLE"
  '((tell-sample)
    (ui_pick "COLS" 3 1)               ; ticked: the location is shown too
    (ui_click "UP")
    (ui_click "UP")                    ; now it is the first column
    (ui_click "UP")                    ; and stays there
    (ui_pick "COLS" 2 2)
    (ui_type "COLS" "Sheet")
    (ui_key "ENTER")
    (tell-sample)
    (ui_shot "xref_table.png")
    (ui_click "TITLE")
    (ui_pick "COLS" 4 0)
    (ui_click "DOWN")                  ; nothing is below
    (ui_drag "GRIP" 100 60)
    (ui_shot "xref_table_large.png")
    (tell-sample)
    (ui_click "OK")))

(if (= (lay-out-table) 1) (foreach column columns (tell (cadr column))))
