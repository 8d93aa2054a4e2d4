; All dialogs opened and closed, one after the other, beside the bare platform on the same templates: the sum, and below it
; the dialogs that cost most beside the bare ones.

(setq known nil)
(foreach id (range 2500)
  (setq id (+ 1500 id) name (bench_dialog_name id))
  (if (/= name "") (setq known (cons (list name id) known))))

(defun open-named (name / begun)
  (setq begun (bench_now))
  (ui_session name '((wex_done_dialog 0)))
  (wex_new_dialog name)
  (wex_start_dialog)
  (- (bench_now) begun))
(defun open-bare (id) (bench_bare_open_close bench-templates id))

; Each dialog's times, ours and the bare ones, are lists in `times`: (name ours bare).
(defun one-round ()
  (setq times
    (mapcar '(lambda (dialog so-far)
               (list (car dialog)
                     (cons (open-named (car dialog)) (cadr so-far))
                     (cons (open-bare (cadr dialog)) (caddr so-far))))
            known times)))
; The sum of all dialogs' least times, of their second ones and so on. A round takes longer than the machine keeps its
; speed; a dialog's own times are taken in turns of some milliseconds.
(defun sums (which)
  (mapcar '(lambda (i) (apply '+ (mapcar '(lambda (of-dialog) (nth i (apply which (list of-dialog)))) times))) (range rounds)))

(setq rounds 7 times (mapcar '(lambda (dialog) nil) known))
(one-round)
(setq times (mapcar '(lambda (dialog) nil) known))
(repeat rounds (one-round))
(setq times (mapcar '(lambda (of-dialog) (list (car of-dialog) (sort (cadr of-dialog) '<) (sort (caddr of-dialog) '<))) times))
(versus (strcat "open_close_all_" (itoa (length known))) (sums 'cadr) (sums 'caddr))

(defun excess (of-dialog) (- (median (cadr of-dialog)) (median (caddr of-dialog))))
(setq times (sort times '(lambda (a b) (> (excess a) (excess b)))))
(foreach i (range 5)
  (setq of-dialog (nth i times))
  (versus (strcat "open_close_" (strcase (car of-dialog) T)) (cadr of-dialog) (caddr of-dialog)))
