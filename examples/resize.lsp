; A form that resizes well. Every tile has an anchor code, a sum of weights: 25 lets the right edge follow that of the
; dialog, 38 the lower edge, 10 the left one, 75 moves the tile with the corner. A tile without one has that of its template, if
; there is one, or stays where it is.
; The dialog can't become too small to work with, and comes back in the size in which it went.

(setq anchors '(("CAT" 25)         ; grows to the right
                ("BLKNAM" 25)
                ("B_BROWSE" 35)    ; 10 + 25: stays beside the box that grows
                ("DESC" 63)        ; 25 + 38: grows both ways
                ("OK" 75)
                ("Cancel" 75)
                ("HELP" 75)))

; Where there is much room the title tells more.
(defun sized ()
  (wex_settitlebar (if (> (car $value) 600) "Edit Footprint - the block of a part on the panel" "Edit Footprint")))

(defun edit-footprint (values / key)
  (wex_new_dialog "FOOTPRINT_EDIT")
  (foreach anchor anchors (wex_setresizing (car anchor) (cadr anchor)))
  (wex_setminresizing 300 260)
  (wex_setaction_onsize "(sized)")
  (foreach value values (wex_set_tile (car value) (cadr value)))
  (wex_action_tile "B_BROWSE" "(wex_set_tile \"BLKNAM\" \"pnl/fuse_block_4.dwg\")")
  (wex_action_tile "HELP" "(wex_alert \"Drag the lower right corner.\" 2)")
  (wex_action_tile "OK" "(setq block (wex_get_tile \"BLKNAM\")) (wex_done_dialog 1)")
  (= (wex_start_dialog) 1))

; The session tells how far each tile has moved and grown.
(defun place (tile) (cdr (assoc "rect" (ui_look tile))))
(defun tell (tile before) (print (cons tile (mapcar '- (place tile) before))))

(ui_session "FOOTPRINT_EDIT"
  '((ui_size 420 320)
    (ui_shot "resize-small.png")
    (setq tiles '("MFG" "CAT" "B_BROWSE" "DESC" "OK") before (mapcar 'place tiles))
    (ui_drag "GRIP" 300 160)
    (ui_click "B_BROWSE")
    (ui_shot "resize-large.png")
    (print (ui_title))
    (mapcar 'tell tiles before)
    (ui_click "OK")))

(if (edit-footprint '(("MFG" "ACME") ("CAT" "1492-H4") ("DESC" "Fuse block, 30 A, four poles, on DIN rail")))
  (print block))
(terpri)
