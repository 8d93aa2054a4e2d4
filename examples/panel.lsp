; A small control panel in three dimensions, made of boxes and seen from all sides in the main frame.

(defun box (corner size / x y z x2 y2 z2)
  (setq x (car corner) y (cadr corner) z (caddr corner)
        x2 (+ x (car size)) y2 (+ y (cadr size)) z2 (+ z (caddr size)))
  (draw_mesh
    (list (list x y z) (list x2 y z) (list x2 y2 z) (list x y2 z)
          (list x y z2) (list x2 y z2) (list x2 y2 z2) (list x y2 z2))
    '((0 1 2 3) (4 5 6 7) (0 1 5 4) (1 2 6 5) (2 3 7 6) (3 0 4 7))))

(defun device (x name)
  (draw_color 5)
  (box (list x 60 10) '(30 50 35))
  (draw_color 7)
  (draw_text (list (+ x 4) 80 46) 8 name))

; The back plate, two rails with terminals, and the devices.
(draw_layer "Plate" 9)
(box '(0 0 0) '(200 140 4))
(draw_layer "Rails" 8)
(box '(10 30 4) '(180 12 6))
(box '(10 80 4) '(180 12 6))
(draw_layer "Devices")
(foreach each '((20 "K1") (60 "K2") (100 "K3") (140 "F1")) (device (car each) (cadr each)))
(draw_layer "Terminals" 3)
(draw_color nil)
(setq x 20)
(repeat 15 (box (list x 22 10) '(8 28 18)) (setq x (+ x 10)))

(draw_show nil '(0.6 -1 0.8))
(draw_shot "panel.png")
(repeat 6 (draw_orbit 0.15 -0.05))
(draw_shot "panel_turned.png")

(princ (strcat (itoa (draw_count)) " things from " (rtos (caar (draw_extents)) 2 0) " to " (rtos (caadr (draw_extents)) 2 0)))
(terpri)
