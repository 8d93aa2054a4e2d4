; Random calls, clicks, keys, pastes and steps back on a grid. After each of them the grid shows what a plain table says, and the
; action has heard what it says. Some actions change the grid in the middle of the gesture that they are told of.
(host_warn nil)  ; what the functions refuse is tried on purpose

(begin-chance 800)

; --- the model: rows of cells from row 1 and column 0; a cell is (text type locked)

(setq cells nil columns 0 steps nil undone nil clipboard nil told nil due nil inside nil)
(setq upsetting nil choices '("red" "green" "blue") edit 52512 choice 52500 box 52501 reading 52513)

(defun row-count () (length cells))
(defun exists (row column) (and (> row 0) (>= column 0) (<= row (row-count)) (<= column columns)))
(defun cell (row column) (nth column (nth (1- row) cells)))
(defun text-at (row column) (car (cell row column)))
(defun type-at (row column) (cadr (cell row column)))
(defun editable (row column) (and (exists row column) (not (caddr (cell row column))) (member (type-at row column) (list edit choice box))))
(defun put (row column new)
  (if (exists row column) (setq cells (put-nth (1- row) (put-nth column new (nth (1- row) cells)) cells))))
(defun put-text (row column text) (put row column (cons text (cdr (cell row column)))))
(defun any-row () (1+ (chance (row-count))))
(defun any-column () (1+ (chance columns)))
(defun any-text () (one-of '("" "x" "word" "two words" "red" "1" "0" "3.5" "a\"b" "more\nlines")))
(defun shown-row (row) (string-join (mapcar 'car row) "\t"))

(defun takes (row column text)
  (and (editable row column)
       (cond ((= (type-at row column) box) (member text '("0" "1")))
             ((= (type-at row column) choice) (or (= text "") (member text choices)))
             (T T))))

; --- what the action hears

(defun expect (value reason) (setq due (append due (list (list value reason)))))
(defun expect-row (row) (expect (itoa row) 4))
(defun expect-cell (row column text) (expect (list row column text) 7))
(defun heard (/ form)
  (setq told (append told (list (list $value $reason))))
  (cond ((equal $reason upsetting) (setq form inside inside nil) (eval form))))

; --- calls

(defun blank () (list "" edit nil))
(defun header () (list "" reading T))
; The first ones, as many as wanted; what is missing is made.
(defun fit (some n make)
  (append (mapcar '(lambda (i) (nth i some)) (range (min n (length some)))) (mapcar '(lambda (i) (eval make)) (range (max 0 (- n (length some)))))))

(defun reshape (rows across)
  (wex_grid_setrowcolumns "LST" rows (1+ across))
  (setq cells (fit cells rows '(cons (list "" 0 nil) (fit nil columns '(blank)))) columns across
        cells (mapcar '(lambda (row) (fit row (1+ columns) '(blank))) cells))
  ; From two rows on the headers are emptied, but for those to be read only.
  (if (>= rows 2) (setq cells (mapcar '(lambda (row) (cons (if (caddr (car row)) (car row) (header)) (cdr row))) cells))))
(defun reshape-any () (reshape (one-of '(1 2 3 5 8)) (one-of '(1 2 3 4))))

(defun set-cell (/ row column text type was)
  (setq row (chance (+ 2 (row-count))) column (1+ (chance (1+ columns))) text (any-text) type (one-of (list -1 100 choice box reading))
        was (if (exists row column) (cell row column)))
  (if (> row 0)
    (progn
      (wex_grid_setcell "LST" row column type text (if (= type choice) (string-join choices "\n")))
      (put row column (list text (cond ((= type -1) (cadr was)) ((= type 100) edit) (T type)) (or (caddr was) (= type reading)))))))

(defun write-row (row texts / column)
  (setq column 0)
  (foreach text texts
    (if (or (= column 0) (/= text "")) (put row column (list text reading T)))
    (setq column (1+ column))))
(defun any-fields () (mapcar '(lambda (i) (one-of '("" "f" "field" "red"))) (range (+ 2 (chance columns)))))
(defun add-row (/ fields)
  (if (< (row-count) 10)
    (progn
      (setq fields (any-fields))
      (want (1+ (row-count)) (wex_grid_addrow "LST" (string-join fields "\t")))
      (setq cells (append cells (list (cons (list "" 0 nil) (fit nil columns '(blank))))))
      (write-row (row-count) fields))))
(defun set-row (/ row fields)
  (setq row (any-row) fields (any-fields))
  (wex_grid_setrow "LST" row (string-join fields "\t"))
  (write-row row fields))

(defun clear (/ top left bottom right styles)
  (setq top (any-row) left (chance (1+ columns)) bottom (any-row) right (chance (+ 2 columns)) styles (one-of '(T nil)))
  (wex_grid_clearcells "LST" top left bottom right styles)
  (foreach row (range (min top bottom) (1+ (max top bottom)))
    (foreach column (range (min left right) (1+ (max left right)))
      (if (exists row column) (put row column (if styles (list "" (if (= column 0) 0 edit) nil) (cons "" (cdr (cell row column)))))))))

(setq calls '(reshape-any set-cell set-cell set-cell set-cell set-cell set-cell add-row set-row clear))

; --- what the person does

; Changes cells as one step; gives those that changed.
(defun enter (entries / step)
  (setq step nil)
  (foreach entry entries
    (if (and (apply 'takes entry) (/= (caddr entry) (text-at (car entry) (cadr entry))))
      (progn (setq step (append step (list (list (car entry) (cadr entry) (text-at (car entry) (cadr entry)) (caddr entry)))))
             (apply 'put-text entry))))
  (if step (setq steps (cons step steps) undone nil))
  step)
(defun tell-step (step) (foreach change step (expect-cell (car change) (cadr change) (text-at (car change) (cadr change)))))

(defun toggle (row column) (tell-step (enter (list (list row column (if (= (text-at row column) "1") "0" "1"))))))

(defun pick (row column)
  (expect-row row)
  (ui_pick "LST" row column)
  (if (and (editable row column) (= (type-at row column) box)) (toggle row column)))

(defun pick-any () (pick (any-row) (any-column)))

; Where no cell is open the key would end the dialog.
(defun enter-key (row)
  (cond ((not upsetting)
         (ui_key "ENTER")
         (if (< row (row-count)) (expect-row (1+ row))))))

(defun type-text (/ row column text)
  (setq row (any-row) column (any-column) text (one-of '("a" "bc" "def")))
  (pick row column)
  (cond ((and (editable row column) (= (type-at row column) edit))
         (ui_type "LST" text)
         (foreach n (range 1 (1+ (strlen text)))
           (if (not (equal (substr text 1 n) (if (= n 1) (text-at row column)))) (expect-cell row column (substr text 1 n))))
         (enter (list (list row column text)))
         (enter-key row))
        ((not (editable row column)) (ui_type "LST" text))))

(defun type-choice (/ row column text)
  (setq row (any-row) column (any-column) text (one-of choices))
  (pick row column)
  (cond ((and (editable row column) (= (type-at row column) choice))
         (ui_type "LST" (substr text 1 1))
         (if (/= text (text-at row column)) (expect-cell row column text))
         (enter (list (list row column text)))
         (enter-key row))))

(defun tick (/ row column)
  (setq row (any-row) column (any-column))
  (pick row column)
  (if (and (editable row column) (= (type-at row column) box)) (progn (ui_key "SPACE") (toggle row column))))

(defun range-of (row column row2 column2 / places)
  (foreach r (range (min row row2) (1+ (max row row2)))
    (foreach c (range (min column column2) (1+ (max column column2))) (setq places (append places (list (list r c))))))
  places)
; A range of more than one cell; a single one is pressed.
(defun sweep (row column row2 column2)
  (cond ((and (= row row2) (= column column2)) (pick row column))
        (T (expect-row (min row row2)) (ui_pick "LST" row column row2 column2))))

(defun empty-range (/ places row column row2 column2)
  (setq row (any-row) column (any-column) row2 (any-row) column2 (any-column))
  (sweep row column row2 column2)
  (ui_key "DELETE")
  (tell-step (enter (mapcar '(lambda (place) (list (car place) (cadr place) (if (= (type-at (car place) (cadr place)) box) "0" "")))
                            (range-of row column row2 column2)))))

(defun copy-range (/ row column row2 column2)
  (setq row (any-row) column (any-column) row2 (any-row) column2 (any-column))
  (sweep row column row2 column2)
  (ui_key "CTRL+C")
  (setq clipboard (mapcar '(lambda (r) (mapcar '(lambda (c) (text-at r c)) (range (min column column2) (1+ (max column column2)))))
                          (range (min row row2) (1+ (max row row2))))))

(defun paste (/ row column entries r c)
  (cond (clipboard
         (setq row (any-row) column (any-column) r row)
         (pick row column)
         (foreach line clipboard
           (setq c column)
           (foreach text line (if (exists r c) (setq entries (append entries (list (list r c text))))) (setq c (1+ c)))
           (setq r (1+ r)))
         (ui_key "CTRL+V")
         (tell-step (enter entries)))))

; A cell that the program has changed since, or that can't be edited any more, stays.
(defun play (step from to / changed)
  (foreach change step
    (if (and (editable (car change) (cadr change)) (= (text-at (car change) (cadr change)) (nth from change)))
      (progn (put-text (car change) (cadr change) (nth to change)) (setq changed (append changed (list change))))))
  (tell-step changed))
(defun undo ()
  (ui_key "CTRL+Z" "LST")
  (if steps (progn (play (car steps) 3 2) (setq undone (cons (car steps) undone) steps (cdr steps)))))
(defun redo ()
  (ui_key "CTRL+Y" "LST")
  (if undone (progn (play (car undone) 2 3) (setq steps (cons (car undone) steps) undone (cdr undone)))))

(setq input '(pick-any type-text type-text type-text type-choice type-choice tick empty-range copy-range copy-range paste paste paste
              undo undo redo))

; --- one event, and the comparison before the next

; What changes the grid in the middle of a gesture leaves it as it says; of the gesture only that nothing breaks is asked. The
; person's steps can't be told then, so all begins anew.
(setq upsets '((reshape-any) (set-row) (clear) (set-cell) (add-row) (wex_start_list "LST") (reshape 0 0)
               (wex_grid_setcell "LST" (any-row) (any-column) reading "locked") (wex_mode_tile "LST" 1) (wex_mode_tile "LST" 6)))
(defun begin-anew ()
  (foreach mode '(0 5) (wex_mode_tile "LST" mode))
  (wex_grid_setrowcolumns "LST" 0 0)
  (setq cells nil columns 0)
  (reshape 5 4)
  (setq due nil told nil))

(defun event (/ what)
  (compare)
  (setq count (1+ count) due nil told nil what (if (= (chance 3) 0) (one-of calls) (one-of input)))
  (setq trail (cons what trail))
  (eval (list what)))

(defun compare (/ fine)
  (setq fine (null *wrong*))
  (want due told)
  (want (mapcar 'shown-row cells) (ui_items "LST"))
  (want (list (row-count) columns) (list (wex_grid_getrowcount "LST") (wex_grid_getcolumncount "LST")))
  (foreach row (range 1 (1+ (row-count)))
    (foreach column (range (1+ columns))
      (setq look (ui_cell "LST" row column))
      (want (cdr (cell row column)) (list (cdr (assoc "type" look)) (cdr (assoc "readonly" look))))
      (want (text-at row column) (wex_grid_getcell "LST" row column))))
  (note-event fine))

(defun play-events (step end)
  (want -1 (in-dialog "EDIT_NONWD_ATTRS" '(wex_action_tile "LST" "(heard)") (append '((begin-anew)) (steps-of step) (list end)))))

(test (strcat (itoa events) " random events, seed " (itoa seed))
  '((play-events '(if (null *wrong*) (event)) '(compare))))

; The form after the gesture looks at nothing that it has left.
(defun upset (/ what)
  (begin-anew)
  (repeat 6 (set-cell))
  (setq upsetting (one-of '(4 7)) inside (one-of upsets) what (one-of input))
  (eval (list what)))

(test (strcat (itoa events) " gestures in whose events the grid changes, seed " (itoa seed))
  '((setq steps nil undone nil upsetting T)
    (play-events '(upset) '(begin-anew))))
