"""Writers and readers of the four file formats: BMP, PNG, ICO, AVI. Rows are lists of pixels from the top down."""

import struct
import zlib

from raster import PNG_MAGIC, ArtError


def padded(data, multiple):
    return data + b"\0" * (-len(data) % multiple)


# ---------------------------------------------------------------- BMP


def write_bmp(rows):
    """A 24-bit bottom-up BMP of rows of (r, g, b)."""
    bits = b"".join(padded(b"".join(bytes((b, g, r)) for r, g, b in row), 4) for row in reversed(rows))
    info = struct.pack("<IiiHHIIiiII", 40, len(rows[0]), len(rows), 1, 24, 0, len(bits), 3780, 3780, 0, 0)
    return struct.pack("<2sIHHI", b"BM", 54 + len(bits), 0, 0, 54) + info + bits


def read_bmp(data):
    """Rows of (r, g, b) of a 24-bit uncompressed bottom-up BMP."""
    if len(data) < 54 or data[:2] != b"BM":
        raise ArtError("not a BMP file")
    size, width, height, _, depth, packing = struct.unpack("<IiiHHI", data[14:34])
    if (size, depth, packing) != (40, 24, 0) or height <= 0 or width <= 0:
        raise ArtError(f"not a 24-bit uncompressed bottom-up BMP: {width} x {height}, {depth} bits, packing {packing}")
    start, stride = struct.unpack("<I", data[10:14])[0], (width * 3 + 3) // 4 * 4
    if len(data) != start + stride * height:
        raise ArtError("the BMP file has not the length its header states")
    rows = []
    for y in reversed(range(height)):
        line = data[start + y * stride:][:width * 3]
        rows.append([(line[x + 2], line[x + 1], line[x]) for x in range(0, width * 3, 3)])
    return rows


# ---------------------------------------------------------------- PNG


def write_png(rows):
    """An RGBA PNG of rows of (r, g, b, a)."""

    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    raw = b"".join(b"\0" + b"".join(bytes(pixel) for pixel in row) for row in rows)
    header = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 6, 0, 0, 0)
    return PNG_MAGIC + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b"")


# ---------------------------------------------------------------- ICO


def icon_image(rows):
    """One 32-bit image of an icon: header of double height, colours, and the 1-bit mask."""
    size = len(rows)
    colours = b"".join(bytes((b, g, r, a)) for row in reversed(rows) for r, g, b, a in row)
    mask = b""
    for row in reversed(rows):
        bits = "".join("0" if pixel[3] else "1" for pixel in row)
        bits += "0" * (-len(bits) % 32)
        mask += int(bits, 2).to_bytes(len(bits) // 8, "big")
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, len(colours) + len(mask), 0, 0, 0, 0)
    return header + colours + mask


def write_ico(images):
    """An icon of square 32-bit images, each given as rows of (r, g, b, a)."""
    bodies = [icon_image(rows) for rows in images]
    at = 6 + 16 * len(bodies)
    directory = struct.pack("<HHH", 0, 1, len(bodies))
    for rows, body in zip(images, bodies):
        directory += struct.pack("<BBBBHHII", len(rows) & 255, len(rows) & 255, 0, 0, 1, 32, len(body), at)
        at += len(body)
    return directory + b"".join(bodies)


def read_ico(data):
    """Pairs (size, bits per pixel) of the images of an icon, as its image headers state them."""
    if len(data) < 6 or data[:4] != b"\0\0\1\0":
        raise ArtError("not an icon file")
    found = []
    for i in range(struct.unpack("<H", data[4:6])[0]):
        entry = data[6 + 16 * i:22 + 16 * i]
        if len(entry) != 16:
            raise ArtError("the icon's directory is cut off")
        length, at = struct.unpack("<II", entry[8:16])
        if at + length > len(data) or length < 40:
            raise ArtError("an image of the icon is cut off")
        size, width, height, _, depth = struct.unpack("<IiiHH", data[at:at + 16])
        if size != 40 or height != width * 2 or width != (entry[0] or 256):
            raise ArtError("an image of the icon has a wrong header")
        found.append((width, depth))
    return found


# ---------------------------------------------------------------- AVI


def rle8(rows, index):
    """Rows of colours as run-length encoded palette numbers, bottom row first."""
    out = bytearray()
    for row in reversed(rows):
        x = 0
        while x < len(row):
            run = 1
            while x + run < len(row) and run < 255 and row[x + run] == row[x]:
                run += 1
            out += bytes((run, index[row[x]]))
            x += run
        out += b"\0\0"
    return bytes(out[:-2]) + b"\0\1"


