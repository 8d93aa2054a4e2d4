#!/usr/bin/env python3
"""Draws resources/icons/*.ico from icons.txt beside them, in 16, 20, 24 and 32 pixels with an alpha channel,
and in 16 and 32 pixels with 16 colours for displays that know no more."""
import math
import struct
from pathlib import Path

FOLDER = Path(__file__).resolve().parent.parent / "resources" / "icons"
UNITS = 16
SAMPLES = 8  # on each side of a pixel
OPAQUE = 255
PALETTE = [(0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128), (0, 128, 128),
           (192, 192, 192), (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0), (0, 0, 255),
           (255, 0, 255), (0, 255, 255), (255, 255, 255)]


def in_polygon(points, x, y):
    inside = False
    for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
        if (ay > y) != (by > y) and x < ax + (y - ay) * (bx - ax) / (by - ay):
            inside = not inside
    return inside


def near_segment(a, b, x, y, distance):
    dx, dy = b[0] - a[0], b[1] - a[1]
    along = max(0, min(1, ((x - a[0]) * dx + (y - a[1]) * dy) / (dx * dx + dy * dy)))
    return math.hypot(x - a[0] - along * dx, y - a[1] - along * dy) <= distance


def parse_shape(words):
    color = tuple(bytes.fromhex(words[1][1:]))
    first_point = 2 if words[0] == "fill" else 3
    points = [tuple(map(float, word.split(","))) for word in words[first_point:]]
    if words[0] == "fill":
        return color, lambda x, y: in_polygon(points, x, y)
    ends = points[1:] + (points[:1] if words[0] == "outline" else [])
    segments = list(zip(points, ends))
    return color, lambda x, y: any(near_segment(a, b, x, y, float(words[2]) / 2) for a, b in segments)


def parse(text):
    icons = {}
    for line in text.splitlines():
        words = line.split()
        if not words or words[0] == "#":
            continue
        if words[0] == "icon":
            shapes = icons.setdefault(words[1], [])
        else:
            shapes.append(parse_shape(words))
    return icons


def color_at(shapes, x, y):
    return next((color for color, covers in reversed(shapes) if covers(x, y)), None)


def render(shapes, size):
    """Rows from the top of (red, green, blue, alpha)."""
    def pixel(column, row):
        step = UNITS / size / SAMPLES
        hits = [color_at(shapes, column * UNITS / size + (i + 0.5) * step, row * UNITS / size + (j + 0.5) * step)
                for i in range(SAMPLES) for j in range(SAMPLES)]
        seen = [hit for hit in hits if hit]
        if not seen:
            return 0, 0, 0, 0
        return *(round(sum(c) / len(seen)) for c in zip(*seen)), round(len(seen) * OPAQUE / len(hits))
    return [[pixel(column, row) for column in range(size)] for row in range(size)]


def pack_bits(rows, bits):
    """Rows of small numbers, bottom row first, each padded to 32 bits."""
    data = b""
    for row in reversed(rows):
        number = 0
        for value in row:
            number = number << bits | value
        padding = -len(row) * bits % 32
        data += (number << padding).to_bytes((len(row) * bits + padding) // 8, "big")
    return data


def image(rows, bits):
    size = len(rows)
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, bits, 0, 0, 0, 0, 0, 0)
    mask = pack_bits([[int(pixel[3] <= OPAQUE // 2) for pixel in row] for row in rows], 1)
    if bits == 32:
        data = b"".join(bytes((b, g, r, a)) for row in reversed(rows) for r, g, b, a in row)
        return header + data + mask

    def nearest(pixel):
        if pixel[3] <= OPAQUE // 2:
            return 0
        return min(range(len(PALETTE)), key=lambda i: sum((a - b) ** 2 for a, b in zip(PALETTE[i], pixel)))
    palette = b"".join(bytes((b, g, r, 0)) for r, g, b in PALETTE)
    return header + palette + pack_bits([[nearest(pixel) for pixel in row] for row in rows], bits) + mask


def icon_file(shapes):
    pictures = [(size, 32, image(render(shapes, size), 32)) for size in (16, 20, 24, 32)]
    pictures += [(size, 4, image(render(shapes, size), 4)) for size in (16, 32)]
    offset = 6 + 16 * len(pictures)
    directory = struct.pack("<HHH", 0, 1, len(pictures))
    for size, bits, data in pictures:
        directory += struct.pack("<BBBBHHII", size, size, 16 if bits == 4 else 0, 0, 1, bits, len(data), offset)
        offset += len(data)
    return directory + b"".join(data for _, _, data in pictures)


for name, shapes in parse((FOLDER / "icons.txt").read_text()).items():
    (FOLDER / f"{name}.ico").write_bytes(icon_file(shapes))
