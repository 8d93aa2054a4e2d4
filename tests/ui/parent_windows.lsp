; To which window a dialog and a message box belong, and what else the host may ask of the plug-in.
(host_warn nil)  ; what the functions refuse is tried on purpose

(host_load_plugin "build/windows/tests/testplugin.pgx")
(setq frame "WexHost - Drawing1")
(defun owner () (cdr (assoc "owner" (ui_look))))
(defun box-owner () (wex_alert "text") (cdr (assoc "owner" (ui_box))))

; Runs a dialog that tells in `owners` to whom it belongs; the form is evaluated in it.
(defun open-dialog (name form)
  (ui_session name (list '(setq owners (cons (owner) owners)) form '(ui_click "Cancel")))
  (wex_new_dialog name)
  (wex_start_dialog))

(defun owners-of (form) (setq owners nil) (eval form) (reverse owners))

(test "The first dialog belongs to the main frame, a nested one to the one that runs"
  '((want (list frame "Add Catalog Record" "Delete Record")
          (owners-of '(open-dialog "ADD_REC" '(open-dialog "CONFIRM_DELREC" '(open-dialog "EDIT_REC" nil)))))))

(test "A dialog that is made and not started is passed over for the one before it"
  '((want (list frame "Add Catalog Record")
          (owners-of '(open-dialog "ADD_REC"
                        '(progn (wex_new_dialog "EDIT_REC")
                                (t_window "other_window" "In front")
                                (want "Add Catalog Record" (box-owner))
                                (t_window)
                                (open-dialog "CONFIRM_DELREC" nil)
                                ; EDIT_REC is current again, and runs now.
                                (ui_session "EDIT_REC" '((ui_click "Cancel")))
                                (wex_start_dialog)))))
    ; With nothing else to belong to, it is the active window.
    (wex_new_dialog "ADD_REC")
    (t_window "other_window" "In front")
    (want "In front" (box-owner))
    (t_window)
    (want (list frame) (owners-of '(open-dialog "CONFIRM_DELREC" nil)))
    (ui_session "ADD_REC" '((ui_click "Cancel")))
    (wex_start_dialog)))

(test "A dialog of the host's own that is active owns what opens, known by how its class begins"
  '((t_window "marlo_dlg_of_the_host" "Host's dialog")
    (want "Host's dialog" (box-owner))
    (want (list "Host's dialog") (owners-of '(open-dialog "CONFIRM_DELREC" nil)))
    (t_window "Marlo_dlg_of_another_case" "Not the host's")
    (want frame (box-owner))
    (t_window)))

(test "A dialog that is enabled comes to the front, and one that is disabled doesn't"
  '((ui_session "ADD_REC"
      '((wex_mode_tile "CAT" 2)
        (t_window "other_window" "In front")
        (wex_enable_dialog 0)
        (want nil (cdr (assoc "focus" (ui_look "CAT"))))
        (wex_enable_dialog 5)
        (want T (cdr (assoc "focus" (ui_look "CAT"))))
        (t_window)
        (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_start_dialog)))

(test "A message box shows the product's title and the icon of its code"
  '((foreach row '((1 "exclamation") (2 "information") (3 "question") (4 "stop") (0 nil) (5 nil) ("1" nil))
      (wex_alert "text" (car row))
      (want (cadr row) (cdr (assoc "icon" (ui_box))))
      (want "Message" (cdr (assoc "title" (ui_box)))))
    (wex_alert "text")
    (want nil (cdr (assoc "icon" (ui_box))))))

(test "Messages that mean nothing to the plug-in are answered with success and change nothing"
  '((foreach message '(0 6 7 8 9 10 11 12 13 14 15 16 99 -1) (want 0 (t_send "WexDialogs.pgx" message)))
    (want (list frame) (owners-of '(open-dialog "CONFIRM_DELREC" nil)))))
