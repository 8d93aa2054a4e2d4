; The icons of image buttons, looked at in every state: what a person sees on the button, not what it answers.

; Colors that the icons are drawn in.
(setq folder 16767079 arrow 1925030)

; The colors of a tile's points, row by row.
(defun picture (tile / size)
  (setq size (cddr (look tile "rect")))
  (mapcar '(lambda (y) (mapcar '(lambda (x) (ui_pixel tile x y)) (range (car size)))) (range (cadr size))))

; The corners of thin lines are mixed with a little of what lies behind them.
(defun alike (a b)
  (and (near (/ a 65536) (/ b 65536) 12) (near (rem (/ a 256) 256) (rem (/ b 256) 256) 12) (near (rem a 256) (rem b 256) 12)))

; Where a picture has such a color: (left top right bottom) of the outermost points, nil where nowhere.
(defun color-box (color picture / x y box)
  (setq y 0)
  (foreach row picture
    (setq x 0)
    (foreach point row
      (if (alike point color)
        (setq box (if box (list (min x (car box)) (min y (cadr box)) (max x (caddr box)) (max y (cadddr box)))
                          (list x y x y))))
      (setq x (1+ x)))
    (setq y (1+ y)))
  box)

; The points of a picture that lie in a box.
(defun within (box picture / points)
  (foreach y (range (cadr box) (1+ (cadddr box)))
    (foreach x (range (car box) (1+ (caddr box))) (setq points (cons (nth x (nth y picture)) points))))
  points)

(defun size-of (box) (list (- (caddr box) (car box)) (- (cadddr box) (cadr box))))

; The middle, doubled, so that it is a whole number.
(defun middle-of (box) (list (+ (car box) (caddr box)) (+ (cadr box) (cadddr box))))

(defun near (a b distance) (<= (abs (- a b)) distance))
(defun icon-side () (fix (+ 0.5 (* 16 scale))))

; Whether the box is of an icon's size, in the middle of the tile's height, and of its width too where it is alone.
(defun want-icon (box tile alone / middle size)
  (setq size (cddr (look tile "rect")))
  (if (want T (consp box))
    (progn
      (setq middle (middle-of box))
      (want nil (remove-if '(lambda (side) (< (/ (icon-side) 8) side (icon-side))) (size-of box)))
      (want T (near (cadr middle) (cadr size) (icon-side)))
      (if alone (want T (near (car middle) (car size) (icon-side)))
                (want T (< (car middle) (car size)))))))

; At one place, as in the platform's button, whose face alone changes; a corner more or less may count.
(defun want-in-place (from to)
  (foreach by (mapcar '- (middle-of to) (middle-of from)) (want T (near by 0 1))))

; All looks of one button. The focus comes by the keyboard, since only then it is shown.
(defun looks (tile color alone)
  (setq tile-now tile color-now color alone-now alone)
  '((setq up (picture tile-now) up-box (color-box color-now up))
    (want-icon up-box tile-now alone-now)
    (wex_mode_tile tile-now 2)
    (ui_key "TAB")
    (ui_key "SHIFT+TAB")
    (setq focused (picture tile-now))
    (want T (look tile-now "focus"))
    (want up-box (color-box color-now focused))
    (want nil (equal up focused))
    (ui_hold tile-now)
    (setq pressed (picture tile-now))
    (want nil (equal pressed focused))
    (want-in-place up-box (color-box color-now pressed))
    (ui_release tile-now)
    (want focused (picture tile-now))
    (wex_mode_tile tile-now 1)
    (setq disabled (picture tile-now))
    (want nil (color-box color-now disabled))
    (want T (< 1 (length (unique (within up-box disabled)))))))

(foreach row '(("CAP_A" arrow T) ("CAP_C" folder T) ("LEFT" arrow T) ("RIGHT" arrow T)
               ("MORE" arrow nil) ("SORT" arrow nil) ("LIST" arrow nil))
  (test (strcat "The icon of " (car row) " shows: up, with the focus, pressed and disabled")
    (list (list 'in-dialog "ODD_BUTTONS" nil (list 'quote (looks (car row) (eval (cadr row)) (caddr row)))))))

(test "The product's own image buttons show theirs, and the text beside it"
  '((in-dialog "ADD_REC" nil
      '((want-icon (color-box folder (picture "B_CAT")) "B_CAT" T)
        (want-icon (color-box arrow (picture "MORE")) "MORE" nil)))
    (in-dialog "EDIT_REC" nil
      '((want-icon (color-box arrow (picture "PREV")) "PREV" T)
        (want-icon (color-box arrow (picture "NEXT")) "NEXT" T)))
    (in-dialog "CABLE_DEFAULT_COLORS" nil
      '((want-icon (color-box arrow (picture "UP")) "UP" nil)
        (want-icon (color-box arrow (picture "DOWN")) "DOWN" nil)))))

(test "Alt and a letter press a button that shows nothing but an icon, unless a caption has that letter"
  '((in-dialog "EDIT_REC"
      '(foreach key '("B_CAT" "PREV" "NEXT") (wex_action_tile key "(note $key)"))
      '((ui_key "ALT+B")
        (ui_key "ALT+V")
        (ui_key "ALT+N")
        (want '("b_cat" "prev" "next") notes)
        (wex_mode_tile "NEXT" 1)
        (ui_key "ALT+N")
        (wex_set_tile "DELETE" "&Back")
        (ui_key "ALT+B")
        (want 3 (length notes))))))
