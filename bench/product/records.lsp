; The list of the record table with a million records of five fields of a database in memory, and 10,000 changes of all
; three kinds, which a removal makes dearest.

(db_open ":memory:")
(db_exec "CREATE TABLE [Parts] AS WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 999999)
          SELECT 'P' || i AS PN, 'Maker ' || (i % 97) AS Maker, 'Part ' || i AS Name, i * 0.25 AS Price, i % 1000 AS Qty FROM n")
(wex_fp_setupdatasrc '("" "Parts" "Name"))
(lookup-rows "lookup" "p999999")

(defun change (n)
  (wex_fp_setitem (* 97 n) '("changed"))
  (wex_fp_additem '("added" "Maker" "Part"))
  (wex_fp_remitem (* 89 n)))
(row "changes_10000_of_all_kinds" (given '(progn (wex_fp_savedb) (ms '(foreach n (range 3333) (change n)))) 5))
(wex_fp_cleardatasrc)
