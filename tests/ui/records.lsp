; The record table as a program sees it: what each function gives, what it asks the data store, and what goes wrong. The
; rows come from a store in memory, which is told by store_rows and tells by store_log what it was asked.
(host_warn nil)  ; what the functions refuse is tried on purpose

(host_load_plugin "build/windows/tests/teststore/WEXDATASTOREMGDREV.dll")

(setq catalog '(("P1" "ACME" "Relay" "10A" "7") ("P2" "ACME" "Lamp" "" "3") ("P3" "Bolt" "Fuse" "2A" "")))

; A fresh table of those rows.
(defun with-rows (rows)
  (wex_fp_cleardatasrc)
  (store_rows rows)
  (wex_fp_setupdatasrc '("project" "Parts" "PN"))
  (store_log))
(defun records () (mapcar 'wex_fp_getitem (range (wex_fp_getcount))))
(defun first-fields (records) (mapcar 'car records))
(defun changes () (mapcar 'first-fields (list (wex_fp_getadded) (wex_fp_getmodified) (wex_fp_getdeleted))))

(defun no-value (form) (want (list form nil) (list form (eval form))))
(defun out-of-range (form) (want T (wcmatch (refused form) "*: Index Out of Range.")))

(test "Without a table every function is harmless"
  '((want 0 (wex_fp_getcount))
    (foreach form '((wex_fp_getitem 0) (wex_fp_setitem 0 '("x")) (wex_fp_additem '("x")) (wex_fp_remitem 0)
                    (wex_fp_getadded) (wex_fp_getmodified) (wex_fp_getdeleted) (wex_fp_savedb) (wex_fp_cleardatasrc))
      (no-value form))
    (want nil (store_log))
    (want nil (ui_alerts))))

(test "A setup asks for the count and then for the rows"
  '((store_rows catalog)
    (no-value '(wex_fp_setupdatasrc '("project" "Parts" "PN")))
    (want '("services" "store" "needs database?" "needs database?" "count [Parts]" "SELECT * FROM [Parts] ORDER BY [PN]")
          (store_log))
    (want 3 (wex_fp_getcount))
    (want catalog (records))
    (want nil (store_log))))

(test "A second setup changes nothing until the table is cleared"
  '((with-rows catalog)
    (store_rows '(("other")))
    (no-value '(wex_fp_setupdatasrc '("project" "Others" "PN")))
    (want catalog (records))
    (want nil (store_log))
    (no-value '(wex_fp_cleardatasrc))
    (want 0 (wex_fp_getcount))
    (wex_fp_setupdatasrc '("" "Oth]ers"))
    (want '("store" "needs database?" "needs database?" "count [Oth]ers]" "SELECT * FROM [Oth]ers] ORDER BY []") (store_log))
    (want '(("other")) (records))))

(test "A table without a name stays empty, and so does one whose store needs a database"
  '((store_rows catalog)
    (foreach arguments '(nil (nil) ("text") (5) ((1 2 3)) (("project")) (("project" 5 "PN")))
      (wex_fp_cleardatasrc)
      (no-value (cons 'wex_fp_setupdatasrc (mapcar '(lambda (a) (list 'quote a)) arguments)))
      (want nil (remove "needs database?" (cdr (store_log)))))
    (store_refuse "database")
    (foreach names '(nil ("" "Parts" "PN"))
      (wex_fp_cleardatasrc)
      (wex_fp_setupdatasrc names)
      (want '("store" "needs database?") (store_log)))
    (want 3 (wex_fp_getcount))
    (want '("count []") (store_log))
    (want nil (wex_fp_getitem 2))
    (store_refuse)))

(test "Where there is no store there is no table, and the next setup tries again"
  '((wex_fp_cleardatasrc)
    (store_rows catalog)
    (store_refuse "store")
    (no-value '(wex_fp_setupdatasrc '("" "Parts" "PN")))
    (want '("store") (store_log))
    (no-value '(wex_fp_getadded))
    (store_refuse)
    (wex_fp_setupdatasrc '("" "Parts" "PN"))
    (want 3 (wex_fp_getcount))))

(test "Records are read by their numbers"
  '((with-rows catalog)
    (want (caddr catalog) (wex_fp_getitem 2))
    (foreach form '((wex_fp_getitem) (wex_fp_getitem -1) (wex_fp_getitem 1.0) (wex_fp_getitem "1") (wex_fp_getitem nil))
      (no-value form))
    (foreach n '(3 -2 32767 40000 -40000 2147483647) (out-of-range (list 'wex_fp_getitem n)))
    (want 3 (wex_fp_getcount))
    (with-rows '(("a\tb" "" "line\nend" "grün ⌀ 😀" "'[x]\"")))
    (want '("a\tb" "" "line\nend" "grün ⌀ 😀" "'[x]\"") (wex_fp_getitem 0))))

(test "Texts that are set end at the first thing that is none; a new record has five, and changes are told by kind until they are saved"
  '((with-rows catalog)
    (foreach form '((wex_fp_setitem 1 '("p2" "" 5 "no")) (wex_fp_additem '("P4" "x" nil "no")) (wex_fp_additem '("1" "2" "3" "4" "5" "6"))
                    (wex_fp_setitem 3 '("p4")) (wex_fp_setitem 1 '("p2" "b")) (wex_fp_remitem 0))
      (no-value form))
    (want '(("p2" "b" "Lamp" "" "3") ("P3" "Bolt" "Fuse" "2A" "") ("p4" "x" "" "" "") ("1" "2" "3" "4" "5")) (records))
    (want '(("p4" "1") ("p2") ("P1")) (changes))
    (foreach n '(-1 "0" 0.0 nil) (no-value (list 'wex_fp_setitem n '(quote ("x")))) (no-value (list 'wex_fp_remitem n)))
    (foreach n '(4 -2 40000) (out-of-range (list 'wex_fp_setitem n '(quote ("x")))) (out-of-range (list 'wex_fp_remitem n)))
    (wex_fp_remitem 2)
    (wex_fp_remitem 0)
    (want '(("1") nil ("P1" "p2")) (changes))
    (no-value '(wex_fp_savedb))
    (want '(nil nil nil) (changes))
    (want '("P3" "1") (first-fields (records)))))

(test "A store that says less, more or nothing of its rows"
  '((foreach said '((1 1 ("P1")) (5 5 ("P1" "P2" "P3" nil nil)) (0 0 nil))
      (wex_fp_cleardatasrc)
      (store_rows catalog (car said))
      (wex_fp_setupdatasrc '("" "Parts" "PN"))
      (want (cdr said) (list (wex_fp_getcount) (first-fields (records)))))
    (wex_fp_cleardatasrc)
    (store_rows catalog -1)
    (wex_fp_setupdatasrc '("" "Parts" "PN"))
    (want -1 (wex_fp_getcount))
    (out-of-range '(wex_fp_getitem 0))))

(test "An error in an action leaves the dialog at work"
  '((with-rows catalog)
    (setq told nil)
    (ui_session "CONFIRM_DELREC" '((ui_click "OK") (ui_click "OK")))
    (wex_new_dialog "CONFIRM_DELREC")
    (wex_action_tile "OK" "(catch-error (wex_fp_getitem 3) '(lambda (e) (setq told (cons e told)))) (if (cdr told) (wex_done_dialog 4))")
    (want 4 (wex_start_dialog))
    (want 2 (length told))
    (want nil (ui_alerts))))

(wex_fp_cleardatasrc)
