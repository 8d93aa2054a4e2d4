#!/usr/bin/env python3
"""Draws examples/pictures/*: one small picture of each kind of file that an image tile shows."""
import struct
import zlib
from pathlib import Path

FOLDER = Path(__file__).resolve().parent.parent / "examples" / "pictures"
WHITE, RED, GREEN, BLUE, YELLOW = (255, 255, 255), (220, 30, 30), (30, 160, 60), (40, 80, 200), (250, 210, 40)
GRAY, STEEL = (120, 120, 120), (190, 200, 210)
CLEAR, HALF, OPAQUE = 0, 128, 255


def pixels(width, height, color):
    """Rows from the top, of what color(x, y) gives."""
    return [[color(x, y) for x in range(width)] for y in range(height)]


def inside(x, y, left, top, right, bottom):
    return left <= x < right and top <= y < bottom


def distance(x, y, cx, cy):
    return ((x + .5 - cx) ** 2 + (y + .5 - cy) ** 2) ** .5


def contactor(x, y):
    """64 x 80: a housing with three terminals above and below, and a label."""
    if x % 20 in range(6, 14) and (inside(x, y, 2, 6, 62, 18) or inside(x, y, 2, 62, 62, 74)):
        return YELLOW
    if inside(x, y, 16, 28, 48, 52):
        return WHITE
    return GRAY if inside(x, y, 2, 2, 62, 78) else STEEL


def lamp(x, y):
    """32 x 32: a lamp with a halo that is half transparent, on nothing."""
    far = distance(x, y, 16, 16)
    return (*RED, OPAQUE) if far < 9 else (*YELLOW, HALF) if far < 14 else (0, 0, 0, CLEAR)


def bmp(rows):
    height, width = len(rows), len(rows[0])
    body = b"".join(b"".join(bytes((b, g, r)) for r, g, b in row).ljust((width * 3 + 3) // 4 * 4, b"\0")
                    for row in reversed(rows))
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(body), 2835, 2835, 0, 0)
    return struct.pack("<2sIII", b"BM", 54 + len(body), 0, 54) + info + body


def png(rows):
    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))
    head = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 6, 0, 0, 0)
    body = b"".join(b"\0" + b"".join(bytes(pixel) for pixel in row) for row in rows)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(body)) + chunk(b"IEND", b"")


def gif(rows, palette):
    """`rows` hold indexes; index 0 is transparent. The codes are never joined, so each is a byte."""
    height, width = len(rows), len(rows[0])
    colors = b"".join(bytes(color) for color in palette).ljust(128 * 3, b"\0")
    codes = bytearray()
    for at, index in enumerate(index for row in rows for index in row):
        codes += b"\x80" * (at % 120 == 0) + bytes([index])
    codes += b"\x81"
    blocks = b"".join(bytes([len(part)]) + part for part in (codes[i:i + 255] for i in range(0, len(codes), 255)))
    control = b"\x21\xF9\x04\x01\0\0\0\0"
    return (b"GIF89a" + struct.pack("<HHBBB", width, height, 0xF6, 0, 0) + colors + control +
            b"," + struct.pack("<HHHHB", 0, 0, width, height, 0) + b"\x07" + blocks + b"\0;")


def jpeg(blocks):
    """One color for each block of 8 x 8 pixels: of each block only the mean is written."""
    def segment(marker, data):
        return struct.pack(">BBH", 0xFF, marker, len(data) + 2) + data
    bits, last = "", [0, 0, 0]
    for r, g, b in (color for row in blocks for color in row):
        luma = .299 * r + .587 * g + .114 * b
        levels = (round(luma - 128), round(.564 * (b - luma)), round(.713 * (r - luma)))
        for at, level in enumerate(levels):
            change, last[at] = level - last[at], level
            size = abs(change).bit_length()
            bits += f"{size:04b}"
            if size:
                bits += f"{change if change > 0 else change + (1 << size) - 1:0{size}b}"
            bits += "0"
    bits += "1" * (-len(bits) % 8)
    scan = bytes(int(bits[i:i + 8], 2) for i in range(0, len(bits), 8)).replace(b"\xFF", b"\xFF\0")
    parts = b"".join(bytes((part, 0x11, 0)) for part in (1, 2, 3))
    means = bytes([0x00, 0, 0, 0, 12] + [0] * 12) + bytes(range(12))
    ends = bytes([0x10, 1] + [0] * 15) + b"\0"
    return (b"\xFF\xD8" + segment(0xE0, b"JFIF\0\x01\x01\0\0\x01\0\x01\0\0") + segment(0xDB, b"\0" + b"\x08" * 64) +
            segment(0xC0, struct.pack(">BHHB", 8, 8 * len(blocks), 8 * len(blocks[0]), 3) + parts) +
            segment(0xC4, means + ends) + segment(0xDA, b"\x03\x01\0\x02\0\x03\0\0\x3F\0") + scan + b"\xFF\xD9")


