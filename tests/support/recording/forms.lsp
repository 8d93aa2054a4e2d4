; Dialogs of all kinds of tiles, of which a seed decides what is in them and what their actions do. All that the actions
; hear is printed: a recorded session has to be heard as the work was from which it was recorded. Each dialog has a number,
; and (run-forms first count) runs those.

(setq state 1)
(defun chance (n) (setq state (fix (rem (* state 16807.0) 2147483647))) (rem state n))
(defun one-of (some) (nth (chance (length some)) some))
(defun fill (tile items) (wex_start_list tile) (wex_add_list items) (wex_end_list))

; Some texts come more than once.
(defun any-word () (one-of '("red" "green" "blue" "a b" "x\"y" "back\\slash" "7" "1/2" "9.5" "straße" "Zed" "zed" "" "red")))
(defun words (n) (mapcar '(lambda (i) (any-word)) (range n)))
(defun rows (n) (mapcar '(lambda (i) (strcat (any-word) "\t" (itoa (chance 4)))) (range n)))

; A tree's items have other handles in each run.
(setq items nil branches nil opened nil)
(defun shown (value / item)
  (setq item (if (= $key "tree") (assoc value items)))
  (cond (item (cdr item)) ((= $key "tree") "?") (T value)))

(defun toggle (item) (setq opened (if (member item opened) (remove item opened) (cons item opened))))

(defun heard ()
  (if (and (= $key "tree") (= $reason 16)) (toggle (atoi $value)))
  (prin1 (list $key (shown $value) $reason))
  (terpri)
  (cond ((= 0 (chance 14)) (nested))
        ((= 0 (chance 20)) (wex_alert (any-word) (one-of '(1 2 3))))
        ((= 0 (chance 12)) (wex_set_tile (one-of '("EDIT" "CAT" "VALUE" "CHECK" "LISTBOX")) (itoa (chance 3))))
        ((= 0 (chance 60)) (wex_done_dialog (chance 9)))))

(defun nested ()
  (if before-nested (before-nested))
  (wex_new_dialog "CONFIRM_DELREC")
  (wex_action_tile "OK" "(princ \"deleted\n\") (wex_done_dialog 4)")
  (prin1 (list "nested" (wex_start_dialog)))
  (terpri))
(setq before-nested nil before-form nil)

(defun bind (keys) (foreach key keys (wex_action_tile key "(heard)")))

(defun branch (parent depth / item)
  (repeat (1+ (chance 3))
    (setq text (any-word)
          item (if parent (wex_tree_insertchild "TREE" parent text) (wex_tree_insertparent "TREE" text))
          items (cons (cons (itoa item) text) items)
          branches (if parent (cons parent branches) branches))
    (if (< depth 3) (branch item (1+ depth)))))

(defun start-kinds ()
  (repeat 4 (wex_tab_add "TAB" (any-word)))
  (branch nil 1)
  (wex_listctrl_setcolumns "LISTVIEW" "x\tName\tSize")
  (wex_listctrl_allowsorting "LISTVIEW" T)
  (fill "LISTVIEW" (rows 12)))

(defun kinds ()
  (wex_new_dialog "ODD_KINDS")
  (foreach key '("LISTBOX" "MULTI" "COMBO" "DROPLIST") (fill key (words 12)))
  (wex_set_tile "EDIT" (any-word))
  (bind '("EDIT" "LISTBOX" "MULTI" "COMBO" "DROPLIST" "TREE" "LISTVIEW" "LINES" "READONLY"))
  (if (= 0 (chance 2)) (wex_action_tile "OK" "(heard) (wex_done_dialog 3)"))
  (wex_setaction_oninit "(start-kinds)"))

(defun buttons ()
  (wex_new_dialog "ODD_BUTTONS")
  (bind '("SLIDE" "BOX" "LEFT" "RIGHT" "MORE" "NEXT" "SORT" "LIST" "CAP_A" "CAP_C" "PLAIN" "CHECK" "THREE" "RADIO1" "RADIO2" "HELP")))

(defun start-grid (/ row)
  (wex_grid_setrowcolumns "LST" 9 4)
  (setq row 0)
  (repeat 8
    (setq row (1+ row))
    (wex_grid_setcell "LST" row 1 52512 (any-word))
    (wex_grid_setcell "LST" row 2 52500 (one-of '("red" "blue")) "red\ngreen\nblue")
    (wex_grid_setcell "LST" row 3 52501 (itoa (chance 2)))))

(defun grid ()
  (wex_new_dialog "EDIT_NONWD_ATTRS")
  (bind '("LST" "VALUE" "B_PICK" "HELP"))
  (wex_setaction_oninit "(start-grid)"))

(defun record ()
  (wex_new_dialog "ADD_REC")
  (fill "MFG" (words 8))
  (fill "TYPE" (words 8))
  (bind '("MFG" "CAT" "B_CAT" "ASMB" "DESC" "TYPE" "RATING" "QTY" "MORE" "KEEP" "HELP"))
  (wex_setaction_oninit "(wex_edit_setasnumeric \"RATING\" 2 1)"))

(setq forms '(kinds buttons grid record kinds))

(defun run-form (number / form)
  (setq state (1+ (* 7 number)) items nil branches nil opened nil form (nth (rem number (length forms)) forms))
  (repeat 3 (chance 2))
  (if before-form (before-form number form))
  (prin1 (list number form))
  (terpri)
  (apply form nil)
  (prin1 (list "ended" (wex_start_dialog)))
  (terpri))

(defun run-forms (first count)
  (foreach number (range first (+ first count)) (run-form number)))
