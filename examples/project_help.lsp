; Pages that grow with their dialog: the tab control and what stands on its pages have anchor codes, hidden controls too, so that a
; page fits also when the size was changed while another page was on top. Selecting a setting shows what it means.

(setq topics '(("Wire numbers" "By line" "Each wire is numbered by the line of the ladder on which it starts.")
               ("Sort order" "Sheet, line" "Reports list components by sheet, and on a sheet by line.")
               ("Cross-references" "As a table" "The contacts of a relay are listed in a table below its coil."))
      files '(("project.ini" "Settings of this project") ("company.ini" "What a project doesn't set"))
      notes "Ask before you change the numbering.")

; 25: grows to the right; 63 (25 + 38): both ways; 39 (38 + 1): moves with the lower edge; 75: with the corner.
(setq anchors '(("TABS" 63) ("OK" 75) ("Cancel" 75)
                ("LABEL0" 25) ("TOPICS" 25) ("ABOUT" 63) ("TEXT" 63)
                ("LABEL1" 25) ("FILES" 63) ("B_OPEN" 39)
                ("LABEL2" 25) ("NOTES" 63)))

(defun fill (tile rows)
  (wex_start_list tile)
  (wex_add_list (mapcar '(lambda (row) (strcat (car row) "\t" (cadr row))) rows))
  (wex_end_list))

(defun explain (row) (if (>= row 0) (wex_set_tile "TEXT" (caddr (nth row topics)))))

(defun start ()
  (wex_tab_add "TABS" "Settings" "LABEL0" "TOPICS" "ABOUT" "TEXT")
  (wex_tab_add "TABS" "Files" "LABEL1" "FILES" "B_OPEN")
  (wex_tab_add "TABS" "Notes" "LABEL2" "NOTES"))

(defun help ()
  (wex_new_dialog "HELP_PROJ_SETTINGS")
  (foreach anchor anchors (wex_setresizing (car anchor) (cadr anchor)))
  (wex_setminresizing 360 280)
  (wex_listctrl_setcolumns "TOPICS" "\tSetting            \tValue              ")
  (fill "TOPICS" topics)
  (wex_set_tile "TOPICS" "0")
  (wex_set_tile "TEXT" (caddr (car topics)))
  (wex_listctrl_setcolumns "FILES" "\tFile               \tHolds                             ")
  (fill "FILES" files)
  (wex_set_tile "NOTES" notes)
  (wex_setaction_oninit "(start)")
  (wex_action_tile "TOPICS" "(explain (atoi (wex_get_tile \"TOPICS\")))")
  (wex_action_tile "B_OPEN" "(wex_alert \"The selected file opens in an editor.\" 2)")
  (wex_action_tile "OK" "(setq notes (wex_get_tile \"NOTES\")) (wex_done_dialog 1)")
  (wex_start_dialog))

; What a person does when nobody is there. It tells how much the tiles have grown.
(defun tell (what) (princ what) (terpri))
(defun extent (tile) (cddr (cdr (assoc "rect" (ui_look tile)))))

(ui_session "HELP_PROJ_SETTINGS"
  '((ui_size 760 620)
    (ui_pick "TOPICS" 1 0)
    (tell (ui_text "TEXT"))
    (ui_shot "project_help_small.png")
    (setq tiles '("TABS" "TOPICS" "TEXT" "FILES" "NOTES") before (mapcar 'extent tiles))
    (ui_size 920 720)
    (ui_shot "project_help_large.png")
    (mapcar '(lambda (tile old) (tell (cons tile (mapcar '- (extent tile) old)))) tiles before)
    (ui_pick "TABS" "Files")
    (ui_click "B_OPEN")
    (ui_shot "project_help_files.png")
    (ui_pick "TABS" "Notes")
    (ui_type "NOTES" "Numbering is done.")
    (ui_shot "project_help_notes.png")
    (ui_click "OK")))

(help)
(tell notes)
