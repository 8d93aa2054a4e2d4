; The list of LOOKUP_FP shows the record table: a million rows at once, of which it reads those in sight. What changes in
; the table shows when the list is told its new count, and a row that isn't there is an error that ends the dialog.
(host_warn nil)  ; what the functions refuse is tried on purpose

(host_load_plugin "build/windows/tests/teststore/WEXDATASTOREMGDREV.dll")

(defun set-up () (wex_fp_cleardatasrc) (wex_fp_setupdatasrc '("" "Parts" "PN")) (store_log))
(defun numbered (n) (store_numbered n) (set-up))
(defun lookup (session)
  (run-dialog "LOOKUP_FP"
    '(progn (wex_listctrl_setcolumns "DLST" "\tCatalog          \tName          \tKind\tNone")
            (wex_action_tile "DLST" "(note (list $value $reason))"))
    session))
(defun in-lookup (session) (lookup (append session '((ui_click "Cancel")))))

(defun row (n) (strcat "P" (itoa n) "\tPart " (itoa n) "\t" (itoa (rem n 7)) "\t"))
(defun rows-from (first count) (mapcar 'row (range first (+ first count))))
(defun selected () (wex_listctrl_getselectednths "DLST"))
(defun show-changes () (wex_listctrl_setitemcount "DLST" (wex_fp_getcount)))
(defun names () (mapcar '(lambda (row) (car (string-split row "\t"))) (ui_items "DLST")))

(test "A million rows, to the end and back"
  '((numbered 1000000)
    (in-lookup
      '((want (rows-from 0 3) (ui_items "DLST" 0 3))
        (ui_shot "record_list.png")
        (ui_pick "DLST" 0)
        (ui_key "END")
        (want '("999999" 5) (car (reverse notes)))
        (want (rows-from 999998 2) (ui_items "DLST" 999998))
        (ui_key "PAGEUP")
        (ui_key "HOME")
        (want '("0" 5) (car (reverse notes)))
        (wex_set_tile "DLST" "500000")
        (want '(500000) (selected))
        (ui_key "DOWN" "DLST")
        (want '(500001) (selected))
        (want nil (store_log))))))

(test "Typing leads to the record that begins so, in any letter case, and around the end"
  '((numbered 1000000)
    (in-lookup
      '((ui_pick "DLST" 5)
        (ui_char "p77")
        (want '(77) (selected))
        (ui_pick "DLST" 999999)
        (ui_char "x")
        (want '(999999) (selected))))
    (in-lookup
      '((ui_pick "DLST" 999998)
        (ui_char "P700")
        (want '(700) (selected))))))

(test "What changes under the list shows with the new count"
  '((numbered 120)
    (in-lookup
      '((ui_pick "DLST" 2)
        (wex_fp_remitem 2)
        (wex_fp_setitem 0 '("first"))
        (wex_fp_additem '("last" "" "new"))
        (show-changes)
        (want '("first" "P1" "P3") (mapcar '(lambda (n) (nth n (names))) '(0 1 2)))
        (want 120 (length (names)))
        (wex_fp_getitem 119)))
    (want '(("last") ("first") ("P2"))
          (mapcar '(lambda (records) (mapcar 'car records)) (list (wex_fp_getadded) (wex_fp_getmodified) (wex_fp_getdeleted))))))

(test "A record that the ragged pages have lost shows empty cells"
  '((numbered 250)
    (wex_fp_remitem 0)
    (in-lookup '((want '("P248" "") (mapcar '(lambda (n) (nth n (names))) '(247 248)))))))

(test "A cleared table leaves an empty list, and the next one shows in it"
  '((numbered 5)
    (in-lookup
      '((wex_fp_cleardatasrc)
        (want '("" "" "" "" "") (names))
        (ui_char "P" "DLST")
        (store_numbered 3)
        (wex_fp_setupdatasrc '("" "Parts" "PN"))
        (show-changes)
        (want '("P0" "P1" "P2") (names))))))

(test "A list of another dialog shows none of the records"
  '((numbered 3)
    (in-dialog "ODD_TABLES" '(wex_listctrl_setcolumns "VIRTUAL" "\tName")
      '((wex_listctrl_setitemcount "VIRTUAL" 2) (want '("" "") (ui_items "VIRTUAL"))))))

(test "A list that began without a table never shows one"
  '((wex_fp_cleardatasrc)
    (in-lookup
      '((want nil (ui_items "DLST"))
        (store_numbered 3)
        (wex_fp_setupdatasrc '("" "Parts" "PN"))
        (show-changes)
        (want '("" "" "") (names))))))

(test "A row beyond the records ends the dialog with an error, after which all goes on"
  '((numbered 3)
    (want T (not (null (string-search (catch-error (lookup '((wex_listctrl_setitemcount "DLST" 10)))) "Index Out of Range."))))
    (want nil (wex_set_tile "DLST" "0"))
    (want 3 (wex_fp_getcount))
    (in-lookup '((want '("P0" "P1" "P2") (names))))))

(test "The dialog that a nested list's error ends gives the one before it back"
  '((numbered 3)
    (ui_session "LOOKUP_FP" '((wex_fp_remitem 0) (wex_listctrl_setitemcount "DLST" 3)))
    (setq told nil)
    (run-dialog "CONFIRM_DELREC"
      '(progn (wex_action_tile "OK" "(wex_new_dialog \"LOOKUP_FP\") (wex_listctrl_setcolumns \"DLST\" \"\tName\") (setq told (catch-error (wex_start_dialog)))"))
      '((ui_click "OK")
        (want 1 (length (ui_dialogs)))
        (want T (look "OK" "enabled"))
        (want T (cdr (assoc "enabled" (ui_look))))
        (wex_set_tile "LABEL0" "here")
        (want "here" (ui_text "LABEL0"))
        (ui_click "Cancel")))
    (want T (not (null (string-search told "Index Out of Range."))))))

(wex_fp_cleardatasrc)
