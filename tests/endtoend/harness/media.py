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


def picture(colour):
    return _made(f"{colour}.png", "-f", "lavfi", "-i", f"color=c={_hex(colour)}:s=640x360:d=1", "-frames:v", "1")


def tone(seconds=2):
    return _made(f"tone-{seconds}.wav", "-f", "lavfi", "-i", f"sine=frequency=440:duration={seconds}")


def _hex(colour):
    return "0x" + "".join(f"{part:02x}" for part in COLOURS[colour])


def _made(name, *recipe):
    FOLDER.mkdir(parents=True, exist_ok=True)
    with open(FOLDER / f"{name}.lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        return clips.make(FOLDER / name, *recipe)
