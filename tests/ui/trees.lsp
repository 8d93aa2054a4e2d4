; Trees: items as Lisp makes and asks them, and what a person's clicks and keys do and tell.
(host_warn nil)  ; what the functions refuse is tried on purpose

; A session in a dialog with a tree, whose events are noted as (item reason). The forms of `make` come first.
(defun in-tree (make session)
  (setq notes nil)
  (in-dialog "DRAWING_FOLDER_FILTER_SEL" '(wex_action_tile "TREE" "(note (list (atoi $value) $reason))")
    (append make '((told)) session)))

(defun top (text) (wex_tree_insertparent "TREE" text))
(defun under (parent text) (wex_tree_insertchild "TREE" parent text))
(defun images (item) (wex_tree_getitemimages "TREE" item))
(defun shown () (ui_items "TREE"))
(defun selection () (wex_tree_getcursel "TREE"))

; The first folder holds b and a, the second one c.
(setq folders '((setq one (top "One") b (under one "b") a (under one "a") two (top "Two") c (under two "c"))))

(test "An item keeps its text, whatever its length, and its data"
  '((in-tree folders
      '((setq long-text (apply 'strcat (mapcar '(lambda (i) "0123456789") (range 300))))
        (foreach text (list "renamed & more" long-text "")
          (want nil (wex_tree_setitemtext "TREE" b text))
          (want text (wex_tree_getitemtext "TREE" b)))
        (foreach data '(70000 -7 0) (wex_tree_setitemdata "TREE" b data) (want data (wex_tree_getitemdata "TREE" b)))
        (want 0 (wex_tree_getitemdata "TREE" a))
        (wex_tree_setitemdata "TREE" a "no number")
        (want 0 (wex_tree_getitemdata "TREE" a))
        (wex_tree_setitemtext "TREE" a 5)
        (want "" (wex_tree_getitemtext "TREE" a))))))

(test "Of three images the second is the first; one that is no number is passed over"
  '((in-tree
      '((setq items (mapcar '(lambda (numbers) (apply 'wex_tree_insertparent (append '("TREE" "x") numbers)))
                            '(nil (4) (4 9) (4 9 5) (4 "9" 5) ("4" 9) (4 9 -1) (4 9 -2) (4 9 0)))))
      '((want '((-1 -1 -1) (4 -1 -1) (4 9 -1) (4 4 5) (4 4 5) (-1 9 -1) (4 4 -1) (4 4 -1) (4 4 0)) (mapcar 'images items))
        (setq item (car items))
        (want '((4 -1 -1) (4 9 -1) (4 4 5) (4 4 -2) (-1 -1 -1))
              (mapcar '(lambda (numbers) (apply 'wex_tree_setitemimages (append (list "TREE" item) numbers)) (images item))
                      '((4) (4 9) (4 9 5) (4 9 -2) ("4"))))))))

(test "A click beside all items tells 0"
  '((in-tree folders '((ui_pick "TREE" one) (told) (ui_click "TREE") (want '((0 13)) (told))))))

(test "A tree of the style for it opens what is clicked, and tells that too; Lisp is told keys in lower case"
  '((setq notes nil)
    (in-dialog "ODD_TREES" '(wex_action_tile "SINGLE" "(note (list $key $value $reason))")
      '((setq above (wex_tree_insertparent "SINGLE" "above") x (wex_tree_insertchild "SINGLE" above "x"))
        (ui_pick "SINGLE" above)
        (want (mapcar '(lambda (reason) (list "single" (itoa above) reason)) '(13 10 14 15 16)) (told))))))

(test "Typing the begin of a name goes to its item"
  '((in-tree '((setq item (top "loom") least (top "last") more (top "more")) (ui_pick "TREE" more))
      '((ui_char "la")
        (want least (selection))))))

; Runs `how` once, in that event, when `prepare` is done and `act` brings the event about.
(defun in-event (way how check)
  (setq armed nil event (car way))
  (run-dialog "ODD_TREES"
    '(wex_action_tile "SINGLE" "(if (and armed (= $reason event)) (progn (setq armed nil item (atoi $value)) (eval how)))")
    (append
      '((setq above (wex_tree_insertparent "SINGLE" "above" 1 1 2) inner (wex_tree_insertchild "SINGLE" above "inner")
              x (wex_tree_insertchild "SINGLE" inner "x") rest (wex_tree_insertparent "SINGLE" "rest"))
        (ui_pick "SINGLE" rest))
      (list (cadr way) '(setq armed T) (caddr way))
      check)))

(setq ways '((13 nil (ui_pick "SINGLE" above)) (10 nil (ui_pick "SINGLE" above)) (14 nil (ui_pick "SINGLE" above))
             (15 nil (ui_pick "SINGLE" above)) (16 nil (ui_pick "SINGLE" above)) (12 nil (ui_dblclick "SINGLE" above))
             (11 nil (ui_rclick "SINGLE" above)) (13 nil (ui_expand "SINGLE" above)) (16 nil (ui_expand "SINGLE" above))
             (15 nil (wex_tree_selectitem "SINGLE" x)) (16 nil (wex_tree_selectitem "SINGLE" x))
             (15 (ui_pick "SINGLE" above) (ui_key "STAR")) (16 (ui_pick "SINGLE" above) (ui_key "MINUS"))
             (10 nil (ui_key "UP")) (15 (ui_pick "SINGLE" above) (ui_key "LEFT"))))

