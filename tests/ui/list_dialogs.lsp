; The dialogs with list controls come up, and their lists take one row or several.

; What is selected in a dialog's list after the first row and the last were.
(defun selected-of-two (dialog tile / selected)
  (in-dialog dialog
    '(progn (wex_listctrl_setcolumns tile "\tName      \tValue     ") (fill tile '("a\t1" "b\t2" "c\t3")))
    '((wex_set_tile tile 0)
      (wex_set_tile tile 2)
      (want '("a\t1" "b\t2" "c\t3") (ui_items tile))
      (setq selected (wex_listctrl_getselectednths tile))))
  selected)

(test "What is picked is one row, and what is taken along is several"
  '((foreach list '(("CAT_PICK_LST" "LST") ("DISP_CAT_INFO" "LST") ("CONTACT_PIN_LIST" "PINLIST") ("PROJ_PLCUSED_LST" "LST"))
      (want '(2) (apply 'selected-of-two list)))
    (foreach list '(("QUICK_BOM" "LST") ("PICK_DWGS" "LST1") ("PICK_DWGS" "LST2") ("SETUP_COMPONENT_XREF" "TYPES"))
      (want '(0 2) (apply 'selected-of-two list)))))

(test "Mnemonics lead from a label to its list, and press buttons"
  '((in-dialog "PICK_DWGS"
      '(foreach key '("ALL" "PROCESS" "RESET" "UNSELECT") (wex_action_tile key "(note $key)"))
      '((ui_key "ALT+O")
        (want T (look "LST2" "focus"))
        (ui_key "ALT+D")
        (want T (look "LST1" "focus"))
        (ui_key "ALT+U")
        (want '("unselect") notes)))))
