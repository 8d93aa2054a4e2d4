; The pins of a connector and of a terminal in grids. The first grid is fed by lines as a list is, and only shows; in the second one the
; pins are edited in place, as in a spreadsheet: levels are chosen, spare pins ticked, wires typed or pasted, and pins that are wired
; already can't be changed.

(defun join (texts) (string-join texts "\t"))

(defun head (tile titles widths)
  (foreach column (range (length titles))
    (wex_grid_setcell tile 0 column -1 (nth column titles))
    (wex_grid_setcolumnwidth tile column (nth column widths))))

(defun anchor (pairs) (foreach pair pairs (wex_setresizing (car pair) (cadr pair))))

; --- the pins in use

; Pin, wire, signal. What has no pin goes on with the one above: a pin with two wires.
(setq used '(("1" "W101" "START") ("2" "W102" "STOP") (" " "W103" "STOP, LAMP") ("4" "W104" "RUN") ("5" "W105" "FAULT")))

; The last field is the key: lines without it are folded into the line above and lose it. A key has two characters at least. Its
; column is hidden.
(defun line (pin) (join (append pin (list (if (= (car pin) " ") "" "pin")))))

(defun start-pins ()
  (wex_grid_setrowcolumns "LST" 1 4)  ; the first line takes row 1
  (head "LST" '("Pin" "Wire" "Signal" "") '(50 90 215 0)))

(defun free-pins (/ taken)
  (setq taken (mapcar 'car used))
  (string-join (remove-if '(lambda (pin) (member pin taken)) (mapcar 'itoa (range 1 9))) ", "))

(defun show-pins ()
  (wex_new_dialog "CONNECTOR_PINS_IN_USE")
  (wex_setaction_oninit "(start-pins)")
  (wex_start_list "LST")
  (wex_add_list (mapcar 'line used))
  (wex_end_list nil 3)
  (wex_set_tile "FREE" (free-pins))
  (anchor '(("LST" 63) ("LABEL1" 39) ("FREE" 64) ("OK" 75) ("Cancel" 75) ("HELP" 75)))
  (wex_start_dialog))

; --- the pins of a terminal

; Pin, level, wire, spare, and whether it is wired already.
(setq pins '(("1" "Upper" "W201" nil T) ("2" "Upper" "" T nil) ("3" "Lower" "" nil nil) ("4" "Lower" "" nil nil)))
(setq @level 1 @wire 2 @spare 3)

(setq edited 100 one-of 52500 box 52501 reading 52513)  ; control types

(defun put-pin (row pin / wired)
  (setq wired (nth 4 pin))
  (wex_grid_setcell "PINS" row 0 -1 (car pin))
  (wex_grid_setcell "PINS" row @level (if wired reading one-of) (nth @level pin) "Upper\nMiddle\nLower")
  (wex_grid_setcell "PINS" row @wire (if wired reading edited) (nth @wire pin))
  (wex_grid_setcell "PINS" row @spare (if wired reading box) (cond (wired "") ((nth @spare pin) "1") (T "0"))))

(defun start-terminal ()
  (wex_grid_setrowcolumns "PINS" (length pins) 4)
  (head "PINS" '("Pin" "Level" "Wire" "Spare") '(50 90 160 55))
  (wex_grid_setjustification "PINS" @wire "C")
  (foreach row (range 1 (1+ (length pins))) (put-pin row (nth (1- row) pins))))

(defun shown (row column) (wex_grid_getcell "PINS" row column))

; A pin that gets a wire is no longer spare.
(defun changed (row column)
  (if (and (= column @wire) (/= (shown row @wire) "")) (wex_grid_setcell "PINS" row @spare box "0")))

(defun event () (if (= $reason 7) (changed (car $value) (cadr $value))))

; What is wrong, or nil.
(defun mistake (/ wires row wire found)
  (setq wires nil row 0)
  (while (and (null found) (< row (wex_grid_getrowcount "PINS")))
    (setq row (1+ row) wire (shown row @wire))
    (if (and (/= wire "") (member wire wires)) (setq found (strcat "Pin " (shown row 0) ": wire " wire " is on another pin too.")))
    (setq wires (cons wire wires)))
  found)

(defun take (/ text)
  (cond ((setq text (mistake)) (wex_alert text 1))
        (T (setq taken (mapcar '(lambda (row) (mapcar '(lambda (column) (shown row column)) (range 4)))
                               (range 1 (1+ (wex_grid_getrowcount "PINS")))))
           (wex_done_dialog 1))))

(defun insert-terminal ()
  (wex_new_dialog "INSERT_SEC_TRM_CAT_PINGRID")
  (foreach value '(("STRIP" "TB-1") ("TERM" "12") ("MFG" "Helmrow")) (wex_set_tile (car value) (cadr value)))
  (wex_setaction_oninit "(start-terminal)")
  (wex_action_tile "PINS" "(event)")
  (wex_action_tile "B_LOOKUP" "(wex_set_tile \"CAT\" \"H410-2\")")
  (wex_action_tile "OK" "(take)")
  (anchor '(("PINS" 63) ("LABEL2" 39) ("MFG" 64) ("LABEL3" 39) ("CAT" 64) ("B_LOOKUP" 75) ("OK" 75) ("Cancel" 75) ("HELP" 75)))
  (wex_setminresizing 300 260)
  (wex_start_dialog))

; What a person does when nobody is there.
(defun tell (what) (princ what) (terpri))
(defun tell-rows (tile) (foreach row (ui_items tile) (print row)) (terpri))

(ui_session "CONNECTOR_PINS_IN_USE"
  '((tell-rows "LST")
    (tell (ui_text "FREE"))
    (ui_shot "pin_grid_in_use.png")
    (ui_click "OK")))
(ui_session "INSERT_SEC_TRM_CAT_PINGRID"
  '((ui_pick "PINS" 2 2)
    (ui_type "PINS" "W202")
    (ui_key "ENTER")
    (ui_type "PINS" "W201")
    (ui_key "ENTER")
    (ui_pick "PINS" 3 1)
    (ui_type "PINS" "M")
    (ui_pick "PINS" 4 3)
    (ui_shot "pin_grid_terminal.png")
    (ui_click "OK")                           ; the wire is on pin 1 too
    (ui_pick "PINS" 3 2)
    (ui_key "CTRL+Z")                         ; the tick of pin 4
    (ui_type "PINS" "W203")
    (ui_key "ENTER")
    (ui_pick "PINS" 2 1 3 2)
    (ui_key "CTRL+C")
    (ui_pick "PINS" 1 1)
    (ui_key "CTRL+V")                         ; pin 1 refuses
    (ui_drag "GRIP" 120 80)
    (ui_shot "pin_grid_large.png")
    (ui_key "CTRL+Z")
    (ui_click "B_LOOKUP")
    (tell-rows "PINS")
    (ui_click "OK")))

(show-pins)
(if (= (insert-terminal) 1) (print taken))
(terpri)
