"""A contact sheet: the pictures enlarged without smoothing, each on the background that it is made for."""

import formats
from pictures import BODY

GAP = 8


def enlarged(rows, zoom):
    return [[pixel for pixel in row for _ in range(zoom)] for row in rows for _ in range(zoom)]


def line_of(picture, draw, zoom):
    """The frames of a picture side by side, enlarged, with gaps between and around them."""
    sizes = picture.sizes or [None] * len(picture.frames)
    back = (picture.back if picture.kind in ("bmp", "avi") else BODY) + (255,)
    blocks = []
    for frame, size in zip(picture.frames, sizes):
        rows = draw(frame, size or picture.width, size or picture.height, back[:3])
        blocks.append(enlarged([[pixel[:3] + (255,) for pixel in row] for row in rows], zoom))
    height = max(len(block) for block in blocks)
    lines = [[back] * GAP for _ in range(height + 2 * GAP)]
    for block in blocks:
        width = len(block[0])
        for y, line in enumerate(lines):
            inside = GAP <= y < GAP + len(block)
            line += (block[y - GAP] if inside else [back] * width) + [back] * GAP
    return lines, back


def sheet(pictures, draw, zoom):
    """The PNG of a sheet of the pictures; draw gives the RGBA rows of a frame on a background."""
    parts = [line_of(picture, draw, zoom) for picture in pictures]
    width = max(len(lines[0]) for lines, _ in parts)
    return formats.write_png([line + [back] * (width - len(line)) for lines, back in parts for line in lines])
