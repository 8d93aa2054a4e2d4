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

(test "An empty box that is left shows zero; one that is only visited is rewritten too"
  '((with-box "wex_edit_setasnumeric" 2 4
      '((ui_click "DESC") (ui_click "ASMB") (want "0.0000" (ui_text "DESC"))
        (wex_set_tile "DESC" "7") (want "7" (ui_text "DESC"))
        (ui_click "DESC") (ui_click "ASMB") (want "7.0000" (ui_text "DESC"))
        (ui_click "Cancel")))
    (want '("" "7") notes)))

(test "Enter rewrites the text and reports it once"
  '((with-box "wex_edit_setasnumeric" 2 2
      '((wex_action_tile "OK" "(princ)")
        (ui_type "DESC" "2.5") (ui_key "ENTER")))
    (want '("2.5") notes)))

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
        (want nil (wex_edit_seteditlimit "DESC" "9"))
        (ui_click "Cancel")))
    (wex_new_dialog "ADD_REC")
    (want nil (wex_edit_seteditlimit "DESC"))
    (want nil (wex_edit_seteditlimit "DESC" 5))
    (wex_start_dialog)))
