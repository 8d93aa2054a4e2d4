; A report's page: the dialog shows it as it will be printed. The page is scrolled by the bar beside it, by keys and with the
; buttons Top and Bottom; Print... prints it, and Save PDF... saves it in a file. The dialog keeps its size for the next time.

(defun report (title)
  (wex_new_dialog "report_generator")
  (wex_set_tile "main_title" title)
  (wex_setminresizing 520 300)
  (wex_start_dialog))

; What a person does when nobody is there. The dialog's tab control has the id 100, its scroll bar 102 within.
(defun tell (what) (princ what) (terpri))
(defun position () (cdr (assoc "position" (ui_look '(100 102)))))

(ui_session "report_generator"
  '((ui_size 640 560)
    (tell (ui_title))
    (tell (ui_items 100))
    (ui_shot "report.png")
    (ui_key "DOWN" 100)
    (ui_key "PAGEDOWN")
    (tell (position))
    (ui_click 6)
    (ui_shot "report_bottom.png")
    (ui_click 5)
    (tell (position))
    (ui_pick 100 "Drawing")
    (ui_shot "report_drawing.png")
    (ui_click "OK")))

(report "Bill of materials")
