#!/usr/bin/python3
"""glass.py [SECONDS]: what see-through windows over a 1080p clip cost where no compositing manager runs: their shapes,
and their half-transparent pixels in the picture of the window behind. In CPU seconds per second of the whole process
tree and of the X server. Beside it, in the same run: the same windows with nothing of this done for them (a program
says that it is a compositing manager, and is none), and under a real one, its own time included."""

import sys
import time

import composed
import nine_movies
from composed import clip
from harness.desk import Desk
from meter import Meter, x_server

import movies  # the station's own, which the demo makes

# Movie and its place: left, top, width, height in pixels.
OVERLAYS = [
    (movies.logo, 1580, 100, 300, 200),
    (movies.analogue, 1500, 320, 300, 300),
    (movies.digital, 600, 500, 250, 80),
    (lambda: movies.cap((0, 120, 255, 160)), 320, 70, 150, 150),
    (lambda: movies.flash_ad((110, 60, 30, 235), "Fresh coffee"), 900, 300, 400, 120),
]


def measure(command, manager, seconds):
    with Desk(1920, 1080) as desk:
        watched = [x_server()]
        if manager == "picom":
            watched.append(desk.start("picom", "--config", "/dev/null", "--backend", "xrender").pid)
        elif manager == "nobody":
            desk.screen.claim_compositing()
        time.sleep(1)
        player = desk.start(*map(str, command))
        watched.append(player.pid)
        time.sleep(composed.WARM_UP + 12)
        meter = Meter(*watched)
        time.sleep(seconds)
        cost = meter.cost()
        assert player.poll() is None, f"{command[0]} ended early"
    return cost


def main():
    seconds = float(sys.argv[1]) if len(sys.argv) > 1 else 20
    arguments = []
    for index, (write, *place) in enumerate(OVERLAYS):
        path = composed.MEDIA / f"overlay{index}.swf"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(write())
        arguments += [path, *place]
    command = [nine_movies.PROGRAM, "--overlays", clip(), *arguments]
    costs = {}
    for _ in range(composed.ROUNDS):
        for name, manager in (("no manager", None), ("windows alone", "nobody"), ("picom", "picom")):
            cost = measure(command, manager, seconds)
            costs.setdefault(name, []).append(cost)
            print(f"{name:14} {cost:.3f} CPU s/s", flush=True)
    mean = {name: sum(values) / len(values) for name, values in costs.items()}
    print(f"shapes and half-transparent pixels: {mean['no manager'] - mean['windows alone']:+.3f} CPU s/s")
    print(f"a compositing manager instead:      {mean['picom'] - mean['windows alone']:+.3f} CPU s/s")


if __name__ == "__main__":
    main()