def unrle8(data, width, height):
    """Rows of palette numbers of a frame written by rle8."""
    rows, row, at = [], [], 0
    while True:
        pair = data[at:at + 2]
        at += 2
        if len(pair) != 2 or (pair[0] == 0 and pair[1] > 1):
            raise ArtError("a frame of the animation is damaged")
        if pair[0]:
            row += [pair[1]] * pair[0]
            continue
        rows.append(row)
        row = []
        if pair[1] == 1:
            break
    if len(rows) != height or any(len(line) != width for line in rows):
        raise ArtError("a frame of the animation does not fill its size")
    return rows[::-1]


def riff(kind, body):
    return kind + struct.pack("<I", len(body)) + padded(body, 2)


def riff_list(kind, *parts):
    return riff(b"LIST", kind + b"".join(parts))


def palette_of(frames):
    """Colours of all frames, most frequent first, and the palette number of each: at most 256 colours."""
    counts = {}
    for rows in frames:
        for row in rows:
            for colour in row:
                counts[colour] = counts.get(colour, 0) + 1
    order = sorted(counts, key=lambda colour: (-counts[colour], colour))
    colours = order[:256]
    index = {colour: i for i, colour in enumerate(colours)}
    for colour in order[256:]:
        index[colour] = min(range(256), key=lambda i: sum((a - b) ** 2 for a, b in zip(colours[i], colour)))
    return colours, index


def write_avi(frames, delay):
    """A silent animation, 8-bit RLE, bottom-up, every frame whole; delay is the time of a frame in milliseconds."""
    colours, index = palette_of(frames)
    height, width = len(frames[0]), len(frames[0][0])
    packed = [rle8(rows, index) for rows in frames]
    largest = max(len(frame) for frame in packed)
    main = struct.pack("<14I", delay * 1000, largest * 1000 // delay, 0, 0x10, len(frames), 0, 1, largest, width, height,
                       0, 0, 0, 0)
    stream = struct.pack("<4s4sIHHIIIIIIIIhhhh", b"vids", b"RLE ", 0, 0, 0, 0, delay * 1000, 1000000, 0, len(frames),
                         largest, 10000, 0, 0, 0, width, height)
    table = b"".join(bytes((b, g, r, 0)) for r, g, b in colours)
    form = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 8, 1, width * height, 0, 0, len(colours), 0) + table
    headers = riff_list(b"hdrl", riff(b"avih", main), riff_list(b"strl", riff(b"strh", stream), riff(b"strf", form)))
    at, places = 4, b""
    for frame in packed:
        places += struct.pack("<4sIII", b"00dc", 0x10, at, len(frame))
        at += 8 + len(frame) + len(frame) % 2
    movie = riff_list(b"movi", *(riff(b"00dc", frame) for frame in packed))
    return riff(b"RIFF", b"AVI " + headers + movie + riff(b"idx1", places))


def riff_chunks(data):
    """The chunks (type, bytes) of a RIFF body."""
    at = 0
    while at + 8 <= len(data):
        kind, size = struct.unpack("<4sI", data[at:at + 8])
        body = data[at + 8:at + 8 + size]
        if len(body) != size:
            raise ArtError("the animation is cut off")
        yield kind, body
        at += 8 + size + size % 2


def read_avi(data):
    """Frames of an animation as rows of (r, g, b), and the milliseconds per frame."""
    if data[:4] != b"RIFF" or data[8:12] != b"AVI " or len(data) != 8 + struct.unpack("<I", data[4:8])[0]:
        raise ArtError("not an AVI file of the length its header states")
    form, packed, delay = None, [], 0
    for kind, body in riff_chunks(data[12:]):
        if kind == b"LIST" and body[:4] == b"hdrl":
            parts = dict(riff_chunks(body[4:]))
            delay = struct.unpack("<I", parts[b"avih"][:4])[0] // 1000
            form = dict(riff_chunks(parts[b"LIST"][4:]))[b"strf"]
        elif kind == b"LIST" and body[:4] == b"movi":
            packed = [frame for name, frame in riff_chunks(body[4:]) if name == b"00dc"]
    if not form:
        raise ArtError("the animation has no stream header")
    _, width, height, _, depth, packing = struct.unpack("<IiiHHI", form[:20])
    if depth != 8 or packing != 1 or height <= 0:
        raise ArtError("the animation is not 8-bit RLE with its rows from the bottom up")
    colours = [(form[at + 2], form[at + 1], form[at]) for at in range(40, len(form), 4)]
    frames = [[[colours[i] for i in row] for row in unrle8(frame, width, height)] for frame in packed]
    return frames, delay