(test "Any event may delete its item, which is gone for the action at once, or all items and make new ones, or end the dialog"
  '((foreach way ways
      (in-event way
        '(progn (wex_tree_deleteitem "SINGLE" item)
                (want '("" -1 0 (-1 -1 -1))
                      (list (wex_tree_getitemtext "SINGLE" item) (wex_tree_getparent "SINGLE" item)
                            (wex_tree_insertchild "SINGLE" item "x") (wex_tree_getitemimages "SINGLE" item))))
        '((want nil armed)
          (want '("" "rest") (mapcar '(lambda (it) (wex_tree_getitemtext "SINGLE" it)) (list item rest)))
          (ui_click "Cancel")))
      (in-event way
        '(progn (wex_tree_deleteallitems "SINGLE")
                (want -1 (wex_tree_getcursel "SINGLE"))
                (setq new (wex_tree_insertparent "SINGLE" "new") child (wex_tree_insertchild "SINGLE" new "child"))
                (wex_tree_deleteitem "SINGLE" child))
        '((want '("new") (ui_items "SINGLE")) (ui_click "Cancel")))
      (want 7 (in-event way '(wex_done_dialog 7) nil)))))

(test "A mistyped item is null, which deletes all and makes a parent the top; a missing one changes nothing"
  '((in-tree folders
      '((want nil (wex_tree_deleteitem "TREE"))
        (want '("One" "Two") (shown))
        (under "One" "top")
        (want '("One" "Two" "top") (shown))
        (wex_tree_deleteitem "TREE" "One")
        (want nil (shown))))))

; Arguments behind the tile; a place is what Lisp then gives with all of them and no such tile, and with the last missing.
(test "Without a tile or an argument each function gives what it is to give"
  '((setq calls '((wex_tree_insertparent ("x") nil nil) (wex_tree_insertchild (1 "x") nil nil)
                  (wex_tree_insertparentafter (1 "x") nil nil) (wex_tree_insertchildafter (1 2 "x") nil nil)
                  (wex_tree_setitemdata (1 2) nil nil) (wex_tree_getitemdata (1) 0 nil)
                  (wex_tree_setitemtext (1 "x") nil nil) (wex_tree_getitemtext (1) "" nil)
                  (wex_tree_setitemimages (1 2) nil nil) (wex_tree_getitemimages (1) nil nil)
                  (wex_tree_deleteitem (1) nil nil) (wex_tree_sortchildren (1) nil nil) (wex_tree_selectitem (1) nil nil)
                  (wex_tree_getparent (1) -1 nil) (wex_tree_expanditem (1) nil nil) (wex_tree_setupimagelist (101) nil nil)))
    (defun ask (tile arguments) (apply (car call) (cons tile arguments)))
    (foreach call calls
      (want (list (car call) (caddr call)) (list (car call) (ask "NOWHERE" (cadr call)))))
    (in-tree nil
      '((foreach call calls
          (setq short (reverse (cdr (reverse (cadr call)))))
          (want (list (car call) (caddr call)) (list (car call) (ask "NOWHERE" (cadr call))))
          (foreach tile '("NOWHERE" "TREE")
            (want (list (car call) (nth 3 call)) (list (car call) (ask tile short)))))
        (want '(-1 nil nil) (mapcar '(lambda (name) (apply name '("NOWHERE")))
                              '(wex_tree_getcursel wex_tree_getcount wex_tree_deleteallitems)))
        (top "x")
        (want '(-1 nil) (list (wex_tree_getcursel 117) (wex_tree_getcount "TREE")))
        (want '(-1 "" 0) (list (wex_tree_getparent "TREE" 5) (wex_tree_getitemtext "TREE" 5) (wex_tree_getitemdata "TREE" 5)))))
    (want nil (ui_alerts))
    (wex_tree_getcount)
    (want 1 (length (ui_alerts)))))

(test "A tile that is no tree takes the calls, and stays as it is"
  '((in-tree nil
      '((want '(0 0 "" -1)
              (list (wex_tree_insertparent "COUNT" "x") (wex_tree_getitemdata "COUNT" 1) (wex_tree_getitemtext "COUNT" 1)
                    (wex_tree_getcursel "COUNT")))
        (want '(-1 -1 -1) (wex_tree_getitemimages "COUNT" 1))
        (wex_tree_setitemdata "COUNT" 1 2)
        (wex_tree_setupimagelist "COUNT" 101)
        (want "" (ui_text "COUNT"))))))

(test "Icons come by number and by name, alone or in a list; one that isn't found takes no number"
  '((in-tree nil
      '((want nil (wex_tree_setupimagelist "TREE" '(102 "NOWHERE" 5 "PROJECT")))
        (setq items (mapcar '(lambda (image) (wex_tree_insertparent "TREE" "x" image image)) '(0 1 -1)))
        (want '(0 1 -1) (look "TREE" "images"))
        (ui_shot "tree_icons.png")
        (setq first-picture (mapcar '(lambda (row) (ui_pixel "TREE" 30 (+ 8 (* row 16)))) '(0 1 2)))
        (want nil (apply '= first-picture))
        (wex_tree_setupimagelist "TREE" 102 "PROJECT")
        (want first-picture (mapcar '(lambda (row) (ui_pixel "TREE" 30 (+ 8 (* row 16)))) '(0 1 2)))))))

