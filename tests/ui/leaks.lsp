; A dialog that has come and gone leaves nothing behind.

(defun open-and-close ()
  (ui_session "SCHEM_WIRE2PNL_FORMAT" '((wex_set_tile "USER_FMT" "%N") (wex_done_dialog 0)))
  (wex_new_dialog "SCHEM_WIRE2PNL_FORMAT")
  (wex_action_tile "OK" "(wex_done_dialog 1)")
  (wex_start_dialog))

(test "A thousand dialogs leave windows, drawing objects and kernel handles as they were after ten"
  '((repeat 10 (open-and-close))
    (setq before (host_resources))
    (repeat 990 (open-and-close))
    (want before (host_resources))))
