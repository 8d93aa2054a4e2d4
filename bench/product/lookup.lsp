; What a person does with the list of the record table, which is set up: opens it, scrolls and searches.

(defun new-lookup () (wex_new_dialog "LOOKUP_FP") (wex_listctrl_setcolumns "DLST" "\tNumber        \tName          \tPrice     "))

; The time until it is closed again; `shown` is that until all was painted.
(defun open-lookup (/ begun)
  (setq begun (bench_now))
  (ui_session "LOOKUP_FP" '((setq shown (- (bench_now) begun)) (wex_done_dialog 0)))
  (new-lookup)
  (wex_start_dialog)
  (- (bench_now) begun))
(setq bare-lookup (list 'bench_bare_open_rows bench-templates 1898))

; A form's time until all is painted, n times over.
(defun painted-row (key before form n / forms)
  (repeat n (setq forms (append (painted before form 'times) forms)))
  (append '((setq times nil)) forms (list (list 'row key 'times))))

; The rows begin with that name; `last` is what to type for the last record.
(defun lookup-rows (name last)
  (open-lookup)
  (eval bare-lookup)
  (take-turns (strcat name "_first_show") '(progn (open-lookup) shown) (list 'progn bare-lookup '(bench_bare_shown)) 20)
  (take-turns (strcat name "_open_close") '(open-lookup) bare-lookup 20)
  (ui_session "LOOKUP_FP"
    (append (painted-row (strcat name "_rows_shown") '(wex_listctrl_setitemcount "DLST" 0)
                         '(wex_listctrl_setitemcount "DLST" (wex_fp_getcount)) 10)
            '((ui_pick "DLST" 0))
            (painted-row (strcat name "_page_down") nil '(ui_key "PAGEDOWN") 20)
            (painted-row (strcat name "_jump_to_end") '(ui_key "HOME") '(ui_key "END") 10)
            (painted-row (strcat name "_search_last") '(ui_key "HOME") (list 'ui_char last) 5)
            '((wex_done_dialog 0))))
  (new-lookup)
  (wex_start_dialog))
