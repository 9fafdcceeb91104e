#!/usr/bin/python3
"""first_overlay.py: how long an overlay takes from the click on its menu entry to the first pixel of its movie,
over a 1080p clip under the crawler's band: the first one, which starts the program that plays movies, and one more
when that runs. Beside it the late ticks of the crawl while they come up, and as many seconds without."""

import subprocess
import time

from composed import clip, picture
from crawl import counts
from harness import ini, media
from harness.desk import Desk
from harness.patience import until
from harness.reader import Reader
from whole_station import put, stage, window

import movies  # the station's own, which the demo makes

SECONDS = 4
# Section, form, menu entries, colour, and place (left, top, width, height in pixels).
OVERLAYS = [
    ("Logo", "FrmLogoShow", ("Logo", "Show logo"), "yellow", (40, 40, 200, 150)),
    ("Clock", "frmClockShow", ("Clock", "Show clock"), "magenta", (300, 40, 200, 150)),
]


def station_on(desk):
    station = stage(desk, "station", {"AdSettings": {"Show": "True", "LastAd": "1"}, "Settings": {"StartUp": "1"}})
    station.crawler_ad("ad", picture("header.jpg", "1920x40"), picture("scroll.jpg", "6000x90"), header_height=600)
    windows = {"frmPlayer": window(0, 0, 1920, 1080)}
    for section, form, _, colour, place in OVERLAYS:
        movie = put(station.folder / "Media" / section / "movie.swf", movies.plain(media.COLOURS[colour], 250))
        station.change(section, Path=movie, Left=window(*place)["Left"])
        windows[form] = window(*place)
    ini.write(station.folder / "Window.ini", windows)
    return station


def late_of(heard, seconds):
    """Late ticks in the next seconds."""
    before = counts(heard)[1]
    time.sleep(seconds)
    return counts(heard)[1] - before


def shows(desk, row, colour):
    """Whether the row is of that colour between its ends: one pixel of the clip may be of any."""
    pixels = desk.screen.pixels(*row)[0]
    return all(media.name_of(pixel) == colour for pixel in pixels[10:-10])


def main():
    with Desk(1920, 1080) as desk:
        station = station_on(desk)
        heard = desk.folder / "heard.txt"
        with open(heard, "wb") as out:
            program = subprocess.Popen([station.program], stdout=out, env=desk.environment, cwd="/")
        until("the control window", station.control)
        time.sleep(8)
        reader = Reader(desk.screen)
        took, quiet = [], late_of(heard, 2 * SECONDS)
        late = 0
        for _, _, (menu, entry), colour, (left, top, width, height) in OVERLAYS:
            reader.press(menu, "menu item")
            before = counts(heard)[1]
            reader.press(entry, "menu item")
            clicked = time.monotonic()
            row = left, top + height // 2, width, 1
            until(f"{colour} over the picture", lambda: shows(desk, row, colour), pause=0.005)
            took.append(time.monotonic() - clicked)
            time.sleep(max(0.0, SECONDS - took[-1]))
            late += counts(heard)[1] - before
        program.kill()
        program.wait()
    print(f"first {took[0]:.2f} s, next {took[1]:.2f} s; late ticks {late} while they came, {quiet} in as long without")


if __name__ == "__main__":
    main()
