; A list picker with a filter, for one location or for several. A box tells its action what was typed when the person
; leaves it, and not key by key: so the list narrows on Tab, on a click elsewhere, and on Enter, which leaves the box for
; OK. OK then stays in the dialog until something is picked, or takes what is left when that is a single location.

(setq locations '("CABINET1" "CABINET2" "DOOR" "FIELD" "FIELD-PUMP1" "FIELD-PUMP2" "MOTOR1" "MOTOR2" "PANEL"))

(defun matching (text)
  (remove-if-not '(lambda (location) (string-search location (strcase text))) locations))

; An emptied list has nothing picked. A double click beside the entries disables OK; a new list can be picked from.
(defun show (found)
  (setq shown found picked nil)
  (wex_start_list "LST")
  (wex_add_list shown)
  (wex_end_list)
  (wex_set_tile "COUNT" (strcat (itoa (length shown)) " of " (itoa (length locations)) " locations"))
  (wex_mode_tile "OK" 0))

(defun filter-typed ()
  (if (/= $value filter) (progn (setq filter $value) (show (matching filter)))))

; The value of the list is the number of the entry that was picked; where several can be, their numbers, joined by blanks.
(defun entry-picked ()
  (setq picked (if (/= $value "") (mapcar 'atoi (string-split $value " "))))
  (wex_mode_tile "OK" 0))

(defun take ()
  (if (= (length shown) 1) (setq picked '(0)))
  (cond (picked (wex_done_dialog 1))
        (shown (wex_mode_tile "LST" 2))
        (T (wex_mode_tile "FILTER" 2) (wex_mode_tile "FILTER" 3))))

(defun pick-from (dialog / filter shown picked)
  (wex_new_dialog dialog)
  (setq filter "")
  (show locations)
  (wex_set_tile "LST" "-1")
  (wex_mode_tile "FILTER" 2)
  (foreach anchor '(("FILTER" 25) ("LST" 63) ("COUNT" 64) ("OK" 75) ("Cancel" 75) ("HELP" 75))
    (wex_setresizing (car anchor) (cadr anchor)))
  (wex_setminresizing 260 240)
  (wex_action_tile "FILTER" "(filter-typed)")
  (wex_action_tile "LST" "(entry-picked)")
  (wex_action_tile "HELP" "(wex_alert \"Type a part of the name, and press Enter.\" 2)")
  (wex_action_tile "OK" "(take)")
  (if (= (wex_start_dialog) 1) (mapcar '(lambda (at) (nth at shown)) picked)))

(defun pick-location () (car (pick-from "DISP_LOCS_ON_DWG")))
(defun pick-locations () (pick-from "DISP_LOCS_ON_DWG_MULT"))

(ui_session "DISP_LOCS_ON_DWG"
  '((ui_type "FILTER" "pump9")
    (ui_key "ENTER")
    (print (ui_text "COUNT"))
    (ui_type "FILTER" "pump")
    (ui_key "ENTER")
    (print (ui_items "LST"))
    (ui_shot "pick_location.png")
    (ui_dblclick "LST" "FIELD-PUMP2")))
(ui_session "DISP_LOCS_ON_DWG" '((ui_type "FILTER" "door") (ui_key "ENTER")))
(ui_session "DISP_LOCS_ON_DWG_MULT"
  '((ui_type "FILTER" "o")
    (ui_key "TAB")
    (print (ui_items "LST"))
    (ui_click "OK")
    (ui_pick "LST" "MOTOR1")
    (ui_key "SHIFT+DOWN")
    (ui_shot "pick_locations.png")
    (ui_click "OK")))

(print (pick-location))
(print (pick-location))
(print (pick-locations))
(terpri)
