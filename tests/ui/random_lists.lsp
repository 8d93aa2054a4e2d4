; Random clicks, keys and list calls on a dialog with a list box, a combo box and a list control. After each of them the
; lists show what a plain model says, and the actions have heard what it says. Where the platform decides (which rows a click
; on one of several selected rows leaves, whether a click on the selected entry is told) it is Wine that was asked.
(host_warn nil)  ; what the functions refuse is tried on purpose

(begin-chance 2000)

(defun any-text () (one-of '("9" "10" "100" "a10" "" "1'-6\"" "1/2" "12A" "1.5E+3" "Zed" "zed" "-3" "end  ")))
(defun any-row () (string-join (mapcar '(lambda (i) (any-text)) (range (1+ (chance 4)))) "\t"))

; --- the model. A box is (entries selected), a row of the list control (cells . selected)

(setq boxes '("LISTBOX" "DROPLIST") table "LISTVIEW" columns 3 tiles (cons table boxes))
(setq dialog nil)  ; pairs of a tile and its box
(setq operations nil)  ; pairs of a tile and its list operation
(setq rows nil waiting nil focus nil dblclick T)
(setq open nil)  ; the tile of the last wex_start_list

(defun put (key value pairs) (cons (cons key value) (remove (assoc key pairs) pairs)))
(defun get (key pairs) (cdr (assoc key pairs)))
(defun entries (tile) (car (get tile dialog)))
(defun selected (tile) (cadr (get tile dialog)))
(defun set-box (tile entries selected) (setq dialog (put tile (list entries selected) dialog)))
(defun entry-p (n list) (and (<= 0 n) (< n (length list))))

(defun cells (text) (mapcar '(lambda (i) (cond ((nth i (string-split text "\t"))) (T ""))) (range columns)))
(defun trimmed (text)
  (if (string-search text "\t") (string-join (mapcar '(lambda (s) (string-right-trim s " ")) (string-split text "\t")) "\t") text))
(defun selected-rows () (remove-if-not '(lambda (i) (cdr (nth i rows))) (range (length rows))))
(defun select-only (row) (setq rows (mapcar '(lambda (i r) (cons (car r) (= i row))) (range (length rows)) rows)))
(defun select-row (row) (setq rows (put-nth row (cons (car (nth row rows)) T) rows)))
(defun append-row (text) (setq rows (append rows (list (cons (cells text) nil)))))
(defun cell (row column) (nth column (car (nth row rows))))
(defun set-cell (row column text / old)
  (setq old (nth row rows))
  (if (entry-p column (range columns)) (setq rows (put-nth row (cons (put-nth column text (car old)) (cdr old)) rows))))
(defun replace-row (row text / column)
  (setq column -1)
  (foreach field (string-split text "\t") (set-cell row (setq column (1+ column)) field)))

(defun add (tile text / at)
  (setq at (if (equal tile table) (car (selected-rows)) (selected tile)))
  (cond ((equal tile table)
         (if (and at (= (get tile operations) -1)) (replace-row at text) (append-row text)))
        ((and (>= at 0) (= (get tile operations) 1)) (set-box tile (put-nth at text (entries tile)) -1))
        (T (set-box tile (append (entries tile) (list text)) at))))

; --- what the actions hear. What is due is (may tile value reason) or (must ...).

(setq told nil due nil inside nil)
(defun heard (/ form)
  (setq told (append told (list (list $key $value $reason))) form inside inside nil)
  (eval form))
(defun expect (how tile value reason)
  (setq due (append due (list (list how (strcase tile T) (princ-to-string value) reason)))))
(defun numbers (list) (string-join (mapcar 'itoa list) " "))
(defun heard-right (due told)
  (cond ((null due) (null told))
        ((and told (equal (cdar due) (car told)) (heard-right (cdr due) (cdr told))) T)
        ((equal (caar due) 'may) (heard-right (cdr due) told))))

; --- list calls, which may come from an action too

(defun start (tile / operation)
  (setq operation (if (> (length (if (equal tile table) rows (entries tile))) 12) 3 (one-of '(nil 1 2 3 -1))))
  (if operation (wex_start_list tile operation) (wex_start_list tile))
  (cond ((and (member operation '(nil 3)) (equal tile table)) (setq rows nil focus nil))
        ((member operation '(nil 3)) (set-box tile nil -1)))
  (if (equal tile table) (setq waiting nil))
  (setq open tile operations (put tile (cond (operation) (T 3)) operations)))

(defun add-to-open (tile / texts)
  (setq texts (list (any-row) (any-row)))
  (cond ((not (equal open tile)) nil)
        ((= (chance 2) 0) (wex_add_list (car texts)) (add open (car texts)))
        (T (wex_add_list (append texts (list 5 "unreached"))) (foreach text texts (add open text)))))

(defun set-value (tile / value n)
  (setq value (one-of (list "" "x" (itoa (- (chance 16) 2)) (- (chance 16) 2))) n (if (stringp value) (atoi value) value))
  (wex_set_tile tile value)
  (cond ((not (equal tile table)) (if (entry-p n (entries tile)) (set-box tile (entries tile) n)))
        ((minusp n) (select-only -1))
        ((entry-p n rows) (select-row n))))

(defun read-value (tile)
  (want (cond ((equal tile table) (itoa (cond ((car (selected-rows))) (T -1))))
              ((equal tile "LISTBOX") (itoa (selected tile)))
              ((minusp (selected tile)) "")
              (T (nth (selected tile) (entries tile))))
        (wex_get_tile tile))
  (if (equal tile table) (want (selected-rows) (wex_listctrl_getselectednths tile))))

(defun set-mode (tile) (wex_mode_tile tile 4) (setq operations (put tile 4 operations)))  ; check: off

(defun add-item (tile / row column text)
  (setq row (- (chance 8) 1) column (chance 4) text (any-text))
  (cond ((not (equal tile table)) nil)
        ((> (length rows) 12) nil)
        ((= (chance 3) 0) (wex_listctrl_additem table (strcat text "\tlive")) (append-row (strcat text "\tlive")))
        ((= (chance 4) 0) (wex_listctrl_setitem table row text) (if (not (entry-p row rows)) (append-row text)))
        (T (wex_listctrl_setitem table row column text)
           (if (entry-p row rows) (set-cell row column text) (append-row text)))))

(defun set-flags (tile)
  (wex_listctrl_keephighlight table (= (chance 2) 0))
  (wex_listctrl_enabledbclk table (setq dblclick (= (chance 2) 0))))

(defun reload (tile)
  (wex_listctrl_setcolumnreference table "any")
  (if waiting (setq focus nil rows (mapcar '(lambda (text) (cons (cells (trimmed text)) nil)) waiting))))

(defun any-call (but / tile)
  (setq tile (one-of (remove but tiles)))
  (apply (one-of '(start add-to-open add-to-open add-to-open set-value set-value read-value set-mode add-item add-item))
         (list tile)))

; --- what the person does

(defun choose (tile n)
  (expect (if (= n (selected tile)) 'may 'must) tile n 4)
  (set-box tile (entries tile) n))

(defun click-entry (tile / n)
  (cond ((entries tile) (setq n (chance (length (entries tile)))) (choose tile n) (ui_pick tile n))))

(setq arrows '("UP" "DOWN" "HOME" "END"))
(defun arrow-leads (key from length)
  (nth (position key arrows) (list (max 0 (1- from)) (min (1- length) (1+ from)) 0 (1- length))))

(defun key-in-box (tile / key)
  (setq key (one-of arrows))
  (cond ((>= (selected tile) 0)
         (choose tile (arrow-leads key (selected tile) (length (entries tile))))
         (ui_key key tile))))

(defun double-click-entry (tile / n)
  (cond ((and (equal tile "LISTBOX") (entries tile))
         (setq n (chance (length (entries tile))))
         (choose tile n) (expect 'must "ok" 0 1) (expect 'may tile n 4)
         (ui_dblclick tile n))))

; The row of a click on the table; nil where it has none.
(defun any-row-clicked () (if rows (setq focus (chance (length rows)))))

(defun click-row (tile / row)
  (cond ((setq row (any-row-clicked))
         ; Of several selected rows the others go when the button comes up.
         (if (cdr (nth row rows)) (expect 'may table (numbers (selected-rows)) 5))
         (select-only row) (expect 'may table row 5)
         (ui_pick table row (chance columns)))))

(defun click-two-rows (tile / row other)
  (cond ((and (< 1 (length rows) 6) (null (selected-rows)))
         (setq row (chance (length rows)) other (rem (1+ row) (length rows)) focus other)
         (select-only row) (expect 'must table row 5)
         (select-row other) (expect 'must table (numbers (selected-rows)) 5)
         (ui_pick table (list row other)))))

(defun right-click-row (tile / row some)
  (cond ((setq row (any-row-clicked))
         (setq some (selected-rows))
         (if (not (member row some)) (select-only row))
         (expect 'must table (if some (numbers (selected-rows)) "") 5)
         (ui_rclick table row))))

(defun double-click-row (tile / row)
  (cond ((and (< (length (selected-rows)) 2) (setq row (any-row-clicked)))
         (select-only row) (expect 'must table row 5)
         (cond (dblclick (expect 'must table row 10) (expect 'must "ok" 0 1)))
         (ui_dblclick table row))))

(defun key-in-table (tile / key to)
  (setq key (one-of arrows))
  (cond (focus
         (setq to (arrow-leads key focus (length rows)))
         (if (/= to focus) (select-only (setq focus to)))
         (expect 'must table (numbers (selected-rows)) 5)
         (ui_key key table))))

(defun click-beside-rows (tile) (if (null rows) (ui_click table)))

(setq box-input '(click-entry click-entry key-in-box key-in-box double-click-entry)
      table-input '(click-row click-row click-two-rows right-click-row double-click-row key-in-table key-in-table click-beside-rows set-flags reload))

; --- one event, and the comparison before the next

(setq unsure nil)  ; an action may have changed its own list in the middle of a click

(defun event (/ tile what)
  (compare)
  (setq count (1+ count) tile (one-of tiles) due nil told nil)
  (cond ((= (chance 4) 0) (setq inside (list 'any-call tile)))
        ((= (chance 20) 0) (setq inside '(any-call nil) unsure T)))
  (setq what (cond ((= (chance 2) 0) 'any-call) ((equal tile table) (one-of table-input)) (T (one-of box-input)))
        trail (cons (list what tile) trail))
  (apply what (list (if (equal what 'any-call) nil tile))))

(defun shown-rows () (mapcar '(lambda (row) (string-join (car row) "\t")) rows))
; What a click does to a list that changes under it is the platform's affair: the model starts from there.
(defun look-again ()
  (foreach tile boxes (set-box tile (ui_items tile) (cond ((car (look tile "selected"))) (T -1))))
  (setq rows (mapcar '(lambda (text) (cons (cells text) nil)) (ui_items table)) focus nil due nil told nil)
  (foreach row (look table "selected") (select-row row)))

(defun compare (/ fine)
  (if unsure (look-again))
  (setq inside nil unsure nil fine (null *wrong*))
  (foreach tile boxes
    (want (entries tile) (ui_items tile))
    (want (if (minusp (selected tile)) nil (list (selected tile))) (look tile "selected")))
  (want (shown-rows) (ui_items table))
  (want (selected-rows) (look table "selected"))
  (if (not (heard-right due told)) (want due told))
  (note-event fine))

(test (strcat (itoa events) " random events, seed " (itoa seed))
  '((ui_session "ODD_KINDS" (append (steps-of '(if (null *wrong*) (event))) '((compare) (ui_click "Cancel"))))
    (wex_new_dialog "ODD_KINDS")
    (foreach tile tiles (wex_action_tile tile "(heard)"))
    (wex_action_tile "OK" "(heard)")
    (wex_listctrl_setcolumns table "x\tName\tNumber\tLength")
    (foreach tile tiles
      (setq items (mapcar '(lambda (i) (any-row)) (range 4)))
      (wex_start_list tile)
      (wex_add_list items)
      (setq operations (put tile 3 operations) open tile)
      (if (equal tile table)
        (setq waiting items rows (mapcar '(lambda (text) (cons (cells (trimmed text)) nil)) items))
        (set-box tile items (if (equal tile "LISTBOX") 0 -1))))
    (want -1 (wex_start_dialog))))
