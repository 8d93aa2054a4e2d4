; Lists that are filled while they stand on the screen.

(defun texts (n / i made)
  (setq i n)
  (repeat n (setq made (cons (strcat "Entry number " (itoa (setq i (1- i)))) made)))
  made)
(setq entries (texts 10000))
(bench_bare_texts entries)

(defun refill-by-one-call (key) (wex_start_list key 2) (wex_add_list entries) (wex_end_list))
(defun refill-by-many-calls (key) (wex_start_list key 2) (foreach entry entries (wex_add_list entry)) (wex_end_list))

(defun empty (key) (wex_start_list key 3) (wex_end_list))

(defun list-row (name key id fill)
  (session-row 'painted name (list 'empty key) (list fill key)
               (list 'bench_bare_empty id) (list 'bench_bare_fill id) 15))

(wex_new_dialog "BENCH_LISTS")
(in-dialog "BENCH_LISTS" 3001
  (append (list-row "list_box_10000_by_one_call" "LIST" 112 'refill-by-one-call)
          (list-row "list_box_10000_by_10000_calls" "LIST" 112 'refill-by-many-calls)
          (list-row "combo_box_10000_by_one_call" "COMBO" 113 'refill-by-one-call)
          (list-row "combo_box_10000_by_10000_calls" "COMBO" 113 'refill-by-many-calls)))
