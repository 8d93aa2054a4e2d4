; Edit boxes that take distances and angles: what can be typed, and what becomes of it when the person leaves the box.

(defun note (what) (setq notes (append notes (list what))))

; Runs ADD_REC with DESC in a notation; `session` begins with the focus elsewhere.
(defun with-box (set-as unit precision session)
  (setq notes nil)
  (ui_session "ADD_REC" session)
  (wex_new_dialog "ADD_REC")
  (wex_mode_tile "ASMB" 2)
  (wex_action_tile "DESC" "(note $value)")
  (wex_setaction_oninit
    (strcat "(setq answer (" set-as " \"DESC\" " (itoa unit) " " (itoa precision) "))"))
  (wex_start_dialog))

(test "A distance is shown in the host's form when the box is left, and Lisp sees what was typed"
  '((with-box "wex_edit_setasnumeric" 4 4
      '((ui_type "DESC" "1'6-1/2") (ui_click "ASMB") (want "1'-6 1/2\"" (ui_text "DESC")) (ui_click "Cancel")))
    (want nil answer)
    (want '("1'6-1/2") notes)))

(test "What can't be typed is refused; what can't be read gives way to the last good text"
  '((with-box "wex_edit_setasnumeric" 2 2
      '((wex_set_tile "DESC" "12")
        (ui_type "DESC" "1x-y2")
        (want "1-2" (ui_text "DESC"))
        (ui_click "ASMB")
        (want "12" (ui_text "DESC"))
        (ui_click "Cancel")))
    (want '("1-2") notes)))

(test "A fraction is typed with a dash and shown with a blank"
  '((with-box "wex_edit_setasnumeric" 5 2
      '((ui_type "DESC" "17 -1/2") (ui_click "ASMB") (want "17 1/2" (ui_text "DESC")) (ui_click "Cancel")))))

(test "An empty box that is left shows zero; one that is only visited is rewritten too"
  '((with-box "wex_edit_setasnumeric" 2 4
      '((ui_click "DESC") (ui_click "ASMB") (want "0.0000" (ui_text "DESC"))
        (wex_set_tile "DESC" "7") (want "7" (ui_text "DESC"))
        (ui_click "DESC") (ui_click "ASMB") (want "7.0000" (ui_text "DESC"))
        (ui_click "Cancel")))
    (want '("" "7") notes)))

(test "The Enter key presses OK, which takes the focus, so that the text is told and rewritten before"
  '((setq notes nil)
    (ui_session "ADD_REC"
      '((ui_type "DESC" "2.5")
        (ui_key "ENTER")
        (want '("2.5" "2.50") notes)
        (ui_click "ASMB")
        (want '("2.5" "2.50") notes)
        (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_setaction_oninit "(wex_edit_setasnumeric \"DESC\" 2 2)")
    (wex_action_tile "DESC" "(note $value)")
    (wex_action_tile "OK" "(note (wex_get_tile \"DESC\"))")
    (wex_start_dialog)))

(test "Angles: a bearing with blanks and letters of either case"
  '((with-box "wex_edit_setasangular" 5 4
      '((ui_type "DESC" "n 45d e") (ui_click "ASMB") (want "N 45d0'0\" E" (ui_text "DESC")) (ui_click "Cancel")))))

(test "A code outside the table leaves the box unfiltered, and the host refuses it"
  '((with-box "wex_edit_setasnumeric" 6 2
      '((wex_set_tile "DESC" "kept") (ui_type "DESC" "abc") (want "abc" (ui_text "DESC"))
        (ui_click "ASMB") (want "kept" (ui_text "DESC")) (ui_click "Cancel")))))

(test "Before the run there is no box to set, and other tiles are none"
  '((ui_session "ADD_REC"
      '((want nil (wex_edit_setasnumeric "KEEP" 2 2))
        (want nil (wex_edit_setasnumeric "DESC" 2))
        (ui_type "DESC" "abc")
        (want "abc" (ui_text "DESC"))
        (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (want nil (wex_edit_setasnumeric "DESC" 2 2))
    (wex_start_dialog)))

(test "A limit that was set before the run limits typing and what mode 3 selects; a live one limits typing alone"
  '((ui_session "ADD_REC"
      '((ui_type "DESC" "1234567")
        (want "12345" (ui_text "DESC"))
        (wex_edit_seteditlimit "DESC" 8)
        (wex_set_tile "DESC" "1234567")
        (wex_mode_tile "DESC" 2)
        (wex_mode_tile "DESC" 3)
        (ui_key "X")
        (want "X67" (strcase (ui_text "DESC")))
        (want nil (wex_edit_seteditlimit "DESC" "3"))
        (ui_type "DESC" "123456789")
        (want "12345678" (ui_text "DESC"))
        (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (want nil (wex_edit_seteditlimit "DESC"))
    (want nil (wex_edit_seteditlimit "DESC" 5))
    (wex_start_dialog)))

(defun focused (tile) (cdr (assoc "focus" (ui_look tile))))

