; Rows of the product's dialogs: what stands side by side is equally high, at one height, and apart.

; The heights, in pixels at 96 dots per inch, between those of check boxes and of lists: edit boxes of one line, combo
; boxes, push buttons and image buttons.
(setq lowest 18 highest 30)

(defun top (rect) (cadr rect))
(defun bottom (rect) (+ (cadr rect) (cadddr rect)))
(defun right (rect) (+ (car rect) (caddr rect)))

(defun stands-in-row (id / height)
  (setq height (/ (cadddr (look id "rect")) scale))
  (and (member (look id "class") '("Edit" "ComboBox" "Button")) (< lowest height highest)))

(defun side-by-side (a b) (and (< (top a) (bottom b)) (< (top b) (bottom a))))

; What is wrong with two of them.
(defun ragged (a b)
  (and (side-by-side a b)
       (or (/= (top a) (top b)) (/= (bottom a) (bottom b))
           (and (< (car a) (right b)) (< (car b) (right a))))))

(defun want-rows (ids / a)
  (while ids
    (setq a (car ids) ids (cdr ids))
    (foreach b ids
      (if (ragged (look a "rect") (look b "rect")) (note-wrong (strcat (itoa a) " and " (itoa b) " are ragged"))))))

; Dialogs of pages aren't here: their controls stand on one another.
(foreach name
  '("ADD_REC" "CABLE_DEFAULT_COLORS" "CAT_PICK_LST" "CONFIRM_DELREC" "CONTACT_PIN_LIST" "DISP_ASSYVALS"
    "DISP_CAT_INFO" "DISP_FLDVALS26" "DISP_LOCS_ON_DWG" "DISP_LOCS_ON_DWG_MULT" "EDIT_REC" "FOOTPRINT_EDIT"
    "LOOKUP_FP" "PICK_DWGS" "PROJ_PLCUSED_LST" "QUICK_BOM" "RATING_1DLG" "RATING_DLG" "SCHEM_WIRE2PNL_FORMAT"
    "SET_PASSPWR" "SU_SCHEM_WIRE2PNL_FORMAT" "SWITCH_CAT_FILE")
  (test (strcat "Rows of " name " are straight")
    (list (list 'in-dialog name nil
      ''((want-rows (remove-if-not 'stands-in-row (cdr (assoc "controls" (ui_look))))))))))
