; How a dialog is opened, ends and tells its status; how dialogs nest.

(defun run-with (session / status)
  (ui_session "CONFIRM_DELREC" session)
  (wex_new_dialog "CONFIRM_DELREC")
  (setq status (wex_start_dialog))
  status)

(test "A dialog is found whatever the case of its name"
  '((foreach name '("add_rec" "ADD_REC" "Add_Rec")
      (ui_session name '((ui_click "Cancel")))
      (want T (wex_new_dialog name))
      (want -1 (wex_start_dialog)))))

(test "OK, Cancel, Esc and the close box without actions all give -1"
  '((want -1 (run-with '((ui_click "OK"))))
    (want -1 (run-with '((ui_click "Cancel"))))
    (want -1 (run-with '((ui_key "ESC"))))
    (want -1 (run-with '((ui_key "ENTER"))))
    (want -1 (run-with '((ui_close))))))

(defun status-of (action)
  (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
  (wex_new_dialog "CONFIRM_DELREC")
  (wex_action_tile "OK" action)
  (wex_start_dialog))

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
  '((ui_session "CONFIRM_DELREC" '((ui_click "Cancel")))
    (wex_new_dialog "CONFIRM_DELREC")
    (wex_action_tile "Cancel" "(setq cancelled $key)")
    (want -1 (wex_start_dialog))
    (want "cancel" cancelled)
    (ui_session "CONFIRM_DELREC" '((ui_key "ESC")))
    (wex_new_dialog "CONFIRM_DELREC")
    (wex_action_tile "Cancel" "(wex_done_dialog 4)")
    (want 4 (wex_start_dialog))))

(test "A dialog that its start action ends never shows"
  '((wex_new_dialog "CONFIRM_DELREC")
    (wex_setaction_oninit "(wex_done_dialog 3)")
    (want 3 (wex_start_dialog))
    (want nil (ui_dialogs))))

(test "Nested dialogs: the outer one is current again when the inner one has ended"
  '((ui_session "ADD_REC" '((ui_click "HELP") (ui_click "Cancel")))
    (ui_session "CONFIRM_DELREC" '((want 2 (length (ui_dialogs))) (ui_click "OK")))
    (wex_new_dialog "ADD_REC")
    (wex_action_tile "HELP"
      "(wex_set_tile \"DESC\" \"before\")
       (wex_new_dialog \"CONFIRM_DELREC\")
       (setq inner (wex_start_dialog))
       (wex_set_tile \"DESC\" (strcat (wex_get_tile \"DESC\") \" and after\"))
       (setq outer (wex_get_tile \"DESC\"))")
    (want -1 (wex_start_dialog))
    (want -1 inner)
    (want "before and after" outer)
    (want nil (wex_get_tile "DESC"))))

(setq depth 0)
(defun open-deeper ()
  (setq depth (1+ depth))
  (cond ((< depth 8)
         (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
         (wex_new_dialog "CONFIRM_DELREC")
         (wex_action_tile "OK" "(open-deeper) (wex_done_dialog depth)")
         (wex_start_dialog))
        (T (setq titles (length (ui_dialogs))))))

(test "Actions open dialogs eight deep, and each comes back"
  '((setq depth 0)
    (want 8 (open-deeper))
    (want 7 titles)
    (want nil (ui_dialogs))))

(test "A dialog that is made and never started lies in front of the one that runs"
  '((ui_session "ADD_REC" '((ui_click "HELP") (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_action_tile "HELP" "(wex_new_dialog \"CONFIRM_DELREC\") (setq reached (wex_get_tile \"DESC\"))")
    (want -1 (wex_start_dialog))
    (want nil reached)
    ; The one that ran stays in the list and can run again.
    (ui_session "ADD_REC" '((ui_click "OK")))
    (want -1 (wex_start_dialog))
    (want nil (wex_start_dialog))))

(test "A running dialog is not started a second time"
  '((ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (wex_new_dialog "CONFIRM_DELREC")
    (wex_action_tile "OK" "(setq second (wex_start_dialog)) (wex_done_dialog 6)")
    (want 6 (wex_start_dialog))
    (want nil second)))

(test "A start from an event that comes while the dialog is taken down changes nothing"
  '((setq late 'none)
    (ui_session "ADD_REC" '((ui_click "OK")))
    (wex_new_dialog "ADD_REC")
    (wex_action_tile "OK" "(wex_done_dialog 1) (wex_mode_tile \"DESC\" 2)")
    (wex_action_tile "DESC" "(setq late (wex_start_dialog))")
    (want 1 (wex_start_dialog))
    (want nil late)))

(test "A dialog that runs again starts like the first time, on its new controls"
  '((setq notes nil)
    (defun note (what) (setq notes (append notes (list what))))
    (ui_session "ADD_REC" '((ui_click "HELP") (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_setaction_oninit "(note 'init)")
    (wex_setaction_onsize "(note 'size)")
    (wex_action_tile "HELP" "(wex_new_dialog \"CONFIRM_DELREC\")")
    (wex_start_dialog)
    (want '(INIT) notes)
    (wex_mode_tile "Cancel" 1)
    (ui_session "ADD_REC" '((want nil (cdr (assoc "enabled" (ui_look "Cancel")))) (ui_size 600 500) (ui_click "OK")))
    (want -1 (wex_start_dialog))
    (want '(INIT INIT SIZE) notes)))

(test "A point moves nothing, and a name of another type stands for the last one"
  '((want T (wex_new_dialog "CONFIRM_DELREC" (list 10.0 20.0)))
    (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (want -1 (wex_start_dialog))
    (want T (wex_new_dialog 5))
    (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (want -1 (wex_start_dialog))))
