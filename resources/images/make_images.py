#!/usr/bin/python3
"""Draws Wuffer's images: the application icon, the sound button's states, the chain.

Run it from anywhere, without arguments; it needs python3-cairo:

    ./make_images.py

It writes, next to itself:

    wuffer.svg, wuffer-16.png ... wuffer-256.png   the application icon
    wuffer-symbolic.svg                            the same, in one colour that the desktop sets
    sound_high.png, sound_high@2x.png              a sounding loudspeaker
    sound_mute.png, sound_mute@2x.png              the same one, crossed out
    chain.png, chain@2x.png                        two links, dragged to join timers
    status_icon-22.png ... status_icon-64.png      the icon in the panel

A picture is a list of shapes whose outlines use the SVG path letters M, L, C
and Z. The same shapes are painted into the PNG files and written into the SVG
file, so all sizes stay one drawing. Small icons have drawings of their own,
with fewer parts, on a grid that matches their pixels.
"""

import math
import re
from dataclasses import dataclass
from pathlib import Path

import cairo

HERE = Path(__file__).resolve().parent

# Light and dark window backgrounds, from which the colours of outlines must stand out.
WINDOWS = ("#efefef", "#353535", "#2b2b2b")
SLATE = "#788398"
BLUE = "#3a86d4"
VERMILION = "#d45f00"

TEAL = "#178f8f"
TEAL_DARK = "#0f6f72"
CREAM = "#fff6e6"
CARAMEL = "#f0a858"
BROWN = "#b5703a"
INK = "#3a2a22"
PINK = "#ee6f6a"
SYMBOLIC = "#2e3436"

UNIT_CIRCLE = (
    "M 1 0 C 1 0.5523 0.5523 1 0 1 C -0.5523 1 -1 0.5523 -1 0 "
    "C -1 -0.5523 -0.5523 -1 0 -1 C 0.5523 -1 1 -0.5523 1 0 Z"
)
UNIT_QUARTER = "M 0 0 L 0 -1 C 0.5523 -1 1 -0.5523 1 0 Z"
EAR = (
    "M 92 72 C 66 48 30 58 16 92 C 2 126 4 178 25 185 "
    "C 43 190 44 168 46 150 C 49 124 66 100 92 72 Z"
)
TONGUE = (
    "M 113 198 C 122 198 128 192 128 184 C 128 192 134 198 143 198 "
    "C 143 224 113 224 113 198 Z"
)
SMALL_EAR = "M 5 3 C 3 2 0 3 0 6 L 0 9 C 0 11.5 3 11.5 3 9 C 3 7 4 5 5 3 Z"
PANEL_EAR = "M 7 4 C 4 2.5 0 4 0 9 L 0 12.5 C 0 15.8 4 15.8 4 12.5 C 4 9.5 5.5 7 7 4 Z"
SMALL_NOSE = "M 6 10 L 10 10 L 10 11 L 9 11 L 9 12 L 7 12 L 7 11 L 6 11 Z"
MEDIUM_NOSE = "M 13 20 L 19 20 L 19 22 L 18 22 L 18 23 L 14 23 L 14 22 L 13 22 Z"
MEDIUM_MOUTH = (
    "M 11 24 L 12 24 L 12 25 L 20 25 L 20 24 L 21 24 L 21 25 "
    "L 20 25 L 20 26 L 12 26 L 12 25 L 11 25 Z"
)
PANEL_NOSE = "M 9 13 L 13 13 L 13 15 L 12 15 L 12 16 L 10 16 L 10 15 L 9 15 Z"
PANEL_MOUTH = (
    "M 8 17 L 9 17 L 9 18 L 13 18 L 13 17 L 14 17 L 14 18 "
    "L 13 18 L 13 19 L 9 19 L 9 18 L 8 18 Z"
)
LOUDSPEAKER = "M 4 9 L 7 9 L 11 6 L 11 18 L 7 15 L 4 15 Z"


@dataclass
class Shape:
    path: str
    fill: str = "none"
    stroke: str = "none"
    width: float = 0


Picture = list[Shape]


def number(value: float) -> str:
    return f"{value:.3f}".rstrip("0").rstrip(".")


def path(*parts: str | float) -> str:
    return " ".join(p if isinstance(p, str) else number(p) for p in parts)


