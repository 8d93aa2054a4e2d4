; How a dialog is opened, ends and tells its status; how dialogs nest.
(host_warn nil)  ; what the functions refuse is tried on purpose

(defun run-with (session) (run-dialog "CONFIRM_DELREC" nil session))
(defun status-of (action) (run-dialog "CONFIRM_DELREC" '(wex_action_tile "OK" action) '((ui_click "OK"))))

(test "OK, Cancel, Esc and the close box without actions all give -1"
  '((want -1 (run-with '((ui_click "OK"))))
    (want -1 (run-with '((ui_click "Cancel"))))
    (want -1 (run-with '((ui_key "ESC"))))
    (want -1 (run-with '((ui_key "ENTER"))))
    (want -1 (run-with '((ui_close))))))

(test "wex_done_dialog gives its number, and 0 for anything that is none"
  '((want 7 (status-of "(wex_done_dialog 7)"))
    (want -3 (status-of "(wex_done_dialog -3)"))
    (want 0 (status-of "(wex_done_dialog)"))
    (want 0 (status-of "(wex_done_dialog \"x\")"))
    (want 0 (status-of "(wex_done_dialog 2.5)"))
    (want 2 (status-of "(wex_done_dialog 1) (wex_done_dialog 2)"))
    (want 5 (status-of "(setq done (wex_done_dialog 5)) (setq went-on T)"))
    (want nil done)
    (want T went-on)))

(test "An old status is not given again"
  '((want 7 (status-of "(wex_done_dialog 7)"))
    (want -1 (run-with '((ui_click "OK"))))
    (wex_done_dialog 9)
    (want -1 (run-with '((ui_click "Cancel"))))))

(test "Cancel with an action ends the dialog before the action runs, which may still give a status"
  '((want -1 (run-dialog "CONFIRM_DELREC" '(wex_action_tile "Cancel" "(note $key)") '((ui_click "Cancel"))))
    (want '("cancel") notes)
    (want 4 (run-dialog "CONFIRM_DELREC" '(wex_action_tile "Cancel" "(wex_done_dialog 4)") '((ui_key "ESC"))))))

(test "A dialog that its start action ends never shows"
  '((wex_new_dialog "CONFIRM_DELREC")
    (wex_setaction_oninit "(wex_done_dialog 3)")
    (want 3 (wex_start_dialog))
    (want nil (ui_dialogs))))

(test "Nested dialogs: the outer one is current again when the inner one has ended"
  '((ui_session "CONFIRM_DELREC" '((want 2 (length (ui_dialogs))) (ui_click "OK")))
    (want -1 (in-dialog "ADD_REC"
      '(wex_action_tile "HELP"
         "(wex_set_tile \"DESC\" \"before\")
          (wex_new_dialog \"CONFIRM_DELREC\")
          (note (wex_start_dialog))
          (wex_set_tile \"DESC\" (strcat (wex_get_tile \"DESC\") \" and after\"))
          (note (wex_get_tile \"DESC\"))")
      '((ui_click "HELP"))))
    (want '(-1 "before and after") notes)
    (want nil (wex_get_tile "DESC"))))

(setq depth 0)
(defun open-deeper ()
  (setq depth (1+ depth))
  (cond ((< depth 50) (status-of "(open-deeper) (wex_done_dialog depth)"))
        (T (setq titles (length (ui_dialogs))))))

; By the session itself, without an action between.
(defun step-deeper ()
  (setq depth (1+ depth))
  (if (< depth 50) (run-dialog "CONFIRM_DELREC" nil '((step-deeper) (ui_click "OK")))
                   (setq titles (length (ui_dialogs)))))

(test "Actions, and steps of sessions, open dialogs fifty deep, and each comes back"
  '((setq depth 0)
    (want 50 (open-deeper))
    (want 49 titles)
    (setq depth 0)
    (step-deeper)
    (want 50 depth)
    (want 49 titles)
    (want nil (ui_dialogs))))

(test "A dialog that is made and never started lies in front of the one that runs"
  '((want -1 (in-dialog "ADD_REC"
      '(wex_action_tile "HELP" "(wex_new_dialog \"CONFIRM_DELREC\") (note (wex_get_tile \"DESC\"))")
      '((ui_click "HELP"))))
    (want '(nil) notes)
    ; The one that ran stays in the list and can run again.
    (ui_session "ADD_REC" '((ui_click "OK")))
    (want -1 (wex_start_dialog))
    (want nil (wex_start_dialog))))

(test "A running dialog is not started a second time"
  '((want 6 (status-of "(note (wex_start_dialog)) (wex_done_dialog 6)"))
    (want '(nil) notes)))

(test "A start from an event that comes while the dialog is taken down changes nothing"
  '((want 1 (run-dialog "ADD_REC"
      '(progn (wex_action_tile "OK" "(wex_done_dialog 1) (wex_mode_tile \"DESC\" 2)")
              (wex_action_tile "DESC" "(note (wex_start_dialog))"))
      '((ui_click "OK"))))
    (want '(nil) notes)))

(test "A dialog that runs again starts like the first time, on its new controls"
  '((in-dialog "ADD_REC"
      '(progn (wex_setaction_oninit "(note 'init)")
              (wex_setaction_onsize "(note 'size)")
              (wex_action_tile "HELP" "(wex_new_dialog \"CONFIRM_DELREC\")"))
      '((ui_click "HELP")))
    (want '(INIT) notes)
    (wex_mode_tile "Cancel" 1)
    (ui_session "ADD_REC" '((want nil (look "Cancel" "enabled")) (ui_size 600 500) (ui_click "OK")))
    (want -1 (wex_start_dialog))
    (want '(INIT INIT SIZE) notes)))

(test "What is said of a dialog between two runs counts in the second, which lays its tiles out anew"
  '((in-dialog "PICK_DWGS"
      '(progn (wex_listctrl_setcolumns "LST1" "x\tName") (wex_setresizing "LST1" 63))
      '((ui_size 700 500)
        (setq grown (look "LST1" "rect"))
        (fill "LST1" '("gone"))
        (wex_new_dialog "PICK_DWGS")))
    (fill "LST1" '("one" "two"))
    (ui_session "PICK_DWGS"
      '((want '("one" "two") (ui_items "LST1")) (want grown (look "LST1" "rect")) (ui_click "Cancel")))
    (want -1 (wex_start_dialog))))

(test "The name given last counts at each start: a dialog that waited behind another has lost its actions, and has the other's size"
  '((foreach name '("ADD_REC" "CONFIRM_DELREC")
      (wex_new_dialog name)
      (wex_setresizing "OK" 0)
      (wex_action_tile "Cancel" "(note $key)"))
    (ui_session "CONFIRM_DELREC" '((ui_size 430 270) (ui_click "Cancel")))
    (wex_start_dialog)
    (ui_session "ADD_REC" '((note (cdddr (assoc "rect" (ui_look)))) (ui_click "Cancel")))
    (wex_start_dialog)
    (want '("cancel" (430 270)) notes)))

(test "A point moves nothing, and a name of another type stands for the last one"
  '((want T (wex_new_dialog "CONFIRM_DELREC" (list 10.0 20.0)))
    (want T (wex_new_dialog 5))
    (foreach dialog '(2 1)
      (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
      (want -1 (wex_start_dialog)))))
