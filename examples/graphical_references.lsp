; Settings with a sample beside them, which the program draws: how the contacts of a relay are shown where its coil stands.

(setq styles '("Contacts in a column" "Contacts in a row")
      fonts '("Upright" "Slanted"))

; Closed or not, and the sheet and the line where the contact is used; nil for one that isn't.
(setq contacts '((nil 1 2) (T 2 7) (nil)))

(setq color-paper 255 color-line 250 color-unused 253 color-text 5)

; All lines are x1 y1 x2 y2, in units of a fortieth of the sample's height; y runs downwards.
(setq open-contact '((0 4 6 4) (6 0 6 8) (10 0 10 8) (10 4 16 4))
      closed-contact (append open-contact '((4 9 12 -1))))

; The strokes of a digit that is 4 wide and 8 high.
(setq digits '((1 (4 0 4 8))
               (2 (0 0 4 0) (4 0 4 4) (4 4 0 4) (0 4 0 8) (0 8 4 8))
               (7 (0 0 4 0) (4 0 4 8))))

(defun moved (line x y)
  (list (+ (car line) x) (+ (cadr line) y) (+ (caddr line) x) (+ (cadddr line) y)))

; A slanted stroke leans to the right by a quarter of its height above the foot.
(defun slanted (line)
  (list (+ (car line) (/ (- 8 (cadr line)) 4)) (cadr line) (+ (caddr line) (/ (- 8 (cadddr line)) 4)) (cadddr line)))

(defun draw-lines (lines x y color)
  (foreach line lines
    (apply 'wex_vector_image (append '("SAMPLE") (mapcar '(lambda (at) (fix (* at unit))) (moved line x y)) (list color)))))

(defun draw-digit (digit x y / lines)
  (setq lines (cdr (assoc digit digits)))
  (draw-lines (if (= font 1) (mapcar 'slanted lines) lines) x y color-text))

(defun draw-contact (contact x y / in-row)
  (setq in-row (= style 1))
  (draw-lines (if (car contact) closed-contact open-contact) x y (if (cdr contact) color-line color-unused))
  (foreach digit (cdr contact)
    (draw-digit digit (+ x (if in-row 3 20)) (+ y (if in-row 12 0)))
    (setq x (+ x 6))))

; Tells where a contact stands.
(defun contact-place (number)
  (if (= style 1) (list (+ 6 (* 26 number)) 8) (list 6 (+ 3 (* 12 number)))))

(defun draw-sample (/ unit number)
  (setq unit (/ (wex_dimy_tile "SAMPLE") 40.0) number 0)
  (wex_start_image "SAMPLE")
  (wex_fill_image "SAMPLE" 0 0 (wex_dimx_tile "SAMPLE") (wex_dimy_tile "SAMPLE") color-paper)
  (foreach contact contacts
    (if (or (cdr contact) with-unused)
      (apply 'draw-contact (cons contact (contact-place number))))
    (setq number (1+ number)))
  (wex_end_image))

; The value of such a box is its text; -1 where none is chosen.
(defun place-in (texts tile / rest)
  (setq rest (member (wex_get_tile tile) texts))
  (if rest (- (length texts) (length rest)) -1))

; What is drawn before the dialog can be seen would be lost, so the sample comes with the style.
(defun follow ()
  (setq style (place-in styles "STYLE") font (place-in fonts "FONT_TEXT") with-unused (= (wex_get_tile "CONTACTS") "1"))
  (if (>= style 0) (progn (wex_mode_tile "OK" 0) (draw-sample))))

(defun fill-list (tile texts)
  (wex_start_list tile)
  (wex_add_list texts)
  (wex_end_list))

; The style, the text style and whether contacts that aren't used show; nil where it was cancelled.
(defun set-up (/ style font with-unused)
  (wex_new_dialog "XREF_SETUP_GRAPHICAL")
  (fill-list "STYLE" styles)
  (fill-list "FONT_TEXT" fonts)
  (wex_set_tile "FONT_TEXT" "0")
  (wex_mode_tile "OK" 1)
  (foreach tile '("STYLE" "FONT_TEXT" "CONTACTS") (wex_action_tile tile "(follow)"))
  (wex_mode_tile "HELP" 6)
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (if (= (wex_start_dialog) 1) (list (nth style styles) (nth font fonts) with-unused)))

; What a person does when nobody is there. Which of the three contacts show, by the color of a plate of each.
(defun shown (/ unit)
  (setq unit (/ (wex_dimy_tile "SAMPLE") 40.0))
  (mapcar '(lambda (number / place)
             (setq place (contact-place number))
             (cond ((= 5526612 (plate place)) "used") ((= 12237498 (plate place)) "unused") (T "none")))
          '(0 1 2)))

(defun plate (place) (ui_pixel "SAMPLE" (fix (* unit (+ (car place) 6))) (fix (* unit (1+ (cadr place))))))

(defun tell (what) (princ what) (terpri))

(defun enabled (tile) (cdr (assoc "enabled" (ui_look tile))))

(ui_session "XREF_SETUP_GRAPHICAL"
  '((tell (enabled "OK"))
    (ui_pick "STYLE" "Contacts in a column")
    (tell (shown))
    (ui_click "CONTACTS")
    (tell (shown))
    (ui_shot "graphical_references_column.png")
    (ui_pick "STYLE" "Contacts in a row")
    (ui_pick "FONT_TEXT" "Slanted")
    (tell (shown))
    (ui_shot "graphical_references_row.png")
    (ui_click "OK")))

(tell (set-up))
