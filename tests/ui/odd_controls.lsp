; Controls that no shipped dialog has, in an add-on that only the tests build.
(host_warn nil)  ; what the functions refuse is tried on purpose

(test "Captions with arrows and marks become icons; the text that stays is what the rules leave"
  '((in-dialog "ODD_BUTTONS" nil
      '((foreach row '(("LEFT" "") ("RIGHT" "") ("MORE" "More ") ("NEXT" "Next") ("SORT" "Sort") ("LIST" "List")
                       ("CAP_A" "") ("CAP_C" "") ("CAP_D" "Browse...") ("PLAIN" "&Plain") ("MIXED" ">>")
                       ("BOX" "A box") ("HIDDEN_BOX" "Hidden") ("SLIDE" "Slide >>") ("FRAME" ""))
          (want row (list (car row) (ui_text (car row)))))
        (ui_shot "odd_buttons.png")))))

(test "Frames and tab controls lie under the controls that they surround"
  '((in-dialog "ODD_BUTTONS" nil '((want 114 (last (cdr (assoc "controls" (ui_look)))))))
    (in-dialog "ODD_KINDS" nil '((want 118 (last (cdr (assoc "controls" (ui_look)))))))))

(test "A box of three states is on for Lisp in its third, though its event says 0"
  '((in-dialog "ODD_BUTTONS" '(wex_action_tile "THREE" "(note (list $value (wex_get_tile \"THREE\")))")
      '((repeat 3 (ui_click "THREE"))))
    (want '(("1" "1") ("0" "1") ("0" "0")) notes)))

(test "Radio buttons within a frame stay a group for the mouse and the keys"
  '((in-dialog "ODD_BUTTONS" '(wex_set_tile "RADIO1" "1")
      '((ui_click "RADIO2")
        (want '("0" "1") (mapcar 'wex_get_tile '("RADIO1" "RADIO2")))
        (ui_key "UP" "RADIO2")
        (want '("1" "0") (mapcar 'wex_get_tile '("RADIO1" "RADIO2")))))))

(test "Image buttons are pressed by the mouse twice in a row, by Space and by Enter, and never end the dialog"
  '((in-dialog "ODD_BUTTONS"
      '(progn (setq presses 0) (foreach tile '("MORE" "NEXT" "SORT") (wex_action_tile tile "(setq presses (1+ presses))")))
      '((ui_dblclick "MORE") (want 2 presses)
        (ui_key "SPACE" "NEXT") (want 3 presses)
        (ui_key "ENTER" "SORT") (want 4 presses)))))

(test "A control that the template disables is enabled at the start, unless its mode is left to it"
  '((in-dialog "ODD_BUTTONS" nil '((want T (look "MIXED" "enabled"))))
    (in-dialog "ODD_BUTTONS" '(wex_mode_tile "MIXED" -1) '((want nil (look "MIXED" "enabled"))))))

(test "Ids that are not looked at are reached by their number all the same, but don't report their text"
  '((in-dialog "ODD_KINDS"
      '(foreach id '(108 109 399 400) (wex_action_tile id "(note (list $key $value))"))
      '((foreach id '(108 109 399 400)
          (want (itoa id) (wex_get_tile id))
          (wex_set_tile id (strcat "new " (itoa id)))
          (want (strcat "new " (itoa id)) (ui_text id)))
        (wex_set_tile 450 "label")
        (want "label" (wex_get_tile 450))
        (foreach id '(108 109 399 400) (ui_type id (strcat "t" (itoa id))))))
    (want '(("control not found" "t109") ("control not found" "t399")) notes)))

(test "An empty field's control answers to no key; neither key nor id is asked as the empty key"
  '((in-dialog "ODD_KINDS" nil
      '((want "at an empty field" (wex_get_tile 123))
        (want "at an empty field" (wex_get_tile nil))
        (wex_set_tile nil "changed")
        (want "changed" (ui_text 123))))))

(test "Controls of every kind take and give a value, and a key without a control keeps its own"
  '((in-dialog "ODD_KINDS" nil
      '((foreach tile '("STATIC" "EDIT" "TAB" "TREE" "LINES" "READONLY")
          (wex_set_tile tile "0")
          (wex_get_tile tile))
        (want "0" (ui_text "EDIT"))
        (want "-1" (wex_get_tile "LISTBOX"))
        (want "-1" (wex_get_tile "LISTVIEW"))
        (want nil (wex_set_tile "NOCONTROL" "kept"))
        (want nil (wex_get_tile "NOCONTROL"))
        (wex_set_tile "PROGRESS" "text of its own")
        (ui_shot "odd_kinds.png")))))

(test "A dialog without OK, by the older kind of template: Enter ends it, and unknown keys reach no label"
  '((want -1 (run-dialog "odd_old" nil
      '((want nil (wex_get_tile "nobody")) (wex_set_tile "X" "typed") (want "typed" (ui_text "X")) (ui_key "ENTER" "X"))))))

(test "A key list without a template can be opened and not started"
  '((want T (wex_new_dialog "ODD_NO_TEMPLATE"))
    (wex_set_tile "X" "1")
    (want -1 (wex_start_dialog))
    (want nil (wex_start_dialog))
    (want nil (wex_get_tile "X"))))