def transformed(
    outline: str, scale_x: float, scale_y: float, move_x: float, move_y: float
) -> str:
    def place(point: re.Match) -> str:
        return path(
            scale_x * float(point[1]) + move_x, scale_y * float(point[2]) + move_y
        )

    return re.sub(r"([-\d.]+) ([-\d.]+)", place, outline)


def ellipse(x: float, y: float, rx: float, ry: float) -> str:
    return transformed(UNIT_CIRCLE, rx, ry, x, y)


def circle(x: float, y: float, r: float) -> str:
    return ellipse(x, y, r, r)


def quarter(x: float, y: float, r: float) -> str:
    """A slice from twelve to three o'clock."""
    return transformed(UNIT_QUARTER, r, r, x, y)


def rectangle(x: float, y: float, width: float, height: float) -> str:
    return transformed("M 0 0 L 1 0 L 1 1 L 0 1 Z", width, height, x, y)


def line(x0: float, y0: float, x1: float, y1: float) -> str:
    return path("M", x0, y0, "L", x1, y1)


def arc(x: float, y: float, r: float, middle: float, spread: float) -> str:
    """An arc that spreads either side of its middle; both angles in degrees."""
    points = []
    for sign in (-1, 1):
        angle = math.radians(middle + sign * spread)
        reach = sign * -4 / 3 * math.tan(math.radians(spread) / 2) * r
        px, py = x + r * math.cos(angle), y + r * math.sin(angle)
        points.append((px, py))
        points.append((px - reach * math.sin(angle), py + reach * math.cos(angle)))
    start, start_control, end, end_control = points
    return path("M", *start, "C", *start_control, *end_control, *end)


def ears(outline: str, axis: float) -> Picture:
    mirrored = transformed(outline, -1, 1, 2 * axis, 0)
    return [Shape(outline, BROWN), Shape(mirrored, BROWN)]


def ticks(x: float, y: float, outer: float) -> Picture:
    shapes = []
    for hour in range(12):
        s, c = math.sin(math.tau * hour / 12), math.cos(math.tau * hour / 12)
        inner = outer - (9 if hour % 3 == 0 else 4)
        mark = line(x + inner * s, y - inner * c, x + outer * s, y - outer * c)
        shapes.append(Shape(mark, stroke=BROWN, width=4))
    return shapes


def large_icon() -> Picture:
    """For 256 units: a dog whose face is a timer's dial.

    The patch around one eye is the time that remains.
    """
    x, y = 128, 152
    return [
        Shape(rectangle(112, 32, 32, 36), TEAL_DARK),
        Shape(line(102, 28, 154, 28), stroke=TEAL, width=28),
        Shape(circle(x, y, 90), TEAL),
        Shape(circle(x, y, 74), CREAM),
        Shape(quarter(x, y, 74), CARAMEL),
        *ticks(x, y, 68),
        *ears(EAR, x),
        Shape(ellipse(100, 136, 10, 12), INK),
        Shape(ellipse(156, 136, 10, 12), INK),
        Shape(circle(103, 131, 3.5), CREAM),
        Shape(circle(159, 131, 3.5), CREAM),
        Shape(TONGUE, PINK),
        Shape(arc(113, 183, 15, 90, 75), stroke=INK, width=7),
        Shape(arc(143, 183, 15, 90, 75), stroke=INK, width=7),
        Shape(ellipse(x, 166, 21, 15), INK),
    ]


def medium_icon() -> Picture:
    """For 32 units: without the marks of the dial, with bolder features on whole pixels."""
    return [
        Shape(rectangle(14, 4, 4, 4), TEAL_DARK),
        Shape(rectangle(11, 1, 10, 3), TEAL),
        Shape(circle(16, 19, 12), TEAL),
        Shape(circle(16, 19, 10), CREAM),
        Shape(quarter(16, 19, 10), CARAMEL),
        *ears(transformed(EAR, 0.125, 0.125, 0, 0), 16),
        Shape(rectangle(11, 15, 2, 3), INK),
        Shape(rectangle(19, 15, 2, 3), INK),
        Shape(MEDIUM_NOSE, INK),
        Shape(MEDIUM_MOUTH, INK),
    ]


