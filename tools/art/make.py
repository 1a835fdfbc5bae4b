#!/usr/bin/env python3
"""Draws the pictures of the product from their SVG sources. See README.md."""

import argparse
import pathlib
import sys

import formats
import raster
import sheet
from pictures import PAGE, PICTURES, table
from raster import ArtError

ROOT = pathlib.Path(__file__).resolve().parents[2]
SOURCES = ROOT / "QorUI/res/art"


def source(frame):
    """The SVG text of a frame with its classes and its turn."""
    text = (SOURCES / frame.svg).read_text(encoding="utf-8")
    return raster.with_turn(raster.with_classes(text, frame.classes), frame.turn)


def sized(frame, width, height, back=None):
    """The RGBA rows of a frame, which must have exactly the wanted size."""
    found_width, found_height, rows = raster.draw(source(frame), back)
    if (found_width, found_height) != (width, height):
        raise ArtError(f"{frame.svg} is {found_width} x {found_height}, wanted {width} x {height}")
    return rows


def nudged(colour, key):
    """The colour, moved by one step when it happens to be the colour key."""
    return (colour[0] - 1 if colour[0] else 1, *colour[1:]) if colour == key else colour


def opaque(picture, frame):
    """The rows of a frame on its background; what is fully transparent gets the colour key."""
    rows = [[pixel[:3] for pixel in row] for row in sized(frame, picture.width, picture.height, picture.back)]
    if picture.key is None:
        return rows
    clear = sized(frame, picture.width, picture.height)
    return [
        [nudged(colour, picture.key) if pixel[3] >= picture.cut else picture.key for colour, pixel in zip(row, clear_row)]
        for row, clear_row in zip(rows, clear)
    ]


def strip(frames):
    """Frames laid side by side."""
    return [sum(rows, []) for rows in zip(*frames)]


def made(picture):
    """The bytes of a picture's file."""
    if picture.kind == "ico":
        return formats.write_ico([sized(frame, size, size) for frame, size in zip(picture.frames, picture.sizes)])
    if picture.kind == "png":
        return formats.write_png(strip([sized(frame, picture.width, picture.height) for frame in picture.frames]))
    frames = [opaque(picture, frame) for frame in picture.frames]
    if picture.kind == "avi":
        return formats.write_avi(frames, picture.delay)
    return formats.write_bmp(strip(frames))


def settle(file, data, verify):
    """Writes a file (or only says that it is stale) when its contents are not the data: 1, else 0."""
    path = ROOT / file
    if path.exists() and path.read_bytes() == data:
        return 0
    print(("stale: " if verify else "made: ") + file)
    if not verify:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)
    return 1


def run(names, verify):
    """Makes (or with verify: compares) the named pictures, all when none is named. The number of stale files."""
    stale = 0 if names else settle(PAGE, table().encode(), verify)
    for picture in PICTURES:
        if names and pathlib.Path(picture.file).stem not in names:
            continue
        try:
            data = made(picture)
        except (ArtError, OSError) as problem:
            raise ArtError(f"{picture.file}: {problem}") from problem
        stale += settle(picture.file, data, verify)
    return stale


def main():
    parser = argparse.ArgumentParser(description="Draw the pictures of the product from QorUI/res/art.")
    parser.add_argument("names", nargs="*", help="file names without extension; all when none is given")
    parser.add_argument("--verify", action="store_true", help="write nothing; exit status 1 when a file is not up to date")
    parser.add_argument("--sheet", metavar="FILE", help="instead write a PNG that shows the pictures enlarged")
    parser.add_argument("--zoom", type=int, default=6, help="how often the sheet enlarges them (default 6)")
    options = parser.parse_args()
    unknown = set(options.names) - {pathlib.Path(picture.file).stem for picture in PICTURES}
    if unknown:
        parser.error("no such picture: " + ", ".join(sorted(unknown)))
    try:
        if options.sheet:
            chosen = [p for p in PICTURES if not options.names or pathlib.Path(p.file).stem in options.names]
            pathlib.Path(options.sheet).write_bytes(sheet.sheet(chosen, sized, options.zoom))
            return 0
        stale = run(options.names, options.verify)
    except (ArtError, OSError) as problem:
        print(f"make.py: {problem}", file=sys.stderr)
        return 1
    return 1 if options.verify and stale else 0


if __name__ == "__main__":
    sys.exit(main())
