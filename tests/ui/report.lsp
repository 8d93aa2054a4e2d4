; The dialog of reports: its pages, its scroll bar, its layout, and the paper that it shows. Run at other scales too: what is in
; pixels here is so at all of them.
(host_warn nil)  ; what the functions refuse is tried on purpose

(setq tab 100 preview '(100 101) bar '(100 102) drawing '(100 103))
(setq page-buttons '(3 4 5 6 1 7))

; The size is kept for the next dialog, and the first paint's decides how far the bar goes.
(defun in-report (session)
  (run-dialog "Report_Generator" nil (append session '((ui_size 640 560) (ui_click "OK")))))
(defun rect (tile) (look tile "rect"))
(defun left (tile) (car (rect tile)))
(defun top (tile) (cadr (rect tile)))
(defun width (tile) (caddr (rect tile)))
(defun height (tile) (cadddr (rect tile)))
(defun position () (look bar "position"))
(defun shown () (mapcar '(lambda (part) (look part "visible")) (list preview bar drawing)))

(test "Three tabs: the report with its bar, the drawing, and an empty page"
  '((in-report
      '((want '("Report" "Drawing" "Blank") (ui_items tab))
        (want '(T T nil) (shown))
        (ui_pick tab 1)
        (want '(nil nil T) (shown))
        (ui_pick tab "Blank")
        (want '(nil nil nil) (shown))
        (ui_pick tab 0)
        (want '(T T nil) (shown))
        (ui_key "CTRL+TAB" tab)
        (want '((1) (nil nil T)) (list (look tab "selected") (shown)))
        (ui_key "CTRL+SHIFT+TAB")
        (want '((0) (T T nil)) (list (look tab "selected") (shown)))))))

(test "No other dialog has them, also with a control of that id"
  '((in-dialog "ODD_TREES" nil
      '((want nil (ui_items tab))
        (ui_click 3)
        (want nil (ui_alerts))))))

; The client area of a tab control is its window.
(defun want-layout (/ x y w h b)
  (setq x (left tab) y (top tab) w (width tab) h (height tab) b (- (top preview) y))
  (want (list (+ x 4) (+ y b) (- w 31) (- h b 4)) (rect preview))
  (want (list (+ x 4) (+ y b) (- w 10) (- h b 6)) (rect drawing))
  (want (list (+ x w -26) (+ y b) 17 (- h 5 b)) (rect bar))
  (setq at -1)
  (foreach id page-buttons
    (want (list id (+ x (/ (- w 492) 2) (* 82 (setq at (1+ at)))) (+ h 18) 75 23) (cons id (rect id)))))

(test "The parts fill the tab control, and the buttons stand in a row below, from the first paint on and in every size"
  '((in-report
      '((want-layout)
        (ui_size 700 800)
        (want-layout)
        (setq wide (width preview))
        (ui_size 560 500)
        (want-layout)
        (want 140 (- wide (width preview)))
        (ui_pick tab 1)
        (ui_size 700 600)
        (ui_pick tab 0)
        (want-layout)))))

; Colors of the preview at x y within its edge.
(setq black 0 white 16777215)
(defun color (x y) (ui_pixel preview (1+ x) (1+ y)))
(defun ground () (color 3 3))

; The client area is 2 pixels narrower and lower than the window, by its edge.
(defun page-bottom () (+ 4 (/ (* 22 (- (width preview) 2)) 15)))
(defun page-right () (- (width preview) 2 19))

(test "Paper on the ground, with a shadow to the right and below, which scroll; the range stays when the size changes"
  '((in-report
      '((ui_size 600 540)
        (want (list white black black) (list (color 20 20) (color 8 20) (color 20 4)))
        (want T (/= (ground) white))
        (setq right (page-right))
        (want (list black (ground) black) (list (color (1- right) 20) (color (+ right 3) 8) (color (+ right 3) 30)))
        (setq limits (look bar "range"))
        (want 0 (car limits))
        (ui_scroll bar "LINEDOWN")
        (want (list 6 white white) (list (position) (color 20 4) (color 20 0)))
        (ui_click 6)
        (want (1- (cadr limits)) (position))
        (setq bottom (- (page-bottom) (* 10 (position))))
        (want (list white black) (list (color 20 (- bottom 2)) (color 20 (+ bottom 5))))
        (want (ground) (color 10 (+ bottom 5)))
        (want limits (progn (ui_size 900 700) (look bar "range")))))))

(test "The bar's arrows move it by 6, its shaft by 10, its thumb where it is pulled; keys and the wheel above the bar do the same"
  '((in-report
      '((ui_click 5)
        (ui_scroll bar "PAGEDOWN") (want 10 (position))
        (ui_scroll bar "LINEUP") (want 4 (position))
        (ui_scroll bar "LINEUP") (want 0 (position))
        (ui_scroll bar "LINEDOWN") (want 6 (position))
        (ui_scroll bar "PAGEUP") (want 0 (position))
        (ui_scroll bar 20) (want T (<= 15 (position) 25))
        (ui_click 5) (want 0 (position))
        (ui_key "DOWN" tab) (want 6 (position))
        (ui_key "PAGEDOWN") (want 16 (position))
        (ui_key "UP") (want 10 (position))
        (ui_key "PAGEUP") (want 0 (position))
        (ui_key "CTRL+END") (want (1- (cadr (look bar "range"))) (position))
        (ui_key "DOWN") (want (1- (cadr (look bar "range"))) (position))
        (ui_key "PAGEDOWN") (want (cadr (look bar "range")) (position))
        (ui_key "CTRL+HOME") (want 0 (position))
        (ui_wheel bar -2) (want 12 (position))
        (ui_wheel bar 1) (want 6 (position))
        (ui_wheel preview -1) (want 6 (position))
        (ui_wheel tab -1) (want 6 (position))
        (ui_pick tab 1)
        (ui_key "DOWN" tab)
        (ui_pick tab 0) (want 6 (position))))))

(test "A preview higher than its sheet is black below it"
  '((in-report
      '((ui_size 300 1000)
        (want (list (ground) black) (list (color 3 (- (page-bottom) 2)) (color 3 (+ (page-bottom) 30))))
        (want black (color 100 (- (height preview) 20)))))))

