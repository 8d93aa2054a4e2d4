; Dialogs whose template says how they grow: those with a list, without a word of their program.

(defun change (tile) (mapcar '- (look tile "rect") (cdr (assoc tile before))))
(defun note-places ()
  (setq before (mapcar '(lambda (tile) (cons tile (look tile "rect"))) '("LST" "VALUE" "ADD" "OK" "LABEL0"))))

; The size in which it comes is that of an earlier run.
(test "The list grows both ways, what is below it or beside moves, and the dialog never gets smaller than it was made"
  '((in-dialog "RATING_LST_EDIT" '(progn)
      '((ui_drag "GRIP" -900 -900)
        (note-places)
        (ui_drag "GRIP" 90 60)
        (want '(0 0 90 60) (change "LST"))
        (want '(0 60 90 0) (change "VALUE"))
        (want '(90 60 0 0) (change "ADD"))
        (want '(90 60 0 0) (change "OK"))
        (ui_drag "GRIP" -300 -300)
        (want '(0 0 0 0) (change "LST"))
        (want '(0 0 0 0) (change "OK"))))))

(test "Anchors of the program come before those of the template"
  '((in-dialog "RATING_LST_EDIT" '(wex_setresizing "LST" 25)
      '((note-places)
        (ui_drag "GRIP" 40 30)
        (want '(0 0 40 0) (change "LST"))
        (want '(40 30 0 0) (change "OK"))))))
