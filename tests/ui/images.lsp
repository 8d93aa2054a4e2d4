; Image tiles: drawing on them, what stays on the screen, pictures, slides, the focus, clicks, and what the functions give.
(host_warn nil)  ; what the functions refuse is tried on purpose

(setq black 0 red 16711680 yellow 16776960 green 65280 cyan 65535)

; Smaller than the tile. Its edges are of that color; fitted, they reach the tile's corners.
(setq contactor "examples/pictures/contactor.bmp" steel 12503250)
(defun corners () (list (pixel 1 1) (pixel (- (wex_dimx_tile "IMAGE") 2) (- (wex_dimy_tile "IMAGE") 2))))

; Disabled or enabled, a tile paints itself.
(defun paint-again () (wex_mode_tile "IMAGE" 1) (wex_mode_tile "IMAGE" 0))

; Eight points where the mark of the focus stands: every other one is turned.
(defun mark-dots () (mapcar '(lambda (x) (pixel x 2)) '(50 51 52 53 54 55 56 57)))

(defun in-images (prepare session) (in-dialog "ODD_IMAGES" prepare session))

(defun pixel (x y) (ui_pixel "IMAGE" x y))
(defun small-pixel (x y) (ui_pixel "SMALL" x y))

; Red on the left, yellow on the right.
(defun draw-halves ()
  (wex_start_image "IMAGE")
  (wex_fill_image "IMAGE" 0 0 100 200 1)
  (wex_fill_image "IMAGE" 100 0 100 200 2)
  (wex_end_image))

(test "What is drawn stands there at once, and stays when another dialog has covered it"
  '((in-images nil
      '((want black (pixel 10 10))
        (wex_start_image "IMAGE")
        (want nil (wex_fill_image "IMAGE" 10 10 20 30 1))
        (want (list black red red black) (list (pixel 9 10) (pixel 10 10) (pixel 29 39) (pixel 30 39)))
        (want nil (wex_vector_image 112 50 50 60 60 3))
        (want (list black green green green black) (list (pixel 49 49) (pixel 50 50) (pixel 55 55) (pixel 60 60) (pixel 61 61)))
        (wex_vector_image "image" 70 70 70 70 4)
        (want (list cyan black) (list (pixel 70 70) (pixel 71 70)))
        (wex_end_image)
        (ui_session "ODD_TREES" '((ui_shot "covering.png") (ui_click "Cancel")))
        (wex_new_dialog "ODD_TREES")
        (wex_start_dialog)
        (want (list red green cyan) (list (pixel 29 39) (pixel 55 55) (pixel 70 70)))))))

(test "A fill without a width or a height shows nothing, and drawing ends at the tile"
  '((in-images nil
      '((wex_start_image "SMALL")
        (wex_fill_image "SMALL" 5 5 0 10 1)
        (wex_fill_image "SMALL" 5 5 10 0 1)
        (want black (small-pixel 5 5))
        (setq beside (ui_pixel "SMALL" (1+ (wex_dimx_tile "SMALL")) 5))
        (wex_fill_image "SMALL" -50 -50 500 500 1)
        (wex_vector_image "SMALL" -50 5 500 5 2)
        (want (list red yellow) (list (small-pixel 0 0) (small-pixel 0 5)))
        (want beside (ui_pixel "SMALL" (1+ (wex_dimx_tile "SMALL")) 5))))))

; The colors of the platform have one number too many: only -15 comes out as one of them, the text of buttons.
(test "The colors are those of the table, and a number without one is black"
  '((in-images nil
      '((wex_start_image "IMAGE")
        (setq index 0)
        (repeat 257
          (wex_fill_image "IMAGE" (* 12 (rem index 17)) (* 12 (/ index 17)) 12 12 index)
          (setq index (1+ index)))
        (wex_end_image)
        (ui_shot "colors.png")
        (foreach sample '((0 16777215) (1 16711680) (7 16777215) (8 8421504) (16 4980736) (56 5000192) (84 2064128)
                          (136 19532) (170 255) (250 5526612) (254 14474460) (255 16777215) (256 16777215))
          (want (cadr sample) (pixel (+ 5 (* 12 (rem (car sample) 17))) (+ 5 (* 12 (/ (car sample) 17))))))
        (setq x 0)
        (foreach index '(-1 -2 -3 -9 -15 -16 -18 257 32767 -32768)
          (wex_fill_image "IMAGE" x 0 5 5 2)
          (wex_fill_image "IMAGE" x 0 5 5 index)
          (want (list index black) (list index (pixel x 0)))
          (setq x (+ x 5)))))))

(test "What is drawn while the dialog can't be seen is lost, and so is what no end has kept"
  '((in-images '(wex_setaction_oninit "(draw-halves)") '((want black (pixel 10 10))))
    (in-images nil
      '((wex_start_image "IMAGE")
        (wex_fill_image "IMAGE" 0 0 50 50 1)
        (want red (pixel 10 10))
        (wex_mode_tile "IMAGE" 6)
        (wex_mode_tile "IMAGE" 5)
        (want black (pixel 10 10))))))

