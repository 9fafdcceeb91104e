"""Small clips, each of one colour, made once and kept in the build folder."""

import fcntl
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "demo"))
import clips  # noqa: E402

FOLDER = ROOT / "build" / "e2e-media"

COLOURS = {
    "red": (255, 0, 0),
    "green": (0, 255, 0),
    "blue": (0, 0, 255),
    "yellow": (255, 255, 0),
    "magenta": (255, 0, 255),
    "white": (255, 255, 255),
    "black": (0, 0, 0),
}
NEAR = 70


def name_of(pixel):
    """The colour that a pixel shows, "other" when it is none of the clips'."""
    for name, colour in COLOURS.items():
        if all(abs(a - b) <= NEAR for a, b in zip(pixel, colour)):
            return name
    return "other"


def clip(colour, seconds=2):
    """A silent video of one colour."""
    video = ["-f", "lavfi", "-i", f"color=c={_hex(colour)}:s=640x360:r=25:d={seconds}"]
    return _made(f"{colour}-{seconds}.mp4", *video, "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p")


PATTERN = "pattern"


def endless(colour):
    """What makes ffmpeg send one colour, or PATTERN, which moves, with a tone for ever, at the speed of time and with a
    picture to begin at in each second."""
    source = "testsrc2=" if colour == PATTERN else f"color=c={_hex(colour)}:"
    picture = ["-re", "-f", "lavfi", "-i", f"{source}s=640x360:r=25"]
    sound = ["-re", "-f", "lavfi", "-i", "sine=frequency=440"]
    return [*picture, *sound, "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p", "-g", "25", "-c:a", "aac"]


CLOCK_BITS = 8
HALF_SECONDS = 2


def clock(seconds=100):
    """A video with its own time burnt in: CLOCK_BITS upright bars, the first one the lowest bit of the count of half
    seconds since the start; a white bar is a one, a blue one a zero."""
    bars = [
        f"drawbox=x={640 * bit // CLOCK_BITS}:y=0:w={640 // CLOCK_BITS}:h=360:color=white:t=fill"
        f":enable='mod(floor(t*{HALF_SECONDS}/{2**bit})\\,2)'"
        for bit in range(CLOCK_BITS)
    ]
    video = ["-f", "lavfi", "-i", f"color=c=0x0000ff:s=640x360:r=25:d={seconds}", "-vf", ",".join(bars)]
    return _made(f"clock-{seconds}.mp4", *video, "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p")


def time_of_clock(pixels):
    """Seconds that the bars show, from one pixel of each; None when they are not the clock's."""
    names = [name_of(pixel) for pixel in pixels]
    if not set(names) <= {"white", "blue"}:
        return None
    return sum(2**bit for bit, name in enumerate(names) if name == "white") / HALF_SECONDS


def full_hd(seconds=40):
    """A moving picture of 1920 by 1080."""
    video = ["-f", "lavfi", "-i", f"testsrc2=s=1920x1080:r=25:d={seconds}"]
    return _made(f"full-hd-{seconds}.mp4", *video, "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p")


FRAME_BITS = 12
FRAMES_A_SECOND = 25


def frames(seconds=160):
    """A video with the number of each frame burnt in: FRAME_BITS upright bars, the first one the lowest bit. In the upper
    half a white bar is a one and a blue one a zero, in the lower half it is the other way round."""
    width = 640 / FRAME_BITS
    bars = [
        f"drawbox=x={int(width * bit)}:y={y}:w={int(width) + 1}:h=180:color=white:t=fill"
        f":enable='eq({one}\\,mod(floor(n/{2**bit})\\,2))'"
        for bit in range(FRAME_BITS) for y, one in ((0, 1), (180, 0))
    ]
    video = ["-f", "lavfi", "-i", f"color=c=0x0000ff:s=640x360:r={FRAMES_A_SECOND}:d={seconds}", "-vf", ",".join(bars)]
    return _made(f"frames-{seconds}.mp4", *video, "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p")


def number_of_frame(upper, lower):
    """The number that the bars show, from one pixel of each in both halves; None when they are not those of one frame."""
    other = {"white": "blue", "blue": "white"}
    names = [name_of(pixel) for pixel in upper]
    if [other.get(name) for name in names] != [name_of(pixel) for pixel in lower]:
        return None
    return sum(2**bit for bit, name in enumerate(names) if name == "white")


def picture(colour):
    return _made(f"{colour}.png", "-f", "lavfi", "-i", f"color=c={_hex(colour)}:s=640x360:d=1", "-frames:v", "1")


def jpeg(colour, width, height):
    """A picture of one colour and of that size."""
    size = f"{width}x{height}"
    recipe = ["-f", "lavfi", "-i", f"color=c={_hex(colour)}:s={size}:d=1", "-frames:v", "1"]
    return _made(f"{colour}-{size}.jpg", *recipe, "-q:v", "1", "-pix_fmt", "yuvj444p")


RULER_CELL = 16
RULER_ROW = 8
RULER_BITS = 9
RULER_WIDTH = RULER_CELL * 2**RULER_BITS
RULER_HEIGHT = RULER_ROW * (1 + RULER_BITS)


def ruler():
    """A picture in which every place can be told from its surroundings: in the first row black and white cells take
    turns, and the rows under it hold the number of the cell, a bit each, the lowest first."""
    rows = [bytes(255 * (x // RULER_CELL >> bit & 1) for x in range(RULER_WIDTH)) for bit in (0, *range(RULER_BITS))]
    FOLDER.mkdir(parents=True, exist_ok=True)
    plain = FOLDER / "ruler.pgm"
    plain.write_bytes(f"P5 {RULER_WIDTH} {RULER_HEIGHT} 255\n".encode() + b"".join(row * RULER_ROW for row in rows))
    return _made("ruler.jpg", "-i", plain, "-q:v", "1", "-pix_fmt", "yuvj444p")


def place_on_ruler(rows):
    """Where the ruler's left edge stands, in pixels from the left edge of `rows`, a picture of the whole ruler's height;
    None where it is not to be seen, or torn."""
    lights = [[pixel[1] > 127 for pixel in rows[RULER_ROW * row + RULER_ROW // 2]] for row in range(1 + RULER_BITS)]
    edges = [x for x in range(1, len(lights[0])) if lights[0][x] != lights[0][x - 1]]
    places = set()
    for edge in edges[:-1]:
        middle = edge + RULER_CELL // 2
        cell = sum(2**bit for bit in range(RULER_BITS) if lights[1 + bit][middle])
        places.add(edge - RULER_CELL * cell)
    return places.pop() if len(places) == 1 else None


def tone(seconds=2):
    return _made(f"tone-{seconds}.wav", "-f", "lavfi", "-i", f"sine=frequency=440:duration={seconds}")


def _hex(colour):
    return "0x" + "".join(f"{part:02x}" for part in COLOURS[colour])


def _made(name, *recipe):
    FOLDER.mkdir(parents=True, exist_ok=True)
    with open(FOLDER / f"{name}.lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        return clips.make(FOLDER / name, *recipe)
