; Edit boxes that take distances and angles: what can be typed, and what becomes of it when the person leaves the box.
(host_warn nil)  ; what the functions refuse is tried on purpose

; Runs ADD_REC with DESC in a notation, as in "numeric 2 2"; the focus is in ASMB, and the action of DESC notes its text.
(defun with-box (notation session / words)
  (setq words (string-split notation " "))
  (in-dialog "ADD_REC"
    '(progn (wex_mode_tile "ASMB" 2)
            (wex_action_tile "DESC" "(note $value)")
            (wex_setaction_oninit
              (strcat "(setq answer (wex_edit_setas" (car words) " \"DESC\" " (cadr words) " " (caddr words) "))")))
    session))

(test "A box that is left shows the host's form, and Lisp sees what was typed"
  '((foreach row '(("numeric 4 4" "1'6-1/2" "1'-6 1/2\"")
                   ("numeric 5 2" "17 -1/2" "17 1/2")
                   ("angular 5 4" "n 45d e" "N 45d0'0\" E"))
      (setq notes nil answer T typed (cadr row))
      (with-box (car row) '((ui_type "DESC" typed) (ui_click "ASMB") (want (caddr row) (ui_text "DESC"))))
      (want nil answer)
      (want 1 (length notes)))))

(test "What can't be typed is refused; what can't be read gives way to the last good text"
  '((with-box "numeric 2 2"
      '((wex_set_tile "DESC" "12")
        (ui_type "DESC" "1x-y2")
        (want "1-2" (ui_text "DESC"))
        (ui_click "ASMB")
        (want "12" (ui_text "DESC"))
        (want '("1-2") notes)
        (ui_type "DESC" "123")
        (ui_char (strcat "\t" (chr 3) (chr 22) (chr 24) (chr 8)))
        (want "12" (ui_text "DESC"))))))

(test "An empty box that is left shows zero; one that is only visited is rewritten too"
  '((with-box "numeric 2 4"
      '((ui_click "DESC") (ui_click "ASMB") (want "0.0000" (ui_text "DESC"))
        (wex_set_tile "DESC" "7") (want "7" (ui_text "DESC"))
        (ui_click "DESC") (ui_click "ASMB") (want "7.0000" (ui_text "DESC"))))
    (want '("" "7") notes)))

; The points of a box that aren't as its upper left ones are: its text.
(defun ink (box / blank)
  (setq blank (ui_pixel box 3 3))
  (length (remove-if '(lambda (x) (= (ui_pixel box x 10) blank)) (range 100))))

(test "Of texts set one after the other the last one stands, is read, and is shown when the loop turns"
  '((in-dialog "ADD_REC" nil
      '((setq empty (ink "DESC"))
        (progn (foreach text '("a" "b" "c") (wex_set_tile "DESC" text)) (want "c" (wex_get_tile "DESC")))
        (progn (foreach text '("d" "" "WWWW") (wex_set_tile "DESC" text)) (ui_char "e") (want "WWWW" (ui_text "DESC")))
        (foreach text '("WWWW" "MMMMMMMM" "") (wex_set_tile "DESC" text))
        (want empty (ink "DESC"))
        (foreach text '("" "" "MMMMMMMM") (wex_set_tile "DESC" text))
        (want T (< empty (ink "DESC")))))))

(test "The Enter key presses OK, which takes the focus, so that the text is told and rewritten before"
  '((in-dialog "ADD_REC"
      '(progn (wex_setaction_oninit "(wex_edit_setasnumeric \"DESC\" 2 2)")
              (wex_action_tile "DESC" "(note $value)")
              (wex_action_tile "OK" "(note (wex_get_tile \"DESC\"))"))
      '((ui_type "DESC" "2.5")
        (ui_key "ENTER")
        (want '("2.5" "2.50") notes)
        (ui_click "ASMB")
        (want '("2.5" "2.50") notes)))))

(test "A code outside the table leaves the box unfiltered, and the host refuses it"
  '((with-box "numeric 6 2"
      '((wex_set_tile "DESC" "kept") (ui_type "DESC" "abc") (want "abc" (ui_text "DESC"))
        (ui_click "ASMB") (want "kept" (ui_text "DESC"))))))

(test "Before the run there is no box to set, and other tiles are none"
  '((in-dialog "ADD_REC" '(want nil (wex_edit_setasnumeric "DESC" 2 2))
      '((want nil (wex_edit_setasnumeric "KEEP" 2 2))
        (want nil (wex_edit_setasnumeric "DESC" 2))
        (ui_type "DESC" "abc")
        (want "abc" (ui_text "DESC"))))))

(test "A limit that was set before the run limits typing and what mode 3 selects; a live one limits typing alone"
  '((in-dialog "ADD_REC"
      '(progn (want nil (wex_edit_seteditlimit "DESC")) (want nil (wex_edit_seteditlimit "DESC" 5)))
      '((ui_type "DESC" "1234567")
        (want "12345" (ui_text "DESC"))
        (want nil (wex_edit_seteditlimit "DESC" 8))
        (wex_set_tile "DESC" "1234567")
        (wex_mode_tile "DESC" 2)
        (wex_mode_tile "DESC" 3)
        (ui_char "x")
        (want "x67" (ui_text "DESC"))
        (want nil (wex_edit_seteditlimit "DESC" "3"))
        (ui_type "DESC" "123456789")
        (want "12345678" (ui_text "DESC"))
        (want nil (wex_edit_seteditlimit "KEEP" 1))
        ; Without a limit of its own mode 3 selects 36,000 characters, whatever was set live.
        (wex_edit_seteditlimit "ASMB" 3)
        (setq long "b")
        (repeat 1125 (setq long (strcat "0123456789abcdef0123456789abcdef" long)))
        (wex_set_tile "ASMB" long)
        (wex_mode_tile "ASMB" 2)
        (wex_mode_tile "ASMB" 3)
        (ui_char "x")
        (want "xb" (ui_text "ASMB"))))))

