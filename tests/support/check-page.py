#!/usr/bin/env python3
"""Usage: check-page.py PAGE.pdf DRAWN.pgm    fails where a printed report isn't the sample report on one A4 page, or
differs from its picture, which is drawn at 300 dots per inch."""
import os
import re
import subprocess
import sys
from datetime import date, timedelta

DPI = 300
NEAR = 6        # dots that a letter may be off, since printers place letters by finer widths
SHARE = 0.02    # of the dots that may lack their counterpart


def output(*command):
    return subprocess.run(command, check=True, capture_output=True).stdout


def expect(what, wanted, got):
    if wanted != got:
        sys.exit(f"{what}: wanted {wanted}, got {got}")


def rows_of(picture):
    """Of its points, a byte each."""
    width = int(output("identify", "-format", "%w", picture))
    points = output("convert", picture, "-depth", "8", "gray:-")
    return [points[at:at + width] for at in range(0, len(points), width)]


def dots(rows):
    """The dark dots, and the places that are near one."""
    dark = {(found.start(), y) for y, row in enumerate(rows) for found in re.finditer(b"[\\x00-\\x7f]", row)}
    cells = {(x // NEAR + i, y // NEAR + j) for x, y in dark for i in (-1, 0, 1) for j in (-1, 0, 1)}
    return dark, cells


def missing(dark, cells):
    return sum((x // NEAR, y // NEAR) not in cells for x, y in dark) / len(dark)


def lines_down(rows, x, top, bottom):
    """Where horizontal lines cross the column."""
    dark = [y for y in range(top, bottom) if rows[y][x] < 128]
    return [y for y in dark if y - 1 not in dark]


pdf, drawn = sys.argv[1:3]
info = dict(line.split(":", 1) for line in output("pdfinfo", pdf).decode().splitlines())
expect("pages", "1", info["Pages"].strip())

titles = [f"Title {i}" for i in range(1, 6)]
body = [f"Cell {i}" for i in range(1, 6)] + ["test 1", "test 2"]
text = " ".join(output("pdftotext", "-raw", pdf, "-").decode().split())
table = " ".join(titles + 17 * body)
days = [f"{day:%B %d, %Y}" for day in (date.today(), date.today() - timedelta(1))]
if text not in [f"{table} {day} Page 1" for day in days]:
    sys.exit(f"text: {text}")

fonts = output("pdffonts", pdf).decode().splitlines()[2:]
expect("fonts", 2, len(fonts))
expect("bold fonts", 1, sum("Bold" in font for font in fonts))

output("gs", "-q", "-dNOPAUSE", "-dBATCH", "-dSAFER", "-sDEVICE=pgmraw", f"-r{DPI}", f"-sOutputFile={pdf}.pgm", pdf)
rows, own = rows_of(f"{pdf}.pgm"), rows_of(drawn)
os.remove(f"{pdf}.pgm")

# Beside the left edge no letter begins: the lines there are those of the table.
ours, theirs = lines_down(own, 155, 140, 3300), lines_down(rows, 155, 140, 3300)
expect("lines", 19, len(theirs))
expect("lines that are elsewhere", [], [pair for pair in zip(ours, theirs) if abs(pair[0] - pair[1]) > 2])
heights = [b - a for a, b in zip(ours, ours[1:])]
line = heights[0] - 15
expect("row heights", [15 + line] + 17 * [15 + 3 * line], heights)

dark, cells = dots(own)
printed, printed_cells = dots(rows)
for what, share in (("of the preview", missing(dark, printed_cells)), ("of the print", missing(printed, cells))):
    if share > SHARE:
        sys.exit(f"{share:.1%} of the dots {what} are not in the other")
