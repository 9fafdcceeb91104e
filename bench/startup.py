#!/usr/bin/python3
"""startup.py [ROUNDS]: how long a station takes from its start to the first picture on the air, without the two seconds
that the splash stands. Beside it, in the same run, the time that the plain player mpv takes to its first picture."""

import pathlib
import statistics
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests" / "endtoend"))
from harness import media  # noqa: E402
from harness.desk import Desk  # noqa: E402
from harness.patience import until  # noqa: E402
from harness.station import Station  # noqa: E402

SPLASH = 2.0
# The output window's own size: any other is laid out two seconds after the window opened.
PLACE = (100, 20, 1030, 768)
LOOK_EVERY = 0.002


def seconds_to_red(screen, start, place):
    left, top, width, height = place
    began = time.monotonic()
    start()
    until(
        "a red picture",
        lambda: media.name_of(screen.pixel(left + width // 2, top + height // 2)) == "red",
        pause=LOOK_EVERY,
    )
    return time.monotonic() - began


def station_round(clip):
    with Desk() as desk:
        station = Station(desk, place=PLACE)
        station.playlist(clip)
        return seconds_to_red(desk.screen, station.start, station.place) - SPLASH


def mpv_round(clip):
    with Desk() as desk:
        left, top, width, height = PLACE
        geometry = f"--geometry={width}x{height}+{left}+{top}"
        command = ["mpv", "--no-config", "--vo=x11", "--ao=null", "--no-border", "--no-keepaspect-window", geometry]
        return seconds_to_red(desk.screen, lambda: desk.start(*command, str(clip)), PLACE)


def main():
    rounds = int(sys.argv[1]) if len(sys.argv) > 1 else 5
    clip = media.clip("red", 60)
    ours, theirs = [], []
    for _ in range(rounds):
        ours.append(station_round(clip))
        theirs.append(mpv_round(clip))
    station, mpv = statistics.median(ours), statistics.median(theirs)
    print(f"start to first picture, median of {rounds}, without the {SPLASH:.0f} s of the splash")
    print(f"station {1000 * station:.0f} ms, mpv {1000 * mpv:.0f} ms, ratio {station / mpv:.2f}")


if __name__ == "__main__":
    main()
