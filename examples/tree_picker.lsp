; A search box beside a tree: what is looked for is typed, and Find, or leaving the box, leaves in the tree what holds the
; text, with its folders open. Without the subfolders only the names of folders count. A double click on a drawing takes it.

; Each folder with its drawings.
(setq project '(("Cabinet 1" ("PD-101 Main feeder" "PD-102 Motor starters" "CT-202 Safety relays"))
                ("Cabinet 2" ("IO-301 Rack 0, inputs" "IO-302 Rack 0, outputs"))
                ("Field" ("TB-501 Terminal strip pumps" "TB-502 Terminal strip valves" "CN-601 Connector motor 1"))))

; The icon of a drawing goes by the begin of its name: places in the tree's list of icons.
(setq icon-folder 0 icon-open 1)
(setq icons '(("TB" 3) ("CN" 4)) icon-drawing 2)
(defun icon-of (drawing) (cond ((cadr (assoc (substr drawing 1 2) icons))) (T icon-drawing)))

(defun holds (what) (string-search (strcase what) (strcase looked-for)))

(defun found-in (folder)
  (cond ((holds (car folder)) (cadr folder))
        ((= (wex_get_tile "SUBFOLDERS") "1") (remove-if-not 'holds (cadr folder)))))

(defun fill-tree (/ count first)
  (wex_tree_deleteallitems "TREE")
  (setq count 0 picked nil)
  (foreach folder project
    (if (found-in folder) (setq count (+ count (length (found-in folder))) first (add-folder folder first))))
  (wex_set_tile "COUNT" (strcat (itoa count) " drawings"))
  (wex_mode_tile "OK" 1)
  (if (and first (/= looked-for "")) (wex_tree_selectitem "TREE" first)))

; Gives the first drawing of all.
(defun add-folder (folder first / parent item)
  (setq parent (wex_tree_insertparent "TREE" (car folder) icon-folder icon-folder icon-open))
  (foreach drawing (found-in folder)
    (setq item (wex_tree_insertchild "TREE" parent drawing (icon-of drawing) (icon-of drawing))
          first (cond (first) (T item))))
  (if (/= looked-for "") (wex_tree_expanditem "TREE" parent 1))
  first)

(defun drawing-p (item) (/= -1 (wex_tree_getparent "TREE" item)))

(defun tree-event (/ item)
  (setq item (wex_tree_getcursel "TREE"))
  (setq picked (if (and (/= item -1) (drawing-p item)) (wex_tree_getitemtext "TREE" item)))
  (wex_mode_tile "OK" (if picked 0 1))
  (if (and picked (= $reason 12)) (wex_done_dialog 1)))

(defun search (text)
  (if (/= text looked-for) (progn (setq looked-for text) (fill-tree))))

(defun pick-drawing (/ looked-for picked)
  (setq looked-for "")
  (wex_new_dialog "DRAWING_FOLDER_FILTER_SEL")
  (wex_set_tile "SUBFOLDERS" "1")
  (wex_setaction_oninit
    "(wex_tree_setupimagelist \"TREE\" '(\"FOLDER\" \"FOLDER_OPEN\" \"DRAWING\" \"TERMINAL\" \"CONNECTOR\")) (fill-tree)")
  (wex_action_tile "FILTER" "(search $value)")
  (wex_action_tile "B_FIND" "(search (wex_get_tile \"FILTER\"))")
  (wex_action_tile "SUBFOLDERS" "(fill-tree)")
  (wex_action_tile "TREE" "(tree-event)")
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (foreach anchor '(("FILTER" 25) ("B_FIND" 35) ("TREE" 63) ("SUBFOLDERS" 39) ("COUNT" 39) ("OK" 75) ("Cancel" 75) ("HELP" 75))
    (wex_setresizing (car anchor) (cadr anchor)))
  (wex_setminresizing 300 260)
  (if (= (wex_start_dialog) 1) picked))

(ui_session "DRAWING_FOLDER_FILTER_SEL"
  '((print (ui_items "TREE"))
    (ui_type "FILTER" "strip")
    (ui_click "B_FIND")
    (print (ui_items "TREE"))
    (print (ui_text "COUNT"))
    (ui_shot "tree_picker.png")
    (ui_click "SUBFOLDERS")
    (print (ui_items "TREE"))
    (ui_type "FILTER" "cabinet 2")
    (ui_key "TAB")
    (print (ui_items "TREE"))
    (ui_dblclick "TREE" "IO-302 Rack 0, outputs")))

(print (pick-drawing))
(terpri)
