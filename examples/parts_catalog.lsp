; A catalog of footprints in a database: filtered and sorted by the database, changed in memory, and written back at the end,
; all of it or nothing. The list shows the records where they are, so it takes a million as well as these.
;
; A record is (number maker assembly block description). The number is the key: the database refuses a second part of it.

; In memory, so that each run begins alike; "parts.sqlite" or "odbc:…" in its place is a database that stays.
(defun open-parts ()
  (db_open ":memory:")
  (db_exec "CREATE TABLE [Footprints] ([Number] TEXT PRIMARY KEY, [Maker] TEXT, [Assembly] TEXT, [Block] TEXT, [Description] TEXT)")
  (db_exec "CREATE TABLE [Filter] ([Maker] TEXT)")
  (db_exec "INSERT INTO [Filter] VALUES ('')")
  (db_exec "CREATE VIEW [Shown] AS SELECT f.* FROM [Footprints] f, [Filter] x WHERE x.[Maker] IN ('', f.[Maker])")
  (foreach maker makers
    (foreach n (range 12)
      (db_exec "INSERT INTO [Footprints] VALUES (?, ?, ?, ?, ?)"
               (list (strcat (substr maker 1 1) "-" (itoa (+ 100 n))) maker (if (= (rem n 4) 0) "KIT" "")
                     (strcat "FP" (itoa (rem (* n 7) 12))) (strcat "Footprint for module " (itoa n)))))))

