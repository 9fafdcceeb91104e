#!/usr/bin/python3
"""nine_movies.py [SECONDS]: what nine Flash movies over a 1080p clip cost, in CPU seconds per second of the whole process
tree and of the X server, and in memory (PSS) of the tree. Beside it, in the same run: mpv with the clip alone, and the
station's own window with the clip and no movie."""

import sys
import time

import composed
from composed import ROOT, clip
from harness.desk import Desk
from meter import Meter, pss_of_tree, x_server

import movies  # the station's own, which the demo makes

PROGRAM = ROOT / "build" / "release" / "app" / "movies_on_air"
# Movie and its place: left, top, width, height in pixels.
NINE = [
    (lambda: movies.band((10, 40, 120, 150), "Header of the channel"), 0, 0, 1920, 60),
    (movies.breaking_news, 0, 990, 1920, 60),
    (movies.logo, 1580, 100, 300, 200),
    (movies.analogue, 1500, 320, 300, 300),
    (lambda: movies.side_ad((0, 60, 30, 140), "Column"), 0, 70, 300, 900),
    (lambda: movies.cap((0, 120, 255, 160)), 320, 70, 150, 150),
    (lambda: movies.cap((0, 200, 80, 160)), 1000, 820, 150, 150),
    (movies.digital, 600, 500, 250, 80),
    (lambda: movies.flash_ad((110, 60, 30, 235), "Fresh coffee"), 900, 300, 400, 120),
]


def measure(command, seconds):
    with Desk(1920, 1080) as desk:
        player = desk.start(*map(str, command))
        time.sleep(composed.WARM_UP + 6)
        meter = Meter(player.pid, x_server())
        time.sleep(seconds)
        cost, memory = meter.cost(), pss_of_tree(player.pid)
        desk.screen.picture(ROOT / "build" / "bench-movies.png")
        assert player.poll() is None, f"{command[0]} ended early"
    return cost, memory


def main():
    seconds = float(sys.argv[1]) if len(sys.argv) > 1 else 20
    arguments = []
    for index, (write, *place) in enumerate(NINE):
        path = composed.MEDIA / f"movie{index}.swf"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(write())
        arguments += [path, *place]
    video = clip()
    mpv = ["mpv", "--no-config", "--really-quiet", "--vo=x11", "--ao=null", "--hwdec=no", "--no-border",
           "--geometry=1920x1080+0+0", video]
    commands = {"mpv, clip alone": mpv, "station, clip alone": [PROGRAM, video], "station, nine movies": [PROGRAM, video, *arguments]}
    costs = {}
    for name, command in commands.items():
        costs[name], memory = measure(command, seconds)
        print(f"{name:22} {costs[name]:.2f} CPU s/s, {memory:.0f} MB", flush=True)
    print(f"nine movies / mpv  {costs['station, nine movies'] / costs['mpv, clip alone']:.2f}")


if __name__ == "__main__":
    main()
