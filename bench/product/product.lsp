; Speed of the dialog functions, run by bench/run.sh. Each row: key  min X  med Y ms  n=N

(defun row (key times / sorted)
  (setq sorted (sort times '<))
  (princ (strcat key "  min " (round-text (car sorted)) "  med " (round-text (nth (/ (length sorted) 2) sorted))
                 " ms  n=" (itoa (length sorted)) "\n"))
  (princ))

(defun round-text (number) (prin1-to-string (/ (fix (* number 10000)) 10000.0)))

; The milliseconds that a form takes, n times over.
(defun timed (form n / times begun)
  (repeat n
    (setq begun (bench_now))
    (eval form)
    (setq times (cons (- (bench_now) begun) times)))
  times)

; What a form gives, n times over.
(defun given (form n / values)
  (repeat n (setq values (cons (eval form) values)))
  values)

; 31 controls. The action at the end of the session is what ends the dialog at its first idle moment.
(defun open-and-close ()
  (ui_session "SCHEM_WIRE2PNL_FORMAT" '((wex_done_dialog 0)))
  (wex_new_dialog "SCHEM_WIRE2PNL_FORMAT")
  (wex_start_dialog))

; The dialog is disposed of after each look-up; it has no template, so that nothing shows.
(defun look-up-last (/ begun spent)
  (setq begun (bench_now))
  (wex_new_dialog "DRAWING_FOLDER_FILTER_SEL")
  (setq spent (- (bench_now) begun))
  (wex_start_dialog)
  spent)

(defun set-many (/ i)
  (setq i 0)
  (repeat 10000 (wex_set_tile "USER_FMT" (itoa (setq i (1+ i))))))

(defun measure-open-dialog ()
  (row "product.set_10000_live" (timed '(set-many) 5))
  (row "platform.set_10000_live" (given '(bench_bare_set 117 10000) 5))
  (row "product.click_10000" (given '(bench_click 128 10000) 5)))

(open-and-close)
(row "product.dialog_open_close" (timed '(open-and-close) 50))
(row "product.look_up_last" (given '(look-up-last) 50))
(row "platform.look_up_last" (given '(bench_bare_lookup 1956) 50))

(wex_new_dialog "SCHEM_WIRE2PNL_FORMAT")
(row "product.set_10000_before_start" (timed '(set-many) 5))
(wex_action_tile "TEST" "(setq clicked $key)")
(ui_session "SCHEM_WIRE2PNL_FORMAT" '((measure-open-dialog) (wex_done_dialog 0)))
(wex_start_dialog)
