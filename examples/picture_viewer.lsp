; A picture viewer: a list of files, and beside it the selected one, as large as it is or over the whole tile.

(setq files '("contactor.bmp" "panel.jpg" "switch.gif" "lamp.png" "terminal.ico" "motor.wmf" "coil.emf" "missing.png"))

(defun path-of (file) (strcat "pictures/" file))
(defun fitted () (= (wex_get_tile "SHOW_ALL") "1"))

(defun show (row / file)
  (setq file (nth row files))
  (wex_set_tile "LABEL0" (if (= -1 (wex_loadpicturefile "PICTURE" (path-of file) (fitted)))
                           (strcat file " isn't there.")
                           file)))

(defun shown-row () (atoi (wex_get_tile "LST")))

(defun view-pictures ()
  (wex_new_dialog "PNL_LST_FP")
  (wex_set_tile "main_title" "Pictures")
  (wex_set_tile "LABEL0" "Select a picture.")
  (wex_set_tile "SHOW_ALL" "&Fit the tile")
  (foreach tile '("SORT" "B_LOCATE" "HELP") (wex_mode_tile tile 6))
  (wex_listctrl_setcolumns "LST" "\tFile                          ")
  (wex_start_list "LST")
  (wex_add_list files)
  (wex_end_list)
  (wex_action_tile "LST" "(if (/= $value \"\") (show (atoi $value)))")
  (wex_action_tile "SHOW_ALL" "(if (/= (wex_get_tile \"LST\") \"-1\") (show (shown-row)))")
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (foreach anchor '(("LST" 38) ("PICTURE" 63) ("SHOW_ALL" 39) ("OK" 75) ("Cancel" 75))
    (wex_setresizing (car anchor) (cadr anchor)))
  (wex_setminresizing 400 300)
  (wex_start_dialog))

; What a person does when nobody is there.
(defun color (x y / rgb)
  (setq rgb (ui_pixel "PICTURE" x y))
  (list (lsh rgb -16) (logand 255 (lsh rgb -8)) (logand 255 rgb)))

; The picture's colors in its middle and at the edge of the tile, where one that isn't fitted leaves black.
(defun tell-colors ()
  (princ (list (ui_text "LABEL0")
               (color (/ (wex_dimx_tile "PICTURE") 2) (/ (wex_dimy_tile "PICTURE") 2))
               (color 1 (/ (wex_dimy_tile "PICTURE") 2))))
  (terpri))

(ui_session "PNL_LST_FP"
  (append
    (apply 'append (mapcar '(lambda (file) (list (list 'ui_pick "LST" file 0) '(tell-colors))) files))
    '((ui_warnings)  ; one picture is missing on purpose: taken, its warning is no error
      (ui_pick "LST" "contactor.bmp" 0)
      (ui_shot "picture_viewer.png")
      (ui_click "SHOW_ALL")
      (tell-colors)
      (ui_shot "picture_viewer_fit.png")
      (ui_size 1200 900)
      (ui_pick "LST" "motor.wmf" 0)
      (tell-colors)
      (ui_shot "picture_viewer_large.png")
      (ui_click "OK"))))

(view-pictures)