(test "A start shows black until the next paint; what was kept goes with the next end only"
  '((in-images nil
      '((draw-halves)
        (wex_start_image "IMAGE")
        (want black (pixel 10 10))
        (wex_mode_tile "IMAGE" 1)
        (want red (pixel 10 10))
        (wex_mode_tile "IMAGE" 0)
        (wex_start_image "IMAGE")
        (wex_end_image)
        (wex_mode_tile "IMAGE" 1)
        (want black (pixel 10 10))))))

(test "A tile that is moved or grows keeps its picture, with black where it had none"
  '((in-images '(wex_setresizing "IMAGE" 63)
      '((draw-halves)
        (setq width (wex_dimx_tile "IMAGE"))
        (ui_size 900 700)
        (want T (> (wex_dimx_tile "IMAGE") width))
        (want (list red yellow black) (list (pixel 99 10) (pixel 100 10) (pixel (1+ width) 10)))
        (wex_start_controlmove 1)
        (wex_movecontrol "IMAGE" 40 30 120 60)
        (wex_end_controlmove)
        (want '(40 30 120 60) (look "IMAGE" "rect"))
        (want (list red yellow) (list (pixel 99 59) (pixel 119 59)))))))

(test "A picture shows in place of what was kept before, and what is kept later in place of the picture"
  '((in-images nil
      '((draw-halves)
        (want nil (wex_loadpicturefile "IMAGE" contactor T))
        (want (list steel steel) (corners))
        (wex_start_image "IMAGE")
        (want (list black black) (corners))
        (paint-again)
        (want (list steel steel) (corners))
        (draw-halves)
        (paint-again)
        (want (list red yellow) (list (pixel 10 10) (pixel 120 10)))))))

(test "A picture that isn't found leaves the older one, and one that can't be read leaves black"
  '((in-images nil
      '((wex_loadpicturefile "IMAGE" contactor T)
        (want '(-1 -1 -1) (list (wex_loadpicturefile "IMAGE" "nobody.png") (wex_loadpicturefile "IMAGE") (wex_loadpicturefile "nobody")))
        (paint-again)
        (want (list steel steel) (corners))
        (want nil (wex_loadpicturefile "IMAGE" "README.md" T))
        (want (list black black) (corners))
        (wex_loadpicturefile "IMAGE" contactor T)
        (want nil (wex_loadpicturefile "IMAGE" 5))
        (want (list black black) (corners))
        (want '(nil nil) (list (wex_loadpicturefile "LIST" contactor) (wex_loadpicturefile "nobody" contactor)))))))

(test "The third argument fits a picture: 1, T and what is neither a short nor nil"
  '((in-images nil
      '((foreach given '((1) (T) (2.5) ("no"))
          (apply 'wex_loadpicturefile (append (list "IMAGE" contactor) given))
          (want (list given steel steel) (cons given (corners))))
        (foreach given '(nil (0) (2) (nil))
          (apply 'wex_loadpicturefile (append (list 112 contactor) given))
          (want (list given black black) (cons given (corners))))))))

(test "On the open image a plain name is a picture over the whole tile; one that waits for the dialog stays black"
  '((in-images '(progn (wex_start_image "IMAGE") (wex_slide_image 0 0 0 0 contactor) (wex_end_image))
      '((want (list black black) (corners))
        (wex_start_image "IMAGE")
        (want nil (wex_slide_image 50 50 5 5 contactor))
        (want (list steel steel) (corners))
        (want -1 (wex_slide_image 50 50 5 5 "nobody.bmp"))
        (paint-again)
        (want (list steel steel) (corners))))))

