#!/usr/bin/env python3
"""Draw the editor's pictures: tables of shapes in, small SVG files in two palettes out.

    scripts/make-icons.py            write desktop/icons/{light,dark}/*.svg, kestedit.svg and icons.qrc
    scripts/make-icons.py --check    fail, naming the files, when they are not what the tables draw

A drawing is a list of parts (role, shape). A role says how a part is painted (ROLES), a shape is path data on the
drawing's grid. The rules of the family are in desktop/icons/README.md.
"""

import sys
from pathlib import Path

ICONS = Path(__file__).resolve().parent.parent / "desktop" / "icons"

# One neutral family and six action colours, each with a pale companion for surfaces.
# Each keeps 4.5:1 against its own desktop and 3:1 on a selected row, so a drawing survives without its colour.
PALETTES = {
    #          light desktop  dark desktop
    "ink":    {"light": "#36414d", "dark": "#dfe4ea"},  # contours, the eye
    "paper":  {"light": "#ffffff", "dark": "#262b31"},  # blank surfaces, marks on solid shapes, halos
    "muted":  {"light": "#5f6a74", "dark": "#a6b0ba"},  # whatever is switched off
    "blue":   {"light": "#1f66b5", "dark": "#7db7f2"},  "blue-pale":   {"light": "#dce9f7", "dark": "#24394e"},
    "teal":   {"light": "#0b7671", "dark": "#5cc8bf"},  "teal-pale":   {"light": "#d7eeec", "dark": "#1f403e"},
    "red":    {"light": "#b3362e", "dark": "#f28b82"},  "red-pale":    {"light": "#f8e0de", "dark": "#4a2c2a"},
    "ochre":  {"light": "#8f5b00", "dark": "#e6b35a"},  "ochre-pale":  {"light": "#f6e9d0", "dark": "#453619"},
    "green":  {"light": "#3a7520", "dark": "#93cf73"},  "green-pale":  {"light": "#e2f0da", "dark": "#2c4023"},
    "violet": {"light": "#6d42a5", "dark": "#c0a1ee"},  "violet-pale": {"light": "#ebe2f6", "dark": "#3a2f4b"},
}

# How a part is painted: fill, stroke, stroke width in lines of the grid, dashed in preview.
# "accent" and "pale" are the drawing's own colour and its companion.
ROLES = {
    "blank":   ("paper", "ink", 1, True),      # a thing with a plain surface
    "thing":   ("pale", "ink", 1, True),       # the thing the action works on
    "edge":    ("none", "ink", 1, True),       # an open contour
    "off":     ("paper", "muted", 1, False),   # a thing that is switched off
    "sign":    ("none", "accent", 2, False),   # shafts and strokes of the action's sign
    "trail":   ("none", "accent", 2, True),    # the shaft of a sign that stands without a contour
    "solid":   ("accent", "none", 0, False),   # arrow heads, full shapes
    "mark":    ("none", "paper", 2, False),    # a stroke cut into a full shape
    "cut":     ("paper", "none", 0, False),    # a shape cut into a full shape
    "strike":  ("none", "muted", 2, False),    # the stroke of what is switched off
    "halo":    ("paper", "paper", 2, False),   # keeps a badge clear of what lies below it
    "badge":   ("ink", "none", 0, False),      # the eye and its pupil
}

# Grid size, line width, dash pattern of previews. Corners are rounded by 1 on the node grid and 3 on the large one.
NODE = {"size": 16, "line": 1, "dash": "2 1"}
ACTION = {"size": 48, "line": 2, "dash": "4 3"}


def sheet(x, y, w, h, r, ear):
    """A page with its upper right corner folded."""
    return (f"M{x + r} {y}h{w - r - ear}l{ear} {ear}v{h - ear - r}a{r} {r} 0 0 1 {-r} {r}h{2 * r - w}"
            f"a{r} {r} 0 0 1 {-r} {-r}v{2 * r - h}a{r} {r} 0 0 1 {r} {-r}z")


