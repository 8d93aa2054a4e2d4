; Dialogs whose template says how they grow: those with a list, without a word of their program.

(defun change (tile) (mapcar '- (look tile "rect") (cdr (assoc tile before))))
(defun note-places (tiles) (setq before (mapcar '(lambda (tile) (cons tile (look tile "rect"))) tiles)))

; The size in which it comes is that of an earlier run.
(test "The list grows both ways, what is below it or beside moves, and the dialog never gets smaller than it was made"
  '((in-dialog "RATING_LST_EDIT" '(progn)
      '((ui_drag "GRIP" -900 -900)
        (note-places '("LST" "VALUE" "ADD" "OK"))
        (ui_drag "GRIP" 90 60)
        (want '(0 0 90 60) (change "LST"))
        (want '(0 60 90 0) (change "VALUE"))
        (want '(90 60 0 0) (change "ADD"))
        (want '(90 60 0 0) (change "OK"))
        (ui_drag "GRIP" -300 -300)
        (want '(0 0 0 0) (change "LST"))
        (want '(0 0 0 0) (change "OK"))))))

(test "Anchors of the program come before those of the template, also none and the lowest limits"
  '((in-dialog "RATING_LST_EDIT"
      '(progn (wex_setresizing "LST" 25) (wex_setresizing "ADD" -1) (wex_setminresizing 50 50))
      '((note-places '("LST" "ADD" "OK"))
        (ui_drag "GRIP" 40 30)
        (want '((0 0 40 0) (0 0 0 0) (40 30 0 0)) (mapcar 'change '("LST" "ADD" "OK")))
        (ui_drag "GRIP" -140 -90)
        (want '(-100 -60 0 0) (change "OK"))
        (ui_drag "GRIP" 100 60)))))

(test "Lists that stand one above the other share the height, and what is between them goes along"
  '((foreach row '(("PICK_DWGS" "LST1" "ALL" "LST2") ("XREF_SETUP_TABLE" "COLS" "TITLE" "SAMPLE") ("HELP_PROJ_SETTINGS" "TOPICS" nil "TEXT"))
      (in-dialog (car row) '(progn)
        '((ui_drag "GRIP" -900 -900)
          (setq upper (nth 1 row) between (nth 2 row) lower (nth 3 row))
          (note-places (remove nil (list upper between lower "OK")))
          (ui_drag "GRIP" 60 80)
          (want '((0 0 60 40) (0 40 60 40) (60 80 0 0)) (mapcar 'change (list upper lower "OK")))
          (if between (want 40 (cadr (change between)))))))))

(test "Dialogs whose lists stand among other tiles grow too; those to the right of a list keep their distance from the edge"
  '((foreach row '(("SCHEM_WIRE2PNL_FORMAT" "FMT_DEF" "ADDTERM" "TEST") ("SU_SCHEM_WIRE2PNL_FORMAT" "FMT_DEF" "ADDTERM" "TEST")
                   ("SETUP_COMPONENT_XREF" "TYPES" nil "NONE") ("FOOTPRINT_EDIT" "DESC" "B_BROWSE" nil))
      (in-dialog (car row) '(progn)
        '((ui_drag "GRIP" -900 -900)
          (note-places (remove nil (cons "OK" (cdr row))))
          (ui_drag "GRIP" 60 80)
          (want '(0 0 60 80) (change (nth 1 row)))
          (if (nth 2 row) (want '(60 0 0 0) (change (nth 2 row))))
          (if (nth 3 row) (want '(0 80 0 0) (change (nth 3 row))))
          (want '(60 80 0 0) (change "OK")))))))
