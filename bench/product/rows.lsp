; How the programs beside this one measure and print.
;
;     row      key  min X  med Y ms  n=N
;     versus   key  min X  med Y ms  bare min X  med Y ms  ratio min R  med R  n=N
;
; Ours and the bare platform's take turns, so that a change of the machine's load meets both.

(defun decimals (number n / scale) (setq scale (expt 10.0 n)) (prin1-to-string (/ (fix (* number scale)) scale)))

(defun least (times) (apply 'min times))
(defun median (times) (nth (/ (length times) 2) (sort times '<)))

(defun min-and-med (times)
  (strcat "min " (decimals (least times) 4) "  med " (decimals (median times) 4) " ms  "))

(defun row (key times)
  (princ (strcat key "  " (min-and-med times) "n=" (itoa (length times)) "\n"))
  (princ))

(defun versus (key ours bare)
  (princ (strcat key "  " (min-and-med ours) "bare " (min-and-med bare)
                 "ratio min " (decimals (/ (least ours) (least bare)) 2)
                 "  med " (decimals (/ (median ours) (median bare)) 2) "  n=" (itoa (length ours)) "\n"))
  (princ))

; The milliseconds that a form takes.
(defun ms (form / begun) (setq begun (bench_now)) (eval form) (- (bench_now) begun))

; What a form gives, n times over.
(defun given (form n / values)
  (repeat n (setq values (cons (eval form) values)))
  values)

; A row of two forms that give their milliseconds.
(defun take-turns (key ours bare n / our-times bare-times)
  (repeat n
    (setq our-times (cons (eval ours) our-times) bare-times (cons (eval bare) bare-times)))
  (versus key our-times bare-times))

; Forms of a session that make a row of two forms, each with a form before it that isn't timed. `how` is painted or
; called: timed until all is painted and the dialog is idle, or the call alone.
(defun session-row (how key before-ours ours before-bare bare n / forms)
  (setq forms (list (list 'versus key 'our-times 'bare-times)))
  (repeat n
    (setq forms (append (apply how (list before-ours ours 'our-times)) (apply how (list before-bare bare 'bare-times)) forms)))
  (cons '(setq our-times nil bare-times nil) forms))

(defun painted (before form times)
  (list before
        (list 'progn '(setq begun (bench_now)) form)
        (list 'setq times (list 'cons '(- (bench_now) begun) times))))

(defun called (before form times)
  (list before (list 'setq times (list 'cons (list 'ms (list 'quote form)) times))))

; Runs a dialog for the forms of a session, beside the same one by the bare platform.
(defun in-dialog (name id forms)
  (ui_session name (append (list (list 'bench_bare_dialog id)) forms '((bench_bare_end) (wex_done_dialog 0))))
  (wex_start_dialog))
