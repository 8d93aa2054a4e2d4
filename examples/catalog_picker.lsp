; A catalog picker: a table of parts, for one manufacturer or all, in the order of any column; details of a part in a dialog of
; their own; a double click takes the part. What was taken is shown as a bill of materials.
;
; Once a person has sorted a list by its headers, the number of a row no longer tells which part it shows. So where a part
; is picked, the program sorts, and keeps the parts in the order of the rows. The bill, from which nothing is picked, is sorted
; by its headers.

; Manufacturer, catalog number, description, width, price.
(setq catalog
  '(("Corvane" "CV-2210" "Fuse block, 3 poles, 30 A" "2 1/4\"" "112.00")
    ("Corvane" "CV-1104" "Relay, 24 V DC, 4 contacts" "1 1/8\"" "14.20")
    ("Helmrow" "H400-6" "Contactor, 16 A, 230 V AC" "1 3/4\"" "38.50")
    ("Helmrow" "H410-2" "Terminal, 4 mm, gray" "1/4\"" "0.95")
    ("Corvane" "CV-3350" "Power supply, 24 V, 10 A" "4 7/8\"" "96.00")
    ("Helmrow" "H500-1" "Enclosure, steel" "1'-11 1/2\"" "85.75")))

(defun maker (part) (nth 0 part))
(defun number (part) (nth 1 part))
(defun description (part) (nth 2 part))
(defun width (part) (nth 3 part))
(defun price (part) (nth 4 part))

; What the parts can be sorted by, and whether one part comes before another then.
(setq orders
  '(("Catalog number" (lambda (a b) (< (number a) (number b))))
    ("Description" (lambda (a b) (< (description a) (description b))))
    ("Width" (lambda (a b) (< (distof (width a) 4) (distof (width b) 4))))
    ("Price" (lambda (a b) (< (atof (price a)) (atof (price b)))))))

(setq all-makers "(all)")

; The field in front of the first title is passed over. Blanks behind a title make its column wider.
(defun columns (titles) (string-join (cons "" titles) "\t"))

(defun fill (tile rows)
  (wex_start_list tile)
  (wex_add_list (mapcar '(lambda (row) (string-join row "\t")) rows))
  (wex_end_list))

(defun wanted (part) (member shown-maker (list all-makers (maker part))))

(defun show-parts ()
  (setq shown (sort (remove-if-not 'wanted catalog) (cadr (nth order orders))))
  (fill "LST" (mapcar 'cdr shown))
  (wex_set_tile "COUNT" (strcat (itoa (length shown)) " parts")))

; The part in the selected row, or nil.
(defun selected (/ row)
  (setq row (atoi (wex_get_tile "LST")))
  (if (>= row 0) (nth row shown)))

(defun with-selected (use / part)
  (if (setq part (selected)) (use part) (wex_alert "Select a part first." 2)))

(defun take (part)
  (setq taken part)
  (wex_done_dialog 1))

(defun show-details (part)
  (wex_new_dialog "DISP_CAT_INFO")
  (wex_set_tile "MFG" (maker part))
  (wex_set_tile "CAT" (number part))
  (wex_set_tile "ASMB" "-")
  (wex_mode_tile "B_WEB" 1)
  (wex_listctrl_setcolumns "LST" (columns '("Field            " "Value                              ")))
  (fill "LST" (mapcar 'list '("Description" "Width" "Price") (cddr part)))
  (wex_start_dialog))

(defun pick-part (/ shown shown-maker order taken)
  (setq shown-maker all-makers order 0)
  (wex_new_dialog "CAT_PICK_LST")
  (fill "MFG" (mapcar 'list (cons all-makers (unique (mapcar 'maker catalog)))))
  (wex_set_tile "MFG" "0")
  (fill "SORT" (mapcar '(lambda (order) (list (car order))) orders))
  (wex_set_tile "SORT" "0")
  (wex_listctrl_setcolumns "LST" (columns '("Catalog number" "Description                    " "Width     " "Price    ")))
  (show-parts)
  (wex_action_tile "MFG" "(setq shown-maker (wex_get_tile \"MFG\")) (show-parts)")
  (wex_action_tile "SORT" "(setq order (atoi $value)) (show-parts)")
  (wex_action_tile "B_INFO" "(with-selected show-details)")
  (wex_action_tile "OK" "(with-selected take)")
  (wex_start_dialog)
  taken)

(defun show-bill (parts)
  (wex_new_dialog "QUICK_BOM")
  (wex_listctrl_setcolumns "LST" (columns '("Pieces" "Catalog number" "Description                " "Width    " "Price   ")))
  (fill "LST" (mapcar '(lambda (part) (cons "1" (cdr part))) parts))
  (wex_setaction_oninit "(wex_listctrl_allowsorting \"LST\" T) (wex_listctrl_showgridlines \"LST\" T)")
  (mapcar '(lambda (tile) (wex_mode_tile tile 1)) '("B_SAVE" "B_PRINT"))
  (wex_start_dialog))

; What a person does when nobody is there.
(defun tell-rows () (foreach row (ui_items "LST") (princ row) (terpri)))

(ui_session "CAT_PICK_LST"
  '((ui_click "OK")
    (ui_pick "SORT" "Width")
    (ui_shot "catalog_picker.png")
    (tell-rows)
    (ui_pick "MFG" "Corvane")
    (ui_pick "LST" 1 0)
    (ui_click "B_INFO")
    (ui_dblclick "LST" 1 0)))
(ui_session "DISP_CAT_INFO" '((ui_shot "catalog_picker_details.png") (tell-rows) (ui_click "Cancel")))
(ui_session "CAT_PICK_LST" '((ui_pick "SORT" "Price") (ui_pick "LST" 0 0) (ui_key "DOWN" "LST") (ui_key "ENTER" "LST")))
(ui_session "CAT_PICK_LST" '((ui_dblclick "LST" 5 1)))
(ui_session "CAT_PICK_LST" '((ui_key "ESC")))
(ui_session "QUICK_BOM"
  '((ui_header "LST" 3)
    (tell-rows)
    (ui_header "LST" 4)
    (ui_header "LST" 4)
    (ui_shot "catalog_picker_bill.png")
    (tell-rows)
    (ui_click "OK")))

(setq taken-parts nil)
(while (setq part (pick-part)) (setq taken-parts (append taken-parts (list part))))
(show-bill taken-parts)
