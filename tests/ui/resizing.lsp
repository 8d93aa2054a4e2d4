; Dialogs that grow: anchors, limits, the remembered size, labels, and controls moved by Lisp.
(host_warn nil)  ; what the functions refuse is tried on purpose

(defun rect (tile) (look tile "rect"))
(defun height-of (tile) (cadddr (rect tile)))
(defun window () (cdr (assoc "rect" (ui_look))))
(defun window-size () (cddr (window)))
(defun plus (change rectangle) (mapcar '+ rectangle change))

; ADD_REC grown to a size of its own, so that what an earlier run stored doesn't matter.
(defun in-growing (prepared session)
  (in-dialog "ADD_REC" prepared (cons '(ui_size 520 460) session)))

(test "Anchored controls follow the edges, and the others stay; a code of -1 holds a tile where it is"
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
        (wex_setresizing "DESC" -1)
        (ui_size 620 460)
        (want desc (rect "DESC"))))))

(test "A code that is set while the dialog runs has no effect, and codes of the start action count"
  '((in-growing '(progn (wex_setminresizing 60 60) (wex_setaction_oninit "(wex_setresizing \"DESC\" 25)"))
      '((setq desc (rect "DESC") asmb (rect "ASMB"))
        (wex_setresizing "ASMB" 25)
        (ui_size 620 460)
        (want (plus '(0 0 100 0) desc) (rect "DESC"))
        (want asmb (rect "ASMB"))))))

(test "A resizable dialog comes back in the size in which it went; the size action then runs, after the start action"
  '((in-growing '(wex_setresizing "DESC" 25) '((ui_size 640 480)))
    (in-dialog "ADD_REC"
      '(progn (wex_setresizing "DESC" 25)
              (wex_setaction_oninit "(note 'init)")
              (wex_setaction_onsize "(note (caddr (rect \"DESC\")))"))
      '((setq desc (rect "DESC"))
        (want (list 'init (caddr desc)) notes)
        (ui_size 640 480)
        (want desc (rect "DESC"))
        ; It sees the controls where the layout put them.
        (ui_size 740 480)
        (want (+ 100 (caddr desc)) (last notes))))))

(test "A label grows to the lines that its text needs, at the end of the layout"
  '((in-growing '(progn (wex_setresizing "MSG" 25)
                        (wex_set_tile "MSG" "one two three four five six seven eight nine ten eleven twelve thirteen fourteen fifteen sixteen"))
      '((setq wide (height-of "MSG"))
        (ui_size 220 460)
        (want T (> (height-of "MSG") wide))
        (ui_size 520 460)
        (want wide (height-of "MSG"))))))

; The colors on the diagonal of the square in the dialog's lower right corner, where a grip is.
(defun corner ( / ok client)
  (setq ok (rect "OK") client (cdr (assoc "client" (ui_look))))
  (mapcar '(lambda (in) (ui_pixel "OK" (- (car client) in (car ok)) (- (cadr client) in (cadr ok)))) (range 1 14)))

(test "The grip shows, and sizes the dialog within its limits"
  '((in-dialog "ADD_REC" nil
      '((wex_setmaxresizing 700 600)
        ; A grip has its place from the next paint or size on.
        (ui_size 530 470)
        (want T (stringp (catch-error (ui_drag "GRIP" 10 10))))
        (setq without (corner))
        (want 1 (length (unique without)))
        (wex_setminresizing 400 300)
        (ui_size 520 460)
        (want nil (equal without (corner)))
        (foreach row '((30 20 (550 480)) (400 400 (700 600)) (-500 -400 (400 300)))
          (ui_drag "GRIP" (car row) (cadr row))
          (want (caddr row) (window-size)))
        (ui_drag "GRIP" 400 400)
        (wex_setmaxresizing 600 500)
        (ui_drag "GRIP" 0 0)
        (want '(600 500) (window-size))
        (wex_setminresizing 10 10)
        (ui_drag "GRIP" -600 -500)
        (want '(50 50) (window-size))
        (ui_size 520 460)))))

; The colors of a tile's lower edge.
(defun lower-edge (tile / size)
  (setq size (cddr (rect tile)))
  (mapcar '(lambda (x) (ui_pixel tile x (1- (cadr size)))) (range (car size))))

(test "The grip leaves a button as it is whose corner stands in its place"
  '((in-growing '(wex_setresizing "HELP" 75)
      '((wex_mode_tile "MSG" 6) (want (lower-edge "Cancel") (lower-edge "HELP"))))))

(test "A code turns the grip on for the whole dialog, whichever tile it is for, also while the dialog runs"
  '((in-dialog "ADD_REC" nil
      '((wex_setresizing "nobody" 1) (ui_size 520 460) (ui_drag "GRIP" 30 20) (want '(550 480) (window-size))
        (ui_size 520 460)))))