(setq makers '("Acme" "Bolton" "Crest"))

; --- reading and showing

(defun read-parts ()
  (db_exec "UPDATE [Filter] SET [Maker] = ?" (list maker))
  (wex_fp_cleardatasrc)
  (wex_fp_setupdatasrc (list "parts" "Shown" order))
  ; Once all pages have been read, a record that goes changes no more than the numbers behind it.
  (foreach page (range (/ (+ (wex_fp_getcount) 99) 100)) (wex_fp_getitem (* 100 page))))

(defun changes () (append (wex_fp_getadded) (wex_fp_getmodified) (wex_fp_getdeleted)))

(defun count-text ()
  (strcat (itoa (wex_fp_getcount)) " parts: " (itoa (length (wex_fp_getadded))) " added, "
          (itoa (length (wex_fp_getmodified))) " changed, " (itoa (length (wex_fp_getdeleted))) " deleted"))

; What is changed here has to be written back before the database is asked for other records.
(defun show-list (/ busy)
  (setq busy (if (changes) 1 0))
  (wex_listctrl_setitemcount "DLST" (wex_fp_getcount))
  (wex_set_tile "LABEL3" (count-text))
  (wex_mode_tile "MFG" busy)
  (wex_mode_tile "NEWDLST" busy))

(setq fields '("CAT" nil "ASMB" "BLKNAM" "DESC"))

(defun fill-in (record) (mapcar '(lambda (key text) (if key (wex_set_tile key text))) fields record))

; Only a part that the database hasn't seen may get another number.
(defun show-part (n / record known)
  (setq at n record (if n (wex_fp_getitem n) '("" "" "" "" "")) known (and n (not (member record (wex_fp_getadded)))))
  (fill-in record)
  (wex_set_tile "LABEL4" (if n (strcat "Record " (itoa (1+ n)) " of " (itoa (wex_fp_getcount)) ", made by " (cadr record)) ""))
  (wex_mode_tile "CAT" (if known 1 0))
  (foreach key '("EDIT" "REMOVE") (wex_mode_tile key (if n 0 1))))

(defun show-all () (wex_set_tile "DLST" "-1") (show-list) (show-part nil))

; --- what the person does

(defun maker-picked ()
  (setq maker (if (= $value "0") "" (nth (1- (atoi $value)) makers)))
  (read-parts)
  (show-all))

(defun sort-pressed ()
  (setq order (if (= order "Number") "Block" "Number"))
  (wex_set_tile "NEWDLST" (if (= order "Number") "Sort by B&lock" "Sort by Nu&mber"))
  (read-parts)
  (show-all))

(defun new-pressed ()
  (cond ((= maker "") (wex_set_tile "LABEL4" "Choose the manufacturer of the new part first.") (wex_mode_tile "MFG" 2))
        (T (wex_set_tile "DLST" "-1")
           (show-part nil)
           (wex_set_tile "LABEL4" (strcat "New part, made by " maker))
           (wex_mode_tile "CAT" 2))))

(defun remove-pressed () (wex_fp_remitem at) (show-all))

(defun save-pressed (/ texts)
  (setq texts (mapcar '(lambda (key) (if key (wex_get_tile key) maker)) fields))
  (cond ((= (car texts) "") (wex_set_tile "LABEL4" "The part needs a number.") (wex_mode_tile "CAT" 2))
        (at (wex_fp_setitem at (put-maker (cadr (wex_fp_getitem at)) texts)) (show-list) (show-part at))
        ((= maker "") (new-pressed))
        (T (wex_fp_additem texts) (show-list) (show-part (1- (wex_fp_getcount))) (wex_set_tile "DLST" (itoa at)))))
(defun put-maker (maker texts) (cons (car texts) (cons maker (cddr texts))))

; --- writing back

; Somebody else may have deleted a part since it was read. That's an error for a part that was changed here; one that was
; deleted here too goes into `gone`.
(defun write-records (/ record)
  (foreach record (wex_fp_getdeleted)
    (setq writing record)
    (if (= 0 (db_exec "DELETE FROM [Footprints] WHERE [Number] = ?" (list (car record)))) (setq gone (cons (car record) gone))))
  (foreach record (wex_fp_getmodified)
    (setq writing record)
    (if (= 0 (db_exec "UPDATE [Footprints] SET [Maker] = ?, [Assembly] = ?, [Block] = ?, [Description] = ? WHERE [Number] = ?"
                      (append (cdr record) (list (car record)))))
        (error "Somebody else has deleted it. Remove it here too.")))
  (foreach record (wex_fp_getadded) (setq writing record) (db_exec "INSERT INTO [Footprints] VALUES (?, ?, ?, ?, ?)" record)))

; nil, or why nothing was written.
(defun write-back (/ writing refusal)
  (db_begin)
  (setq refusal (catch-error (progn (write-records) (db_commit) nil)))
  (cond (refusal (db_rollback)
                 (strcat "Nothing was written, because of part " (car writing) ":\n"
                         (substr refusal (+ 4 (string-search refusal "): ")))))))

(defun ok-pressed (/ refusal gone)
  (setq refusal (write-back))
  (cond (refusal (wex_alert refusal 1))
        (T (if gone (wex_alert (strcat "Somebody else had deleted these parts before: " (string-join gone ", ")) 2))
           (setq written (count-text)) (wex_fp_savedb) (wex_done_dialog 1))))

(defun edit-parts (/ maker order at written)
  (setq maker "" order "Number")
  (open-parts)
  (read-parts)
  (wex_new_dialog "LOOKUP_FP")
  (wex_listctrl_setcolumns "DLST" "\tNumber               \tAssembly     \tBlock               ")
  (wex_start_list "MFG")
  (wex_add_list (cons "(all)" makers))
  (wex_end_list)
  (wex_set_tile "MFG" "0")
  (wex_set_tile "LABEL2" "&Parts:")
  (wex_set_tile "NEWDLST" "Sort by B&lock")
  (wex_setaction_oninit "(show-all)")
  (foreach pair '(("MFG" "(maker-picked)") ("NEWDLST" "(sort-pressed)") ("DLST" "(if (/= $value \"\") (show-part (atoi $value)))")
                  ("EDIT" "(wex_mode_tile \"ASMB\" 2)") ("ADD_NEW" "(new-pressed)") ("REMOVE" "(remove-pressed)")
                  ("SAVE" "(save-pressed)") ("OK" "(ok-pressed)")
                  ("HELP" "(wex_alert \"Save takes the details into the list; OK writes the list back.\" 2)"))
    (wex_action_tile (car pair) (cadr pair)))
  (wex_start_dialog)
  (wex_fp_cleardatasrc)
  written)

(ui_session "LOOKUP_FP"
  '((ui_click "NEWDLST")
    (print (ui_items "DLST" 0 3))
    (ui_click "NEWDLST")
    (ui_pick "MFG" "Bolton")
    (print (ui_items "DLST" 0 3))
    (ui_pick "DLST" 3)
    (ui_char "B-10")
    (ui_key "DOWN")
    (print (ui_text "LABEL4"))
    (ui_type "BLKNAM" "WIDE")
    (ui_click "SAVE")
    (ui_pick "DLST" 0)
    (ui_click "REMOVE")
    (ui_click "ADD_NEW")
    (ui_type "CAT" "c-105")
    (ui_type "BLKNAM" "FP1")
    (ui_click "SAVE")
    (print (ui_text "LABEL3"))
    (ui_shot "parts_catalog.png")
    (terpri)
    (ui_click "OK")
    (ui_type "CAT" "b-200")
    (ui_click "SAVE")
    ; As another program would.
    (db_exec "DELETE FROM [Footprints] WHERE [Number] = 'B-105'")
    (ui_click "OK")
    (ui_pick "DLST" 4)
    (ui_click "REMOVE")
    (ui_click "OK")))

(print (edit-parts))
(print (db_query "SELECT [Number], [Block] FROM [Footprints] WHERE [Maker] = 'Bolton' AND ([Block] = 'WIDE' OR [Number] NOT LIKE 'B-1%')"))
(print (db_query "SELECT count(*) FROM [Footprints]"))
(terpri)