(test "The Esc character brings the last good text back; the box keeps the focus, and still has its end to tell"
  '((with-box "wex_edit_setasnumeric" 2 2
      '((wex_set_tile "DESC" "12")
        (ui_click "DESC")
        (ui_char "3\e")
        (want "12" (ui_text "DESC"))
        (want T (focused "DESC"))
        (want nil notes)
        (ui_click "ASMB")
        (want "12.00" (ui_text "DESC"))
        (ui_type "ASMB" "plain")
        (ui_char "\e")
        (want "" (ui_text "ASMB"))
        (ui_click "Cancel")))
    (want '("12") notes)))

(test "The Enter character ends the editing at once; what comes later in the same visit isn't told"
  '((with-box "wex_edit_setasnumeric" 2 2
      '((ui_type "DESC" "2.5")
        (ui_char "\r")
        (want "2.50" (ui_text "DESC"))
        (want '("2.5") notes)
        (want T (focused "DESC"))
        (ui_type "DESC" "7")
        (ui_char "\r")
        (want "7" (ui_text "DESC"))
        (ui_char "\e")
        (want "2.50" (ui_text "DESC"))
        (ui_type "DESC" "7")
        (ui_click "ASMB")
        (want "7" (ui_text "DESC"))
        (ui_click "Cancel")))
    (want '("2.5") notes)))

(test "A box that wants Enter takes it as a new line, unless it takes numbers alone; Esc there only restores"
  '((setq notes nil)
    (ui_session "ODD_KINDS"
      '((ui_type "LINES" "12")
        (ui_char "\r")
        (want "12\r\n" (ui_text "LINES"))
        (want '("12") notes)
        (ui_char "\e")
        (want "" (ui_text "LINES"))
        (wex_edit_setasnumeric "LINES" 2 1)
        (ui_type "LINES" "5")
        (ui_char "\r")
        (want "5" (ui_text "LINES"))
        (ui_click "Cancel")))
    (wex_new_dialog "ODD_KINDS")
    (wex_action_tile "LINES" "(note $value)")
    (wex_start_dialog)))

(test "A filtered box refuses characters of the keyboard's Ctrl, and lets backspace through"
  '((with-box "wex_edit_setasnumeric" 2 2
      '((ui_type "DESC" "123")
        (ui_char (strcat "\t" (chr 3) (chr 22) (chr 24) (chr 8)))
        (want "12" (ui_text "DESC"))
        (ui_click "Cancel")))))

(test "A second notation takes the place of the first; a code without characters leaves those that hold"
  '((with-box "wex_edit_setasnumeric" 2 2
      '((wex_edit_setasangular "DESC" 4 3)
        (ui_type "DESC" "1.5r")
        (ui_click "ASMB")
        (want "1.500r" (ui_text "DESC"))
        (wex_edit_setasnumeric 122 "x" nil)
        (ui_type "DESC" "2e1r")
        (want "21r" (ui_text "DESC"))
        (ui_click "ASMB")
        (want "1.500r" (ui_text "DESC"))
        (ui_click "Cancel")))))

(test "What the action puts into its own box stays in a plain one, and gives way to what was read in others"
  '((setq put "(wex_set_tile \"DESC\" \"put\")")
    (ui_session "ADD_REC"
      '((ui_type "DESC" "1") (ui_click "ASMB") (want "put" (ui_text "DESC"))
        (wex_edit_setasnumeric "DESC" 2 1)
        (ui_type "DESC" "2") (ui_click "ASMB") (want "2.0" (ui_text "DESC"))
        (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_action_tile "DESC" put)
    (wex_start_dialog)))

; The action of DESC runs while the focus is on its way to ASMB.
(defun leaving (action session)
  (setq notes nil)
  (ui_session "ADD_REC" session)
  (wex_new_dialog "ADD_REC")
  (wex_setaction_oninit "(wex_edit_setasnumeric \"DESC\" 2 2)")
  (wex_action_tile "DESC" action)
  (wex_start_dialog))

(test "The action of a box that is left may run a dialog of its own, and the box is rewritten afterwards"
  '((ui_session "CONFIRM_DELREC" '((want 2 (length (ui_dialogs))) (ui_click "OK")))
    (want -1 (leaving "(wex_new_dialog \"CONFIRM_DELREC\") (note (wex_start_dialog)) (note $key)"
      '((ui_type "DESC" "3") (ui_click "ASMB") (want "3.00" (ui_text "DESC")) (ui_click "Cancel"))))
    (want '(-1 "desc") notes)))

(test "The action of a plain box may make it take numbers, and what was typed is then read as one"
  '((ui_session "ADD_REC"
      '((ui_type "ASMB" "3") (ui_click "DESC") (want "3.00" (ui_text "ASMB")) (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_action_tile "ASMB" "(wex_edit_setasnumeric \"ASMB\" 2 2)")
    (wex_start_dialog)))

(test "A box tells the key that it has in its own dialog, also when another one is current"
  '((leaving "(note $key)"
      '((ui_type "DESC" "3") (wex_new_dialog "CONFIRM_DELREC") (ui_click "ASMB") (want '("desc") notes)
        (progn (ui_session "CONFIRM_DELREC" '((ui_click "OK"))) (wex_start_dialog))
        (ui_click "Cancel")))))

(test "The action of a box that is left may end the dialog"
  '((want 5 (leaving "(note $value) (wex_done_dialog 5)" '((ui_type "DESC" "3") (ui_click "ASMB"))))
    (want '("3") notes)))

(test "The action of a box that is left may move the focus again, and a message box may come up"
  '((leaving "(wex_alert $value) (wex_mode_tile \"CAT\" 2)"
      '((ui_type "DESC" "3") (ui_click "ASMB") (want "3.00" (ui_text "DESC")) (ui_click "Cancel")))
    (want '("3") (ui_alerts))))

(test "The limit of a live box doesn't reach its record, and a tile that is no edit box has none"
  '((ui_session "ADD_REC"
      '((want nil (wex_edit_seteditlimit "DESC" 3))
        (ui_type "DESC" "12345")
        (want "123" (ui_text "DESC"))
        (wex_set_tile "DESC" "123456")
        (wex_mode_tile "DESC" 3)
        (ui_char "x")
        (want "x" (ui_text "DESC"))
        (want nil (wex_edit_seteditlimit "KEEP" 1))
        (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (wex_start_dialog)))
