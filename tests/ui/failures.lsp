; What a Lisp program sees when something is wrong: never a crash, and the exact refusals.
(host_warn nil)  ; what the functions refuse is tried on purpose

(test "Functions without arguments show one alert and give no value"
  '((ui_alerts)
    (foreach name '(wex_new_dialog wex_action_tile wex_set_tile wex_get_tile wex_mode_tile wex_dimx_tile
                        wex_dimy_tile wex_alert wex_settitlebar wex_setaction_oninit wex_setaction_onsize
                        wex_start_list wex_add_list wex_edit_setasnumeric wex_edit_setasangular wex_edit_seteditlimit
                        wex_setresizing wex_setminresizing wex_setmaxresizing wex_start_controlmove wex_movecontrol)
      (want nil (apply name nil))
      (want 1 (length (ui_alerts))))
    (foreach name '(wex_start_dialog wex_done_dialog wex_enable_dialog wex_get_attr wex_load_dialog
                        wex_unload_dialog wex_end_list wex_end_controlmove)
      (want nil (apply name nil))
      (want nil (ui_alerts)))))

(test "An unknown name shows an alert and leaves no dialog current"
  '((want -1 (in-dialog "ADD_REC"
      '(wex_action_tile "HELP" "(note (wex_new_dialog \"NO_SUCH\")) (note (wex_get_tile \"DESC\"))")
      '((ui_click "HELP"))))
    (want '(nil nil) notes)
    (want 1 (length (ui_alerts)))
    (want nil (wex_new_dialog ""))
    (want 1 (length (ui_alerts)))))

(test "Without c:wex_loadlisp the dialog runs without its actions"
  '((setq kept c:wex_loadlisp)
    (setq c:wex_loadlisp nil)
    (want -1 (run-dialog "CONFIRM_DELREC" '(wex_action_tile "OK" "(note 'ran)") '((ui_click "OK") (ui_close))))
    (setq c:wex_loadlisp kept)
    ; What an earlier dialog of the name defined is still there.
    (want nil (member 'ran notes))))

(test "The event file is gone after the start, and its text is loaded once"
  '((setq kept c:wex_loadlisp)
    (defun c:wex_loadlisp (path) (note path) (load path))
    (want 1 (run-dialog "Confirm_DelRec" '(wex_action_tile "OK" "(wex_done_dialog 1)") '((ui_click "OK"))))
    (setq c:wex_loadlisp kept)
    (want 1 (length notes))
    (want T (wcmatch (car notes) "*Confirm_DelRecDlgEvents.lsp"))
    (want nil (findfile (car notes)))))

(test "The event file begins with the three bytes that mark it as UTF-8"
  '((setq kept c:wex_loadlisp)
    (defun c:wex_loadlisp (path / file characters)
      (setq file (open path "r") characters 0)
      (while (read-char file) (setq characters (1+ characters)))
      (close file)
      (note (- (file-size path) characters)))
    (run-dialog "CONFIRM_DELREC" '(wex_action_tile "OK" "(exit)") '((ui_close)))
    (setq c:wex_loadlisp kept)
    (want '(3) notes)))

(test "Two dialogs of one name without a start between them share one text"
  '((wex_new_dialog "CONFIRM_DELREC")
    (wex_action_tile "OK" "(wex_done_dialog 1)")
    (wex_new_dialog "CONFIRM_DELREC")
    (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (want -1 (wex_start_dialog))
    (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (want 1 (wex_start_dialog))))

(test "Actions that can't be written keep the dialog from running, and a later start tries again"
  '((setq kept c:wex_loadlisp)
    (defun c:wex_loadlisp (path) (setq event-file path) (load path))
    (in-dialog "CONFIRM_DELREC" nil nil)
    (setq c:wex_loadlisp kept)
    (make-folder event-file)
    (wex_new_dialog "CONFIRM_DELREC")
    (wex_action_tile "OK" "(wex_done_dialog 8)")
    (want nil (wex_start_dialog))
    (rename-file event-file (strcat event-file "." (itoa (ticks))))
    (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
    (want 8 (wex_start_dialog))))
