; Dialogs with pages: which controls show, what the keys do, and how the pages look.
(host_warn nil)  ; what the functions refuse is tried on purpose

; Which of the tiles show.
(defun shown (tiles) (remove-if-not '(lambda (tile) (look tile "visible")) tiles))
(defun focused (tiles) (remove-if-not '(lambda (tile) (look tile "focus")) tiles))

(setq first-page '("FRAME" "LABEL" "NAME" "CHECK" "RADIO1" "RADIO2" "PUSH" "COMBO" "BOTH")
      second-page '("LIST" "TEXT" "READONLY" "BOX" "NEXT" "BOTH"))

(defun add-pages ()
  (apply 'wex_tab_add (append '("TAB" "First") first-page))
  (apply 'wex_tab_add (append '("TAB" "Second") second-page))
  (wex_tab_add "TAB" "Third"))

(defun in-tabs (init session) (in-dialog "ODD_TABS" (list 'wex_setaction_oninit init) session))
(defun in-pages (prepare session)
  (in-dialog "ODD_TABS" (list 'progn '(wex_setaction_oninit "(add-pages)") prepare) session))

(test "Only the controls of the selected page show, and a click on a tab tells Lisp nothing"
  '((setq $key nil $reason nil)
    (ui_session "SETUP_COMPONENT_XREF"
      '((want '("TEXT" "MODE") (shown '("TEXT" "MODE" "SAME_FMT" "BETWEEN" "TYPES")))
        (want '(0) (look "TABS" "selected"))
        (want '("Mode" "Format" "") (ui_items "TABS"))
        (ui_pick "TABS" 1)
        (want '("SAME_FMT" "BETWEEN") (shown '("TEXT" "MODE" "SAME_FMT" "BETWEEN" "TYPES")))
        (ui_pick "TABS" "")
        (want '("TYPES") (shown '("TEXT" "MODE" "SAME_FMT" "BETWEEN" "TYPES")))
        (want '(nil nil nil) (list notes $key $reason))
        (ui_click "Cancel")))
    (wex_new_dialog "SETUP_COMPONENT_XREF")
    (wex_action_tile "TABS" "(note $key)")
    (wex_setaction_oninit
      "(want nil (wex_tab_add \"TABS\" \"Mode\" \"text\" \"MODE\"))
       (wex_tab_add 119 \"Format\" \"SAME_FMT\" 126 \"nobody\" 9999)
       (wex_tab_add \"TABS\" 3 \"TYPES\")")
    (wex_start_dialog)))

(test "A control of two pages stays while it goes from one to the other; one of no page stays always"
  '((in-tabs "(add-pages)"
      '((want '("BOTH" "ANYWHERE") (shown '("BOTH" "ANYWHERE")))
        (ui_pick "TAB" 1)
        (want '("BOTH" "ANYWHERE") (shown '("BOTH" "ANYWHERE")))
        (ui_pick "TAB" 2)
        (want '("ANYWHERE") (shown '("BOTH" "ANYWHERE" "NAME" "LIST")))))))

(test "Pages added while the dialog runs; a list's strings are keys and its brackets nothing new"
  '((in-tabs ""
      '((wex_tab_add "TAB" "First" '("NAME" "CHECK"))
        (wex_tab_add "TAB" "Second" "PUSH" 2.5 nil)
        (want '("NAME" "CHECK") (shown '("NAME" "CHECK" "PUSH")))
        (ui_pick "TAB" "Second")
        (want '("PUSH") (shown '("NAME" "CHECK" "PUSH")))))))

(test "Selecting a tab by its number leaves the controls, until a tab is clicked or added"
  '((in-tabs "(add-pages)"
      '((wex_set_tile "TAB" "1")
        (want '(1) (look "TAB" "selected"))
        (want "" (wex_get_tile "TAB"))
        (want '("NAME") (shown '("NAME" "LIST")))
        (ui_pick "TAB" 1)
        (want '("NAME") (shown '("NAME" "LIST")))
        (wex_set_tile "TAB" "9")
        (want '(1) (look "TAB" "selected"))
        (wex_tab_add "TAB" "Fourth")
        (want '("LIST") (shown '("NAME" "LIST")))
        (ui_pick "TAB" 0)
        (want '("NAME") (shown '("NAME" "LIST")))))
    (in-pages '(wex_set_tile "TAB" "1")
      '((want '(1) (look "TAB" "selected")) (want '("NAME") (shown '("NAME" "LIST")))))))