(test "The handles of 20,000 items come back from Lisp as they were"
  '((in-tree nil
      '((setq names nil)
        (setq many (mapcar '(lambda (i) (top (itoa i))) (range 20000)))
        (want nil (member 0 many))
        (foreach i '(0 9999 19999) (want (itoa i) (wex_tree_getitemtext "TREE" (nth i many))))))))

; A tree of 40 items, two of them with children, which is opened, sorted, scrolled and cut.
(setq building
  '((setq tops (mapcar '(lambda (i) (top (itoa (- 140 i)))) (range 40)))
    (foreach place '(5 35) (foreach i (range 12) (under (nth place tops) (strcat "child " (itoa (- 90 i))))))
    (wex_tree_expanditem "TREE" (nth 35 tops) 1)
    (wex_tree_sortchildren "TREE" (nth 35 tops))
    (top "one more")
    (wex_tree_selectitem "TREE" (nth 20 tops))
    (wex_tree_deleteitem "TREE" (nth 3 tops))
    (under (nth 5 tops) "and one more")
    (wex_tree_expanditem "TREE" (nth 5 tops))))
(defun picture (/ colors)
  (foreach y (range 44) (foreach x (range 20) (setq colors (cons (ui_pixel "TREE" (* x 9) (* y 5)) colors))))
  colors)

(test "A tree that was changed at a stroke looks like one that was drawn after each change"
  '((in-tree nil (append building '((setq slowly (picture)))))
    (in-tree nil (list (cons 'progn building) '(want T (equal slowly (picture)))))))
