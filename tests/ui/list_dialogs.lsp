; The dialogs with list controls come up, and their lists take one row or several.

(defun fill-list (tile)
  (wex_listctrl_setcolumns tile "columns\tName      \tValue     ")
  (wex_start_list tile)
  (wex_add_list '("a\t1" "b\t2" "c\t3"))
  (wex_end_list))

; What is selected in a dialog's list after the first row and the last were.
(defun selected-of-two (dialog tile / selected)
  (ui_session dialog
    '((want '("a\t1" "b\t2" "c\t3") (ui_items tile))
      (wex_set_tile tile 0)
      (wex_set_tile tile 2)
      (setq selected (wex_listctrl_getselectednths tile))
      (ui_click "Cancel")))
  (wex_new_dialog dialog)
  (fill-list tile)
  (want -1 (wex_start_dialog))
  selected)

(test "What is picked is one row"
  '((foreach list '(("CAT_PICK_LST" "LST") ("DISP_CAT_INFO" "LST") ("CONTACT_PIN_LIST" "PINLIST") ("PROJ_PLCUSED_LST" "LST"))
      (want '(2) (apply 'selected-of-two list)))))

(test "What is taken along is several rows"
  '((foreach list '(("QUICK_BOM" "LST") ("PICK_DWGS" "LST1") ("PICK_DWGS" "LST2") ("SETUP_COMPONENT_XREF" "TYPES"))
      (want '(0 2) (apply 'selected-of-two list)))))

(test "Mnemonics lead from a label to its list, and press buttons"
  '((ui_session "PICK_DWGS"
      '((ui_key "ALT+O")
        (want T (cdr (assoc "focus" (ui_look "LST2"))))
        (ui_key "ALT+D")
        (want T (cdr (assoc "focus" (ui_look "LST1"))))
        (ui_key "ALT+U")
        (want '("unselect") pressed)
        (ui_click "Cancel")))
    (setq pressed nil)
    (wex_new_dialog "PICK_DWGS")
    (foreach key '("ALL" "PROCESS" "RESET" "UNSELECT") (wex_action_tile key "(setq pressed (cons $key pressed))"))
    (wex_start_dialog)))