(test "A change of the page overrides what wex_mode_tile showed or hid"
  '((in-tabs "(add-pages)"
      '((wex_mode_tile "NAME" 6)
        (wex_mode_tile "LIST" 5)
        (want '("LIST") (shown '("NAME" "LIST")))
        (ui_pick "TAB" 2)
        (want nil (shown '("NAME" "LIST")))
        (ui_pick "TAB" 0)
        (want '("NAME") (shown '("NAME" "LIST")))))))

(test "Calls that add nothing"
  '((want nil (wex_tab_add "TAB" "no dialog"))
    (wex_new_dialog "ODD_TABS")
    (want nil (wex_tab_add "TAB" "before the start" "NAME"))
    (want nil (ui_alerts))
    (wex_tab_add)
    (want 1 (length (ui_alerts)))
    (ui_session "ODD_TABS"
      '((want '("NAME") (shown '("NAME")))
        (want nil (wex_tab_add "TAB"))
        (want nil (wex_tab_add "nobody" "no such tile" "NAME"))
        (want nil (wex_tab_add "PUSH" "not a tab control" "NAME"))
        (want nil (ui_items "TAB"))
        (want nil (ui_alerts))
        (ui_click "Cancel")))
    (wex_start_dialog)))

(test "A page for a tab behind one that wasn't added here gets no controls, and the call ends quietly"
  '((host_load_plugin "build/windows/tests/testplugin.pgx")
    (in-tabs "(add-pages)"
      '((t_tab 128)
        (want nil (wex_tab_add "TAB2" "second tab, first page" "PUSH"))
        (want '("PUSH") (shown '("PUSH")))
        (want nil (ui_alerts))
        (wex_tab_add "TAB2" "without controls, any page does")
        (want 3 (length (ui_items "TAB2")))))
    (host_unload_plugin)))

(test "The edit box that had the focus tells that it was left, once, and no other does"
  '((in-pages '(foreach tile '("NAME" "BOTH" "READONLY") (wex_action_tile tile "(note (list $key $value $reason))"))
      '((ui_type "NAME" "typed")
        (ui_pick "TAB" 1)
        (want '(("name" "typed" 2)) notes)
        (want '("TAB") (focused '("TAB" "NAME" "BOTH" "LIST" "OK")))))))

