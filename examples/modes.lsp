; Check boxes and modes: what is checked decides which other tiles can be used.

(defun follow-layer ()
  (wex_mode_tile "LAYER" (if (= (wex_get_tile "W_LAYER") "1") 0 1)))

(defun checked (keys)
  (remove-if-not '(lambda (key) (= (wex_get_tile key) "1")) keys))

(wex_new_dialog "SCHEM_WIRE2PNL_FORMAT")
(wex_set_tile "USER_FMT" "%N %P-%T")
(wex_set_tile "ADDTERM" "1")
(wex_set_tile "W_ALL" "1")
(wex_mode_tile "LAYER" 1)
(wex_mode_tile "ADDINST" 6)
(foreach key '("W_ALL" "W_NEW" "W_LAYER") (wex_action_tile key "(follow-layer)"))
(wex_action_tile "TEST" "(wex_set_tile \"T1\" (wex_get_tile \"USER_FMT\"))")
(wex_action_tile "OK" "(setq choices (checked '(\"ADDTERM\" \"ADDTDESC\" \"SUP_DUP\" \"W_LAYER\"))) (wex_done_dialog 1)")

(ui_session "SCHEM_WIRE2PNL_FORMAT"
  '((ui_click "SUP_DUP")
    (ui_click "W_LAYER")
    (ui_type "LAYER" "WIRES*")
    (ui_click "TEST")
    (ui_shot "modes.png")
    (ui_click "OK")))

(wex_start_dialog)
(print choices)
(terpri)
