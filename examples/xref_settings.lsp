; A settings dialog with three pages, which opens with what was chosen last time. The controls of all pages are tiles of the one
; dialog; the tab control shows those of the page that is on top.

(setq separators '(", " "; " " / ")
      component-types '("Coils" "Contacts" "Pilot lights" "Connectors" "Terminals"))

; What is kept: a value for each tile, and the numbers of the chosen component types.
(setq values '(("TEXT" . "0") ("GRAPHICAL" . "0") ("TABLE" . "1") ("SAME_SHEET" . "1")
               ("SAME_FMT" . "%N") ("OTHER_FMT" . "%S.%N") ("BETWEEN" . "; "))
      types '(0 1))

(defun value (tile) (cdr (assoc tile values)))

; Two references, as %S for the sheet and %N for the line write them.
(defun sample (same other between)
  (strcat (string-replace same "%N" "118") between (string-replace (string-replace other "%S" "12") "%N" "305")))

(defun show-sample ()
  (wex_set_tile "SAMPLE" (apply 'sample (mapcar 'wex_get_tile '("SAME_FMT" "OTHER_FMT" "BETWEEN")))))

; Text has no further settings.
(defun follow-style () (wex_mode_tile "SETUP" (if (= (wex_get_tile "TEXT") "1") 1 0)))

(defun select-types (rows) (foreach row rows (wex_set_tile "TYPES" row)))

; A page takes controls that exist already, so the pages are made when the dialog starts. Several rows of a list can be
; selected only then, too: before, a tile has but one value.
(defun start ()
  (wex_tab_add "TABS" "Style" "MODE" "TEXT" "GRAPHICAL" "TABLE" "SETUP" "SAME_SHEET")
  (wex_tab_add "TABS" "Format" "FORMATS" "LABEL0" "SAME_FMT" "LABEL1" "OTHER_FMT" "LABEL2" "BETWEEN" "LABEL3" "SAMPLE")
  (wex_tab_add "TABS" "Components" "LABEL4" "TYPES" "ALL" "NONE")
  (wex_listctrl_setcolumns "TYPES" "\tType                    ")
  (wex_start_list "TYPES")
  (wex_add_list component-types)
  (wex_end_list)
  (select-types types))

(defun keep ()
  (setq values (mapcar '(lambda (pair) (cons (car pair) (wex_get_tile (car pair)))) values)
        types (wex_listctrl_getselectednths "TYPES"))
  (wex_done_dialog 1))

(defun ask-settings ()
  (wex_new_dialog "SETUP_COMPONENT_XREF")
  (foreach pair values (wex_set_tile (car pair) (cdr pair)))
  (wex_start_list "BETWEEN")
  (wex_add_list separators)
  (wex_end_list)
  (wex_set_tile "BETWEEN" (position (value "BETWEEN") separators))
  (wex_set_tile "SAMPLE" (apply 'sample (mapcar 'value '("SAME_FMT" "OTHER_FMT" "BETWEEN"))))
  (if (= (value "TEXT") "1") (wex_mode_tile "SETUP" 1))
  (wex_setaction_oninit "(start)")
  (foreach tile '("TEXT" "GRAPHICAL" "TABLE") (wex_action_tile tile "(follow-style)"))
  (foreach tile '("SAME_FMT" "OTHER_FMT" "BETWEEN") (wex_action_tile tile "(show-sample)"))
  (wex_action_tile "SETUP" "(wex_alert \"The layout of the table is set up here.\" 2)")
  (wex_action_tile "ALL" "(select-types (range (length component-types)))")
  (wex_action_tile "NONE" "(wex_set_tile \"TYPES\" -1)")
  (wex_action_tile "OK" "(keep)")
  (wex_start_dialog))

; What a person does when nobody is there.
(defun tell (what) (princ what) (terpri))

(ui_session "SETUP_COMPONENT_XREF"
  '((ui_shot "xref_settings_style.png")
    (ui_click "SETUP")
    (ui_click "TEXT")
    (ui_pick "TABS" "Format")
    (tell (ui_text "SAMPLE"))
    (ui_type "OTHER_FMT" "sheet %S line %N")
    (ui_pick "BETWEEN" ", ")
    (tell (ui_text "SAMPLE"))
    (ui_shot "xref_settings_format.png")
    (ui_pick "TABS" "Components")
    (ui_click "NONE")
    (ui_pick "TYPES" "Pilot lights" 0)
    (ui_shot "xref_settings_components.png")
    (ui_click "OK")))
(ui_session "SETUP_COMPONENT_XREF"
  '((tell (list "setup enabled:" (cdr (assoc "enabled" (ui_look "SETUP")))))
    (ui_pick "TABS" "Components")
    (tell (wex_listctrl_getselectednths "TYPES"))
    (ui_click "ALL")
    (ui_click "OK")))

(repeat 2
  (ask-settings)
  (tell (list (mapcar 'cdr values) types)))
