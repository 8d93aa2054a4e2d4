; A project tree whose folders fill when they are opened, and beside it the drawings of the selected folder.
;
; A folder that has not been opened holds one nameless item, so that it has a button; opening it for the first time puts its
; drawings in the place of that item. The data of a folder is the place of its section among `sections`, counted from 1.

(setq sections '(("Power distribution" ("PD-101" "Main feeder") ("PD-102" "Motor starters") ("PD-103" "Spare ways"))
                 ("Control" ("CT-201" "Control transformer") ("CT-202" "Safety relays") ("CT-203" "Lamps and buttons"))
                 ("Input and output" ("IO-301" "Rack 0, inputs") ("IO-302" "Rack 0, outputs"))
                 ("Panel layout" ("PL-401" "Door") ("PL-402" "Back plate"))))

; Places in the tree's list of icons.
(setq icon-project 0 icon-folder 1 icon-open 2 icon-drawing 3)

(defun start-tree (/ project)
  (wex_listctrl_setcolumns "LST" "\tDrawing\tDescription")
  (wex_listctrl_setcolumnwidth "LST" 0 80)
  (wex_listctrl_setcolumnwidth "LST" 1 180)
  (wex_tree_setupimagelist "SEC" "PROJECT" "FOLDER" "FOLDER_OPEN" "DRAWING")
  (setq project (wex_tree_insertparent "SEC" "Pump station" icon-project icon-project))
  (foreach place (range (length sections)) (add-folder project place))
  (wex_tree_expanditem "SEC" project 1)
  (wex_tree_selectitem "SEC" project))

; The third image is that of the open folder: it comes and goes as the folder opens and closes. `unfilled` pairs the
; folders that have not been opened with their nameless items.
(defun add-folder (project place / folder)
  (setq folder (wex_tree_insertchild "SEC" project (car (nth place sections)) icon-folder icon-folder icon-open)
        unfilled (cons (cons folder (wex_tree_insertchild "SEC" folder "")) unfilled))
  (wex_tree_setitemdata "SEC" folder (1+ place)))

(defun drawings-in (folder / place)
  (setq place (wex_tree_getitemdata "SEC" folder))
  (if (> place 0) (cdr (nth (1- place) sections))))

(defun fill-folder (folder / waiting)
  (cond ((setq waiting (assoc folder unfilled))
         (setq unfilled (remove waiting unfilled))
         (foreach drawing (drawings-in folder)
           (wex_tree_insertchild "SEC" folder (car drawing) icon-drawing icon-drawing))
         (wex_tree_deleteitem "SEC" (cdr waiting)))))

; A folder shows its drawings in the list; a drawing shows those of its folder, and itself as the picked one.
(defun show-item (item / folder at)
  (setq folder (if (> (wex_tree_getitemdata "SEC" item) 0) item (wex_tree_getparent "SEC" item))
        shown (if (/= folder -1) (drawings-in folder))
        at (position (wex_tree_getitemtext "SEC" item) (mapcar 'car shown)))
  (wex_start_list "LST")
  (foreach drawing shown (wex_add_list (strcat (car drawing) "\t" (cadr drawing))))
  (wex_end_list)
  (wex_set_tile "COUNT" (if shown (strcat (itoa (length shown)) " drawings in this section") ""))
  (pick at))

(defun pick (at)
  (setq picked (if at (nth at shown)))
  (if at (wex_set_tile "LST" at))
  (wex_mode_tile "OK" (if picked 0 1)))

(defun tree-event (/ item)
  (setq item (atoi $value))
  (cond ((= $reason 15) (fill-folder item))
        ((= $reason 10) (show-item item))))

(defun pick-drawing (/ unfilled shown picked)
  (wex_new_dialog "PICK_BY_SEC")
  (wex_setaction_oninit "(start-tree)")
  (wex_action_tile "SEC" "(tree-event)")
  (wex_action_tile "LST" "(if (/= $value \"\") (pick (atoi $value)))")
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (wex_action_tile "HELP" "(wex_alert \"Open a section, and pick one of its drawings here or in the list.\" 2)")
  (foreach anchor '(("SEC" 38) ("LST" 63) ("COUNT" 39) ("OK" 75) ("Cancel" 75) ("HELP" 75))
    (wex_setresizing (car anchor) (cadr anchor)))
  (wex_setminresizing 420 260)
  (if (= (wex_start_dialog) 1) picked))

(ui_session "PICK_BY_SEC"
  '((ui_expand "SEC" "Control")
    (print (ui_items "SEC"))
    (ui_pick "SEC" '("Pump station" "Control" "CT-202"))
    (print (ui_items "LST"))
    (print (ui_text "COUNT"))
    (ui_shot "project_tree.png")
    (ui_pick "SEC" "Panel layout")
    (ui_pick "LST" "PL-402\tBack plate")
    (ui_click "OK")))

(print (pick-drawing))
(terpri)