def folder(x, y, w, h, r, tab, rise):
    """A folder whose tab stands `rise` above its body and is `tab` wide."""
    return (f"M{x + r} {y}h{tab - r}l{rise} {rise}h{w - tab - rise - r}a{r} {r} 0 0 1 {r} {r}v{h - rise - 2 * r}"
            f"a{r} {r} 0 0 1 {-r} {r}h{2 * r - w}a{r} {r} 0 0 1 {-r} {-r}v{2 * r - h}a{r} {r} 0 0 1 {r} {-r}z")


def box(x, y, w, h, r):
    """A rectangle with rounded corners."""
    return (f"M{x + r} {y}h{w - 2 * r}a{r} {r} 0 0 1 {r} {r}v{h - 2 * r}a{r} {r} 0 0 1 {-r} {r}h{2 * r - w}"
            f"a{r} {r} 0 0 1 {-r} {-r}v{2 * r - h}a{r} {r} 0 0 1 {r} {-r}z")


def disc(x, y, r):
    """A full circle around x, y."""
    return f"M{x - r} {y}a{r} {r} 0 0 1 {2 * r} 0a{r} {r} 0 0 1 {-2 * r} 0z"


# The badge of every preview, lower right: the job only looks.
EYE = {
    16: [("halo", "M7 12.5Q11.5 7.5 16 12.5Q11.5 17.5 7 12.5z"),
         ("badge", "M7 12.5Q11.5 7.5 16 12.5Q11.5 17.5 7 12.5z"),
         ("cut", disc(11.5, 12.5, 1.6)),
         ("badge", disc(11.5, 12.5, 0.7))],
    48: [("halo", "M23 39Q35 24 47 39Q35 54 23 39z"),
         ("badge", "M23 39Q35 24 47 39Q35 54 23 39z"),
         ("cut", disc(35, 39, 4.5)),
         ("badge", disc(35, 39, 2.25))],
}

# The six actions on the node grid. Contours run through the middle of pixels, signs two pixels wide along their edges,
# arrow heads at 45 degrees. A third entry replaces the shape in the preview, so that the eye does not hide the sign.
NODE_ACTIONS = {
    "copy": ("blue", [
        ("blank", sheet(1.5, 0.5, 8, 10, 1, 3)),
        ("thing", sheet(5.5, 4.5, 9, 11, 1, 3)),
        ("sign", "M10 8v6M7 11h6", "")]),
    "move": ("teal", [
        ("thing", folder(0.5, 2.5, 15, 11, 1, 5, 2), folder(0.5, 0.5, 15, 11, 1, 5, 2)),
        ("sign", "M3 9h5", "M2 6h4"),
        ("solid", "M8 5v8l4-4z", "M6 2v8l4-4z")]),
    "delete": ("red", [
        ("thing", "M3.5 4.5v10a1 1 0 0 0 1 1h7a1 1 0 0 0 1 -1v-10"),
        ("edge", "M1.5 4.5h13M5.5 4.5v-3a1 1 0 0 1 1 -1h3a1 1 0 0 1 1 1v3"),
        ("sign", "M6 7v6M10 7v6", "M6 6v7M10 6v3")]),
    "compress": ("ochre", [
        ("thing", box(5.5, 0.5, 5, 15, 1)),
        ("solid", "M7 2h2v2h-2zM7 5h2v2h-2zM7 8h2v2h-2zM7 11h2v2h-2z"),
        ("sign", "M0 8h2M16 8h-2", "M0 5h2M16 5h-2"),
        ("solid", "M1 4v8l4-4zM15 4v8l-4-4z", "M1 1v8l4-4zM15 1v8l-4-4z")]),
    "extract": ("green", [
        ("thing", "M2.5 8.5v6a1 1 0 0 0 1 1h9a1 1 0 0 0 1 -1v-6"),
        ("edge", "M2.5 9l-2 -3M13.5 9l2 -3"),
        ("sign", "M8 13v-8", "M8 10v-5"),
        ("solid", "M4 5h8l-4-4z")]),
    "synchronise": ("violet", [
        ("trail", "M11 4h-10M5 12h10"),
        ("solid", "M11 0v8l4-4zM5 8v8l-4-4z")]),
}

