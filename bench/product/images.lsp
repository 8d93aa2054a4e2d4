; An image tile: lines by Lisp, the kept picture painted again, and a large picture file loaded and painted.

(setq vectors 10000)

; Loading paints at once.
(defun load-large () (ms '(wex_loadpicturefile "IMAGE" bench-picture T)))

(defun draw-vectors (/ at)
  (setq at 0)
  (repeat vectors
    (wex_vector_image "IMAGE" (rem at 100) (/ at 100) (+ (rem at 100) 20) (+ (/ at 100) 10) 1)
    (setq at (1+ at))))

(bench_make_bmp bench-picture 4000 3000)
(wex_new_dialog "BENCH_IMAGE")
(in-dialog "BENCH_IMAGE" 3007
  '((wex_start_image "IMAGE")
    (take-turns "image_10000_vectors" '(ms '(draw-vectors)) '(bench_bare_vectors 112 vectors) 11)
    (wex_end_image)
    (take-turns "image_repaint" '(bench_repaint 112) '(bench_bare_repaint 112) 101)
    (take-turns "image_4000x3000_picture" '(load-large) '(bench_bare_picture 112 bench-picture) 7)))
