; Dialogs that grow: anchors, limits, the remembered size, labels, and controls moved by Lisp.

(defun rect (tile) (cdr (assoc "rect" (ui_look tile))))
(defun note (what) (setq notes (append notes (list what))))
(defun plus (change rectangle) (mapcar '+ rectangle change))

; ADD_REC grown to a size of its own, so that what an earlier run stored doesn't matter.
(defun in-growing (init session)
  (ui_session "ADD_REC" (cons '(ui_size 520 460) session))
  (wex_new_dialog "ADD_REC")
  (eval init)
  (wex_start_dialog))

(test "Anchored controls follow the edges, and the others stay"
  '((in-growing '(progn (wex_setresizing "DESC" 25) (wex_setresizing "ASMB" 10) (wex_setresizing "Cancel" 75)
                        (wex_setresizing "nobody" 63))
      '((setq desc (rect "DESC") asmb (rect "ASMB") cancel (rect "Cancel") cat (rect "CAT"))
        (ui_size 620 500)
        (want (plus '(0 0 100 0) desc) (rect "DESC"))
        (want (plus '(100 40 0 0) cancel) (rect "Cancel"))
        (want (plus '(100 0 -100 0) asmb) (rect "ASMB"))
        (want cat (rect "CAT"))
        (ui_size 520 460)
        (want desc (rect "DESC"))
        (want cancel (rect "Cancel"))
        (ui_click "Cancel")))))

(test "A code that is set while the dialog runs has no effect, and codes of the start action count"
  '((in-growing '(progn (wex_setminresizing 60 60) (wex_setaction_oninit "(wex_setresizing \"DESC\" 25)"))
      '((setq desc (rect "DESC") asmb (rect "ASMB"))
        (wex_setresizing "ASMB" 25)
        (ui_size 620 460)
        (want (plus '(0 0 100 0) desc) (rect "DESC"))
        (want asmb (rect "ASMB"))
        (ui_click "Cancel")))))

(test "A resizable dialog comes back in the size in which it went"
  '((in-growing '(wex_setresizing "DESC" 25) '((ui_size 640 480) (ui_click "Cancel")))
    (ui_session "ADD_REC" '((setq desc (rect "DESC")) (ui_size 640 480) (want desc (rect "DESC")) (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_setresizing "DESC" 25)
    (wex_start_dialog)))

(test "The size action sees the controls where the layout put them"
  '((setq notes nil)
    (in-growing '(progn (wex_setresizing "DESC" 25)
                        (wex_setaction_onsize "(note (caddr (rect \"DESC\")))"))
      '((setq before (last notes))
        (ui_size 620 460)
        (want (+ before 100) (last notes))
        (ui_click "Cancel")))))

(test "A label grows to the lines that its text needs, at the end of the layout"
  '((in-growing '(progn (wex_setresizing "MSG" 25)
                        (wex_set_tile "MSG" "one two three four five six seven eight nine ten eleven twelve thirteen fourteen fifteen sixteen"))
      '((setq wide (cadddr (rect "MSG")))
        (ui_size 220 460)
        (want T (> (cadddr (rect "MSG")) wide))
        (ui_size 520 460)
        (want wide (cadddr (rect "MSG")))
        (ui_click "Cancel")))))

(test "Lisp moves controls in one go"
  '((in-growing nil
      '((want nil (wex_start_controlmove 2))
        (wex_movecontrol "OK" 5 6 70 20)
        (wex_movecontrol "Cancel" 100.9 6.0 70.5 20)
        (want T (not (equal '(5 6 70 20) (rect "OK"))))
        (wex_end_controlmove)
        (want '(5 6 70 20) (rect "OK"))
        (want '(100 6 70 20) (rect "Cancel"))
        (wex_movecontrol "OK" 50 60 70 20)
        (wex_end_controlmove)
        (want '(5 6 70 20) (rect "OK"))
        (want nil (wex_movecontrol "OK" 1 2 3))
        (want nil (wex_movecontrol "nobody" 1 2 3 4))
        (ui_click "Cancel")))))

(test "Without a dialog, and with arguments missing, nothing happens"
  '((foreach call '((wex_setresizing "A" 1) (wex_setresizing "A") (wex_setminresizing 10 10) (wex_setminresizing 10)
                    (wex_setmaxresizing 10 10) (wex_start_controlmove 1) (wex_movecontrol "A" 1 2 3 4) (wex_end_controlmove))
      (want nil (eval call)))
    (want nil (ui_alerts))))
