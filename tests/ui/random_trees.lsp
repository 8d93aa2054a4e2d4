; Random clicks, keys and calls on a tree. After each of them the tree shows what a plain model says, and the action has
; heard what it says. Some actions change the tree in the middle of the click or key that they are told of: they add,
; delete and sort, the item told of and all items too. Where the platform decides (whom a deleted item leaves the selection to,
; which branches a key opens) it is Wine that was asked.
(host_warn nil)  ; what the functions refuse is tried on purpose

(begin-chance 1500)

; --- the model. An item is (handle parent text data image selected alternate record open opened-once); the top is 0

(setq items nil kids nil selected nil names 0)
(setq @parent 1 @text 2 @data 3 @image 4 @selected 5 @alternate 6 @record 7 @open 8 @once 9)

(defun alive (item) (assoc item items))
(defun get (item field) (nth field (assoc item items)))
(defun put (item field value)
  (setq items (mapcar '(lambda (old) (if (= (car old) item) (put-nth field value old) old)) items)))
(defun kids-of (item) (cdr (assoc item kids)))
(defun set-kids (item list) (setq kids (cons (cons item list) (remove (assoc item kids) kids))))
(defun any-item () (car (one-of items)))
(defun new-text () (setq names (1+ names)) (strcat (chr (+ 97 (chance 26))) (itoa (+ 10000 names))))

(defun tree-below (item) (cons item (apply 'append (mapcar 'tree-below (kids-of item)))))
(defun shown (item)
  (apply 'append (mapcar '(lambda (kid) (cons kid (if (get kid @open) (shown kid)))) (kids-of item))))
(defun lines (item tabs)
  (apply 'append
    (mapcar '(lambda (kid) (cons (strcat tabs (get kid @text)) (if (get kid @open) (lines kid (strcat "\t" tabs)))))
            (kids-of item))))

(defun opens (item) (and (kids-of item) (not (get item @open))))
(defun closes (item) (and (kids-of item) (get item @open)))
(defun swap-images (item / was)
  (setq was (get item @image))
  (cond ((get item @record)
         (put item @image (get item @alternate)) (put item @selected (get item @alternate)) (put item @alternate was))))
(defun fold (item open) (put item @open open) (if (and (not open) (member selected (tree-below item))) (setq selected item)))
(defun flip (item)
  (expect item 15) (expect item 16)
  (swap-images item) (put item @once T) (fold item (not (get item @open))))
(defun select (item / above)
  (cond ((/= item selected)
         (setq above item)
         (while (/= 0 (setq above (get above @parent))) (if (not (get above @open)) (flip above)))
         (setq selected item)
         (expect item 10))))

; --- what the action hears

(setq told nil due nil inside nil target nil unsure nil)
(defun expect (item reason) (setq due (append due (list (list item reason)))))
(defun heard (/ form)
  (setq told (append told (list (list (atoi $value) $reason))) form inside inside nil)
  (eval form))

; --- calls, which may come from the action too

(defun any-images () (one-of '(nil (1) (2 3) (1 1 2) (1 9 2) (4 4 -1))))
(defun images-of (numbers / first)
  (setq first (cond ((car numbers)) (T -1)))
  (cond ((caddr numbers) (list first first (caddr numbers)))
        ((cadr numbers) (list first (cadr numbers) -1))
        (T (list first -1 -1))))

(defun insert (/ parent previous text images item siblings)
  (setq parent (if (or (null items) (= (chance 3) 0)) 0 (any-item))
        siblings (kids-of parent) text (new-text) images (any-images)
        previous (if (and items (= (chance 2) 0)) (any-item))
        item (apply (cond ((and previous (= parent 0)) 'wex_tree_insertparentafter)
                          (previous 'wex_tree_insertchildafter)
                          ((= parent 0) 'wex_tree_insertparent)
                          (T 'wex_tree_insertchild))
                    (append '("TREE") (if (/= parent 0) (list parent)) (if previous (list previous)) (list text) images))
        images (images-of images))
  (setq items (cons (append (list item parent text 0) images (list (>= (caddr images) 0) nil nil)) items))
  (set-kids parent
    (if (member previous siblings)
      (apply 'append (mapcar '(lambda (kid) (if (= kid previous) (list kid item) (list kid))) siblings))
      (append siblings (list item)))))

(defun grow () (if (< (length items) 25) (insert)))

(defun delete (item / siblings at heir gone)
  (setq siblings (kids-of (get item @parent)) at (position item siblings) gone (tree-below item)
        heir (cond ((nth (1+ at) siblings)) ((/= 0 (get item @parent)) (get item @parent)) ((> at 0) (nth (1- at) siblings))))
  (wex_tree_deleteitem "TREE" item)
  (set-kids (get item @parent) (remove item siblings))
  (cond ((member selected gone) (setq selected heir) (if heir (expect heir 10))))
  (setq items (remove-if '(lambda (old) (member (car old) gone)) items)
        kids (remove-if '(lambda (pair) (member (car pair) gone)) kids))
  (gone-for-lisp item))

(defun gone-for-lisp (item)
  (want "" (wex_tree_getitemtext "TREE" item))
  (want -1 (wex_tree_getparent "TREE" item))
  (want 0 (wex_tree_insertchild "TREE" item "x"))
  (wex_tree_setitemimages "TREE" item 1 1 2)
  (want '(-1 -1 -1) (wex_tree_getitemimages "TREE" item)))

(defun shrink () (if items (delete (any-item))))
(defun delete-target () (if (alive target) (delete target)))
(defun delete-all (/ some)
  (setq some (if items (any-item)))
  (wex_tree_deleteallitems "TREE")
  (setq items nil kids nil selected nil)
  (want -1 (wex_tree_getcursel "TREE"))
  (if some (gone-for-lisp some)))

(defun rename (/ item text)
  (cond (items
         (setq item (any-item) text (new-text))
         (wex_tree_setitemtext "TREE" item text)
         (put item @text text))))
(defun set-data (/ item data)
  (cond (items
         (setq item (any-item) data (one-of '(0 7 -70000)))
         (wex_tree_setitemdata "TREE" item data)
         (put item @data data) (put item @record T))))
(defun set-images (/ item numbers)
  (cond ((and items (setq numbers (any-images)))
         (setq item (any-item))
         (apply 'wex_tree_setitemimages (append (list "TREE" item) numbers))
         (setq numbers (images-of numbers))
         (put item @image (car numbers)) (put item @selected (cadr numbers)) (put item @alternate (caddr numbers))
         (put item @record T))))
(defun sort-kids (/ item)
  (cond (items
         (setq item (any-item))
         (wex_tree_sortchildren "TREE" item)
         (set-kids item (sort (kids-of item) '(lambda (a b) (< (get a @text) (get b @text))))))))

(defun select-any (/ item)
  (cond (items
         (setq item (any-item))
         (select item)
         (wex_tree_selectitem "TREE" item)
         (want item (wex_tree_getcursel "TREE")))))
; Lisp's own opening is told the first time, its closing never.
(defun expand-any (/ item mode)
  (cond (items
         (setq item (any-item) mode (one-of '(-1 0 1 2)))
         (cond ((and (member mode '(0 1)) (opens item)) (if (get item @once) (fold item T) (flip item)))
               ((and (member mode '(0 -1)) (closes item)) (fold item nil)))
         (apply 'wex_tree_expanditem (append (list "TREE" item) (if (or (/= mode 0) (= (chance 2) 0)) (list mode)))))))

(setq structural '(insert grow grow shrink shrink delete-target delete-target delete-all rename set-data sort-kids))
(setq calls '(grow grow grow grow grow rename set-data set-data set-images set-images sort-kids select-any select-any
              expand-any expand-any shrink))

; --- what the person does

(defun toggle (item) (if (kids-of item) (flip item)))
(defun click () (expect target 13) (select target) (ui_pick "TREE" target))
(defun click-button () (cond ((kids-of target) (expect target 13) (toggle target) (ui_expand "TREE" target))))
(defun double-click ()
  (expect target 13) (select target) (expect target 12) (toggle target)
  (ui_dblclick "TREE" target))
(defun right-click () (expect target 11) (ui_rclick "TREE" target))

(defun arrow (/ seen at key)
  (setq seen (shown 0) key (one-of '("UP" "DOWN" "HOME" "END")))
  (cond (selected
         (setq at (position selected seen))
         (select (nth (cond ((equal key "UP") (max 0 (1- at))) ((equal key "DOWN") (min (1- (length seen)) (1+ at)))
                            ((equal key "HOME") 0) (T (1- (length seen))))
                      seen))))
  (ui_key key "TREE"))
(defun key-right ()
  (cond ((null selected)) ((opens selected) (flip selected)) ((kids-of selected) (select (car (kids-of selected)))))
  (ui_key "RIGHT" "TREE"))
(defun key-left ()
  (cond ((null selected)) ((get selected @open) (if (kids-of selected) (flip selected)))
        ((/= 0 (get selected @parent)) (select (get selected @parent))))
  (ui_key "LEFT" "TREE"))
(defun key-plus () (if (and selected (opens selected)) (flip selected)) (ui_key "PLUS" "TREE"))
(defun key-minus () (if (and selected (closes selected)) (flip selected)) (ui_key "MINUS" "TREE"))

(defun open-all (item) (if (opens item) (flip item)) (mapcar '(lambda (kid) (if (kids-of kid) (open-all kid))) (kids-of item)))
(defun key-star () (if selected (open-all selected)) (setq inside nil unsure nil) (ui_key "STAR" "TREE"))

(setq input '(click click click-button click-button double-click right-click arrow arrow key-right key-right key-left
              key-plus key-minus key-star))

; --- one event, and the comparison before the next

(defun event (/ what)
  (compare)
  (setq count (1+ count) due nil told nil)
  (cond ((and items (= (chance 2) 0))
         (setq what (one-of input)
               target (if (member what '(click click-button double-click right-click)) (one-of (shown 0)) selected))
         (if (= (chance 3) 0) (setq inside (list (one-of structural)) unsure T)))
        (T (setq what (one-of calls) inside nil)))
  (setq trail (cons (list what inside) trail))
  (eval (list what)))

; What a click does to an item that changes under it is the platform's affair: that item goes. The second press of a
; double click may have met the item that has taken its place.
(defun look-again (/ was)
  (setq was (wex_tree_getcursel "TREE") selected (if (= was -1) nil was) was (look "TREE" "expanded"))
  (foreach item (mapcar 'car items)
    (if (and (kids-of item) (or (= 0 (get item @parent)) (member (path-of (get item @parent)) was)))
      (see-open item (if (member (path-of item) was) T))))
  (delete-target)
  (setq due nil told nil))
(defun path-of (item) (if (/= item 0) (append (path-of (get item @parent)) (list (get item @text)))))
(defun see-open (item open / images)
  (cond ((not (equal open (get item @open)))
         (setq images (wex_tree_getitemimages "TREE" item))
         (put item @open open) (put item @once T)
         (put item @image (car images)) (put item @selected (cadr images)) (put item @alternate (caddr images)))))

(defun compare (/ fine)
  (setq fine (null *wrong*) inside nil)
  (if unsure (look-again))
  (setq unsure nil)
  (want due told)
  (want (lines 0 "") (ui_items "TREE"))
  (want (cond (selected) (T -1)) (wex_tree_getcursel "TREE"))
  (foreach item items
    (want (list (get (car item) @text) (get (car item) @data)
                (list (get (car item) @image) (get (car item) @selected) (if (get (car item) @record) (get (car item) @alternate) -1))
                (cond ((= 0 (get (car item) @parent)) -1) (T (get (car item) @parent))))
          (mapcar '(lambda (ask) (apply ask (list "TREE" (car item))))
                  '(wex_tree_getitemtext wex_tree_getitemdata wex_tree_getitemimages wex_tree_getparent))))
  (note-event fine))

(test (strcat (itoa events) " random events, seed " (itoa seed))
  '((want -1 (in-dialog "DRAWING_FOLDER_FILTER_SEL" '(wex_action_tile "TREE" "(heard)")
      (append '((insert) (setq selected (caar items)) (ui_pick "TREE" selected) (setq told nil)) (steps-of '(if (null *wrong*) (event))) '((compare)))))))
