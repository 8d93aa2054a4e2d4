#!/usr/bin/env python3
"""Draws resources/cursors/*.cur: 32 pixels, black with a white edge, with an alpha channel."""
import math
import struct
from pathlib import Path

FOLDER = Path(__file__).resolve().parent.parent / "resources" / "cursors"
SIZE = 32
SAMPLES = 8  # on each side of a pixel
EDGE = 1.2  # pixels of white around the black


def segment(x, y, ax, ay, bx, by, half_width):
    dx, dy = bx - ax, by - ay
    along = max(0, min(1, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)))
    return math.hypot(x - ax - along * dx, y - ay - along * dy) - half_width


def ring(x, y, cx, cy, radius, half_width):
    return abs(math.hypot(x - cx, y - cy) - radius) - half_width


def ellipse(x, y, across, upward):
    level = math.hypot((x - 16) / across, (y - 16) / upward)
    slope = math.hypot((x - 16) / across**2, (y - 16) / upward**2) or 1
    return abs(level * (level - 1) / slope) - 1


# Each gives the distance in pixels to its shape, negative inside.
def pan(x, y):
    parts = [segment(x, y, 16, 4, 16, 28, 1), segment(x, y, 4, 16, 28, 16, 1)]
    for sx, sy in ((1, 0), (-1, 0), (0, 1), (0, -1)):
        tip_x, tip_y = 16 + 12 * sx, 16 + 12 * sy
        for side in (-4, 4):
            parts.append(segment(x, y, tip_x, tip_y, tip_x - 4 * sx + side * sy, tip_y - 4 * sy + side * sx, 1))
    return min(parts)


def zoom(x, y):
    return min(ring(x, y, 13, 13, 8, 1.1), segment(x, y, 19, 19, 27, 27, 1.6), segment(x, y, 9.5, 13, 16.5, 13, 0.8),
               segment(x, y, 13, 9.5, 13, 16.5, 0.8))


def orbit(x, y):
    return min(ellipse(x, y, 12, 5), ellipse(x, y, 5, 12), math.hypot(x - 16, y - 16) - 1.8)


def pixel(shape, column, row):
    """Level of white and alpha, 0 to 255."""
    distances = [shape(column + (i + 0.5) / SAMPLES, row + (j + 0.5) / SAMPLES)
                 for i in range(SAMPLES) for j in range(SAMPLES)]
    black = sum(d <= 0 for d in distances)
    inked = sum(d <= EDGE for d in distances)
    return (255 * (inked - black) // inked if inked else 0), inked * 255 // len(distances)


def write(name, shape, hot_x, hot_y):
    rows = [[pixel(shape, column, row) for column in range(SIZE)] for row in reversed(range(SIZE))]
    colors = b"".join(bytes((white, white, white, alpha)) for row in rows for white, alpha in row)
    mask = b"".join(struct.pack(">I", sum((alpha < 128) << (SIZE - 1 - at) for at, (_, alpha) in enumerate(row)))
                    for row in rows)
    bitmap = struct.pack("<IiiHHIIiiII", 40, SIZE, 2 * SIZE, 1, 32, 0, len(colors) + len(mask), 0, 0, 0, 0) + colors + mask
    header = struct.pack("<HHHBBBBHHII", 0, 2, 1, SIZE, SIZE, 0, 0, hot_x, hot_y, len(bitmap), 22)
    (FOLDER / f"{name}.cur").write_bytes(header + bitmap)


write("pan", pan, 16, 16)
write("zoom", zoom, 13, 13)
write("orbit", orbit, 16, 16)
