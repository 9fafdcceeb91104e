#!/usr/bin/python3
"""composed.py [SECONDS]: what the on-air picture costs, in CPU seconds per second of the whole process tree and of the
X server, at 1920x1080: a 25 frames a second clip of about 8 Mbit/s under a crawler band that moves 60 times a second.

Beside it, in the same run: mpv with the clip alone, and ffplay that composes the same picture by a filter graph (its
band moves with the clip's 25 frames only, which spares it more than half of the band's work). Each is measured twice,
in turn, so that a machine that grows slower meanwhile shows."""

import pathlib
import statistics
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests" / "endtoend"))
sys.path.insert(0, str(ROOT / "demo"))
import clips  # noqa: E402
from harness.desk import Desk  # noqa: E402
from meter import Meter, x_server  # noqa: E402

ON_AIR = ROOT / "build" / "release" / "bench" / "composed" / "composed_on_air"
MEDIA = ROOT / "build" / "bench-media"
CLIP_SECONDS = 40
BAND_TOP = 950
WARM_UP = 4
ROUNDS = 2


def clip():
    source = "mandelbrot=size=1920x1080:rate=25,noise=alls=6:allf=t,format=yuv420p"
    rate = ["-b:v", "8M", "-maxrate", "9M", "-bufsize", "8M"]
    return clips.make(
        MEDIA / "clip.mp4", "-f", "lavfi", "-i", source, "-t", str(CLIP_SECONDS), "-c:v", "libx264", "-preset", "veryfast", *rate
    )


def picture(name, size):
    return clips.make(MEDIA / name, "-f", "lavfi", "-i", f"testsrc2=size={size}", "-frames:v", "1", "-pix_fmt", "yuvj420p")


def measure(command, seconds):
    """CPU seconds per second of the command and of the X server."""
    with Desk(1920, 1080) as desk:
        player = desk.start(*map(str, command))
        time.sleep(WARM_UP)
        meters = Meter(player.pid), Meter(x_server())
        time.sleep(seconds)
        costs = [meter.cost() for meter in meters]
        assert player.poll() is None, f"{command[0]} ended early"
    return costs


def compare(commands, seconds):
    """Measures each command in turn, ROUNDS times; the means of program and X server together, in the same order."""
    totals = {name: [] for name in commands}
    print(f"CPU seconds per second, each over {seconds:.0f} s")
    for _ in range(ROUNDS):
        for name, command in commands.items():
            program, server = measure(command, seconds)
            totals[name].append(program + server)
            print(f"{name:24} program {program:.3f}  X server {server:.3f}  together {program + server:.3f}", flush=True)
    return [statistics.mean(total) for total in totals.values()]


def main():
    seconds = float(sys.argv[1]) if len(sys.argv) > 1 else 20
    video, header, scroll = clip(), picture("header.jpg", "1920x40"), picture("scroll.jpg", "6000x90")
    graph = (
        f"null[v];movie={header}[h];movie={scroll}[s];[v][h]overlay=0:{BAND_TOP}:eof_action=repeat[a];"
        f"[a][s]overlay=x='-mod(n*5,6000)':y={BAND_TOP + 40}:eof_action=repeat"
    )
    commands = {
        "station, clip and band": [ON_AIR, video, header, scroll],
        "mpv, clip alone": [
            "mpv", "--no-config", "--really-quiet", "--vo=x11", "--ao=null", "--hwdec=no", "--no-border",
            "--geometry=1920x1080+0+0", video,
        ],
        "ffplay, clip and band": [
            "ffplay", "-v", "error", "-an", "-noborder", "-left", "0", "-top", "0", "-x", "1920", "-y", "1080",
            "-vf", graph, video,
        ],
    }
    ours, mpv, ffplay = compare(commands, seconds)
    print(f"station / mpv    {ours / mpv:.2f}")
    print(f"station / ffplay {ours / ffplay:.2f}")


if __name__ == "__main__":
    main()