(test "The Esc character brings the last good text back; the box keeps the focus, and still has its end to tell"
  '((with-box "numeric 2 2"
      '((wex_set_tile "DESC" "12")
        (ui_click "DESC")
        (ui_char "3\e")
        (want "12" (ui_text "DESC"))
        (want T (look "DESC" "focus"))
        (want nil notes)
        (ui_click "ASMB")
        (want "12.00" (ui_text "DESC"))
        (ui_type "ASMB" "plain")
        (ui_char "\e")
        (want "" (ui_text "ASMB"))))
    (want '("12") notes)))

(test "The Enter character ends the editing at once; what comes later in the same visit isn't told"
  '((with-box "numeric 2 2"
      '((ui_type "DESC" "2.5")
        (ui_char "\r")
        (want "2.50" (ui_text "DESC"))
        (want '("2.5") notes)
        (want T (look "DESC" "focus"))
        (ui_type "DESC" "7")
        (ui_char "\r")
        (want "7" (ui_text "DESC"))
        (ui_char "\e")
        (want "2.50" (ui_text "DESC"))
        (ui_type "DESC" "7")
        (ui_click "ASMB")
        (want "7" (ui_text "DESC"))))
    (want '("2.5") notes)))

(test "A box that wants Enter takes it as a new line, unless it takes numbers alone; Esc there only restores"
  '((in-dialog "ODD_KINDS" '(wex_action_tile "LINES" "(note $value)")
      '((ui_type "LINES" "12")
        (ui_char "\r")
        (want "12\r\n" (ui_text "LINES"))
        (want '("12") notes)
        (ui_char "\e")
        (want "" (ui_text "LINES"))
        (wex_edit_setasnumeric "LINES" 2 1)
        (ui_type "LINES" "5")
        (ui_char "\r")
        (want "5" (ui_text "LINES"))))))

(test "A second notation takes the place of the first; a code without characters leaves those that hold"
  '((with-box "numeric 2 2"
      '((wex_edit_setasangular "DESC" 4 3)
        (ui_type "DESC" "1.5r")
        (ui_click "ASMB")
        (want "1.500r" (ui_text "DESC"))
        (wex_edit_setasnumeric 122 "x" nil)
        (ui_type "DESC" "2e1r")
        (want "21r" (ui_text "DESC"))
        (ui_click "ASMB")
        (want "1.500r" (ui_text "DESC"))))))

; The action of DESC, a box of decimals, runs while the focus is on its way to ASMB.
(defun leaving (action session)
  (run-dialog "ADD_REC"
    '(progn (wex_setaction_oninit "(wex_edit_setasnumeric \"DESC\" 2 2)") (wex_action_tile "DESC" action))
    (append '((ui_type "DESC" "3") (ui_click "ASMB")) session)))

(test "What the action puts into its own box stays in a plain one, and gives way to what was read in others"
  '((leaving "(wex_set_tile \"DESC\" \"put\")" '((want "3.00" (ui_text "DESC")) (ui_click "Cancel")))
    ; A box that its action makes one of numbers has its text read as one.
    (in-dialog "ADD_REC"
      '(progn (wex_action_tile "ASMB" "(wex_edit_setasnumeric \"ASMB\" 2 2)")
              (wex_action_tile "DESC" "(wex_set_tile \"DESC\" \"put\")"))
      '((ui_type "ASMB" "3") (ui_type "DESC" "1") (want "3.00" (ui_text "ASMB"))
        (ui_click "ASMB") (want "put" (ui_text "DESC"))))))

(test "The action of a box that is left may run a dialog of its own, and the box is rewritten afterwards"
  '((ui_session "CONFIRM_DELREC" '((want 2 (length (ui_dialogs))) (ui_click "OK")))
    (want -1 (leaving "(wex_new_dialog \"CONFIRM_DELREC\") (note (wex_start_dialog)) (note $key)"
      '((want "3.00" (ui_text "DESC")) (ui_click "Cancel"))))
    (want '(-1 "desc") notes)))

(test "A box tells the key that it has in its own dialog, also when another one is current"
  '((in-dialog "ADD_REC" '(wex_action_tile "DESC" "(note $key)")
      '((ui_type "DESC" "3") (wex_new_dialog "CONFIRM_DELREC") (ui_click "ASMB") (want '("desc") notes)
        (progn (ui_session "CONFIRM_DELREC" '((ui_click "OK"))) (wex_start_dialog))))))

(test "The action of a box that is left may end the dialog, and may move the focus again from behind a message box"
  '((want 5 (leaving "(note $value) (wex_done_dialog 5)" nil))
    (want '("3") notes)
    (leaving "(wex_alert $value) (wex_mode_tile \"CAT\" 2)" '((want "3.00" (ui_text "DESC")) (ui_click "Cancel")))
    (want '("3") (ui_alerts))))
