; A small library for user sessions as tests.
;
;   (test "What the user sees"
;     '((ui_session "ADD_REC" '((ui_click "OK")))
;       (wex_new_dialog "ADD_REC")
;       (want -1 (wex_start_dialog))))
;
; A wish that fails, or an error, is told and fails the test; the other tests run on. (report-tests) closes a file.
; What a test and its actions (note …) stands in `notes`, in order.

(setq *passed* 0 *failed* 0 *wrong* nil)

(defun note-wrong (text) (setq *wrong* (cons text *wrong*)))

; Whether `actual` is what was wanted; works in sessions and actions too.
(defun want (expected actual)
  (cond ((equal expected actual) T)
        (T (note-wrong (strcat "wanted " (prin1-to-string expected) ", got " (prin1-to-string actual))) nil)))

; Runs the forms one by one, on a clean record of alerts.
(defun test (name forms)
  (setq *wrong* nil notes nil)
  (ui_alerts)
  (catch-error (foreach form forms (eval form)) note-wrong)
  (cond (*wrong* (setq *failed* (1+ *failed*))
                 (princ (strcat "FAILED " name "\n"))
                 (foreach text (reverse *wrong*) (princ (strcat "       " text "\n"))))
        (T (setq *passed* (1+ *passed*))
           (princ (strcat "ok     " name "\n"))))
  (princ))

; Prints the counts, and ends the program with an error when a test failed.
(defun report-tests ()
  (princ (strcat (itoa *passed*) " passed, " (itoa *failed*) " failed\n"))
  (if (> *failed* 0) (error "tests failed"))
  (princ))

(defun note (what) (setq notes (append notes (list what))))

; The scale of the display; on one of another it is set before this file is loaded.
(if (not (boundp 'scale)) (setq scale 1.0))

; The notes since the last call.
(defun told (/ was) (setq was notes notes nil) was)

(defun look (tile what) (cdr (assoc what (ui_look tile))))

(defun alerts () (length (ui_alerts)))

; What the form's error says, nil without one.
(defun refused (form) (catch-error (progn (eval form) nil)))

; Of the menu that is up: all its items, nil for a line, and those that are checked.
(defun texts () (mapcar '(lambda (item) (if item (car item))) (ui_menu)))
(defun chosen () (apply 'append (mapcar '(lambda (item) (if (member "checked" item) (list (car item)))) (ui_menu))))

; Puts what is on the clipboard into LINES.
(defun paste () (wex_set_tile "LINES" "") (ui_key "CTRL+V" "LINES"))

; A list control with two columns and those rows.
(defun fill-table (tile rows)
  (wex_listctrl_setcolumns tile "\tName\tSize")
  (fill tile rows))
(setq three-rows '("alpha\t10" "beta\t9" "gamma\t100"))

(defun fill (tile items)
  (wex_start_list tile)
  (wex_add_list items)
  (wex_end_list))

; Plays the session in the dialog of that name and gives its status; `prepare` is evaluated before it starts.
(defun run-dialog (name prepare session)
  (ui_session name session)
  (wex_new_dialog name)
  (eval prepare)
  (wex_start_dialog))

; The same for a session after which Cancel is pressed.
(defun in-dialog (name prepare session)
  (run-dialog name prepare (append session '((ui_click "Cancel")))))

; --- sessions of chance. Another run, longer or of another seed, beside the add-on of odd dialogs:
;
;   wine64 build/windows/testbin/wexhost.exe --headless tests/support/check.lsp -e '(setq seed 7 events 100000)' tests/ui/random_lists.lsp \
;     -e '(report-tests)'

; The minimal standard generator, whose products fit a real.
(defun chance (n) (setq state (fix (rem (* state 16807.0) 2147483647))) (rem state n))
(defun one-of (some) (nth (chance (length some)) some))

(defun begin-chance (default-events)
  (if (not (boundp 'seed)) (setq seed 1))
  (if (not (boundp 'events)) (setq events default-events))
  (setq state (1+ seed) count 0 trail nil))

; Says by which event all was `fine` no longer; `trail` has the last ones.
(defun note-event (fine)
  (if (and fine *wrong*)
    (note-wrong (strcat "by event " (itoa count) " of seed " (itoa seed) "; the last were "
                        (prin1-to-string (mapcar '(lambda (i) (nth i trail)) (range 5)))))))

; `step` so many times, as forms of a session.
(defun steps-of (step / steps) (repeat events (setq steps (cons step steps))) steps)

(defun put-nth (n new some) (mapcar '(lambda (i old) (if (= i n) new old)) (range (length some)) some))
