"""Pixels from SVG sources: rsvg-convert draws, the PNG it writes is decoded here."""

import re
import struct
import subprocess
import zlib

PNG_MAGIC = b"\x89PNG\r\n\x1a\n"


class ArtError(Exception):
    """A picture or a source that is not as it must be; the text says which and why."""


def with_classes(svg, classes):
    """The source with the classes of its root element replaced."""
    if not classes:
        return svg
    text, count = re.subn(r'(<svg\b[^>]*?\bclass=")[^"]*(")', rf"\g<1>{classes}\g<2>", svg, count=1)
    if not count:
        raise ArtError("the root element has no class attribute to replace")
    return text


def with_turn(svg, degrees):
    """The source with its first unturned group turned by degrees."""
    if not degrees:
        return svg
    text, count = re.subn(r'transform="rotate\(0 ', f'transform="rotate({degrees} ', svg, count=1)
    if not count:
        raise ArtError('there is no transform="rotate(0 ..." to turn')
    return text


def draw(svg, back=None):
    """Width, height and RGBA rows of an SVG text, on back when a colour is given."""
    command = ["rsvg-convert", "--format=png"]
    if back:
        command.append("--background-color=#%02x%02x%02x" % back)
    result = subprocess.run(command, input=svg.encode(), capture_output=True, check=False)
    if result.returncode:
        raise ArtError("rsvg-convert: " + result.stderr.decode(errors="replace").strip())
    return decode_png(result.stdout)


def png_chunks(data):
    """The chunks (type, bytes) of a PNG file."""
    if data[:8] != PNG_MAGIC:
        raise ArtError("not a PNG file")
    at = 8
    while at + 12 <= len(data):
        size, kind = struct.unpack(">I4s", data[at:at + 8])
        body = data[at + 8:at + 8 + size]
        if len(body) != size or struct.unpack(">I", data[at + 8 + size:at + 12 + size])[0] != zlib.crc32(kind + body):
            raise ArtError("damaged PNG chunk " + kind.decode("latin-1"))
        yield kind, body
        at += 12 + size


def unfilter(kind, line, above, step):
    """One PNG row with its filter undone."""
    out = bytearray(line)
    for i, value in enumerate(line):
        left = out[i - step] if i >= step else 0
        up = above[i]
        corner = above[i - step] if i >= step else 0
        if kind == 1:
            value += left
        elif kind == 2:
            value += up
        elif kind == 3:
            value += (left + up) // 2
        elif kind == 4:
            guess = left + up - corner
            distances = (abs(guess - left), abs(guess - up), abs(guess - corner))
            value += (left, up, corner)[distances.index(min(distances))]
        elif kind:
            raise ArtError(f"unknown PNG filter {kind}")
        out[i] = value & 255
    return bytes(out)


def decode_png(data):
    """Width, height and rows of (r, g, b, a) of a PNG with 8 bits per channel, not interlaced."""
    header, packed = None, b""
    for kind, body in png_chunks(data):
        if kind == b"IHDR":
            header = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            packed += body
    if not header or header[2] != 8 or header[3] not in (2, 6) or header[6]:
        raise ArtError("only 8-bit RGB and RGBA PNG without interlacing is read")
    width, height, step = header[0], header[1], 4 if header[3] == 6 else 3
    raw = zlib.decompress(packed)
    stride = width * step
    if len(raw) != (stride + 1) * height:
        raise ArtError("PNG data does not fill its rows")
    above, rows = bytes(stride), []
    for y in range(height):
        start = y * (stride + 1)
        above = unfilter(raw[start], raw[start + 1:start + 1 + stride], above, step)
        rows.append([tuple(above[x:x + step]) + ((255,) if step == 3 else ()) for x in range(0, stride, step)])
    return width, height, rows
