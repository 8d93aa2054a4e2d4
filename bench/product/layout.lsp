; A dialog of 77 tiles takes another size: boxes grow to the right, buttons follow the right edge.

(wex_new_dialog "BENCH_LAYOUT")
(setq id 112)
(repeat 75
  (cond ((= (rem id 3) 0) (wex_setresizing id 35))
        ((= (rem id 3) 2) (wex_setresizing id 25)))
  (setq id (1+ id)))
(wex_setresizing 1 35)
(wex_setresizing 2 35)
(setq size 600)
(defun size-row (how key)
  (session-row how key '(setq size (- 1220 size)) '(ui_size size 800) nil '(bench_bare_size size 800) 20))

(in-dialog "BENCH_LAYOUT" 3002
  (append '((ui_size size 800) (bench_bare_size size 800))
          (size-row 'called "size_step_77_layout") (size-row 'painted "size_step_77_painted")))
