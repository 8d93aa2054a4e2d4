; A form with units: one distance and one angle, each in the five notations of the host. Type into any box; when you leave
; it, the others tell the same in their own way.

(defun box (number) (strcat "RATING" (itoa number)))
(defun label (number text) (wex_set_tile (strcat "LABEL" (itoa number)) text))

; The distance stands in boxes 1 to 5, the angle in boxes 7 to 11: the units 1 to 5 of each, to four places.
(setq units '(1 2 3 4 5))
(defun distance-box (unit) (box unit))
(defun angle-box (unit) (box (+ unit 6)))
(defun distance-text (unit) (rtos distance unit 4))
(defun angle-text (unit) (angtos angle unit 4))
(defun show-distance () (foreach unit units (wex_set_tile (distance-box unit) (distance-text unit))))
(defun show-angle () (foreach unit units (wex_set_tile (angle-box unit) (angle-text unit))))

; The action of a box sees what was typed. What can't be read, the box itself puts back; an empty box counts as 0. A box
; that was only passed through says nothing new: what it shows is rounded, and the value may have more places.
(defun typed () (if (= $value "") "0" $value))
(defun take-distance (unit / value)
  (if (and (/= $value (distance-text unit)) (setq value (distof (typed) unit)))
    (progn (setq distance value) (show-distance))))
(defun take-angle (unit / value)
  (if (and (/= $value (angle-text unit)) (setq value (angtof (typed) unit)))
    (progn (setq angle value) (show-angle))))

; Notations are given to live boxes, so in the start action.
(defun start ()
  (foreach unit units
    (wex_edit_setasnumeric (distance-box unit) unit 4)
    (wex_edit_setasangular (angle-box unit) unit 4)))

(defun ask-units ()
  (wex_new_dialog "RATING_DLG")
  (wex_set_tile "main_title" "Distance and Angle")
  (mapcar 'label units '("&Scientific:" "&Decimal:" "&Engineering:" "&Architectural:" "&Fractional:"))
  (mapcar 'label '(7 8 9 10 11) '("De&grees:" "&Minutes:" "G&rads:" "Rad&ians:" "Surve&yor's:"))
  (foreach unused '("LABEL6" "RATING6" "LABEL12" "RATING12") (wex_mode_tile unused 6))
  (wex_setaction_oninit "(start)")
  (foreach unit units
    (wex_action_tile (distance-box unit) (strcat "(take-distance " (itoa unit) ")"))
    (wex_action_tile (angle-box unit) (strcat "(take-angle " (itoa unit) ")")))
  (wex_action_tile "HELP" "(wex_alert \"Type into any box. The others follow when you leave it.\" 2)")
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (show-distance)
  (show-angle)
  (wex_start_dialog))

(setq distance 12.0 angle 0.0)

(ui_session "RATING_DLG"
  '((ui_type "RATING4" "1'5-1/2")
    (ui_click "RATING8")
    (print (mapcar 'ui_text '("RATING1" "RATING2" "RATING3" "RATING4" "RATING5")))
    (ui_type "RATING8" "45d30'")
    (ui_click "RATING2")
    (print (mapcar 'ui_text '("RATING7" "RATING8" "RATING9" "RATING10" "RATING11")))
    (ui_type "RATING2" "17.5-")
    (ui_key "TAB")
    (print (ui_text "RATING2"))
    (ui_shot "units.png")
    (ui_type "RATING5" "20-3/8")
    (ui_click "OK")))

(if (= (ask-units) 1) (print (list distance (angtos angle 1 4))))
(terpri)
