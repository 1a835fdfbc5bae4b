"""Tests of the artwork tools: the formats' writers and readers, and that the check finds what is wrong."""

import dataclasses
import pathlib
import shutil
import struct
import sys
import tempfile
import unittest
import zlib

sys.path.insert(0, str(pathlib.Path(__file__).parent))

import check
import formats
import pictures
import raster
from pictures import PICTURES
from raster import ArtError

RED, GREEN, BLUE = (255, 0, 0), (0, 255, 0), (0, 0, 255)


def named(name):
    return next(picture for picture in PICTURES if pathlib.Path(picture.file).name == name)


class FormatTest(unittest.TestCase):
    def test_a_bmp_reads_back_with_padded_rows(self):
        rows = [[RED, GREEN, BLUE], [BLUE, BLUE, RED]]
        data = formats.write_bmp(rows)
        self.assertEqual(54 + 2 * 12, len(data))
        self.assertEqual(rows, formats.read_bmp(data))

    def test_a_bmp_lies_bottom_up(self):
        data = formats.write_bmp([[RED], [BLUE]])
        self.assertEqual(bytes((255, 0, 0)), data[54:57], "the blue row of the bottom comes first, as B G R")

    def test_a_top_down_or_cut_bmp_is_refused(self):
        data = bytearray(formats.write_bmp([[RED], [BLUE]]))
        with self.assertRaises(ArtError):
            formats.read_bmp(bytes(data[:-1]))
        data[22:26] = struct.pack("<i", -2)
        with self.assertRaises(ArtError):
            formats.read_bmp(bytes(data))

    def test_a_png_reads_back_with_its_alpha(self):
        rows = [[(1, 2, 3, 4), (5, 6, 7, 255)], [(0, 0, 0, 0), (9, 9, 9, 128)]]
        self.assertEqual((2, 2, rows), raster.decode_png(formats.write_png(rows)))

    def test_every_png_filter_is_undone(self):
        first, second = bytes((10, 20, 30, 40, 50, 60)), bytes((12, 24, 36, 48, 60, 72))
        lefts = bytes(3) + second[:3]
        corners = bytes(3) + first[:3]

        def nearest(left, up, corner):
            guess = left + up - corner
            return min((abs(guess - left), 0, left), (abs(guess - up), 1, up), (abs(guess - corner), 2, corner))[2]

        guesses = {
            0: bytes(6),
            1: lefts,
            2: first,
            3: bytes((left + up) // 2 for left, up in zip(lefts, first)),
            4: bytes(map(nearest, lefts, first, corners)),
        }
        for kind, guess in guesses.items():
            stored = bytes((value - g) & 255 for value, g in zip(second, guess))
            self.assertEqual(second, raster.unfilter(kind, stored, first, 3), f"filter {kind}")
        with self.assertRaises(ArtError):
            raster.unfilter(5, second, first, 3)

    def test_a_png_with_a_wrong_checksum_is_refused(self):
        data = bytearray(formats.write_png([[(1, 2, 3, 4)]]))
        data[-20] ^= 1
        with self.assertRaises((ArtError, zlib.error)):
            raster.decode_png(bytes(data))

    def test_an_icon_states_its_sizes(self):
        square = [[(1, 2, 3, 255)] * 16 for _ in range(16)]
        data = formats.write_ico([square])
        self.assertEqual([(16, 32)], formats.read_ico(data))
        with self.assertRaises(ArtError):
            formats.read_ico(data[:-1])

    def test_an_icon_masks_out_its_transparent_pixels(self):
        rows = [[(1, 2, 3, 0)] + [(1, 2, 3, 255)] * 15] + [[(1, 2, 3, 255)] * 16 for _ in range(15)]
        mask = formats.write_ico([rows])[-64:]
        self.assertEqual(bytes((0x80, 0, 0, 0)), mask[-4:], "the top row is the last one")
        self.assertEqual(bytes(60), mask[:-4])

    def test_an_animation_reads_back(self):
        frames = [[[RED] * 300, [GREEN] * 300], [[BLUE] * 299 + [RED], [RED] * 300]]
        self.assertEqual((frames, 80), formats.read_avi(formats.write_avi(frames, 80)))

    def test_a_cut_animation_is_refused(self):
        data = formats.write_avi([[[RED]]], 80)
        with self.assertRaises(ArtError):
            formats.read_avi(data[:-4])

    def test_more_than_256_colours_become_the_nearest_of_256(self):
        colours = [(i // 256, i % 256, 0) for i in range(300)]
        table, index = formats.palette_of([[colours]])
        self.assertEqual(256, len(table))
        self.assertEqual(set(colours), set(index))
        self.assertTrue(all(0 <= i < 256 for i in index.values()))


class SourceTest(unittest.TestCase):
    def test_classes_and_turn_replace_those_of_the_source(self):
        svg = '<svg class="normal" width="1"><g transform="rotate(0 5 5)"/></svg>'
        self.assertEqual('<svg class="hot checked" width="1"><g transform="rotate(0 5 5)"/></svg>',
                         raster.with_classes(svg, "hot checked"))
        self.assertEqual('<svg class="normal" width="1"><g transform="rotate(90 5 5)"/></svg>', raster.with_turn(svg, 90))

    def test_a_source_without_a_place_for_them_is_refused(self):
        with self.assertRaises(ArtError):
            raster.with_classes("<svg/>", "hot")
        with self.assertRaises(ArtError):
            raster.with_turn("<svg/>", 90)


class CheckTest(unittest.TestCase):
    """Works on a copy of the pictures and breaks one thing each time."""

    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.root)
        for folder in (pictures.RESOURCES, *pictures.MADE_IN):
            shutil.copytree(check.ROOT / folder, self.root / folder, dirs_exist_ok=True)
        (self.root / pictures.PAGE).parent.mkdir(parents=True)
        shutil.copy(check.ROOT / pictures.PAGE, self.root / pictures.PAGE)

    def found(self, table=None):
        return list(check.problems(self.root, PICTURES if table is None else table))

    def repaint(self, name, change):
        """Rewrites a BMP strip with its frames changed by a function."""
        picture = named(name)
        path = self.root / picture.file
        frames = check.cut(formats.read_bmp(path.read_bytes()), picture.width)
        change(frames)
        path.write_bytes(formats.write_bmp([sum(rows, []) for rows in zip(*frames)]))

    def expect_one(self, *words):
        found = self.found()
        self.assertEqual(1, len(found), found)
        for word in words:
            self.assertIn(word, found[0])

    def test_the_committed_pictures_pass(self):
        self.assertEqual([], self.found())

    def test_a_missing_picture_is_found(self):
        (self.root / named("tab.bmp").file).unlink()
        self.assertTrue(any("tab.bmp: is missing" in problem for problem in self.found()))

    def test_a_wrong_size_is_found(self):
        (self.root / named("tab.bmp").file).write_bytes(formats.write_bmp([[RED] * 6] * 16))
        self.expect_one("tab.bmp", "is 6 x 16, must be 5 x 16")

    def test_a_wrong_depth_is_found(self):
        path = self.root / named("tab.bmp").file
        data = bytearray(path.read_bytes())
        data[28] = 32
        path.write_bytes(bytes(data))
        self.expect_one("tab.bmp", "24-bit")

    def test_a_hot_frame_like_the_normal_one_is_found(self):
        def change(frames):
            frames[1] = [[(r, g, max(0, b - 1)) for r, g, b in row] for row in frames[0]]

        self.repaint("check.bmp", change)
        self.expect_one("check.bmp", "frame 1 hardly differs from frame 0")

    def test_a_strong_disabled_frame_is_found(self):
        def change(frames):
            frames[3] = [[(max(0, r - 3), g, b) for r, g, b in row] for row in frames[0]]

        self.repaint("dlg-close.bmp", change)
        self.expect_one("dlg-close.bmp", "frame 3 is not paler than frame 0")

    def test_two_frames_that_are_the_same_are_found(self):
        self.repaint("regtree.bmp", lambda frames: frames.__setitem__(1, frames[0]))
        self.expect_one("regtree.bmp", "frame 1 is the same as frame 0")

    def test_a_corner_without_the_colour_key_is_found(self):
        self.repaint("radio.bmp", lambda frames: frames[4][0].__setitem__(0, RED))
        self.expect_one("radio.bmp", "frame 4 has not the colour key at its corners")

    def test_a_middle_in_the_colour_key_is_found(self):
        self.repaint("radio.bmp", lambda frames: frames[1][6].__setitem__(6, pictures.WHITE))
        self.expect_one("radio.bmp", "frame 1 has the colour key in its middle")

    def test_an_almost_empty_frame_is_found(self):
        def change(frames):
            frames[1] = [[pictures.MASK] * 16 for _ in range(16)]
            frames[1][5][5] = RED

        self.repaint("syncreg.bmp", change)
        self.expect_one("syncreg.bmp", "frame 1 is almost empty")

    def test_a_drawn_blank_frame_is_found(self):
        self.repaint("check-tree.bmp", lambda frames: frames[0][7].__setitem__(7, RED))
        self.expect_one("check-tree.bmp", "frame 0 must be empty")

    def test_an_opaque_png_is_found(self):
        picture = named("banner.png")
        (self.root / picture.file).write_bytes(formats.write_png([[(1, 2, 3, 255)] * picture.width] * picture.height))
        self.expect_one("banner.png", "transparent")

    def test_an_icon_without_one_of_its_sizes_is_found(self):
        square = [[(1, 2, 3, 255)] * 16 for _ in range(16)]
        (self.root / named("QorConsole.ico").file).write_bytes(formats.write_ico([square]))
        self.expect_one("QorConsole.ico", "[(16, 32)]")

    def test_an_animation_with_a_frame_too_few_is_found(self):
        path = self.root / named("waiting.avi").file
        frames, delay = formats.read_avi(path.read_bytes())
        path.write_bytes(formats.write_avi(frames[:-1], delay))
        self.expect_one("waiting.avi", "has 19 frames")

    def test_an_animation_without_its_background_in_the_corner_is_found(self):
        path = self.root / named("waiting.avi").file
        frames, delay = formats.read_avi(path.read_bytes())
        frames[2][0][0] = RED
        path.write_bytes(formats.write_avi(frames, delay))
        self.expect_one("waiting.avi", "frame 2", "top left")

    def test_a_missing_source_is_found(self):
        (self.root / pictures.RESOURCES / "art/tab.svg").unlink()
        self.expect_one("tab.bmp", "source tab.svg is missing")

    def test_a_source_that_nothing_uses_is_found(self):
        (self.root / pictures.RESOURCES / "art/old.svg").write_text("<svg/>")
        self.expect_one("old.svg", "nothing is made from it")

    def test_a_picture_that_nothing_makes_is_found(self):
        (self.root / pictures.PIC / "old.bmp").write_bytes(formats.write_bmp([[RED]]))
        self.expect_one("old.bmp", "not in the table")

    def test_a_resource_file_that_names_a_missing_picture_is_found(self):
        path = self.root / pictures.RESOURCES / "QorUI.rc"
        path.write_text(path.read_text(encoding="utf-8").replace("pic/tab.bmp", "pic/tub.bmp"), encoding="utf-8")
        found = "\n".join(self.found())
        self.assertIn("names QorUI/res/pic/tub.bmp, which does not exist", found)
        self.assertIn("does not name QorUI/res/pic/tab.bmp", found)

    def test_a_page_that_is_not_up_to_date_is_found(self):
        path = self.root / pictures.PAGE
        path.write_text(path.read_text(encoding="utf-8").replace("13 x 13", "14 x 14"), encoding="utf-8")
        self.expect_one("tools/art/artwork.md", "not up to date")

    def test_a_resource_under_a_wrong_number_is_found(self):
        table = [dataclasses.replace(picture, ident=299) if picture.ident == 213 else picture for picture in PICTURES]
        found = self.found(table)
        self.assertEqual(1, len(found), found)
        self.assertIn("must be bmp resource 299, is BITMAP IDB_TAB", found[0])


if __name__ == "__main__":
    unittest.main()
