"""Texts as they are to be read: set by another program, and looked for among pixels. An ink is what a text covers: for
each row of pixels a number whose bits are the pixels, the first one the lowest."""

import functools
import subprocess

WHITE_FROM = 128
LANGUAGES = {"Latn": "en", "Beng": "bn", "Arab": "ar"}
JOINED, APART = "ot", "fallback"  # how letters are set: as the font joins them, or each by itself


@functools.cache
def fonts_of(script):
    """The upright fonts of ordinary weight that are made for a script; of Latin the system's own."""
    language = LANGUAGES[script]
    own = _told("fc-match", "-f", "%{file}\n", f"sans-serif:lang={language}")
    if script == "Latn":
        return own
    return sorted({*own, *_told("fc-list", "-f", "%{file}\n", f":lang={language}:weight=80:slant=0")})


def ink(rows):
    """The ink of a light text on a darker ground, cut to the text; empty where there is none. By the green part, which
    a red ground lacks."""
    marks = [sum(1 << x for x, pixel in enumerate(row) if pixel[1] >= WHITE_FROM) for row in rows]
    filled = [y for y, row in enumerate(marks) if row]
    if not filled:
        return []
    left = min((row & -row).bit_length() - 1 for row in marks if row)
    return [row >> left for row in marks[filled[0] : filled[-1] + 1]]


def columns(seen, left, right):
    """The ink between two columns, cut to the text."""
    rows = [row >> left & (1 << right - left) - 1 for row in seen]
    filled = [y for y, row in enumerate(rows) if row]
    if not filled:
        return []
    blank = min((row & -row).bit_length() - 1 for row in rows if row)
    return [row >> blank for row in rows[filled[0] : filled[-1] + 1]]


def width(seen):
    return max((row.bit_length() for row in seen), default=0)


def words(seen, count):
    """The words of an ink from the left, which are parted by its widest gaps."""
    filled = functools.reduce(int.__or__, seen, 0)
    edges = [x for x in range(filled.bit_length() + 1) if (filled >> x & 1) != (filled << 1 >> x & 1)]
    gaps = sorted(zip(edges[1::2], edges[2::2]), key=lambda gap: gap[0] - gap[1])[: count - 1]
    sides = [0, *(x for gap in sorted(gaps) for x in gap), width(seen)]
    return [columns(seen, left, right) for left, right in zip(sides[::2], sides[1::2])]


@functools.cache
def set_text(text, script, font, size, letters=JOINED):
    """The ink of a text in a font of that size in pixels."""
    command = ["hb-view", f"--font-file={font}", f"--font-size={size}", f"--text={text}", f"--script={script}",
               f"--shapers={letters}", "--background=000000", "--foreground=FFFFFF", "--output-format=png", "--margin=4"]
    png = subprocess.run(command, check=True, capture_output=True).stdout
    ppm = subprocess.run(["convert", "png:-", "-depth", "8", "ppm:-"], input=png, check=True, capture_output=True).stdout
    _, measures, _, raw = ppm.split(b"\n", 3)
    width, height = map(int, measures.split())
    pixels = [tuple(raw[i : i + 3]) for i in range(0, 3 * width * height, 3)]
    return ink([pixels[y * width : (y + 1) * width] for y in range(height)])


def likeness(seen, wanted, play=3):
    """How much of two inks is the same, from 0 to 1, with one over the other where they fit best."""
    if not seen or not wanted:
        return 0.0
    most = 0
    for down in range(-play, play + 1):
        pairs = [(row, seen[y + down]) for y, row in enumerate(wanted) if 0 <= y + down < len(seen)]
        for right in range(-play, play + 1):
            most = max(most, sum(((row << play) & (other << play + right)).bit_count() for row, other in pairs))
    return 2 * most / sum(row.bit_count() for row in (*seen, *wanted))


def best_likeness(seen, text, script, size, letters=JOINED):
    """The likeness to the text in the font that fits best, and that font."""
    return max((likeness(seen, set_text(text, script, font, size, letters)), font) for font in fonts_of(script))


def likeness_at_side(seen, text, script, size, is_right):
    """The likeness of an ink's left or right end to the text, in the font that fits best."""
    most = 0.0
    for font in fonts_of(script):
        wanted = set_text(text, script, font, size)
        left = width(seen) - width(wanted) if is_right else 0
        most = max(most, likeness(columns(seen, max(0, left), max(0, left) + width(wanted)), wanted))
    return most


def _told(*command):
    told = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    return [line for line in told.splitlines() if line.endswith((".ttf", ".otf"))]
