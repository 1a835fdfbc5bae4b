"""The table of all pictures: what is drawn, from which sources, at which size and depth."""

from dataclasses import dataclass, field

BODY = (236, 245, 250)   # dialog body
BAND = (255, 255, 255)   # caption band
FRAME = (186, 210, 234)  # frame window
MASK = (0, 128, 128)     # colour key of image strips, QOR_IMAGE_MASK
WHITE = (255, 255, 255)  # colour key of the radio strip
CUT = 100                # a masked pixel is there or not: fainter ones would show as a fringe


@dataclass(frozen=True)
class Frame:
    """One frame: an SVG source, the classes of its root element, and a turn in degrees."""

    svg: str
    classes: str = ""
    turn: int = 0


@dataclass(frozen=True)
class Picture:
    """One made file. Sizes are pixels of one frame; bmp strips lay their frames side by side."""

    file: str
    role: str
    width: int
    height: int
    frames: tuple
    ident: int = 0               # resource number in QorUI.rc; 0 = not a resource of the library
    back: tuple = WHITE          # colour under half-transparent pixels
    key: tuple = None            # colour of fully transparent pixels; None = back
    cut: int = 1                 # pixels less opaque than this get the colour key
    hot: tuple = ()              # pairs (normal frame, hot frame) that must differ visibly
    pale: tuple = ()             # pairs (normal frame, disabled frame): the second has less contrast
    solid: bool = False          # a keyed glyph without holes: its middle must not be the key
    blank: int = -1              # the frame of a keyed strip that is empty
    delay: int = 0               # milliseconds per frame of an animation
    sizes: tuple = field(default=())  # icon sizes, one frame each

    @property
    def kind(self):
        return self.file.rsplit(".", 1)[1]


def states(svg, *names):
    return tuple(Frame(svg, name) for name in names)


def glyphs(svg):
    plain = ("normal", "hot", "disabled")
    return states(svg, *plain, *(name + " checked" for name in plain))


def buttons(svg):
    return states(svg, "normal", "hot", "pressed", "disabled")


GLYPH_RULES = dict(hot=((0, 1), (3, 4)), pale=((0, 2), (3, 5)))
BUTTON_RULES = dict(hot=((0, 1), (0, 2), (1, 2)), pale=((0, 3),))
RESOURCES = "QorUI/res"
PIC = RESOURCES + "/pic/"
CONSOLE = "hosts/console/res/"
MADE_IN = (PIC, CONSOLE)
PAGE = "tools/art/artwork.md"