# The marks of the pages and of the job: full when it holds, hollow when it does not.
NODE_MARKS = {
    "active": ("green", [("solid", disc(8, 8, 7)), ("cut", "M6 4v8l6-4z")]),
    "inactive": ("muted", [("off", disc(8, 8, 6.5)), ("strike", "M6 5v6M10 5v6")]),
    "applies": ("green", [("solid", sheet(2, 0, 12, 16, 1, 4)), ("mark", "M4.5 8.5l3 3l5-5")]),
    "does not apply": ("muted", [("off", sheet(3.5, 0.5, 9, 15, 1, 3)), ("strike", "M1.5 14.5l13-13")]),
}

# The images of the navigation list by number: drawing, preview. The product's own order, irregular on purpose.
NODES = [
    ("active", False),          # 0
    ("inactive", False),        # 1
    ("copy", False),            # 2
    ("copy", True),             # 3
    ("move", False),            # 4
    ("move", True),             # 5
    ("delete", False),          # 6
    ("delete", True),           # 7
    ("applies", False),         # 8
    ("compress", False),        # 9
    ("does not apply", False),  # 10
    ("synchronise", True),      # 11: the only preview before its plain form
    ("synchronise", False),     # 12
    ("compress", True),         # 13
    ("extract", False),         # 14
    ("extract", True),          # 15
]

# The six actions on the large grid, in picture order: 1 to 6, and 7 to 12 as previews.
ACTIONS = {
    "copy": ("blue", [
        ("blank", sheet(5, 3, 24, 30, 3, 8)),
        ("thing", sheet(17, 13, 26, 32, 3, 8)),
        ("sign", "M30 23v16M22 31h16", "")]),
    "move": ("teal", [
        ("thing", folder(3, 7, 42, 34, 3, 14, 5), folder(3, 3, 42, 34, 3, 14, 5)),
        ("sign", "M10 26h16", "M9 20h14"),
        ("solid", "M25 15v22l13-11z", "M22 9v22l13-11z")]),
    "delete": ("red", [
        ("thing", "M10 13v29a3 3 0 0 0 3 3h22a3 3 0 0 0 3 -3v-29"),
        ("edge", "M4 13h40M17 13v-7a3 3 0 0 1 3 -3h8a3 3 0 0 1 3 3v7"),
        ("sign", "M19 20v18M29 20v18", "M19 20v18M29 20v8")]),
    "compress": ("ochre", [
        ("thing", box(17, 3, 14, 42, 3)),
        ("solid", "M20 7h4v4h-4zM24 11h4v4h-4zM20 15h4v4h-4zM24 19h4v4h-4zM20 23h4v4h-4zM24 27h4v4h-4z"
                  "M20 31h4v4h-4zM24 35h4v4h-4z"),
        ("sign", "M0 24h6M48 24h-6", "M0 17h6M48 17h-6"),
        ("solid", "M5 14v20l10-10zM43 14v20l-10-10z", "M5 7v20l10-10zM43 7v20l-10-10z")]),
    "extract": ("green", [
        ("thing", "M8 25v17a3 3 0 0 0 3 3h26a3 3 0 0 0 3 -3v-17"),
        ("edge", "M8 25l-6 -8M40 25l6 -8"),
        ("sign", "M24 38v-22", "M24 29v-13"),
        ("solid", "M13 17h22l-11-13z")]),
    "synchronise": ("violet", [
        ("trail", "M33 14h-30M15 34h30"),
        ("solid", "M32 3v22l13-11zM16 23v22l-13-11z")]),
}