def panel_icon() -> Picture:
    """For 22 units: the small one with a mouth. Straight edges lie between its pixels."""
    return [
        Shape(rectangle(10, 2, 2, 2), TEAL_DARK),
        Shape(rectangle(7, 0, 8, 2), TEAL),
        Shape(circle(11, 13, 9), TEAL),
        Shape(circle(11, 13, 7), CREAM),
        Shape(quarter(11, 13, 7), CARAMEL),
        *ears(PANEL_EAR, 11),
        Shape(rectangle(7, 10, 2, 2), INK),
        Shape(rectangle(13, 10, 2, 2), INK),
        Shape(PANEL_NOSE, INK),
        Shape(PANEL_MOUTH, INK),
    ]


def small_icon() -> Picture:
    """For 16 units: only parts that fit whole pixels."""
    return [
        Shape(rectangle(7, 1, 2, 2), TEAL_DARK),
        Shape(rectangle(5, 0, 6, 1), TEAL),
        Shape(circle(8, 9, 7), TEAL),
        Shape(circle(8, 9, 5.2), CREAM),
        Shape(quarter(8, 9, 5.2), CARAMEL),
        *ears(SMALL_EAR, 8),
        Shape(rectangle(5, 7, 1, 2), INK),
        Shape(rectangle(10, 7, 1, 2), INK),
        Shape(SMALL_NOSE, INK),
    ]


def symbolic_icon() -> Picture:
    """For 16 units, of filled outlines only: desktops recolour fills, not strokes.

    An outline that runs in the opposite direction to the one around it is a hole.
    """
    dial = circle(8, 9, 6.5) + " " + transformed(UNIT_CIRCLE, -5, 5, 8, 9)
    features = [rectangle(5, 0, 6, 1), rectangle(7, 1, 2, 2), dial, SMALL_EAR]
    features += [transformed(SMALL_EAR, -1, 1, 16, 0), SMALL_NOSE]
    features += [rectangle(5, 7, 1, 2), rectangle(10, 7, 1, 2)]
    return [Shape(feature, SYMBOLIC) for feature in features]


def status_icon() -> Picture:
    """For 22 units: the timer without the dog. Its ring stands out from any panel."""
    return [
        Shape(rectangle(10, 2, 2, 3), TEAL_DARK),
        Shape(rectangle(7, 0, 8, 2), TEAL),
        Shape(circle(11, 13, 9), TEAL),
        Shape(circle(11, 13, 7), CREAM),
        Shape(quarter(11, 13, 7), CARAMEL),
        Shape(rectangle(10, 8, 2, 6), INK),
        Shape(rectangle(10, 12, 5, 2), INK),
    ]


def larger_status_icon() -> Picture:
    """For 32 units: the same on their grid."""
    return [
        Shape(rectangle(14, 3, 4, 4), TEAL_DARK),
        Shape(rectangle(10, 0, 12, 3), TEAL),
        Shape(circle(16, 19, 13), TEAL),
        Shape(circle(16, 19, 10), CREAM),
        Shape(quarter(16, 19, 10), CARAMEL),
        Shape(rectangle(15, 12, 2, 8), INK),
        Shape(rectangle(15, 18, 7, 2), INK),
    ]


def sound_button(signs: list[str], colour: str) -> Picture:
    """For 24 units: a loudspeaker with the signs beside it."""
    speaker = Shape(LOUDSPEAKER, SLATE, SLATE, 2)
    return [speaker, *(Shape(sign, stroke=colour, width=2) for sign in signs)]


def sounding() -> Picture:
    return sound_button([arc(11, 12, radius, 0, 42) for radius in (5, 9)], BLUE)


def muted() -> Picture:
    return sound_button([line(15, 9, 21, 15), line(15, 15, 21, 9)], VERMILION)


def link(x: float, y: float) -> str:
    """One link of a chain, lying along the rising diagonal."""
    r, reach = 4.2, 3.6
    turned = []
    for side in (1, -1):
        a, b = reach * side, r * side
        turned.append(((a, -b), (a + 1.333 * b, -b), (a + 1.333 * b, b), (a, b)))
    (p0, c0, c1, p1), (q0, d0, d1, q1) = turned
    cosine = math.sqrt(0.5)

    def place(point: tuple[float, float]) -> tuple[float, float]:
        u, v = point
        return x + cosine * (u + v), y + cosine * (v - u)

    corners = [place(p) for p in (p0, c0, c1, p1, q0, d0, d1, q1)]
    first, *rest = corners
    curves = [path("C", *rest[0], *rest[1], *rest[2]), path("L", *rest[3])]
    curves.append(path("C", *rest[4], *rest[5], *rest[6]))
    return " ".join([path("M", *first), *curves, "Z"])


