; Symbols of a circuit as blocks, and a list to pick one from: the one that is pointed at is previewed in the main frame.

(defun symbol (name things)
  (draw_block name)
  (eval things)
  (draw_block nil)
  name)

(setq symbols
  (list
    (symbol "Lamp"
      '(progn (draw_circle '(0 0) 5)
              (draw_line '(-3.54 -3.54) '(3.54 3.54)) (draw_line '(-3.54 3.54) '(3.54 -3.54))
              (draw_line '(0 5) '(0 12)) (draw_line '(0 -5) '(0 -12))
              (draw_text '(7 -1.5) 3 "H1")))
    (symbol "Coil"
      '(progn (draw_polyline '((-6 -4) (6 -4) (6 4) (-6 4)) T)
              (draw_line '(0 4) '(0 12)) (draw_line '(0 -4) '(0 -12))
              (draw_text '(8 -1.5) 3 "K1")))
    (symbol "Contact"
      '(progn (draw_line '(0 12) '(0 5)) (draw_line '(0 -5) '(0 -12)) (draw_line '(0 -5) '(-5 4))
              (draw_pattern "dashed") (draw_line '(-2.5 0) '(-9 0)) (draw_pattern "continuous")
              (draw_text '(4 -1.5) 3 "K1")))
    (symbol "Ground"
      '(progn (draw_line '(0 8) '(0 0)) (draw_line '(-6 0) '(6 0)) (draw_line '(-4 -2) '(4 -2))
              (draw_line '(-2 -4) '(2 -4)) (draw_solid '(-1 -6) '(1 -6) '(0 -8))))))

(defun preview () (if (/= $value "") (draw_show (nth (atoi $value) symbols))))

(defun pick-symbol (/ picked)
  (wex_new_dialog "DISP_LOCS_ON_DWG")
  (wex_set_tile "main_title" "Pick a Symbol")
  (wex_start_list "LST")
  (wex_add_list symbols)
  (wex_end_list)
  (wex_mode_tile "FILTER" 1)
  (wex_action_tile "LST" "(preview) (setq picked (atoi $value))")
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (if (and (= (wex_start_dialog) 1) picked) (nth picked symbols)))

(ui_session "DISP_LOCS_ON_DWG"
  '((ui_pick "LST" "Coil")
    (draw_shot "block_coil.png")
    (ui_pick "LST" "Contact")
    (draw_shot "block_contact.png")
    (ui_click "OK")))

(princ (pick-symbol))
(terpri)
