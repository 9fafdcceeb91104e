"""Media made on the spot with ffmpeg, so that no clip has to be kept in the repository."""

import os
import pathlib
import subprocess


def make(path, *arguments):
    """Runs ffmpeg with `arguments` to make `path`, unless it is there already. A broken run leaves no file behind."""
    path = pathlib.Path(path)
    if path.exists():
        return path
    path.parent.mkdir(parents=True, exist_ok=True)
    unfinished = path.with_name(f"unfinished-{os.getpid()}-{path.name}")
    command = ["ffmpeg", "-nostdin", "-loglevel", "error", "-y", *map(str, arguments), str(unfinished)]
    try:
        subprocess.run(command, check=True)
        os.replace(unfinished, path)
    finally:
        unfinished.unlink(missing_ok=True)
    return path


FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf"


def line(text, size, left):
    """A filter that writes `text` half way up the picture, `size` pixels high, from `left` on."""
    return f"drawtext=fontfile={FONT}:text='{text}':fontsize={size}:fontcolor=white:x={left}:y=(h-th)/2"


def caption(text):
    """A filter that writes `text` across the middle of the picture, on a dark plate."""
    return (
        f"drawtext=fontfile={FONT}:text='{text}':fontsize=56:fontcolor=white:"
        "box=1:boxcolor=black@0.6:boxborderw=24:x=(w-tw)/2:y=(h-th)*0.4"
    )