def chain() -> Picture:
    """For 32 units: two interlocked links, with a rim to stand out from any background."""
    lower, upper = link(11.5, 20.5), link(20.5, 11.5)
    return [
        Shape(lower, stroke="#ffffff", width=6),
        Shape(upper, stroke="#ffffff", width=6),
        Shape(lower, stroke=SLATE, width=3.4),
        Shape(upper, stroke="#ffffff", width=5),
        Shape(upper, stroke=BLUE, width=3.4),
        Shape(line(14.2, 17.8, 17.8, 14.2), stroke=SLATE, width=3.4),
    ]


def channels(colour: str) -> tuple[float, ...]:
    return tuple(int(colour[i : i + 2], 16) / 255 for i in (1, 3, 5))


def luminance(colour: str) -> float:
    linear = [
        value / 12.92 if value <= 0.04045 else ((value + 0.055) / 1.055) ** 2.4
        for value in channels(colour)
    ]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(one: str, other: str) -> float:
    dark, light = sorted((luminance(one), luminance(other)))
    return (light + 0.05) / (dark + 0.05)


def check_contrast() -> None:
    for colour in (SLATE, BLUE, VERMILION, TEAL, BROWN):
        for window in WINDOWS:
            if contrast(colour, window) < 3:
                raise ValueError(f"{colour} is too faint on {window}")


def trace(context: cairo.Context, outline: str) -> None:
    draw = {
        "M": context.move_to,
        "L": context.line_to,
        "C": context.curve_to,
        "Z": context.close_path,
    }
    for letter, numbers in re.findall("([MLCZ])([^MLCZ]*)", outline):
        draw[letter](*map(float, numbers.split()))


def paint(picture: Picture, file: str, units: int, pixels: int, margin: int = 0) -> None:
    surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, pixels, pixels)
    context = cairo.Context(surface)
    context.translate(margin, margin)
    context.scale(*[(pixels - 2 * margin) / units] * 2)
    context.set_line_cap(cairo.LINE_CAP_ROUND)
    context.set_line_join(cairo.LINE_JOIN_ROUND)
    for shape in picture:
        trace(context, shape.path)
        if shape.fill != "none":
            context.set_source_rgb(*channels(shape.fill))
            context.fill_preserve()
        if shape.stroke != "none":
            context.set_source_rgb(*channels(shape.stroke))
            context.set_line_width(shape.width)
            context.stroke_preserve()
        context.new_path()
    surface.write_to_png(str(HERE / file))


def write_svg(picture: Picture, file: str, units: int) -> None:
    paths = "".join(
        f'<path fill="{shape.fill}" stroke="{shape.stroke}"'
        f' stroke-width="{shape.width}" d="{shape.path}"/>\n'
        for shape in picture
    )
    svg = (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{units}"'
        f' height="{units}" viewBox="0 0 {units} {units}">\n'
        "<title>Wuffer</title>\n"
        f'<g stroke-linecap="round" stroke-linejoin="round">\n{paths}</g>\n</svg>\n'
    )
    (HERE / file).write_text(svg, encoding="utf-8")


def main() -> None:
    check_contrast()
    paint(small_icon(), "wuffer-16.png", 16, 16)
    paint(panel_icon(), "wuffer-22.png", 22, 22)
    paint(panel_icon(), "wuffer-24.png", 22, 24, 1)
    paint(medium_icon(), "wuffer-32.png", 32, 32)
    paint(panel_icon(), "wuffer-44.png", 22, 44)
    for size in (48, 64, 128, 256):
        paint(large_icon(), f"wuffer-{size}.png", 256, size)
    for size, margin in (22, 0), (24, 1), (44, 0), (48, 2):
        paint(status_icon(), f"status_icon-{size}.png", 22, size, margin)
    for size in (32, 64):
        paint(larger_status_icon(), f"status_icon-{size}.png", 32, size)
    write_svg(large_icon(), "wuffer.svg", 256)
    write_svg(symbolic_icon(), "wuffer-symbolic.svg", 16)
    for name, picture in ("sound_high", sounding()), ("sound_mute", muted()):
        paint(picture, f"{name}.png", 24, 24)
        paint(picture, f"{name}@2x.png", 24, 48)
    paint(chain(), "chain.png", 32, 32)
    paint(chain(), "chain@2x.png", 32, 64)


if __name__ == "__main__":
    main()