; A file part without an extension becomes that of a library.
(test "A slide of any library leaves black, under the focus too"
  '((close (open "made.slb" "w"))
    (in-images '(progn (wex_start_image "IMAGE") (want nil (wex_slide_image 0 0 9 9 "made(a)")) (wex_end_image))
      '((want (list black black) (corners))
        (wex_start_image "IMAGE")
        (draw-halves)
        (wex_mode_tile "IMAGE" 2)
        (wex_start_image "IMAGE")
        (foreach name '("made(a)" "made(")
          (wex_fill_image "IMAGE" 0 0 100 100 1)
          (want (list name nil black 4) (list name (wex_slide_image 0 0 9 9 name) (pixel 50 50) (length (remove-if-not 'zerop (mark-dots))))))
        (wex_mode_tile "NAME" 2)
        (want 8 (length (remove-if-not 'zerop (mark-dots))))
        (want '(-1 -1) (list (wex_slide_image 0 0 9 9 "made.slb(a)") (wex_slide_image 0 0 9 9 "made.sld(a)")))))
    (delete-file "made.slb")))

; The mark of the focus is a dotted rectangle, 2 pixels from the edge: on black its dots are white.
(setq dots '(mapcar '(lambda (x) (small-pixel x 2)) '(4 5 6 7)))
(test "The focus shows, also over what is drawn meanwhile, and goes without a trace"
  '((in-images nil
      '((want '(0 0 0 0) (eval dots))
        (ui_key "TAB" "IMAGE")
        (want T (look "SMALL" "focus"))
        (want 2 (length (remove-if-not 'zerop (eval dots))))
        (wex_start_image "SMALL")
        (wex_fill_image "SMALL" 0 0 100 100 1)
        (want 2 (length (remove-if-not '(lambda (color) (= color red)) (eval dots))))
        (wex_end_image)
        (wex_mode_tile "SMALL" 6)
        (wex_mode_tile "SMALL" 5)
        (wex_mode_tile "SMALL" 2)
        (want 2 (length (remove-if-not '(lambda (color) (= color red)) (eval dots))))
        (wex_mode_tile "NAME" 2)
        (want (list red red red red) (eval dots))
        (wex_mode_tile "SMALL" 6)
        (wex_mode_tile "SMALL" 5)
        (want (list red red red red) (eval dots))))))

(test "Neither the mouse nor the keyboard nor a value makes a button of it"
  '((in-images nil
      '((draw-halves)
        (wex_start_image "SMALL")
        (wex_fill_image "SMALL" 0 0 100 100 1)
        (wex_end_image)
        (ui_hold "IMAGE" 5 5)
        (ui_release "IMAGE" 5 5)
        (ui_key "SPACE" "SMALL")
        (wex_mode_tile "NAME" 2)
        (wex_set_tile "SMALL" "1")
        (want "1" (wex_get_tile "SMALL"))
        (wex_set_tile "SMALL" "A caption")
        (want (list red yellow red) (list (pixel 5 5) (pixel 120 5) (small-pixel 20 20)))))))

(test "A press runs the action, a double click is two of them less one, and a disabled tile takes none"
  '((in-images '(foreach tile '("IMAGE" "OFF") (wex_action_tile tile "(note (list $key $value $reason))"))
      '((ui_click "IMAGE")
        (want '(("image" "" 1)) notes)
        (ui_hold "IMAGE" 3 4)
        (want 2 (length notes))
        (ui_release "IMAGE" 3 4)
        (ui_dblclick "IMAGE")
        (want 3 (length notes))
        (want nil (look "IMAGE" "focus"))
        (wex_mode_tile "IMAGE" 1)
        (want T (catch-error (ui_click "IMAGE") '(lambda (text) T)))))))

(test "An action may end the dialog that its tile stands in"
  '((want 7 (run-dialog "ODD_IMAGES" '(wex_action_tile "IMAGE" "(wex_done_dialog 7)") '((ui_click "IMAGE"))))))

; Numbers have to be shorts: neither a real nor a large integer nor a string is one.
(test "What the drawing functions give for bad arguments"
  '((want '(nil nil nil) (list (wex_vector_image "IMAGE" 1 2 3 4 5) (wex_fill_image "IMAGE" 1 2 3 4 5) (wex_start_image "IMAGE")))
    (in-images nil
      '((want '(nil nil nil nil) (list (wex_vector_image "IMAGE") (wex_fill_image "IMAGE") (wex_vector_image "nobody")
                                       (wex_fill_image "nobody" 1.5)))
        (foreach bad '((1 2 3 4) (1 2 3 4 5.0) (1 "2" 3 4 5) (1 2 3 40000 5) (nil 2 3 4 5))
          (want '(-1 -1) (list (apply 'wex_vector_image (cons "nobody" bad)) (apply 'wex_fill_image (cons "IMAGE" bad)))))
        (want '(nil nil nil) (list (wex_vector_image "nobody" 1 2 3 4 5) (wex_fill_image "LIST" 1 2 3 4 5) (wex_vector_image nil 1 2 3 4 5)))
        (want '(0 0) (list (wex_dimx_tile "LIST") (wex_dimy_tile "nobody")))
        (want nil (wex_slide_image 0 0 9 9 "nobody(x)"))
        (wex_start_image "IMAGE")
        (foreach bad '((0 0 9 9) (0 0 9 "x") (0 0 9.0 9 "x") (0 0 9 9 3) (0 0 9 9 "nobody(x)") (0 0 9 9 "nobody.png"))
          (want -1 (apply 'wex_slide_image bad)))
        (wex_end_image)
        (want nil (wex_slide_image 0 0 9 9 "nobody(x)"))
        (want nil (wex_end_image))
        (wex_start_image T)
        (want -1 (wex_slide_image 0 0 9 9 "nobody(x)"))))))
