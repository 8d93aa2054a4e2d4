; A grid of 100,000 rows and ten columns, the headers of the rows counted: filled row by row, cell by cell, and by lines that
; wait for the dialog's start. Tk's table is filled by grids.tcl.

(setq fields 10)
(defun grid-line (i / made n)
  (setq n fields)
  (repeat fields (setq n (1- n) made (cons (strcat "cell " (itoa i) " " (itoa n)) made)))
  (string-join made "\t"))
(defun grid-lines (n / made)
  (repeat n (setq made (cons (grid-line (setq n (1- n))) made)))
  made)

(defun use-lines (n) (setq lines (grid-lines n)))
(defun empty-grid () (wex_grid_setrowcolumns "GRID" 0 fields))
; With bench_nothing they are the calls alone: what Lisp and the host need before the plug-in does anything.
(defun rows-by (add) (foreach line lines (add "GRID" line)))
(defun cells-by (set-cell n / row column)
  (setq row 0)
  (repeat n
    (setq row (1+ row) column 0)
    (repeat fields (set-cell "GRID" row column 100 "cell") (setq column (1+ column)))))
(defun add-rows () (rows-by wex_grid_addrow))

(defun open-lines (/ begun)
  (setq begun (bench_now))
  (ui_session "BENCH_GRID" '((wex_done_dialog 0)))
  (wex_new_dialog "BENCH_GRID")
  (wex_setaction_oninit "(wex_grid_setrowcolumns \"GRID\" 1 fields)")
  (wex_start_list "GRID")
  (wex_add_list lines)
  (wex_end_list)
  (wex_start_dialog)
  (- (bench_now) begun))

; Each time until all is painted and the dialog is idle.
(defun grid-row (key before form n / forms)
  (setq forms (list (list 'row key 'times)))
  (repeat n (setq forms (append (painted before form 'times) forms)))
  (cons '(setq times nil) forms))

(defun in-grid (forms)
  (ui_session "BENCH_GRID" (append forms '((wex_done_dialog 0))))
  (wex_new_dialog "BENCH_GRID")
  (wex_start_dialog))

(use-lines 100000)
(in-grid (append (grid-row "grid_100000_by_addrow" '(empty-grid) '(add-rows) 3)
                 (grid-row "grid_100000_by_setcell" '(wex_grid_setrowcolumns "GRID" 100000 fields) '(cells-by wex_grid_setcell 100000) 3)
                 (grid-row "grid_calls_of_addrow" '(empty-grid) '(rows-by bench_nothing) 3)
                 (grid-row "grid_calls_of_setcell" '(empty-grid) '(cells-by bench_nothing 100000) 3)
                 (grid-row "grid_sort_100000" '(progn (empty-grid) (add-rows)) '(wex_grid_sortcolbytext "GRID" 0 T) 3)
                 (grid-row "grid_row_of_100000" '(empty-grid) '(wex_grid_setrowcolumns "GRID" 100000 fields) 3)))
(row "grid_100000_lines_before_start" (given '(open-lines) 3))
