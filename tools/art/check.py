#!/usr/bin/env python3
"""Compares the committed pictures with the table in pictures.py, and the resource file with both.

Needs no drawing tools. Exit status 0: all as it should be; 1: the messages say what is wrong.
"""

import argparse
import pathlib
import re
import sys
import unittest

import formats
import raster
from pictures import MADE_IN, PAGE, PICTURES, RESOURCES, table
from raster import ArtError

ROOT = pathlib.Path(__file__).resolve().parents[2]
HOT_STEP = 8       # mean difference per channel of a hot frame, over the pixels that differ
HOT_SHARE = 0.08   # share of the pixels that must differ
DRAWN_SHARE = 0.1  # share of a keyed frame's pixels that must be drawn
PALE_SHARE = 0.75  # contrast of a disabled frame, at most, as a share of the normal one's


def cut(rows, width):
    """A strip as a list of frames."""
    return [[row[x:x + width] for row in rows] for x in range(0, len(rows[0]), width)]


def pixels(frame):
    return [colour for row in frame for colour in row]


def difference(one, other):
    """Mean difference per channel over the pixels that differ, and the share of those pixels."""
    steps = [sum(abs(a - b) for a, b in zip(p, q)) / 3 for p, q in zip(pixels(one), pixels(other)) if p != q]
    return (sum(steps) / len(steps) if steps else 0), len(steps) / len(pixels(one))


