; A tab control turns between two pages of 40 controls.

(defun ids (first n) (range first (+ first n)))

(wex_new_dialog "BENCH_PAGES")
(setq page 0)
(in-dialog "BENCH_PAGES" 3004
  (append '((apply 'wex_tab_add (append '("TABS" "One") (ids 113 40)))
            (apply 'wex_tab_add (append '("TABS" "Two") (ids 153 40)))
            (bench_bare_tabs 112))
          (session-row 'painted "page_of_40" '(setq page (- 1 page)) '(bench_turn 112 page)
                       nil '(bench_bare_turn 112 page 113 40) 20)))
