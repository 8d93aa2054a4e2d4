#!/usr/bin/env python3
"""Makes resources of dialogs that are written one a file, NAME.dlg.

Usage: make-dialogs.py FOLDER FILE.dlg...

Into the folder go keylists.rc, a string table of key lists; templates.rc, the dialogs; dialog-ids.h; and for each dialog NAME.rc.
A mistake is told as FILE:LINE: TEXT, and the exit status is 1. Files that wouldn't change aren't written.
"""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))
from reading import Mistake, Reader  # noqa: E402


def template(dialog):
    lines = [f"IDD_{dialog.name} DIALOGEX 0, 0, {dialog.width}, {dialog.height}", f"STYLE {dialog.style}"]
    if dialog.ex_style:
        lines.append(f"EXSTYLE {dialog.ex_style}")
    lines += [f"CAPTION {dialog.caption}", f"FONT {dialog.font}", "BEGIN"]
    for control in dialog.controls:
        rect = ", ".join(map(str, control.rect))
        ex_style = f", {control.ex_style}" if control.ex_style else ""
        lines.append(f"    CONTROL {control.text}, {control.id}, {control.window_class}, {control.style}, {rect}{ex_style}"
                     + (f"  // {control.key}" if control.key else ""))
    lines.append("END")
    if anchors := dialog.anchors():
        # Read by the plug-in: a control's id, its anchor code, and the percents of the growth in height that its top
        # and its bottom follow.
        lines += ["", f"IDD_{dialog.name} WEX_ANCHORS", "BEGIN"]
        lines += ["    " + ", ".join(map(str, anchor)) + "," for anchor in anchors]
        lines[-1] = lines[-1].rstrip(",")
        lines.append("END")
    return lines


def key_lists(dialogs):
    lines = ['#include "dialog-ids.h"', "", "STRINGTABLE", "BEGIN"]
    lines += [f'    IDD_{dialog.name} "{dialog.key_list()}"' for dialog in dialogs]
    return lines + ["END"]


def write(path, lines):
    text = "// Made by make-dialogs.py.\n" + "\n".join(lines) + "\n"
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")


def read(path):
    return Reader(str(path), path.stem, path.read_text(encoding="utf-8")).read()


def main(folder, paths):
    dialogs, failed, by_id = [], False, {}
    for path in map(Path, paths):
        try:
            dialog = read(path)
            if dialog.id in by_id:
                raise Mistake(1, f"the id {dialog.id} belongs to {by_id[dialog.id].path} already")
            by_id[dialog.id] = dialog
            dialogs.append(dialog)
        except Mistake as mistake:
            print(f"{path}:{mistake.line}: {mistake}", file=sys.stderr)
            failed = True
        except (OSError, UnicodeDecodeError) as error:
            print(f"{path}: {error}", file=sys.stderr)
            failed = True
    if failed:
        return 1
    dialogs.sort(key=lambda dialog: dialog.id)
    folder = Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    for dialog in dialogs:
        write(folder / f"{dialog.name}.rc", template(dialog))
    write(folder / "dialog-ids.h", ["#pragma once"] + [f"#define IDD_{d.name} {d.id}" for d in dialogs])
    write(folder / "keylists.rc", key_lists(dialogs))
    write(folder / "templates.rc", ["#include <windows.h>", "", "#include <commctrl.h>", "", '#include "dialog-ids.h"']
          + [f'#include "{dialog.name}.rc"' for dialog in dialogs])
    return 0


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], sys.argv[2:]))
