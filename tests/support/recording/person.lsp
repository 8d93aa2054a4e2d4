; Somebody who works the dialogs of forms.lsp at random; to be loaded after it.

(setq chosen 1 acts nil)
(defun choice (n) (setq chosen (fix (rem (* chosen 48271.0) 2147483647))) (rem chosen n))
(defun any (some) (nth (choice (length some)) some))
(defun any-text () (any '("" "x" "two words" "1'-6\"" "12.5" "3/4" "\"q\"" "a\\b" "äß" "ABC" "long long text")))
(defun any-keys () (any '(nil nil nil "CTRL" "SHIFT")))

; Keys that go to where the focus is.
(defun any-key ()
  (any '("TAB" "TAB" "TAB" "SHIFT+TAB" "UP" "DOWN" "DOWN" "LEFT" "RIGHT" "HOME" "END" "SPACE" "SPACE" "BACKSPACE" "DELETE" "PAGEDOWN"
         "SHIFT+DOWN" "CTRL+DOWN" "SHIFT+END" "G" "R" "7" "NUM7" "." "F1" "CTRL+A" "ALT+DOWN" "F4")))
(defun press () (ui_key (any-key)))

; What is to be done next of an act of several steps.
(defun after (forms) (setq acts forms))

(defun menu-of (act)
  (eval act)
  (after (any '(((ui_key "ESC")) ((ui_key "DOWN") (ui_key "ESC")) ((if (ui_menu) (ui_key "DOWN")) (if (ui_menu) (ui_key "ENTER")))))))

(defun pick (tile count / keys)
  (setq keys (any-keys))
  (if keys (ui_pick tile (choice count) keys) (ui_pick tile (choice count))))

; An item that is hidden is shown by the session, and not by a person.
(defun visible (item / above)
  (setq above (wex_tree_getparent "TREE" item))
  (or (= above -1) (and (member above opened) (visible above))))
(defun any-item () (any (remove-if-not 'visible (mapcar '(lambda (item) (atoi (car item))) items))))
(defun any-branch () (any (remove-if-not 'visible branches)))

(defun act-kinds ()
  (eval (any '((ui_type "EDIT" (any-text)) (ui_click "EDIT") (ui_char "k") (press) (press) (press)
               (pick "LISTBOX" 12) (ui_sweep "LISTBOX" 0 2) (pick "MULTI" 12) (pick "MULTI" 12)
               (ui_sweep "MULTI" 1 3) (ui_click "MULTI") (ui_pick "COMBO" (choice 12)) (ui_type "COMBO" (any-text))
               (ui_click "COMBO") (ui_pick "DROPLIST" (choice 12)) (ui_wheel "DROPLIST" (any '(1 -1)))
               (progn (ui_click "DROPLIST") (after '((ui_key "DOWN") (ui_key (any '("ENTER" "ESC" "TAB"))))))
               (ui_pick "TAB" (choice 4)) (ui_pick "TREE" (any-item)) (ui_pick "TREE" (any-item))
               (ui_expand "TREE" (any-branch)) (ui_expand "TREE" (any-branch) 2) (ui_dblclick "TREE" (any-item)) (ui_rclick "TREE" (any-item))
               (pick "LISTVIEW" 12) (pick "LISTVIEW" 12) (pick "LISTVIEW" 12)
               (ui_header "LISTVIEW" (choice 2)) (menu-of '(ui_rclick "LISTVIEW" (choice 12)))
               (ui_type "LINES" (any '("one" "a\nb" ""))) (ui_click "LINES") (ui_char "\r") (ui_click "READONLY")
               (ui_drag "GRIP" 5 5)
               (if (= 0 (choice 6)) (ui_dblclick (any '("LISTBOX" "LISTVIEW" "MULTI")) (choice 12)))))))

(defun act-buttons ()
  (eval (any '((ui_click (any '("SLIDE" "BOX" "LEFT" "RIGHT" "MORE" "NEXT" "SORT" "LIST" "CAP_A" "CAP_C" "PLAIN")))
               (ui_click (any '("CHECK" "THREE" "RADIO1" "RADIO2" "HELP"))) (ui_click (any '("CHECK" "RADIO1" "RADIO2")))
               (ui_dblclick (any '("CHECK" "PLAIN" "RADIO2" "MORE"))) (ui_key (any '("ALT+C" "ALT+P" "ALT+T" "ALT+W" "C" "P")))
               (progn (ui_hold "PLAIN") (after '((ui_release "PLAIN" -9 3)))) (press) (press)))))

(defun act-grid ()
  (eval (any '((ui_pick "LST" (1+ (choice 8)) (1+ (choice 2))) (ui_pick "LST" (1+ (choice 8)) (1+ (choice 3)))
               (ui_pick "LST" 1 1 3 2) (ui_pick "LST" (1+ (choice 8)) 0) (ui_header "LST" (1+ (choice 3)))
               (progn (ui_pick "LST" (1+ (choice 8)) 1) (after '((ui_type "LST" (any-text)) (press))))
               (progn (ui_pick "LST" (1+ (choice 8)) 1)
                      (after '((ui_key "F2") (ui_click '("LST" 0) 2 5) (ui_char "w") (ui_key "BACKSPACE") (ui_char "xy") (press))))
               (progn (ui_pick "LST" (1+ (choice 8)) 2) (after '((ui_key "F4") (ui_pick "LST" (any '("red" "green"))))))
               (ui_dblclick "LST" (1+ (choice 8)) (1+ (choice 2))) (ui_char "v") (ui_key "F2") (ui_key "ESC") (ui_key "ENTER")
               (ui_type "VALUE" (any-text)) (ui_click "B_PICK") (menu-of '(ui_rclick "LST" 2 1)) (press) (press)))))

(defun act-record ()
  (eval (any '((ui_type "CAT" (any-text)) (ui_type "ASMB" (any-text)) (ui_type "RATING" (any-text)) (ui_type "QTY" (any-text))
               (ui_type "MFG" (any-text)) (ui_pick "MFG" (choice 8)) (ui_pick "TYPE" (choice 8)) (ui_click "DESC")
               (ui_click (any '("KEEP" "MORE" "B_CAT" "HELP"))) (ui_key (any '("ALT+D" "ALT+K" "ALT+C" "ALT+T" "ALT+O")))
               (ui_char "\e") (ui_char "\r") (ui_char "ab") (press) (press)))))

; What can't be done at that moment is left.
(defun act (form / next)
  (cond (acts (setq next (car acts) acts (cdr acts)) (catch-error (eval next)))
        (T (catch-error (apply form nil)))))

(defun leave ()
  (setq acts nil)
  (catch-error (eval (any '((ui_click "OK") (ui_click "CANCEL") (ui_close) (ui_key "ESC") (ui_key "ENTER"))))))

(setq steps 12)
(defun before-form (number form)
  (setq chosen (+ 11 (* 13 number)) acts nil)
  (repeat 3 (choice 2))
  (ui_session (cadr (assoc form '((kinds "ODD_KINDS") (buttons "ODD_BUTTONS") (grid "EDIT_NONWD_ATTRS") (record "ADD_REC"))))
    (append (mapcar '(lambda (i) (list 'act (list 'quote (cadr (assoc form '((kinds act-kinds) (buttons act-buttons) (grid act-grid) (record act-record)))))))
                    (range steps))
            '((leave) (ui_close) (ui_close)))))
; A key by the real keyboard is lost where the dialog comes up without the focus: then the person presses the close box.
(defun before-nested ()
  (ui_session "CONFIRM_DELREC" (list (any '((ui_click "OK") (ui_click "CANCEL") (ui_key "ESC") (ui_key "ENTER") (ui_close))) '(ui_close))))