def ico(rows):
    """A color or None, which shows what lies under it, for each pixel of 32 x 32."""
    body = b"".join(bytes((b, g, r)) for row in reversed(rows) for r, g, b in (pixel or (0, 0, 0) for pixel in row))
    mask = b"".join(struct.pack(">I", sum((pixel is None) << (31 - x) for x, pixel in enumerate(row)))
                    for row in reversed(rows))
    info = struct.pack("<IiiHHIIiiII", 40, 32, 64, 1, 24, 0, 0, 0, 0, 0, 0)
    image = info + body + mask
    return struct.pack("<HHHBBBBHHII", 0, 1, 1, 32, 32, 0, 0, 1, 24, len(image), 22) + image


def tiff(rows):
    height, width = len(rows), len(rows[0])
    body = b"".join(bytes(pixel) for row in rows for pixel in row)
    tags = [(256, 4, 1, width), (257, 4, 1, height), (258, 3, 3, 8), (259, 3, 1, 1), (262, 3, 1, 2),
            (273, 4, 1, 14), (277, 3, 1, 3), (278, 4, 1, height), (279, 4, 1, len(body))]
    directory = struct.pack("<H", len(tags)) + b"".join(struct.pack("<HHII", *tag) for tag in tags) + b"\0" * 4
    return struct.pack("<2sHIHHH", b"II", 42, 14 + len(body), 8, 8, 8) + body + directory


def wmf():
    """160 x 120 units at 96 to the inch: a motor, white on blue."""
    def record(function, *words):
        return struct.pack("<IH", 3 + len(words), function) + struct.pack(f"<{len(words)}H", *words)
    color = lambda r, g, b: (r | g << 8, b)
    records = b"".join([
        record(0x0103, 8), record(0x020B, 0, 0), record(0x020C, 120, 160),
        record(0x02FC, 0, *color(*BLUE), 0), record(0x012D, 0),
        record(0x02FA, 0, 3, 0, *color(*WHITE)), record(0x012D, 1),
        record(0x041B, 120, 160, 0, 0), record(0x0418, 110, 130, 10, 30),
        record(0x0325, 5, 62, 85, 62, 40, 80, 65, 98, 40, 98, 85), record(0)])
    head = struct.pack("<HHHIHIH", 1, 9, 0x300, 9 + len(records) // 2, 2, 12, 0)
    placeable = struct.pack("<IHhhhhHI", 0x9AC6CDD7, 0, 0, 0, 160, 120, 96, 0)
    check = 0
    for word in struct.unpack("<10H", placeable):
        check ^= word
    return placeable + struct.pack("<H", check) + head + records


def emf():
    """80 x 60 mm: a coil, green lines on white."""
    def record(kind, *numbers):
        return struct.pack("<II", kind, 8 + 4 * len(numbers)) + struct.pack(f"<{len(numbers)}I", *numbers)
    word = lambda r, g, b: r | g << 8 | b << 16
    records = [
        record(39, 1, 0, word(*WHITE), 0), record(37, 1), record(43, 0, 0, 320, 240),
        record(38, 2, 0, 6, 0, word(*GREEN)), record(37, 2),
        record(43, 100, 80, 220, 160), record(27, 160, 0), record(54, 160, 80), record(27, 160, 160), record(54, 160, 240),
        record(27, 100, 160), record(54, 220, 80), record(14, 0, 16, 20)]
    body = b"".join(records)
    head = struct.pack("<II4i4i4sIIIHHIII2i2i", 1, 88, 0, 0, 319, 239, 0, 0, 8000, 6000, b" EMF", 0x10000, 88 + len(body),
                       1 + len(records), 3, 0, 0, 0, 0, 1280, 1024, 320, 256)
    return head + body


def terminal(x, y):
    return None if distance(x, y, 16, 16) > 15 else GREEN if inside(x, y, 14, 4, 18, 28) else WHITE


FILES = {
    "contactor.bmp": bmp(pixels(64, 80, contactor)),
    "contactor.tif": tiff(pixels(64, 80, contactor)),
    "lamp.png": png(pixels(32, 32, lamp)),
    "switch.gif": gif(pixels(48, 32, lambda x, y: 1 if abs(x - 40 + y) < 3 else 2 if y > 28 else 0), [(0, 0, 0), WHITE, GREEN]),
    "panel.jpg": jpeg(pixels(20, 15, lambda x, y: STEEL if (x + y) % 5 else BLUE if y < 8 else RED)),
    "terminal.ico": ico(pixels(32, 32, terminal)),
    "motor.wmf": wmf(),
    "coil.emf": emf(),
}

for name, data in FILES.items():
    (FOLDER / name).write_bytes(data)