# The program itself: a job sheet and the pencil that edits it, on a tile that stands on either desktop. Sheet and
# rows keep to multiples of eight, which are whole pixels at 16 px. Path data, fill, stroke, stroke width.
PROGRAM = [
    (box(0, 0, 128, 128, 24), "#0b7671", "none", 0),
    (sheet(24, 16, 64, 96, 8, 24), "#ffffff", "none", 0),
    ("M64 16l24 24h-24z", "#9fd0cc", "none", 0),
    ("M32 48h8v8h-8zM32 64h8v8h-8zM32 80h8v8h-8z", "#0b7671", "none", 0),
    ("M48 52h32M48 68h20M48 84h8", "none", "#36414d", 8),
    ("M69 77L100 46L118 64L87 95L64 100z", "#0b7671", "#0b7671", 12),
    ("M69 77L100 46L118 64L87 95z", "#f2bd5c", "none", 0),
    ("M69 77L87 95L64 100z", "#f6e9d0", "none", 0),
    ("M66 92L72 98L64 100z", "#36414d", "#36414d", 4),
]


def path(shape, fill, stroke="none", width=0, dash=""):
    """One SVG element. No stroke attributes where nothing is stroked."""
    text = f'  <path d="{shape}" fill="{fill}"'
    if stroke != "none":
        text += f' stroke="{stroke}" stroke-width="{width}" stroke-linejoin="round"'
    return text + (f' stroke-dasharray="{dash}"/>' if dash else "/>")


def painted(grid, colour, parts, palette, preview):
    """The SVG elements of a drawing in the colours of one palette."""
    own = {"accent": colour, "pale": f"{colour}-pale"}

    def paint(name):
        return "none" if name == "none" else PALETTES[own.get(name, name)][palette]

    for role, shape, *instead in parts:
        shape = instead[0] if preview and instead else shape
        fill, stroke, lines, dashes = ROLES[role]
        if shape:
            yield path(shape, paint(fill), paint(stroke), lines * grid["line"],
                       grid["dash"] if preview and dashes else "")


def document(size, title, elements):
    """A whole SVG file."""
    head = f'<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width="{size}" height="{size}"'
    return "\n".join([f'{head} viewBox="0 0 {size} {size}">', f"  <!-- {title} -->", *elements, "</svg>", ""])


def drawing(grid, name, table, palette, preview):
    """The file of one drawing; a preview has the eye on top."""
    colour, parts = table[name]
    elements = list(painted(grid, colour, parts, palette, preview))
    if preview:
        elements += painted(grid, colour, EYE[grid["size"]], palette, False)
    return document(grid["size"], name + (", preview" if preview else ""), elements)


def files():
    """Every generated file: path below desktop/icons and content."""
    made = {"kestedit.svg": document(128, "the editor", [path(*part) for part in PROGRAM])}
    for palette in ("light", "dark"):
        for picture, name in enumerate(ACTIONS, 1):
            made[f"{palette}/action-{picture}.svg"] = drawing(ACTION, name, ACTIONS, palette, False)
            made[f"{palette}/action-{picture + len(ACTIONS)}.svg"] = drawing(ACTION, name, ACTIONS, palette, True)
        for number, (name, preview) in enumerate(NODES):
            made[f"{palette}/node-{number}.svg"] = drawing(NODE, name, NODE_ACTIONS | NODE_MARKS, palette, preview)
    listed = "".join(f"    <file>{name}</file>\n" for name in made)
    made["icons.qrc"] = ("<!-- Written by scripts/make-icons.py. -->\n"
                         f'<RCC>\n  <qresource prefix="/icons">\n{listed}  </qresource>\n</RCC>\n')
    return made


def stale(made):
    """The committed files that differ from the tables, are missing, or stand there without a row."""
    present = {str(file.relative_to(ICONS)) for file in ICONS.rglob("*") if file.suffix in (".svg", ".qrc")}
    return sorted(name for name in present | made.keys()
                  if name not in present or name not in made or (ICONS / name).read_text() != made[name])


def main():
    made = files()
    if sys.argv[1:] == ["--check"]:
        sys.exit("\n".join(f"{ICONS / name} is not what {sys.argv[0]} draws" for name in stale(made)) or 0)
    if sys.argv[1:]:
        sys.exit(__doc__)
    for name, text in made.items():
        (ICONS / name).parent.mkdir(parents=True, exist_ok=True)
        (ICONS / name).write_text(text)


main()
