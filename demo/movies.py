#!/usr/bin/python3
"""movies.py FOLDER: makes the demo station's Flash movies; a small writer of movies of ActionScript 1 and 2, after the
published format. The tests take their movies from it too."""

import math
import pathlib
import struct
import sys
import zlib

TWIPS = 20  # to a pixel, in movies
WHOLE = 65536  # a scale of one


class Bits:
    """Bit fields, the highest bit first."""

    def __init__(self):
        self._value, self._count = 0, 0

    def unsigned(self, value, count):
        self._value = self._value << count | value
        self._count += count
        return self

    def signed(self, value, count):
        return self.unsigned(value & (1 << count) - 1, count)

    def bytes(self):
        spare = -self._count % 8
        return (self._value << spare).to_bytes((self._count + spare) // 8, "big")


def width_of(*values):
    return max((value if value >= 0 else ~value).bit_length() for value in values) + 1


def rectangle(left, right, top, bottom):
    edges = [round(edge * TWIPS) for edge in (left, right, top, bottom)]
    count = width_of(*edges)
    bits = Bits().unsigned(count, 5)
    for edge in edges:
        bits.signed(edge, count)
    return bits.bytes()


def matrix(x=0.0, y=0.0, turn=0.0, scale=1.0):
    """A place in pixels, a turn in radians."""
    bits = Bits()
    across, around = round(math.cos(turn) * scale * WHOLE), round(math.sin(turn) * scale * WHOLE)
    for pair in ((across, across), (around, -around)):
        count = width_of(*pair)
        bits.unsigned(1, 1).unsigned(count, 5).signed(pair[0], count).signed(pair[1], count)
    place = round(x * TWIPS), round(y * TWIPS)
    count = width_of(*place)
    bits.unsigned(count, 5).signed(place[0], count).signed(place[1], count)
    return bits.bytes()


def tag(code, body=b""):
    if len(body) < 63:
        return struct.pack("<H", code << 6 | len(body)) + body
    return struct.pack("<HI", code << 6 | 63, len(body)) + body


SHOW = tag(1)
END = tag(0)


def polygon(character, points, colour):
    """A filled polygon; points in pixels, colour as (red, green, blue, alpha)."""
    corners = [(round(x * TWIPS), round(y * TWIPS)) for x, y in points]
    xs, ys = [x for x, _ in corners], [y for _, y in corners]
    bounds = rectangle(min(xs) / TWIPS, max(xs) / TWIPS, min(ys) / TWIPS, max(ys) / TWIPS)
    styles = b"\x01\x00" + bytes(colour) + b"\x00"
    count = width_of(*corners[0])
    bits = Bits().unsigned(1, 4).unsigned(0, 4)  # one fill, no lines
    bits.unsigned(0b000101, 6).unsigned(count, 5).signed(corners[0][0], count).signed(corners[0][1], count).unsigned(1, 1)
    for here, there in zip(corners, corners[1:] + corners[:1]):
        step = there[0] - here[0], there[1] - here[1]
        count = max(width_of(*step), 2)
        bits.unsigned(0b11, 2).unsigned(count - 2, 4).unsigned(1, 1).signed(step[0], count).signed(step[1], count)
    return tag(32, struct.pack("<H", character) + bounds + styles + bits.unsigned(0, 6).bytes())


def box(character, x, y, width, height, colour):
    return polygon(character, [(x, y), (x + width, y), (x + width, y + height), (x, y + height)], colour)


def circle(character, radius, colour, corners=40):
    around = [2 * math.pi * i / corners for i in range(corners)]
    return polygon(character, [(radius * math.cos(a), radius * math.sin(a)) for a in around], colour)


def star(character, radius, colour, rays=5, inner=0.42):
    corners = []
    for i in range(2 * rays):
        length = radius if i % 2 == 0 else radius * inner
        angle = math.pi * i / rays - math.pi / 2
        corners.append((length * math.cos(angle), length * math.sin(angle)))
    return polygon(character, corners, colour)


def font(character, name="_sans"):
    """One of the player's own fonts."""
    called = name.encode()
    return tag(48, struct.pack("<HBB", character, 0, 0) + bytes([len(called)]) + called + b"\0\0\0\0")


LEFT, RIGHT, CENTRE = 0, 1, 2


def text(character, font_character, width, height, size, colour, shown="", variable="", align=CENTRE):
    """A line of text; with `variable` it shows that variable of the root."""
    flags = 0x80 * bool(shown) | 0x08 | 0x04 | 0x01  # its own text, not to be typed into, colour, font
    body = struct.pack("<H", character) + rectangle(0, width, 0, height) + bytes([flags, 0x30])
    body += struct.pack("<HH", font_character, round(size * TWIPS)) + bytes(colour)
    body += struct.pack("<BHHHh", align, 0, 0, 0, 0) + variable.encode() + b"\0"
    return tag(37, body + (shown.encode() + b"\0" if shown else b""))


def place(character, depth, where=None, name=None):
    flags = 0x06 | (0x20 if name else 0)
    body = struct.pack("<BHH", flags, depth, character) + (where or matrix())
    return tag(26, body + (name.encode() + b"\0" if name else b""))


def move(depth, where):
    return tag(26, struct.pack("<BH", 0x05, depth) + where)


def clip(character, tags):
    return tag(39, struct.pack("<HH", character, 1) + tags + SHOW + END)


# Actions.
def action(code, data=b""):
    return bytes([code]) if code < 0x80 else struct.pack("<BH", code, len(data)) + data


def push(*values):
    data = b""
    for value in values:
        if isinstance(value, str):
            data += b"\x00" + value.encode() + b"\0"
        elif isinstance(value, int):
            data += b"\x07" + struct.pack("<i", value)
        else:
            data += b"\x01" + struct.pack("<f", value)
    return action(0x96, data)


ADD, MULTIPLY, LESS, NOT = action(0x47), action(0x0C), action(0x48), action(0x12)
GET, SET, SET_MEMBER = action(0x1C), action(0x1D), action(0x4F)
NEW_OBJECT, CALL_METHOD, PLAY, STOP = action(0x40), action(0x52), action(0x06), action(0x07)
# A jump to itself.
ENDLESS = action(0x99, struct.pack("<h", -5))


def actions(code):
    return tag(12, code + b"\0")


def variable(name):
    return push(name) + GET


def method(thing, name):
    return push(0) + thing + push(name) + CALL_METHOD


NOW = push("now") + push(0, "Date") + NEW_OBJECT + SET


def movie(width, height, rate, frames, tags, version=8, background=(0, 0, 0), packed=True):
    """`frames`: what the header says; `tags`: all that follows the background."""
    head = tag(69, bytes(4)) if version >= 8 else b""
    body = rectangle(0, width, 0, height) + struct.pack("<HH", round(rate * 256), frames)
    body += head + tag(9, bytes(background)) + tags + END
    packed = packed and version >= 6
    lead = (b"CWS" if packed else b"FWS") + struct.pack("<BI", version, 8 + len(body))
    return lead + (zlib.compress(body) if packed else body)


def moving(width, height, rate, frames, characters, parts, **more):
    """`parts`: (character, its place at each frame, from 0), from the back to the front."""
    tags = characters
    for frame in range(frames):
        for depth, (character, where) in enumerate(parts, 1):
            if frame == 0:
                tags += place(character, depth, where(0))
            else:
                tags += move(depth, where(frame))
        tags += SHOW
    return movie(width, height, rate, frames, tags, **more)


def still(_):
    return matrix()


TURN = 2 * math.pi
WHITE = (255, 255, 255, 255)


def logo():
    parts = circle(1, 88, (20, 60, 140, 235)) + circle(2, 76, (240, 245, 255, 255)) + star(3, 62, (220, 60, 40, 255))
    return moving(300, 200, 12, 48, parts, [
        (1, lambda k: matrix(150, 100)), (2, lambda k: matrix(150, 100)),
        (3, lambda k: matrix(150, 100, 0, 0.9 + 0.1 * math.cos(TURN * k / 48)))])


def analogue():
    face = circle(1, 145, (25, 35, 60, 200)) + circle(2, 135, (245, 245, 250, 230)) + circle(3, 8, (20, 20, 30, 255))
    hands = b""
    for character, half, length, colour in ((4, 6, 75, (20, 20, 30, 255)), (5, 4, 105, (20, 20, 30, 255)), (6, 2, 118, (210, 30, 30, 255))):
        hands += box(character, -half, -length, 2 * half, length + 14, colour) + clip(character + 10, place(character, 1))
    ticks = box(7, -2, -130, 4, 14, (20, 20, 30, 255))
    marks = b"".join(place(7, 10 + hour, matrix(150, 150, TURN * hour / 12)) for hour in range(12))

    def turned(hand, *degrees):
        angle = degrees[0]
        for more in degrees[1:]:
            angle += more + ADD
        return push(hand) + GET + push("_rotation") + angle + SET_MEMBER

    def of(unit, factor):
        return method(variable("now"), unit) + push(float(factor)) + MULTIPLY

    code = NOW + turned("hours", of("getHours", 30), of("getMinutes", 0.5))
    code += turned("minutes", of("getMinutes", 6)) + turned("seconds", of("getSeconds", 6))
    middle = matrix(150, 150)
    stage = place(1, 1, middle) + place(2, 2, middle) + marks + place(14, 30, middle, "hours")
    stage += place(15, 31, middle, "minutes") + place(16, 32, middle, "seconds") + place(3, 33, middle)
    return movie(300, 300, 4, 2, face + hands + ticks + stage + actions(code) + SHOW + actions(code) + SHOW)


def digital():
    def two(unit):
        """The number with two digits."""
        value = method(variable("now"), unit)
        # Where it is below ten, "0" goes in front: the jump leaves that out.
        zero = push("time") + variable("time") + push("0") + ADD + SET
        unless = value + push(10) + LESS + NOT + action(0x9D, struct.pack("<h", len(zero))) + zero
        return unless + push("time") + variable("time") + value + ADD + SET

    colon = push("time") + variable("time") + push(":") + ADD + SET
    code = NOW + push("time", "") + SET + two("getHours") + colon + two("getMinutes") + colon + two("getSeconds")
    code += push("shown") + variable("time") + SET
    stage = box(1, 0, 0, 250, 80, (15, 20, 40, 200)) + font(2)
    stage += text(3, 2, 240, 60, 46, (255, 230, 120, 255), variable="shown")
    stage += place(1, 1) + place(3, 2, matrix(5, 12))
    return movie(250, 80, 4, 2, stage + actions(code) + SHOW + actions(code) + SHOW)


def sticker():
    parts = star(1, 95, (250, 170, 30, 255), 14, 0.82) + font(2) + text(3, 2, 160, 60, 40, (120, 20, 10, 255), "NEW")
    return moving(200, 200, 12, 36, parts, [
        (1, lambda k: matrix(100, 100, TURN * k / 36 / 14)), (3, lambda k: matrix(20, 72))])


def flash_ad(colour, words):
    parts = box(1, 0, 0, 400, 120, colour) + font(2) + text(3, 2, 400, 60, 40, WHITE, words) + star(4, 34, (255, 240, 90, 255))
    return moving(400, 120, 25, 125, parts, [
        (1, still), (3, lambda k: matrix(400 * max(0, 1 - k / 25), 30)),
        (4, lambda k: matrix(45 + 310 * k / 124, 60, TURN * k / 60, 0.8))])


def side_ad(colour, words):
    parts = box(1, 0, 0, 300, 900, colour) + circle(2, 70, (255, 255, 255, 70)) + font(3)
    parts += text(4, 3, 300, 70, 44, WHITE, words) + star(5, 90, (255, 230, 80, 255))
    return moving(300, 900, 25, 150, parts, [
        (1, still), (2, lambda k: matrix(150, 960 - 7 * k)), (5, lambda k: matrix(150, 260, TURN * k / 150)),
        (4, lambda k: matrix(0, 480 + 30 * math.sin(TURN * k / 75)))])


def band(colour, words):
    parts = box(1, 0, 0, 1920, 60, colour) + font(2) + text(3, 2, 900, 46, 32, WHITE, words) + star(4, 24, (255, 220, 60, 255))
    return moving(1920, 60, 25, 100, parts, [
        (1, still), (3, lambda k: matrix(510, 7)), (4, lambda k: matrix(60 + 18 * k, 30, TURN * k / 25))])


def cap(colour):
    parts = circle(1, 70, colour) + star(2, 55, WHITE)
    return moving(150, 150, 25, 50, parts, [(1, lambda k: matrix(75, 75)), (2, lambda k: matrix(75, 75, TURN * k / 50))])


def breaking_news(width=1030, height=60, rate=25, hold=75, speed=5, longest=8000):
    """The strip: its line is the variable `text1` of its root. It comes in from the right, stands, and passes to the left
    until it has gone: `text1_width`, which the station's page sets with each text, is its width in pixels. Without that
    it passes as far as the longest one. A text that is read from the right, of which the page says so in `text1_rtl`,
    does all of it the other way round, in frames of its own. The last frames show no text: there the next one is asked
    for."""
    label, begin, enter, end = 170, 186, 25, 12
    size = round(height * 0.52)
    # Where the strip has not the movie's shape, what lies beside the stage is seen as well.
    characters = box(1, -width, 0, 3 * width, height, (150, 10, 20, 255))
    characters += box(2, -width, 0, label + width, height, (90, 0, 10, 255)) + font(3)
    characters += text(4, 3, label, size + 12, height * 0.43, WHITE, "BREAKING")
    characters += text(5, 3, longest, size + 16, size, WHITE, "", "text1", LEFT)
    characters += text(6, 3, longest, size + 16, size, WHITE, "", "text1", RIGHT)
    characters += box(7, width, 0, width, height, (150, 10, 20, 255))
    top = (height - size - 12) / 2
    # How far the line is from where it stands.
    coming = [(width - begin) * (1 - math.sin(math.pi / 2 * frame / enter)) for frame in range(enter)] + [0] * hold
    passing = [speed * frame for frame in range(1, math.ceil((longest + begin - label) / speed) + 1)]
    run = len(coming) + len(passing)

    def go_to(frame):
        return action(0x81, struct.pack("<H", frame)) + PLAY

    def when(condition, code):
        return actions(condition + NOT + action(0x9D, struct.pack("<h", len(code))) + code)

    def frames(depth, x, way):
        """One run of the line, shown to each frame. Where letters end is known to within a few pixels."""
        for apart in coming:
            yield move(depth, matrix(x - way * apart, top))
        for passed in passing:
            has_gone = variable("text1_width") + push(passed - begin + label - size) + LESS
            yield when(has_gone, go_to(2 * run)) + move(depth, matrix(x + way * passed, top))

    # Lines stay on the stage, out of sight: one that were placed anew would have lost its text.
    away = matrix(0, 20 * width)
    leftwards, rightwards = 2, 3
    tags = characters + place(1, 1) + place(5, leftwards, away) + place(6, rightwards, away) + place(2, 4)
    tags += place(4, 5, matrix(0, (height - size - 2) / 2 + 2))
    tags += when(push(0) + variable("text1_rtl") + LESS, go_to(run))
    tags += SHOW.join(frames(leftwards, begin, -1)) + actions(go_to(2 * run)) + SHOW
    # The ground covers what passes beyond the stage's right edge, as the label does on the left.
    tags += move(leftwards, away) + place(7, 6)
    tags += SHOW.join(frames(rightwards, width - (begin - label) - longest, 1)) + SHOW
    tags += move(rightwards, away) + SHOW * end
    return movie(width, height, rate, 2 * run + end, tags, background=(150, 10, 20))


def plain(colour, frames=50, rate=25, width=320, height=180, **more):
    """A movie of one colour, for tests."""
    tags = box(1, 0, 0, width, height, (*colour, 255)) + place(1, 1) + SHOW * frames
    return movie(width, height, rate, frames, tags, background=colour, **more)


# Where the demo station keeps them.
MOVIES = {
    "Logo/Demo/logo.swf": logo,
    "Clock/Demo/analogue.swf": analogue,
    "Clock/Demo/digital.swf": digital,
    "Stiker/Demo/new.swf": sticker,
    "FlashAd/Demo/1 coffee.swf": lambda: flash_ad((110, 60, 30, 235), "Fresh coffee"),
    "FlashAd/Demo/2 books.swf": lambda: flash_ad((30, 90, 60, 235), "Old books"),
    "LeftSideAd/Demo/1 bakery.swf": lambda: side_ad((160, 90, 30, 255), "Bakery"),
    "LeftSideAd/Demo/2 garden.swf": lambda: side_ad((30, 110, 60, 255), "Garden"),
    "FlashBN/bn.swf": breaking_news,
}


def make(folder):
    """Makes the movies that are missing in the folder."""
    for name, write in MOVIES.items():
        path = pathlib.Path(folder) / name
        if not path.exists():
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(write())


if __name__ == "__main__":
    make(sys.argv[1])