PICTURES = [
    Picture(PIC + "radio.bmp", "radio button glyphs", 13, 13, glyphs("radio.svg"), 200, BODY, WHITE, solid=True,
            **GLYPH_RULES),
    Picture(PIC + "check.bmp", "check box glyphs", 13, 13, glyphs("check.svg"), 201, BODY, **GLYPH_RULES),
    *(
        Picture(PIC + f"btn-{name}.bmp", f"push button face, {name}", 6, 17, states("button-face.svg", name), 202 + i)
        for i, name in enumerate(("normal", "hot", "pressed", "disabled"))
    ),
    Picture(
        PIC + "check-tree.bmp",
        "state images of check trees: none, unchecked, partly, checked, and the last three disabled",
        15,
        15,
        states(
            "state-box.svg",
            "normal none",
            "normal",
            "normal partly",
            "normal checked",
            "disabled",
            "disabled partly",
            "disabled checked",
        ),
        210,
        WHITE,
        MASK,
        CUT,
        solid=True,
        blank=0,
        pale=((1, 4), (2, 5), (3, 6)),
    ),
    Picture(
        PIC + "check-list.bmp",
        "state images of check lists: unchecked, checked",
        15,
        15,
        states("state-box.svg", "normal", "normal checked"),
        211,
        WHITE,
        MASK,
        CUT,
        solid=True,
    ),
    Picture(PIC + "progress.bmp", "progress fill pattern", 8, 18, (Frame("progress.svg"),), 212),
    Picture(PIC + "tab.bmp", "face of the tabs behind the current one", 5, 16, (Frame("tab.svg"),), 213),
    Picture(PIC + "minimize.bmp", "minimise button of the frame", 26, 17, buttons("minimize.svg"), 220, FRAME,
            **BUTTON_RULES),
    Picture(PIC + "maximize.bmp", "maximise button of the frame", 25, 17, buttons("maximize.svg"), 221, FRAME,
            **BUTTON_RULES),
    Picture(PIC + "close.bmp", "close button of the frame", 42, 17, buttons("close.svg"), 222, FRAME, **BUTTON_RULES),
    Picture(PIC + "dlg-close.bmp", "close button of dialogs", 42, 17, buttons("dlg-close.svg"), 223, BAND,
            **BUTTON_RULES),
    Picture(PIC + "wizard.bmp", "title band of wizards", 48, 48, (Frame("wizard.svg"),), 230, BODY),
    Picture(PIC + "menubar-large.bmp", "menu bar, large, flag 0", 6, 42, (Frame("menubar-large.svg"),), 231),
    Picture(PIC + "menubtn-large.bmp", "hot menu button, large, flag 0", 6, 24, (Frame("menubtn-large.svg"),), 232),
    Picture(PIC + "menubar.bmp", "menu bar, normal", 6, 30, (Frame("menubar.svg"),), 233),
    Picture(PIC + "menubtn.bmp", "hot menu button, normal", 6, 20, (Frame("menubtn.svg"),), 234),
    Picture(PIC + "menubar-large2.bmp", "menu bar, large, flag set", 6, 42, (Frame("menubar-large2.svg"),), 235),
    Picture(PIC + "menubtn-large2.bmp", "hot menu button, large, flag set", 6, 24, (Frame("menubtn-large2.svg"),), 236),
    Picture(PIC + "regtree.bmp", "registry key, registry value", 16, 16,
            (Frame("reg-key.svg"), Frame("reg-value.svg")), 261, BODY, MASK, CUT),
    Picture(PIC + "logon.bmp", "log-on picture", 72, 72, (Frame("logon.svg"),), 262, BODY),
    Picture(PIC + "search.bmp", "magnifier of the search box", 16, 17, (Frame("search.svg"),), 263),
    Picture(PIC + "syncreg.bmp", "add, delete", 16, 16, (Frame("add.svg"), Frame("delete.svg")), 264,
            (244, 249, 252), MASK, CUT),
    Picture(PIC + "waiting.avi", "waiting animation", 56, 56, tuple(Frame("waiting.svg", "", 18 * i) for i in range(20)),
            280, BODY, delay=80),
    Picture(PIC + "banner.png", "frame banner, flag 0", 300, 66, (Frame("banner.svg"),), 281),
    Picture(PIC + "banner2.png", "frame banner, flag set", 260, 46, (Frame("banner2.svg"),), 282),
    Picture(PIC + "menubar-picture.png", "right end of the large menu bar", 200, 20,
            (Frame("menubar-picture.svg"),), 283),
    Picture(CONSOLE + "QorConsole.ico", "application icon", 48, 48,
            (Frame("app-16.svg"), Frame("app-32.svg"), Frame("app-48.svg")), sizes=(16, 32, 48)),
    *(
        Picture(CONSOLE + f"cmd-{name}.ico", f"command button icon: {name}", 32, 32, (Frame(f"cmd-{name}.svg"),),
                sizes=(32,))
        for name in ("snapshot", "restore", "schedule", "users")
    ),
    Picture(CONSOLE + "dial.bmp", "face of the clock", 161, 161, (Frame("dial.svg"),), 0, BODY),
]


def size_of(picture):
    """The size as the table of the documentation gives it."""
    if picture.sizes:
        return ", ".join(f"{size} x {size}" for size in picture.sizes)
    return f"{picture.width} x {picture.height}"


def depth_of(picture):
    return {"bmp": "24", "png": "32", "ico": "32", "avi": "8, RLE"}[picture.kind]


def notes_of(picture):
    notes = []
    if picture.key is not None:
        notes.append("key ({}, {}, {})".format(*picture.key))
    if picture.delay:
        notes.append(f"{picture.delay} ms per frame")
    return "; ".join(notes)


def table():
    """The page of the documentation that lists all pictures."""
    lines = [
        "# Pictures",
        "",
        "Drawn from `QorUI/res/art/*.svg` by `tools/art/make.py`, which also writes this page. Sizes are pixels of one",
        "frame; a strip lays its frames side by side. The number is the one of the resource in `QorUI.dll`; pictures",
        "without one belong to the program in whose folder they are. A key is the colour that stands for transparent.",
        "",
        "| Number | File | Role | Size | Frames | Bits | Notes |",
        "|---|---|---|---|---|---|---|",
    ]
    for picture in PICTURES:
        number = str(picture.ident or "")
        frames = 1 if picture.sizes else len(picture.frames)
        lines.append(f"| {number} | `{picture.file}` | {picture.role} | {size_of(picture)} | {frames} "
                     f"| {depth_of(picture)} | {notes_of(picture)} |")
    return "\n".join(lines) + "\n"
