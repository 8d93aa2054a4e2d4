; A symbol picker that draws its own pictures: the selected symbol stands beside the list, and Turn, or a press on it, turns it.

; Lines from point to point, as numbers x1 y1 x2 y2, in a square of 100 by 100 whose y runs downwards.
(setq symbols
  '(("Contact, normally open" (0 50 38 50) (38 25 38 75) (62 25 62 75) (62 50 100 50))
    ("Contact, normally closed" (0 50 38 50) (38 25 38 75) (62 25 62 75) (62 50 100 50) (28 80 72 20))
    ("Coil" (0 50 30 50) (30 25 70 25) (70 25 70 75) (70 75 30 75) (30 75 30 25) (70 50 100 50))
    ("Fuse" (0 50 100 50) (20 38 80 38) (80 38 80 62) (80 62 20 62) (20 62 20 38))
    ("Lamp" (0 50 28 50) (28 50 34 34) (34 34 50 28) (50 28 66 34) (66 34 72 50) (72 50 66 66) (66 66 50 72) (50 72 34 66)
            (34 66 28 50) (34 34 66 66) (34 66 66 34) (72 50 100 50))
    ("Ground" (50 0 50 55) (25 55 75 55) (34 65 66 65) (43 75 57 75))))

(setq color-paper 18 color-grid 250 color-line 2 color-end 1)

(defun turned (line times)
  (repeat times
    (setq line (list (- 100 (cadr line)) (car line) (- 100 (cadddr line)) (caddr line))))
  line)

; The tile's pixels of a place in the square, which stands in the middle of the tile.
(defun place-x (x) (+ (/ (- width side) 2) (/ (* x side) 100)))
(defun place-y (y) (+ (/ (- height side) 2) (/ (* y side) 100)))

(defun draw-line (line)
  (wex_vector_image "PICTURE" (place-x (car line)) (place-y (cadr line)) (place-x (caddr line)) (place-y (cadddr line)) color-line))

; A wire ends at the edge of the square.
(defun draw-ends (line)
  (foreach end (list (list (car line) (cadr line)) (list (caddr line) (cadddr line)))
    (if (or (member (car end) '(0 100)) (member (cadr end) '(0 100)))
      (wex_fill_image "PICTURE" (- (place-x (car end)) 2) (- (place-y (cadr end)) 2) 5 5 color-end))))

(defun draw-grid (/ at)
  (setq at 0)
  (repeat 11
    (wex_vector_image "PICTURE" (place-x at) (place-y 0) (place-x at) (place-y 100) color-grid)
    (wex_vector_image "PICTURE" (place-x 0) (place-y at) (place-x 100) (place-y at) color-grid)
    (setq at (+ at 10))))

(defun draw (/ width height side lines)
  (setq width (wex_dimx_tile "PICTURE") height (wex_dimy_tile "PICTURE") side (- (min width height) 20))
  (setq lines (mapcar '(lambda (line) (turned line turns)) (cdr symbol)))
  (wex_start_image "PICTURE")
  (wex_fill_image "PICTURE" 0 0 width height color-paper)
  (if (= (wex_get_tile "SHOW_ALL") "1") (draw-grid))
  (foreach line lines (draw-line line))
  (foreach line lines (draw-ends line))
  (wex_end_image))

(defun choose (row)
  (setq symbol (nth row symbols) turns 0)
  (foreach tile '("OK" "B_LOCATE") (wex_mode_tile tile 0))
  (draw))

(defun turn () (if symbol (progn (setq turns (rem (1+ turns) 4)) (draw))))

; The name of the symbol and how often it was turned; nil where none was taken.
(defun pick-symbol (/ symbol turns)
  (wex_new_dialog "PNL_LST_FP")
  (wex_set_tile "main_title" "Symbols")
  (wex_set_tile "LABEL0" "&Symbols:")
  (wex_set_tile "SHOW_ALL" "Show a &grid")
  (wex_set_tile "B_LOCATE" "&Turn")
  (foreach tile '("SORT" "HELP") (wex_mode_tile tile 6))
  (foreach tile '("OK" "B_LOCATE") (wex_mode_tile tile 1))
  (wex_listctrl_setcolumns "LST" "\tSymbol                        ")
  (wex_start_list "LST")
  (wex_add_list (mapcar 'car symbols))
  (wex_end_list)
  (wex_action_tile "LST" "(if (/= $value \"\") (choose (atoi $value)))")
  (wex_action_tile "SHOW_ALL" "(if symbol (draw))")
  (wex_action_tile "B_LOCATE" "(turn)")
  (wex_action_tile "PICTURE" "(turn)")
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (if (= (wex_start_dialog) 1) (list (car symbol) turns)))

; What a person does when nobody is there. Where a line shows: in the middle, and near the left, right, upper and lower edges.
(defun lines-at (/ width height side)
  (setq width (wex_dimx_tile "PICTURE") height (wex_dimy_tile "PICTURE") side (- (min width height) 20))
  (mapcar '(lambda (point) (if (= 16776960 (ui_pixel "PICTURE" (place-x (car point)) (place-y (cadr point)))) 1 0))
          '((50 50) (10 50) (90 50) (50 10) (50 90))))

(defun tell (what) (princ what) (terpri))

(ui_session "PNL_LST_FP"
  '((ui_pick "LST" "Fuse" 0)
    (tell (lines-at))
    (ui_click "PICTURE" 20 20)
    (tell (lines-at))
    (ui_pick "LST" "Lamp" 0)
    (ui_click "SHOW_ALL")
    (tell (lines-at))
    (ui_shot "symbol_picker.png")
    (ui_pick "LST" "Contact, normally closed" 0)
    (ui_click "B_LOCATE")
    (tell (lines-at))
    (ui_click "OK")))

(tell (pick-symbol))
