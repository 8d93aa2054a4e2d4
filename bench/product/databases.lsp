; The record table on a database of a million rows, which is open, and a write back. Its rows begin with the name in `database`.

(defun key (name) (strcat database "." name))
(defun set-up () (wex_fp_setupdatasrc '("" "Parts" "PN")))
(defun page (first) (foreach n (range first (+ first 100)) (wex_fp_getitem n)))

; 10,000 records with another name, as a program writes them back.
(defun write-back (/ n)
  (db_begin)
  (foreach record (wex_fp_getmodified)
    (db_exec "UPDATE [Parts] SET [Name] = ?, [Qty] = ? WHERE [PN] = ?" (list (cadr record) (atoi (nth 4 record)) (car record))))
  (db_commit)
  (wex_fp_savedb))

(row (key "count") (given '(ms '(db_query "SELECT COUNT(*) FROM [Parts]")) 5))

(setq first nil last nil)
(row (key "read")
  (given '(progn
            (wex_fp_cleardatasrc)
            (setq time (ms '(set-up)))
            (setq first (cons (ms '(page 0)) first) last (cons (ms '(page (- (wex_fp_getcount) 100))) last))
            time)
         3))
(row (key "first_page") first)
(row (key "last_page") last)

(setq tracked nil)
(row (key "write_back_10000")
  (given '(progn
            (setq tracked (cons (ms '(foreach n (range 10000) (wex_fp_setitem n (list (car (wex_fp_getitem n)) (strcat "Part " (itoa n)))))) tracked))
            (ms '(write-back)))
         3))
(row (key "changes_10000") tracked)

(lookup-rows (key "lookup") (strcat "p" (itoa (+ 10000000 (1- (wex_fp_getcount))))))
