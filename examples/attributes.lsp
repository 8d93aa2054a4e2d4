; An attribute editor: a grid of names and values. What a value may be depends on its attribute: a text, one of several, a number within
; limits, yes or no. Each change is checked at once; OK takes the values only when all are right. The box below shows the value of
; the current row, for long ones, and another program may pick it on the drawing.

; Name, kind, value; then the choices, or the limits of a number.
(setq attributes
  '(("DESC" text "Pump station, control cabinet; field wiring through the upper cable duct, see sheet 12")
    ("COLOR" choice "RAL 7035" "RAL 7035" "RAL 7032" "RAL 5010")
    ("WEIGHT" number 12.5 0.1 99.9)
    ("IP" choice "IP 54" "IP 20" "IP 54" "IP 65")
    ("POSITION" text "+A1")
    ("INSPECTED" flag "No")))

(defun name (attribute) (nth 0 attribute))
(defun kind (attribute) (nth 1 attribute))
(defun rest (attribute) (cdddr attribute))

(setq wrapped 101 one-of 52500 box 52501 reading 52513)  ; control types
(setq @value 1 @remark 2)

(defun put-value (row attribute value)
  (cond ((= (kind attribute) 'choice) (wex_grid_setcell "LST" row @value one-of value (string-join (rest attribute) "\n")))
        ((= (kind attribute) 'flag) (wex_grid_setcell "LST" row @value box value "No\nYes"))
        ((= (kind attribute) 'number) (wex_grid_setcell "LST" row @value 2 value))  ; shows two decimals
        (T (wex_grid_setcell "LST" row @value wrapped value))))

(defun start (/ row)
  (wex_grid_setrowcolumns "LST" (length attributes) 3)
  (foreach column '((0 "Attribute" 80) (1 "Value" 180) (2 "Remark" 110))
    (wex_grid_setcell "LST" 0 (car column) -1 (cadr column))
    (wex_grid_setcolumnwidth "LST" (car column) (caddr column)))
  (setq row 0)
  (foreach attribute attributes
    (setq row (1+ row))
    (wex_grid_setcell "LST" row 0 -1 (name attribute))
    (put-value row attribute (nth 2 attribute))
    (wex_grid_setcell "LST" row @remark reading ""))
  (wex_grid_setrowheight "LST" 1 48))

(defun value (row) (wex_grid_getcell "LST" row @value))

; What is wrong with the value of a row; empty where nothing is.
(defun remark (row / attribute number)
  (setq attribute (nth (1- row) attributes) number (distof (value row) 2))
  (cond ((/= (kind attribute) 'number) "")
        ((null number) "a number is missing")
        ((< number (car (rest attribute))) (strcat "at least " (rtos (car (rest attribute)) 2 1)))
        ((> number (cadr (rest attribute))) (strcat "at most " (rtos (cadr (rest attribute)) 2 1)))
        (T "")))

(defun check (row) (wex_grid_setcell "LST" row @remark reading (remark row)))

; The row that the box below shows.
(setq current 1)
(defun show-row (row)
  (setq current row)
  (wex_set_tile "VALUE" (value row)))

(defun event ()
  (cond ((= $reason 4) (show-row (atoi $value)))
        ((= $reason 7) (check (car $value)) (if (= (car $value) current) (wex_set_tile "VALUE" (caddr $value))))))

; The box and the pick write texts only, since the cells of choices and numbers take what fits them.
(defun write-text (text)
  (cond ((= (kind (nth (1- current) attributes)) 'text)
         (wex_grid_setcell "LST" current @value wrapped text)
         (wex_set_tile "VALUE" text))
        (T (wex_alert "Only texts can be written here. Change this one in the table." 2)
           (show-row current))))

(defun left-box () (if (/= $value (value current)) (write-text $value)))

(defun take (/ wrong)
  (setq wrong (remove-if '(lambda (row) (= (remark row) "")) (range 1 (1+ (length attributes)))))
  (cond (wrong (wex_alert (strcat (name (nth (1- (car wrong)) attributes)) ": " (remark (car wrong)) ".") 1))
        (T (setq values (mapcar 'value (range 1 (1+ (length attributes)))))
           (wex_done_dialog 1))))

(defun edit-attributes ()
  (wex_new_dialog "EDIT_NONWD_ATTRS")
  (wex_setaction_oninit "(start)")
  (wex_action_tile "LST" "(event)")
  (wex_action_tile "VALUE" "(left-box)")
  (wex_action_tile "B_PICK" "(write-text \"+A1-X4\")")
  (wex_action_tile "OK" "(take)")
  (foreach anchor '(("LST" 63) ("LABEL1" 39) ("VALUE" 64) ("B_PICK" 75) ("OK" 75) ("Cancel" 75) ("HELP" 75))
    (wex_setresizing (car anchor) (cadr anchor)))
  (wex_setminresizing 300 260)
  (= (wex_start_dialog) 1))

; What a person does when nobody is there.
(defun tell (what) (princ what) (terpri))

(ui_session "EDIT_NONWD_ATTRS"
  '((ui_pick "LST" 3 1)
    (ui_type "LST" "250")
    (ui_key "ENTER")
    (tell (ui_items "LST"))
    (ui_shot "attributes_checked.png")
    (ui_click "OK")                      ; refused
    (ui_pick "LST" 3 1)
    (ui_type "LST" "heavy")              ; no number: the cell takes its former value back
    (ui_key "ENTER")
    (ui_pick "LST" 3 1)
    (ui_type "LST" "8.25")
    (ui_key "ENTER")
    (ui_type "LST" "IP 6")               ; a choice, by its first letters
    (ui_key "ENTER")
    (ui_click "B_PICK")                  ; into POSITION, where Enter has gone
    (ui_pick "LST" 6 1)                  ; the box is ticked
    (ui_pick "LST" 1 1)
    (ui_type "VALUE" "Pump station")
    (ui_click "OK")))

(if (edit-attributes) (foreach value values (tell value)))
