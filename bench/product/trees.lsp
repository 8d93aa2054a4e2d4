; Items of a tree: filled at the start and while it stands on the screen, sorted, opened, and closed with all of them.
; They are the children of one item, which stays.

(defun tree-texts (n / made)
  (repeat n (setq n (1- n) made (cons (strcat "Part " (itoa (rem (* n 7919) 100003))) made)))
  made)

(defun use-texts (n) (setq texts (tree-texts n)) (bench_bare_texts texts))
(defun add-items () (foreach text texts (wex_tree_insertchild "TREE" above text 0 1)))
(defun open-item () (wex_tree_expanditem "TREE" above 1))
(defun start-tree () (setq above (wex_tree_insertparent "TREE" "All")))
(defun fill-tree () (start-tree) (add-items) (open-item))
(defun empty-tree () (wex_tree_deleteallitems "TREE") (start-tree))

(defun open-tree (/ begun)
  (setq begun (bench_now))
  (ui_session "BENCH_TREE" '((wex_done_dialog 0)))
  (wex_new_dialog "BENCH_TREE")
  (wex_setaction_oninit "(fill-tree)")
  (wex_start_dialog)
  (- (bench_now) begun))

; From the click that ends the dialog until it is gone.
(defun close-tree ()
  (ui_session "BENCH_TREE" '((fill-tree) (setq begun (bench_now)) (wex_done_dialog 0)))
  (wex_new_dialog "BENCH_TREE")
  (wex_start_dialog)
  (- (bench_now) begun))
(defun close-bare ()
  (ui_session "BENCH_TREE" '((bench_bare_dialog 3005) (bench_bare_fill 112) (setq spent (bench_bare_end)) (wex_done_dialog 0)))
  (wex_new_dialog "BENCH_TREE")
  (wex_start_dialog)
  spent)

(defun in-tree (forms) (wex_new_dialog "BENCH_TREE") (in-dialog "BENCH_TREE" 3005 forms))

(defun measure-trees (count n / name)
  (use-texts count)
  (setq name (strcat "tree_" (itoa count)))
  (take-turns (strcat name "_before_start") '(open-tree) '(bench_bare_open_tree 3005) n)
  (in-tree (session-row 'painted (strcat name "_live") '(empty-tree) '(progn (add-items) (open-item))
                        '(bench_bare_empty 112) '(bench_bare_fill 112) n))
  (take-turns (strcat name "_close") '(close-tree) '(close-bare) n))

(measure-trees 10000 9)
(in-tree (append (session-row 'called "tree_sort_10000" '(progn (empty-tree) (add-items)) '(wex_tree_sortchildren "TREE" above)
                              '(progn (bench_bare_empty 112) (bench_bare_fill 112)) '(bench_bare_tree_sort 112) 9)
                 ; Sorted items lie scattered in memory, which takes longer.
                 '((empty-tree) (add-items) (bench_bare_empty 112) (bench_bare_fill 112))
                 (session-row 'painted "tree_open_10000" '(wex_tree_expanditem "TREE" above -1) '(open-item)
                              '(bench_bare_tree_open 112 0) '(bench_bare_tree_open 112 1) 9)))
(measure-trees 100000 3)
