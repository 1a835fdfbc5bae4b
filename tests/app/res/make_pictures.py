#!/usr/bin/env python3
"""Makes the small pictures that the tests of skin pictures and buttons load. They are committed."""
import pathlib
import struct
import zlib

HERE = pathlib.Path(__file__).parent
RED, GREEN, BLUE, YELLOW = (255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 0)
MAGENTA, WHITE, BLACK = (255, 0, 255), (255, 255, 255), (0, 0, 0)


def bmp(rows, width=None):
    """24-bit bitmap file of rows from top to bottom."""
    width = len(rows[0]) if rows else width
    body = b""
    for row in reversed(rows):
        line = b"".join(bytes(reversed(pixel)) for pixel in row)
        body += line + bytes(-len(line) % 4)
    info = struct.pack("<IiiHHIIiiII", 40, width, len(rows), 1, 24, 0, len(body), 2835, 2835, 0, 0)
    return struct.pack("<2sIHHI", b"BM", 54 + len(body), 0, 0, 54) + info + body


def png(rows):
    """24-bit PNG file."""
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    head = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 2, 0, 0, 0)
    data = b"".join(b"\0" + b"".join(bytes(pixel) for pixel in row) for row in rows)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(data)) + chunk(b"IEND", b"")


def icon(rows):
    """32-bit icon with an empty mask."""
    size = len(rows)
    body = b"".join(bytes(reversed(pixel)) + b"\xff" for row in reversed(rows) for pixel in row)
    body += bytes((size + 31) // 32 * 4 * size)
    info = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, len(body), 0, 0, 0, 0)
    entry = struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(info) + len(body), 22)
    return struct.pack("<HHH", 0, 1, 1) + entry + info + body


def monochrome_icon(rows):
    """Icon of black and white pixels, without a colour bitmap."""
    size = len(rows)
    body = b"".join(sum((pixel == WHITE) << (size - 1 - x) for x, pixel in enumerate(row)).to_bytes(size // 8, "big")
                    for row in reversed(rows))
    body += bytes(len(body))
    palette = bytes(4) + b"\xff\xff\xff\0"
    info = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 1, 0, len(body), 0, 0, 2, 0) + palette
    entry = struct.pack("<BBBBHHII", size, size, 2, 0, 1, 1, len(info) + len(body), 22)
    return struct.pack("<HHH", 0, 1, 1) + entry + info + body


def strip(colours, width, height, left_column=None):
    """Frames of one colour each; the first column of each frame may have a colour of its own."""
    row = []
    for colour in colours:
        row += [left_column or colour] + [colour] * (width - 1)
    return [row] * height


def main():
    frames = strip([RED, GREEN, BLUE, YELLOW], 20, 10)
    keyed = strip([RED, GREEN, BLUE, YELLOW], 20, 10, MAGENTA)
    upright = [[RED, RED, GREEN, GREEN]] * 2 + [[BLUE, BLUE, WHITE, WHITE]] * 2
    files = {
        "frames.bmp": bmp(frames),
        "frames.png": png(frames),
        "keyed.bmp": bmp(keyed),
        "upright.png": png(upright),
        "icons.bmp": bmp(strip([RED, GREEN, BLUE, YELLOW, MAGENTA], 16, 16, WHITE)),
        "flat.bmp": bmp([], 80),
        "damaged.png": png(frames)[:40],
        "square.ico": icon([[RED] * 16 + [WHITE] * 16] * 16 + [[BLACK] * 32] * 16),
        "other.ico": icon([[GREEN] * 32] * 32),
        "mono.ico": monochrome_icon([[WHITE] * 16 + [BLACK] * 16] * 32),
    }
    for name, data in files.items():
        (HERE / name).write_bytes(data)


main()
