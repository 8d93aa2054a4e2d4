; The main frame as a person works it: menus by mouse and keyboard, shortcuts, the tool bar, and what the command line shows.
; Parts of the frame are addressed by their ids.

(setq tools 101 drawing 102 output 103 line 104)
(setq open-program 1001 run-again 1002 load-plugin 1003 fit 1005 isometric 1103 help 1140)

(defun in-frame (session)
  (ui_session nil (append session '((ui_close))))
  (host_main_frame))

(defun item (text) (cdr (assoc text (ui_menu))))

; Whether the output has that text.
(defun shows (text) (want T (wcmatch (ui_text output) (strcat "*" text "*"))))

; A program in a file of its own, which notes that it ran.
(defun write-program (name text / file)
  (setq file (open name "w"))
  (princ text file)
  (close file)
  name)
(setq first-program (write-program "frame-one.lsp" "(setq ran (cons 1 ran))")
      second-program (write-program "frame-two.lsp" "(setq ran (cons 2 ran)) (princ \"two has run\") (terpri)"))

(princ "printed before the frame\n")

(test "A program is opened, run again by its key, and found among the recent ones; what was printed before the frame stood is shown"
  '((setq ran nil)
    (in-frame
      '((shows "printed before the frame")
        (want nil (look (list tools run-again) "enabled"))
        (ui_key "ALT+F" line)
        (want '("Open Program..." "Run Again" "Recent Programs" nil "Load Plug-in..." nil "Exit")
              (texts))
        (want '("Ctrl+O") (item "Open Program..."))
        (want '("F5" "disabled") (item "Run Again"))
        (ui_answer "OK" first-program)
        (ui_menu "Open Program...")
        (want '(1) ran)
        (want T (look (list tools run-again) "enabled"))
        (want "Run Again" (ui_text (list tools run-again)))
        (ui_key "F5" line)
        (want '(1 1) ran)
        (ui_answer "OK" second-program)
        (ui_key "CTRL+O" line)
        (want '(2 1 1) ran)
        (shows "two has run")
        (ui_click (list tools run-again))
        (want '(2 2 1 1) ran)
        (want T (look line "focus"))
        (ui_key "F10" line)
        (ui_key "DOWN")
        (ui_menu "Recent Programs")
        (want '("1 frame-two.lsp" "2 frame-one.lsp") (texts))
        (ui_key "2")
        (want '(1 2 2 1 1) ran)
        (want nil (ui_menu))))))

(test "The dialogs stand in the menu by name, a few letters to each menu, and run from there"
  '((ui_session "ADD_REC" '((ui_click "Cancel")))
    (in-frame
      '((ui_key "ALT+D" line)
        (setq letters (car (ui_menu)))
        (want '("" "menu") (cdr letters))
        (ui_menu (car letters))
        (ui_shot "frame-dialogs.png")
        (ui_menu "ADD_REC")
        (shows "ADD_REC: -1")))))

(test "What is loaded as a plug-in and is none is told"
  '((in-frame
      '((ui_answer "OK" "hostapi.dll")
        (ui_key "CTRL+L" line)
        (shows "hostapi.dll")))))

(test "The drawing is seen from other sides and in other styles by menu, key and tool; without one the items are disabled"
  '((draw_new)
    (in-frame
      '((ui_key "ALT+V" line)
        (want '("Ctrl+0" "disabled") (item "Fit"))
        (want '(nil nil) (list (look (list tools fit) "enabled") (look (list tools isometric) "enabled")))
        (want nil (chosen))
        (ui_key "ESC") (ui_key "ESC")
        (draw_line '(0 0 0) '(10 5 3))
        (ui_key "CTRL+4" line)
        (want '(T T) (list (look (list tools fit) "enabled") (look (list tools isometric) "enabled")))
        ; The letters of all axes have room.
        (setq lowest (1- (cadddr (look drawing "rect"))) space (ui_pixel drawing 0 0))
        (want nil (apply 'append (mapcar '(lambda (x) (if (/= (ui_pixel drawing x lowest) space) (list x))) (range 140))))
        (ui_key "ALT+V" line)
        (want '("Isometric" "2D Wireframe") (chosen))
        (ui_shot "frame-view.png")
        (ui_menu "Shaded")
        (ui_key "ALT+V" line)
        (want '("Isometric" "Shaded") (chosen))
        (ui_menu "Front")
        (ui_click (list tools 1100))
        (ui_rclick drawing)
        (want '("Top" "Shaded") (chosen))
        (ui_menu "Fit")))))

(test "Help leads to the documents"
  '((in-frame
      '((ui_key "F1" line)
        (shows "README.md")
        (ui_key "ALT+H" line)
        (ui_menu "Dialog Functions")
        (shows "lisp-functions.md")
        (ui_key "ALT+H" line)
        (ui_menu "About WexHost...")
        (want T (wcmatch (car (ui_alerts)) "WexHost #*"))))))

; Points of a tool in which the frame of the focus shows.
(defun edge (tool) (mapcar '(lambda (y) (list (ui_pixel tool 12 y) (ui_pixel tool 13 y))) '(1 2 3 4 5)))

(test "Tab leads through the tools, the output and the command line; only then the focus is framed, and Esc leads back"
  '((in-frame
      '((setq unfocused (edge (list tools open-program)))
        (ui_key "TAB" line)
        (want T (look (list tools open-program) "focus"))
        (want nil (equal unfocused (edge (list tools open-program))))
        (ui_key "ESC")
        (want T (look line "focus"))
        (ui_key "SHIFT+TAB")
        (want T (look output "focus"))
        (ui_key "TAB")
        (want T (look line "focus"))))))

(foreach name (list first-program second-program) (delete-file name))