; The middle of the window is in the middle of the block.
(defun middle () (ui_pixel drawing (/ (width drawing) 2) (/ (height drawing) 2)))

(test "The second page shows the block of that name of the drawing, and the wheel zooms it"
  '((draw_new)
    (draw_block "TEST")
    (draw_color 3)
    (draw_solid '(4 4) '(6 4) '(6 6) '(4 6))
    (draw_color 1)
    (draw_polyline '((0 0) (10 0) (10 10) (0 10)) T)
    (in-report
      '((ui_pick tab 1)
        (want 65280 (middle))
        (setq beside (ui_pixel drawing (- (/ (width drawing) 2) (/ (height drawing) 8)) (/ (height drawing) 2)))
        (want nil (= beside 65280))
        (repeat 5 (ui_wheel drawing 1))
        (want 65280 (ui_pixel drawing (- (/ (width drawing) 2) (/ (height drawing) 8)) (/ (height drawing) 2)))
        (ui_pick tab 0)
        (ui_pick tab 1)
        (want 65280 (ui_pixel drawing (- (/ (width drawing) 2) (/ (height drawing) 8)) (/ (height drawing) 2)))))
    (want 2 (draw_count))))

(test "A drawing without that block gets one, once, with a table"
  '((draw_new)
    (in-report '((ui_pick tab 1) (ui_pick tab 0) (ui_pick tab 1)))
    (in-report '((ui_pick tab 1)))
    (draw_block "test")
    (want '(1 "test" "test" "") (list (draw_count) (draw_cell 0 0 0) (draw_cell 0 1 1) (draw_cell 0 4 9)))
    (want '(5 10) (mapcar '(lambda (name) (cdr (assoc name (draw_get 0)))) '("rows" "columns")))))

(test "Help is in a box; the rest does nothing"
  '((in-report
      '((ui_pick tab 1)
        (ui_click 7)
        (want 1 (length (ui_alerts)))
        (want "Report" (cdr (assoc "title" (ui_box))))))
    (want nil notes)))

(test "The tab control is a tile: its record gives it its title, its mode and its page"
  '((run-dialog "report_generator"
      '(progn (wex_set_tile "main_title" "Terminals") (wex_set_tile 100 "1") (wex_set_tile "OK" "Done"))
      '((want "Terminals" (ui_title))
        (want '((1) "Done") (list (look tab "selected") (ui_text "OK")))
        (want "" (wex_get_tile 100))
        (wex_mode_tile 100 1)
        (want nil (look tab "enabled"))
        (ui_click "OK")))))

(test "Dialogs of reports nest and come again, and each begins at the top"
  '((ui_session "report_generator"
      '((ui_key "PAGEDOWN" tab)
        (ui_session "report_generator" '((want 0 (position)) (ui_close)))
        (wex_new_dialog "report_generator")
        (wex_start_dialog)
        (want 10 (position))
        (ui_close)))
    (wex_new_dialog "report_generator")
    (want -1 (wex_start_dialog))))
