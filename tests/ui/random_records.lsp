; Random calls on the record table while a list shows it, against a plain model: one list of records and three of what was
; changed. After each call both have the same records, and the list shows them. A table of one page: how larger ones
; number their records after a deletion is tested natively. Another run, longer or of another seed:
;
;   ./wexhost --headless tests/support/check.lsp -e '(setq seed 7 events 5000)' tests/ui/random_records.lsp -e '(report-tests)'
(host_warn nil)  ; what the functions refuse is tried on purpose

(begin-chance 600)
(host_load_plugin "build/windows/tests/teststore/WEXDATASTOREMGDREV.dll")

(defun any-text () (one-of '("" "a" "b" "A" "a b" "a\tb" "grün" "'x'" "[x]" "\"" "line\nend")))
(defun any-texts () (mapcar '(lambda (i) (if (= (chance 20) 0) 5 (any-text))) (range (chance 7))))
; Texts end where something else stands.
(defun taken (texts) (if (stringp (car texts)) (cons (car texts) (taken (cdr texts)))))

; --- the model

(setq records nil added nil modified nil deleted nil)
(defun without-nth (n list) (remove 'gone (put-nth n 'gone list)))
(defun pad (texts size) (mapcar '(lambda (i) (cond ((nth i texts)) (T ""))) (range size)))
(defun entry-p (n) (and (<= 0 n) (< n (length records))))

(defun model-set (n texts / old new at)
  (setq old (nth n records)
        new (mapcar '(lambda (i field) (cond ((nth i texts)) (T field))) (range (length old)) old))
  (cond ((setq at (position old added)) (setq added (put-nth at new added)))
        ((setq at (position old modified)) (setq modified (put-nth at new modified)))
        (T (setq modified (append modified (list new)))))
  (setq records (put-nth n new records)))

(defun model-remove (n / old at)
  (setq old (nth n records))
  (cond ((setq at (position old added)) (setq added (without-nth at added)))
        (T (if (setq at (position old modified)) (setq modified (without-nth at modified)))
           (setq deleted (append deleted (list old)))))
  (setq records (without-nth n records)))

; --- calls

(defun any-number ()
  (cond ((and records (< 0 (chance 6))) (chance (length records)))
        (T (one-of (list -1 -2 (length records) (1+ (length records)) 99999 -99999 nil "0" 0.0 '(0))))))
; Does the call and what the model does, or neither where the number is none or names no record.
(defun with-number (form n model)
  (cond ((or (not (integerp n)) (= n -1)) (want nil (eval form)))
        ((entry-p n) (eval form) (eval model))
        (T (want T (not (null (string-search (catch-error (progn (eval form) "no error")) "Index Out of Range.")))))))

(defun set-record (/ n texts)
  (setq n (any-number) texts (any-texts))
  (with-number '(wex_fp_setitem n texts) n '(model-set n (taken texts))))
; Without a number that no record has: such a call may leave an empty page behind, into which the next record then goes.
(defun remove-record (/ n)
  (setq n (any-number))
  (if (or (not (integerp n)) (= n -1) (entry-p n)) (with-number '(wex_fp_remitem n) n '(model-remove n))))
(defun add-record (/ texts)
  (setq texts (any-texts))
  (cond ((< (length records) 100)
         (wex_fp_additem texts)
         (setq records (append records (list (pad (taken texts) 5))) added (append added (list (pad (taken texts) 5)))))))
(defun read-record (/ n)
  (setq n (any-number))
  (with-number '(setq got (wex_fp_getitem n)) n '(want (nth n records) got)))
(defun forget () (if (= (chance 8) 0) (progn (wex_fp_savedb) (setq added nil modified nil deleted nil))))
(defun wrong-calls () (wex_fp_setitem) (wex_fp_setitem 0) (wex_fp_remitem) (wex_fp_additem) (wex_fp_getitem))  ; check: off
(defun begin-anew (/ rows)
  (cond ((= (chance 20) 0)
         (setq rows (mapcar '(lambda (i) (taken (any-texts))) (range (chance 40))) records rows added nil modified nil deleted nil)
         (store_rows rows)
         (wex_fp_cleardatasrc)
         (wex_fp_setupdatasrc '("" "Parts" "PN")))
        (T (wex_fp_setupdatasrc '("" "Others")))))

(defun shown (record) (string-join (mapcar '(lambda (i) (nth i (pad record 5))) '(0 2 3)) "\t"))
(defun event (/ what)
  (setq count (1+ count)
        what (one-of '(set-record set-record remove-record remove-record add-record add-record add-record read-record forget
                       wrong-calls begin-anew)))
  (apply what nil)
  (want (list added modified deleted) (list (wex_fp_getadded) (wex_fp_getmodified) (wex_fp_getdeleted)))
  (want records (mapcar 'wex_fp_getitem (range (wex_fp_getcount))))
  (wex_listctrl_setitemcount "DLST" (wex_fp_getcount))
  (want (mapcar 'shown records) (ui_items "DLST"))
  (if *wrong* (note-wrong (strcat "by event " (itoa count) " of seed " (itoa seed) ", " (prin1-to-string what)))))

(test (strcat (itoa events) " random calls, seed " (itoa seed))
  '((store_rows nil)
    (wex_fp_setupdatasrc '("" "Parts" "PN"))
    (setq steps nil)
    ; Ten calls to a turn of the message loop, in which the list is painted.
    (repeat (/ events 10) (setq steps (cons '(repeat 10 (if (null *wrong*) (event))) steps)))
    (in-dialog "LOOKUP_FP" '(wex_listctrl_setcolumns "DLST" "x\tName\tKind\tSize") steps)
    (wex_fp_cleardatasrc)))
