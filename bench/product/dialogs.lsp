; A dialog's life, and calls of a dialog that stands open.

; 31 controls. The action at the end of the session is what ends the dialog at its first idle moment.
(defun open-and-close (/ begun)
  (setq begun (bench_now))
  (ui_session "SCHEM_WIRE2PNL_FORMAT" '((wex_done_dialog 0)))
  (wex_new_dialog "SCHEM_WIRE2PNL_FORMAT")
  (wex_start_dialog)
  (- (bench_now) begun))

(setq bare-open-and-close (list 'bench_bare_open_close bench-templates 1933))

; A look-up needs its dialog to have run before the next; that isn't timed.
(defun look-up-last (/ begun spent)
  (ui_session "MAX_256_SEL_ALERT" '((wex_done_dialog 0)))
  (setq begun (bench_now))
  (wex_new_dialog "MAX_256_SEL_ALERT")
  (setq spent (- (bench_now) begun))
  (wex_start_dialog)
  spent)

(defun set-many (key n / begun i)
  (setq i 0 begun (bench_now))
  (repeat n (wex_set_tile key (itoa (setq i (1+ i)))))
  (- (bench_now) begun))

(open-and-close)
(eval bare-open-and-close)
(take-turns "open_close" '(open-and-close) bare-open-and-close 40)
(take-turns "look_up_last" '(look-up-last) '(bench_bare_lookup 1955) 50)

(wex_new_dialog "BENCH_LISTS")
(row "set_10000_before_start" (given '(set-many "EDIT" 10000) 5))
(wex_action_tile "OK" "(setq clicked $key)")
(in-dialog "BENCH_LISTS" 3001
  '((take-turns "set_1000" '(set-many "EDIT" 1000) '(bench_bare_set 114 1000) 15)
    (row "click_10000" (given '(bench_click 1 10000) 5))))

(wex_new_dialog "BENCH_LISTS")
(in-dialog "BENCH_LISTS" 3001
  '((wex_edit_setasnumeric "EDIT" 4 4)
    (take-turns "end_of_edit_100" '(bench_edit 114 100) '(bench_bare_edit 114 100) 15)))

(take-turns "million_distof_decimal" '(bench_distof 2 "18.5" 1000000) '(bench_bare_distof "18.5" 1000000) 5)
(row "million_distof_architectural" (given '(bench_distof 4 "1'6-1/2" 1000000) 5))
(take-turns "million_rtos_decimal" '(bench_rtos 2 1000000) '(bench_bare_rtos 1000000) 5)
(row "million_rtos_architectural" (given '(bench_rtos 4 1000000) 5))
