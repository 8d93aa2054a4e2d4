#!/bin/bash
# A dialog of 77 tiles that was sized to and fro looks as one that starts in that size, and so does a page, also one that was
# hidden meanwhile; where Lisp moved tiles the dialog looks as when all is drawn anew: nothing is left behind or missing. Usage: tests/ui/resized_pictures.sh [KIND]    another kind of start_wine, as headless-classic
kind=${1:-headless}
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"

cat >"$work/resize.lsp" <<'LISP'
; Boxes, lists, the frame and one label grow; buttons follow the right edge or the corner.
(defun many (session / id)
  (ui_session "ODD_MANY" (cons '(ui_click 114) session))
  (wex_new_dialog "ODD_MANY")
  (setq id 113)
  (repeat 14
    (wex_setresizing (+ id 1) 25)
    (foreach follower (range (+ id 2) (+ id 5)) (wex_setresizing follower 35))
    (setq id (+ id 5)))
  (foreach anchor '((113 25) (114 35) (183 38) (112 63) (184 25) (185 73) (186 73) (1 75) (2 75))
    (wex_setresizing (car anchor) (cadr anchor)))
  (wex_set_tile 113 "A label of many words, on as many lines as its width asks for")
  (wex_start_dialog))

(many '((ui_size 720 900) (ui_close)))
(many '((ui_shot "start.png") (ui_size 1140 960) (ui_size 600 720) (ui_size 720 900)
        (ui_drag "GRIP" 90 30) (ui_drag "GRIP" -90 -30) (ui_shot "resized.png")
        (ui_size 900 960) (ui_close)))
(many '((ui_shot "start-large.png") (ui_size 720 900) (progn (ui_size 600 800) (ui_size 900 960))
        (ui_shot "resized-large.png") (ui_close)))

; The list moves to where the frame was, which moves away.
(ui_session "ODD_MANY"
  '((ui_click 114)
    (ui_size 900 960)
    (setq frame (cdr (assoc "rect" (ui_look 112))))
    (progn
      (wex_start_controlmove 3)
      (wex_movecontrol 112 700 100 180 120)
      (wex_movecontrol 183 (car frame) (+ (cadr frame) (cadddr frame) -20) 100 80)
      (wex_movecontrol 184 710 130 160 20)
      (wex_end_controlmove))
    (ui_shot "moved.png")
    (ui_size 901 960)
    (ui_size 900 960)
    (ui_shot "drawn-anew.png")
    (ui_close)))
(wex_new_dialog "ODD_MANY")
(wex_start_dialog)

(defun pages (session)
  (ui_session "HELP_PROJ_SETTINGS" (append session '((ui_close))))
  (wex_new_dialog "HELP_PROJ_SETTINGS")
  (foreach anchor '((115 63) (112 25) (113 25) (114 63) (116 63) (117 25) (118 63) (119 39) (1 75) (2 75))
    (wex_setresizing (car anchor) (cadr anchor)))
  (wex_set_tile "TEXT" "Text in a frame")
  (wex_setaction_oninit
    "(wex_tab_add \"TABS\" \"Settings\" \"LABEL0\" \"TOPICS\" \"ABOUT\" \"TEXT\")
     (wex_tab_add \"TABS\" \"Files\" \"LABEL1\" \"FILES\" \"B_OPEN\")
     (wex_tab_add \"TABS\" \"Notes\" \"LABEL2\" \"NOTES\")")
  (wex_start_dialog))

(pages '((ui_size 800 660)))
(pages '((ui_pick "TABS" 0) (ui_shot "page.png") (ui_size 1100 900) (ui_size 700 600)
         (ui_drag "GRIP" 100 60) (ui_shot "page-resized.png")
         (ui_pick "TABS" 1) (ui_size 900 800) (ui_pick "TABS" 0) (ui_size 800 660) (ui_shot "page-turned.png")))
LISP
wine64 build/windows/testbin/wexhost.exe --headless --timeout 60 --shots "$work" "$work/resize.lsp"
cmp "$work/start.png" "$work/resized.png"
cmp "$work/start-large.png" "$work/resized-large.png"
cmp "$work/moved.png" "$work/drawn-anew.png"
cmp "$work/page.png" "$work/page-resized.png"
cmp "$work/page.png" "$work/page-turned.png"
