; Rows of three columns in a list control: filled before the start and while it stands on the screen, and sorted.

; Text, number and distance of row i, in no order.
(defun table-row (i / n)
  (setq n (rem (* i 7919) 100003))
  (strcat "Part " (itoa (rem (* n 31) 5003)) "\t" (itoa n) ".5\t" (rtos (/ n 16.0) 4 4)))
(defun table-rows (n / made)
  (repeat n (setq made (cons (table-row (setq n (1- n))) made)))
  made)

(defun use-rows (n) (setq rows (table-rows n)) (bench_bare_texts rows))
(defun add-by-one-call () (wex_start_list "TABLE" 2) (wex_add_list rows) (wex_end_list))
(defun add-by-many-calls () (wex_start_list "TABLE" 2) (foreach row rows (wex_add_list row)) (wex_end_list))

(defun empty-table () (wex_start_list "TABLE" 3) (wex_end_list))

(defun open-table (/ begun)
  (setq begun (bench_now))
  (ui_session "BENCH_TABLE" '((wex_done_dialog 0)))
  (wex_new_dialog "BENCH_TABLE")
  (wex_listctrl_setcolumns "TABLE" "\tText\tNumber\tDistance")
  (wex_start_list "TABLE")
  (wex_add_list rows)
  (wex_end_list)
  (wex_start_dialog)
  (- (bench_now) begun))

(defun live-row (name fill n)
  (session-row 'painted name '(empty-table) (list fill) '(bench_bare_empty 112) '(bench_bare_fill 112) n))

(defun measure-filling (count before-start live / name)
  (use-rows count)
  (setq name (strcat "table_" (itoa count)))
  (take-turns (strcat name "_before_start") '(open-table) '(bench_bare_open_table 3003) before-start)
  (wex_new_dialog "BENCH_TABLE")
  (wex_listctrl_setcolumns "TABLE" "\tText\tNumber\tDistance")
  (in-dialog "BENCH_TABLE" 3003
    (cons '(bench_bare_columns 112)
          (append (live-row (strcat name "_by_one_call") 'add-by-one-call live)
                  (live-row (strcat name "_by_many_calls") 'add-by-many-calls live)))))

; The rows as they came are sorted, and then what was sorted is reversed; in turns with the control's own sort of
; such rows by a number kept in its items.
(defun refill ()
  (empty-table)
  (add-by-one-call)
  (wex_listctrl_allowsorting "TABLE" T)
  (bench_bare_empty 112)
  (bench_bare_fill 112)
  (bench_bare_number 112 1))

(defun sort-turn (column)
  (list '(refill)
        (list 'setq 'up (list 'cons (list 'bench_sort 112 column) 'up))
        '(setq bare-up (cons (bench_bare_sort 112 1) bare-up))
        (list 'setq 'down (list 'cons (list 'bench_sort 112 column) 'down))
        '(setq bare-down (cons (bench_bare_sort 112 0) bare-down))))

(defun sort-forms (name column n / forms)
  (repeat n (setq forms (append (sort-turn column) forms)))
  (append (list '(setq up nil bare-up nil down nil bare-down nil) (list 'bench_sort 112 (rem (1+ column) 3)))
          forms
          (list (list 'versus name 'up 'bare-up) (list 'versus (strcat name "_reversed") 'down 'bare-down))))

(defun measure-sorts (count n)
  (use-rows count)
  (wex_new_dialog "BENCH_TABLE")
  (wex_listctrl_setcolumns "TABLE" "\tText\tNumber\tDistance")
  (in-dialog "BENCH_TABLE" 3003
    (append '((bench_bare_columns 112))
            (apply 'append
              (mapcar '(lambda (what column) (sort-forms (strcat "sort_" (itoa count) "_" what) column n))
                      '("text" "number" "distance") '(0 1 2))))))

(measure-filling 10000 9 9)
(measure-sorts 10000 7)
(measure-filling 100000 3 3)
(measure-sorts 100000 3)
