; Dialogs that grow: anchors, limits, the remembered size, labels, and controls moved by Lisp.

(defun rect (tile) (cdr (assoc "rect" (ui_look tile))))
(defun note (what) (setq notes (append notes (list what))))
(defun window () (cdr (assoc "rect" (ui_look))))
(defun window-size () (cddr (window)))
(defun client-height () (cadr (cdr (assoc "client" (ui_look)))))
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

(test "The grip sizes the dialog within its limits"
  '((ui_session "ADD_REC"
      '((wex_setmaxresizing 700 600)
        ; A grip has its place from the next paint or size on.
        (ui_size 530 470)
        (want T (stringp (catch-error (ui_drag "GRIP" 10 10))))
        (wex_setminresizing 400 300)
        (ui_size 520 460)
        (ui_drag "GRIP" 30 20)
        (want '(550 480) (window-size))
        (ui_drag "GRIP" 400 400)
        (want '(700 600) (window-size))
        (wex_setmaxresizing 600 500)
        (ui_drag "GRIP" 0 0)
        (want '(600 500) (window-size))
        (ui_drag "GRIP" -500 -400)
        (want '(400 300) (window-size))
        (wex_setminresizing 10 10)
        (ui_drag "GRIP" -500 -400)
        (want '(50 50) (window-size))
        (ui_size 520 460)
        (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_start_dialog)))

; The colors of a tile's lower edge.
(defun lower-edge (tile / size)
  (setq size (cddr (rect tile)))
  (mapcar '(lambda (x) (ui_pixel tile x (1- (cadr size)))) (range (car size))))

(test "The grip leaves a button as it is whose corner stands in its place"
  '((in-growing '(wex_setresizing "HELP" 75)
      '((wex_mode_tile "MSG" 6)
        (want (lower-edge "Cancel") (lower-edge "HELP"))
        (ui_click "Cancel")))))

(test "A code turns the grip on for the whole dialog, whichever tile it is for, also while the dialog runs"
  '((ui_session "ADD_REC"
      '((wex_setresizing "nobody" 1) (ui_size 520 460) (ui_drag "GRIP" 30 20) (want '(550 480) (window-size))
        (ui_size 520 460) (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_start_dialog)))

(test "Whichever border is dragged too far in, right and bottom give way"
  '((ui_session "DISP_LOCS_ON_DWG"
      '((ui_size 500 400)
        (setq before (window))
        (ui_drag "LEFT" 300 0)
        (want (list (+ (car before) 300) (cadr before) 350 400) (window))
        (ui_drag "TOP" 0 200)
        (want (list (+ (car before) 300) (+ (cadr before) 200) 350 280) (window))
        (ui_drag "RIGHT" 100 0)
        (want (+ 350 100) (car (window-size)))
        (ui_drag "BOTTOM" 0 -500)
        (want 280 (cadr (window-size)))
        (ui_click "Cancel")))
    (wex_new_dialog "DISP_LOCS_ON_DWG")
    (wex_setminresizing 350 280)
    (wex_start_dialog)))

(test "The lower limit of the height counts at the start in a window that is narrower than it, together with its top"
  '((in-growing nil '((ui_size 520 460) (ui_click "Cancel")))
    (ui_session "ADD_REC"
      '((want (list 520 (+ (cadr (window)) 600)) (window-size)) (ui_size 520 460) (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_setminresizing 60 600)
    (wex_start_dialog)
    ; Wider than that height: the window may be lower than its limit.
    (ui_session "ADD_REC" '((want '(520 460) (window-size)) (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_setminresizing 60 500)
    (wex_start_dialog)))

(test "A tile with the vertical centre jumps at the first layout"
  '((in-growing '(progn (wex_setresizing "ASMB" 300) (wex_setresizing "CAT" 150))
      '((setq asmb (rect "ASMB") cat (rect "CAT"))
        (ui_size 520 560)
        (want 50 (- (cadr (rect "ASMB")) (cadr asmb)))
        (ui_size 620 560)
        (want 50 (- (car (rect "CAT")) (car cat)))
        (ui_click "Cancel")))
    ; No other test sizes this dialog, so the first layout is the one that the session causes.
    (ui_session "SET_PASSPWR"
      '((setq size (window-size) key (rect tile) height (client-height) middle (/ (cadddr key) 2))
        (ui_size (1+ (car size)) (cadr size))
        (want (- (/ height 2) middle (- height middle (cadr key) (cadddr key))) (cadr (rect tile)))
        (ui_size (car size) (cadr size))
        (ui_click "Cancel")))
    (setq tile "PASS2")
    (wex_new_dialog "SET_PASSPWR")
    (wex_setresizing tile 300)
    (wex_start_dialog)))

(test "A code of -1 that is set while the dialog runs holds the tile where it is"
  '((in-growing '(wex_setresizing "DESC" 25)
      '((setq desc (rect "DESC"))
        (wex_setresizing "DESC" -1)
        (ui_size 620 460)
        (want desc (rect "DESC"))
        (ui_click "Cancel")))))

(test "The size action runs at the start when the stored size is another, after the start action"
  '((setq notes nil)
    (in-growing '(wex_setresizing "DESC" 25) '((ui_click "Cancel")))
    (ui_session "ADD_REC" '((ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_setresizing "DESC" 25)
    (wex_setaction_oninit "(note 'init)")
    (wex_setaction_onsize "(note 'size)")
    (wex_start_dialog)
    (want '(init size) notes)))

(test "The size action may end the dialog, and may run another"
  '((setq notes nil)
    (ui_session "ADD_REC" '((ui_size 540 470)))
    (wex_new_dialog "ADD_REC")
    (wex_setaction_onsize "(wex_done_dialog 6)")
    (want 6 (wex_start_dialog))
    (ui_session "ADD_REC" '((ui_size 520 460) (want '(540 470) (window-size)) (ui_click "Cancel")))
    (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (wex_new_dialog "ADD_REC")
    (wex_setaction_onsize
      "(cond ((null notes) (note 'once) (wex_new_dialog \"CONFIRM_DELREC\") (wex_start_dialog) (ui_size 540 470)))")
    (want -1 (wex_start_dialog))))

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

(test "A layout takes a moved control back by its anchors; a label that Lisp moves fits its height"
  '((in-growing '(progn (wex_setresizing "OK" 75)
                        (wex_set_tile "MSG" "one two three four five six seven eight nine ten eleven twelve"))
      '((setq ok (rect "OK"))
        (wex_start_controlmove 2)
        (wex_movecontrol "OK" 5 6 70 20)
        (wex_movecontrol "MSG" 10 300 80 10)
        (wex_end_controlmove)
        (want T (> (cadddr (rect "MSG")) 20))
        (ui_size 530 460)
        (want (plus '(10 0 0 0) ok) (rect "OK"))
        (ui_click "Cancel")))))

(test "Without a dialog, and with arguments missing, nothing happens"
  '((foreach call '((wex_setresizing "A" 1) (wex_setresizing "A") (wex_setminresizing 10 10) (wex_setminresizing 10)
                    (wex_setmaxresizing 10 10) (wex_start_controlmove 1) (wex_movecontrol "A" 1 2 3 4) (wex_end_controlmove))
      (want nil (eval call)))
    (want nil (ui_alerts))))