(test "What leaving an edit box runs may add a page or end the dialog"
  '((in-pages '(wex_action_tile "NAME" "(wex_tab_add \"TAB\" \"Fourth\" \"PUSH\")")
      '((ui_type "NAME" "x")
        (ui_pick "TAB" 1)
        (want '("LIST") (shown '("NAME" "CHECK" "LIST" "PUSH")))
        (want '("First" "Second" "Third" "Fourth") (ui_items "TAB"))))
    (want 5 (run-dialog "ODD_TABS"
              '(progn (wex_setaction_oninit "(add-pages)") (wex_action_tile "NAME" "(wex_done_dialog 5)"))
              '((ui_type "NAME" "x") (ui_pick "TAB" 1))))))

(test "The focus leaves a page that Lisp turns, also where the tab control is disabled"
  '((in-tabs "(add-pages)"
      '((ui_type "NAME" "x")
        (wex_mode_tile "TAB" 1)
        (progn (wex_set_tile "TAB" "2") (wex_tab_add "TAB" "Fourth"))
        (want nil (focused '("NAME" "BOTH" "TAB")))))))

(test "Ctrl+Tab and Ctrl+PageDown turn to the next page, round the end; with Shift and Ctrl+PageUp back; the arrow keys do on the tabs"
  '((in-tabs "(add-pages)"
      '((ui_key "CTRL+TAB" "NAME")
        (want '(1) (look "TAB" "selected"))
        (want '("LIST") (shown '("NAME" "LIST")))
        (want '("BOTH") (focused '("BOTH" "LIST" "TAB" "OK")))
        (ui_key "CTRL+PAGEDOWN")
        (want '("TAB") (focused '("BOTH" "LIST" "TAB" "OK")))
        (ui_key "CTRL+TAB" "OK")
        (want '((0) ("OK")) (list (look "TAB" "selected") (focused '("NAME" "TAB" "OK"))))
        (ui_key "CTRL+PAGEUP" "BOTH")
        (ui_key "CTRL+SHIFT+TAB" "OK")
        (want '((1) ("LIST")) (list (look "TAB" "selected") (shown '("NAME" "LIST"))))
        (ui_key "CTRL+PAGEUP" "BOTH")
        (want '("BOTH") (focused '("NAME" "TAB" "BOTH")))
        (ui_key "RIGHT" "TAB")
        (want '((1) ("LIST") ("TAB")) (list (look "TAB" "selected") (shown '("NAME" "LIST")) (focused '("TAB" "BOTH"))))
        (ui_key "CTRL+PAGEUP")
        (want '((0) ("TAB")) (list (look "TAB" "selected") (focused (cons "TAB" first-page))))))))

(test "Of two tab controls the keys turn the one on which the focus is; a tab that has no room is scrolled to"
  '((in-tabs "(progn (add-pages) (wex_tab_add \"TAB2\" \"Here\") (wex_tab_add \"TAB2\" \"There\" \"THERE\"))"
      '((ui_pick "TAB2" "There")
        (want '("THERE" "NAME") (shown '("THERE" "NAME")))
        (ui_key "CTRL+TAB" "THERE")
        (want '("NAME") (shown '("THERE" "NAME")))
        (ui_key "CTRL+TAB" "NAME")
        (want '((1) (0)) (list (look "TAB" "selected") (look "TAB2" "selected")))))))

; --- looks. A page is white in the platform's theme and as grey as the dialog without one.

(defun colors (tile left right y) (unique (mapcar '(lambda (x) (ui_pixel tile x y)) (range left right))))
(defun width (tile) (caddr (look tile "rect")))
(defun height (tile) (cadddr (look tile "rect")))
; The color at the right end of a tile, where its text doesn't reach.
(defun background (tile) (ui_pixel tile (- (width tile) 3) (/ (height tile) 2)))
(defun page-color () (ui_pixel "TAB" (- (width "TAB") 20) (- (height "TAB") 20)))

(test "Labels, check boxes and frames have the background of the page, and those beside it the dialog's"
  '((in-tabs "(add-pages)"
      '((setq page (page-color) dialog (ui_pixel "TAB" -3 10))
        (foreach tile '("LABEL" "CHECK" "RADIO1" "FRAME") (want (list tile page) (list tile (background tile))))
        (want dialog (background "ANYWHERE"))
        (ui_pick "TAB" 1)
        (foreach tile '("TEXT" "BOX") (want (list tile page) (list tile (background tile))))
        (want T (/= 16777215 (background "READONLY")))))))

(test "The captions show, and what was hidden leaves nothing behind"
  '((in-tabs "(add-pages)"
      '((want T (> (length (colors "TAB" 5 50 10)) 1))
        (setq page (page-color) left 10 right (- (width "TAB") 10))
        (want T (> (length (colors "TAB" left right (/ (height "TAB") 3))) 1))
        (ui_pick "TAB" 2)
        (foreach y (mapcar '(lambda (part) (/ (* part (height "TAB")) 10)) '(2 3 4 5 6 7 8 9))
          (want (list y page) (cons y (colors "TAB" left right y))))))))

(test "A list control shows with its header where labels and boxes were"
  '((in-dialog "SETUP_COMPONENT_XREF"
      '(wex_setaction_oninit
         "(wex_tab_add \"TABS\" \"Format\" \"MODE\" \"TEXT\" \"FORMATS\" \"LABEL0\" \"SAME_FMT\") (wex_tab_add \"TABS\" \"Types\" \"TYPES\")")
      '((ui_pick "TABS" 1)
        (want 1 (length (colors "TYPES" 3 (- (width "TYPES") 3) (/ (height "TYPES") 12))))))))

(test "A frame whose id is higher than the tab control's lies below it"
  '((in-tabs "(wex_tab_add \"TAB\" \"First\" \"HIGH_FRAME\")"
      '((want '("HIGH_FRAME") (shown '("HIGH_FRAME")))
        (want (list (page-color)) (colors "HIGH_FRAME" 0 (width "HIGH_FRAME") (/ (height "HIGH_FRAME") 2)))))))