def contrast(frame, key, back):
    """The strongest step from the background: the mean over the eighth of the pixels that stand out most."""
    steps = sorted((sum(abs(a - b) for a, b in zip(colour, back)) / 3 for colour in pixels(frame) if colour != key),
                   reverse=True)
    strongest = steps[:max(1, len(steps) // 8)]
    return sum(strongest) / len(strongest)


def check_states(picture, frames):
    """Hot frames differ visibly, disabled ones are paler, no two frames are the same."""
    for i, frame in enumerate(frames):
        if frame in frames[:i]:
            yield f"frame {i} is the same as frame {frames.index(frame)}"
    for normal, hot in picture.hot:
        step, share = difference(frames[normal], frames[hot])
        if step < HOT_STEP or share < HOT_SHARE:
            yield f"frame {hot} hardly differs from frame {normal} (step {step:.1f}, share {share:.2f})"
    for normal, pale in picture.pale:
        strong, weak = (contrast(frames[i], picture.key, picture.back) for i in (normal, pale))
        if weak > strong * PALE_SHARE:
            yield f"frame {pale} is not paler than frame {normal} (contrast {weak:.0f} of {strong:.0f})"


def check_key(picture, frames):
    """A keyed strip has its key at the corners of each frame and enough else between them."""
    for i, frame in enumerate(frames):
        corners = {frame[y][x] for y in (0, -1) for x in (0, -1)}
        if corners != {picture.key}:
            yield f"frame {i} has not the colour key at its corners"
        if picture.blank == i:
            if set(pixels(frame)) != {picture.key}:
                yield f"frame {i} must be empty"
        elif picture.solid and frame[picture.height // 2][picture.width // 2] == picture.key:
            yield f"frame {i} has the colour key in its middle"
        elif sum(colour != picture.key for colour in pixels(frame)) < DRAWN_SHARE * len(pixels(frame)):
            yield f"frame {i} is almost empty"


def check_bmp(picture, data):
    rows = formats.read_bmp(data)
    found, wanted = (len(rows[0]), len(rows)), (picture.width * len(picture.frames), picture.height)
    if found != wanted:
        yield f"is {found[0]} x {found[1]}, must be {wanted[0]} x {wanted[1]} ({len(picture.frames)} frames)"
        return
    frames = cut(rows, picture.width)
    yield from check_states(picture, frames)
    if picture.key is not None:
        yield from check_key(picture, frames)


def check_png(picture, data):
    width, height, rows = raster.decode_png(data)
    if (width, height) != (picture.width * len(picture.frames), picture.height):
        yield f"is {width} x {height}, must be {picture.width * len(picture.frames)} x {picture.height}"
    elif data[25] != 6:
        yield "has no alpha channel"
    else:
        alphas = {pixel[3] for row in rows for pixel in row}
        if 0 not in alphas or 255 not in alphas:
            yield "must have both transparent and opaque pixels"


def check_ico(picture, data):
    found = formats.read_ico(data)
    wanted = [(size, 32) for size in picture.sizes]
    if found != wanted:
        yield f"holds images {found}, must hold {wanted} (pixels, bits)"


def check_avi(picture, data):
    frames, delay = formats.read_avi(data)
    if len(frames) != len(picture.frames) or delay != picture.delay:
        yield f"has {len(frames)} frames of {delay} ms, must have {len(picture.frames)} of {picture.delay} ms"
    for i, frame in enumerate(frames):
        if (len(frame[0]), len(frame)) != (picture.width, picture.height):
            yield f"frame {i} is {len(frame[0])} x {len(frame)}, must be {picture.width} x {picture.height}"
        elif frame[0][0] != picture.back:
            yield f"frame {i} has not the background {picture.back} at its top left pixel, the transparent one"
    yield from check_states(picture, frames)


CHECKS = {"bmp": check_bmp, "png": check_png, "ico": check_ico, "avi": check_avi}


def check_picture(picture, root):
    """Everything that is wrong with one made file and its sources."""
    for frame in picture.frames:
        if not (root / RESOURCES / "art" / frame.svg).is_file():
            yield f"its source {frame.svg} is missing"
    path = root / picture.file
    if not path.is_file():
        yield "is missing: run tools/art/make.py"
        return
    try:
        yield from CHECKS[picture.kind](picture, path.read_bytes())
    except ArtError as problem:
        yield str(problem)


def defined_numbers(header):
    """Names and numbers of the #define lines of a resource header."""
    return {name: int(number) for name, number in re.findall(r"^#define (\w+) (\d+)\b", header, re.M)}


def check_resource_file(root, pictures):
    """The resource file names each picture of the library once, under its number, and nothing else."""
    numbers = defined_numbers((root / RESOURCES / "resource.h").read_text(encoding="utf-8"))
    text = (root / RESOURCES / "QorUI.rc").read_text(encoding="utf-8")
    wanted = {picture.file: picture for picture in pictures if picture.ident}
    types = {"BITMAP": "bmp", "PNG": "png", "AVI": "avi"}
    seen = set()
    for name, kind, file in re.findall(r'^(\w+) (BITMAP|PNG|AVI|ICON) "([^"]+)"', text, re.M):
        picture = wanted.get(file)
        if not (root / file).is_file():
            yield f"QorUI.rc names {file}, which does not exist"
        if picture is None:
            yield f"QorUI.rc names {file}, which is not in the table"
        elif numbers.get(name) != picture.ident or types.get(kind) != picture.kind:
            yield f"QorUI.rc: {file} must be {picture.kind} resource {picture.ident}, is {kind} {name}"
        elif file in seen:
            yield f"QorUI.rc names {file} twice"
        seen.add(file)
    for file in wanted.keys() - seen:
        yield f"QorUI.rc does not name {file}"


def check_folders(root, pictures):
    """No sources that nothing is made from, no pictures that nothing makes."""
    used = {frame.svg for picture in pictures for frame in picture.frames}
    for path in sorted((root / RESOURCES / "art").iterdir()):
        if path.name not in used:
            yield f"{path.relative_to(root)}: nothing is made from it"
    files = {picture.file for picture in pictures}
    for folder in MADE_IN:
        for path in sorted((root / folder).glob("*.*")):
            name = str(path.relative_to(root))
            if path.suffix[1:] in CHECKS and name not in files:
                yield f"{name}: is not in the table"


def check_page(root):
    """The page of the documentation is the table as it is now."""
    path = root / PAGE
    if not path.is_file() or path.read_text(encoding="utf-8") != table():
        yield f"{PAGE}: is not up to date: run tools/art/make.py"


def problems(root, pictures):
    for picture in pictures:
        for problem in check_picture(picture, root):
            yield f"{picture.file}: {problem}"
    yield from check_resource_file(root, pictures)
    yield from check_folders(root, pictures)
    yield from check_page(root)


def main():
    parser = argparse.ArgumentParser(description="Check the committed pictures.")
    parser.add_argument("--self-test", action="store_true", help="test this tool instead")
    if parser.parse_args().self_test:
        here = str(pathlib.Path(__file__).parent)
        tests = unittest.defaultTestLoader.discover(here)
        return 0 if unittest.TextTestRunner().run(tests).wasSuccessful() else 1
    try:
        found = list(problems(ROOT, PICTURES))
    except OSError as problem:
        found = [str(problem)]
    for problem in found:
        print(problem, file=sys.stderr)
    print(f"{len(PICTURES)} pictures: " + (f"{len(found)} problems" if found else "all as they should be"))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
