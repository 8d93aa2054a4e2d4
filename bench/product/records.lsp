; The list of the record table with a million records of five fields: opened, scrolled and searched as a person does it,
; and 10,000 changes of all three kinds, which a removal makes dearest.

(db_open ":memory:")
(db_exec "CREATE TABLE [Parts] AS WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 999999)
          SELECT 'P' || i AS PN, 'Maker ' || (i % 97) AS Maker, 'Part ' || i AS Name, i * 0.25 AS Price, i % 1000 AS Qty FROM n")
(wex_fp_setupdatasrc '("" "Parts" "Name"))

(defun new-lookup () (wex_new_dialog "LOOKUP_FP") (wex_listctrl_setcolumns "DLST" "\tNumber        \tName          \tPrice     "))

(defun open-lookup (/ begun)
  (setq begun (bench_now))
  (ui_session "LOOKUP_FP" '((wex_done_dialog 0)))
  (new-lookup)
  (wex_start_dialog)
  (- (bench_now) begun))

(open-lookup)
(take-turns "lookup_million_open_close" '(open-lookup) (list 'bench_bare_open_close bench-templates 1898) 20)

; A form's time until all is painted, n times over.
(defun painted-row (key before form n / forms)
  (repeat n (setq forms (append (painted before form 'times) forms)))
  (append '((setq times nil)) forms (list (list 'row key 'times))))

(ui_session "LOOKUP_FP"
  (append '((ui_pick "DLST" 0))
          (painted-row "lookup_page_down" nil '(ui_key "PAGEDOWN") 20)
          (painted-row "lookup_jump_to_end" '(ui_key "HOME") '(ui_key "END") 10)
          (painted-row "lookup_search_999999" '(ui_key "HOME") '(ui_char "p999999") 5)
          '((wex_done_dialog 0))))
(new-lookup)
(wex_start_dialog)

(defun change (n)
  (wex_fp_setitem (* 97 n) '("changed"))
  (wex_fp_additem '("added" "Maker" "Part"))
  (wex_fp_remitem (* 89 n)))
(row "changes_10000_of_all_kinds" (given '(progn (wex_fp_savedb) (ms '(foreach n (range 3333) (change n)))) 5))
(wex_fp_cleardatasrc)