(test "Whichever border is dragged too far in, right and bottom give way"
  '((in-dialog "DISP_LOCS_ON_DWG" '(wex_setminresizing 350 280)
      '((ui_size 500 400)
        (setq before (window))
        (foreach row '(("LEFT" 300 0 (300 0 -150 0)) ("TOP" 0 200 (300 200 -150 -120))
                       ("RIGHT" 100 0 (300 200 -50 -120)) ("BOTTOM" 0 -500 (300 200 -50 -120)))
          (apply 'ui_drag (list (car row) (cadr row) (caddr row)))
          (want (plus (cadddr row) before) (window)))))))

(test "The lower limit of the height counts at the start in a window that is narrower than it, together with its top"
  '((in-dialog "ADD_REC" nil '((ui_size 530 460)))  ; a size is stored of each dialog
    (in-dialog "ADD_REC" '(wex_setminresizing 60 600)
      '((want (list 530 (+ (cadr (window)) 600)) (window-size)) (ui_size 520 460)))
    ; Wider than that height: the window may be lower than its limit.
    (in-dialog "ADD_REC" '(wex_setminresizing 60 500) '((want '(520 460) (window-size))))))

(test "A tile with the vertical centre jumps at the first layout"
  '((in-growing '(progn (wex_setresizing "ASMB" 300) (wex_setresizing "CAT" 150))
      '((setq asmb (rect "ASMB") cat (rect "CAT"))
        (ui_size 520 560)
        (want (plus '(0 50 0 0) asmb) (rect "ASMB"))
        (ui_size 620 560)
        (want (plus '(50 0 0 0) cat) (rect "CAT"))))
    ; No other test sizes this dialog, so the first layout is the one that the session causes.
    (in-dialog "SET_PASSPWR" '(wex_setresizing "PASS2" 300)
      '((setq size (window-size) key (rect "PASS2") middle (/ (cadddr key) 2) height (caddr (assoc "client" (ui_look))))
        (ui_size (1+ (car size)) (cadr size))
        (want (- (/ height 2) middle (- height middle (cadr key) (cadddr key))) (cadr (rect "PASS2")))
        (ui_size (car size) (cadr size))))))

(test "The size action may end the dialog, and may run another"
  '((want 6 (run-dialog "ADD_REC" '(wex_setaction_onsize "(wex_done_dialog 6)") '((ui_size 540 470))))
    (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (want -1 (in-dialog "ADD_REC"
      '(wex_setaction_onsize
         "(cond ((null notes) (note 'once) (wex_new_dialog \"CONFIRM_DELREC\") (wex_start_dialog) (ui_size 540 470)))")
      '((ui_size 520 460) (want '(540 470) (window-size)))))))

(test "Lisp moves controls in one go; a label fits its height, and a layout takes the others back by their anchors"
  '((in-growing '(progn (wex_setresizing "Cancel" 75)
                        (wex_set_tile "MSG" "one two three four five six seven eight nine ten eleven twelve"))
      '((setq ok (rect "OK") cancel (rect "Cancel"))
        (want nil (wex_start_controlmove 3.5))
        (wex_movecontrol "OK" 5 6 70 20)
        (wex_movecontrol "Cancel" 100.9 6.0 70.5 20)
        (wex_movecontrol "MSG" 10 300 80 10)
        (wex_movecontrol "HELP" "1" 2 3 4)
        (want ok (rect "OK"))
        (setq help (rect "HELP"))
        (wex_end_controlmove)
        (want '(5 6 70 20) (rect "OK"))
        (want '(100 6 70 20) (rect "Cancel"))
        (want help (rect "HELP"))
        (want T (> (height-of "MSG") 20))
        (wex_movecontrol "OK" 50 60 70 20)
        (wex_end_controlmove)
        (want '(5 6 70 20) (rect "OK"))
        (want nil (wex_movecontrol "OK" 1 2 3))
        (want nil (wex_movecontrol "nobody" 1 2 3 4))
        (ui_size 530 460)
        (want (plus '(10 0 0 0) cancel) (rect "Cancel"))))))
