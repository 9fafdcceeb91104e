#!/usr/bin/python3
"""whole_station.py [SECONDS] [MINUTES]: a station with nine movies (header, two caps, side column, logo, clock, flash ad,
sticker, news strip) and the crawl over a 1080p clip: CPU seconds per second of the whole process tree and of the X
server, memory (PSS) of the tree, and late ticks. Beside it, in the same run: mpv with the clip alone, and the station
with a still logo, and with nothing, over the clip. With MINUTES it then plays on for so long and prints its memory
meanwhile, the movies of column and flash ad following each other all the time; `memory.py` does that alone."""

import shutil
import subprocess
import sys
import time

from composed import ROOT, clip, picture
from crawl import counts, told_since
from harness import ini
from harness.desk import Desk
from harness.station import PROGRAM as STATION
from harness.station import Station
from meter import Meter, own_of_tree, pss_of_tree, x_server

import movies  # the station's own, which the demo makes

PROGRAM = STATION.with_name("station_on_air")
SETTLED = 20
LOOKS = 30  # at the memory, in all
SCREEN = 1920, 1080
TWIPS = 15

# Section, form, movie and place (left, top, width, height in pixels) of what lies over the picture.
OVERLAYS = [
    ("Logo", "FrmLogoShow", movies.logo, 1580, 100, 300, 200),
    ("Clock", "frmClockShow", movies.analogue, 1500, 320, 300, 300),
    ("Stiker", "frmStikerShow", movies.sticker, 600, 500, 250, 80),
    ("FlashAd", "frmFlashAdShow", None, 900, 300, 400, 120),
    ("BreakingNews", "frmBreakingNews", None, 0, 900, 1920, 60),
]


def stage(desk, name, settings):
    """A station over the whole screen with the clip as its programme."""
    station = Station(desk, name=name, place=(0, 0, *SCREEN), settings=settings)
    shutil.copy2(PROGRAM, station.program)
    station.playlist(clip())
    return station


def with_nine_movies(desk):
    station = stage(desk, "nine", {"AdSettings": {"Show": "True", "LastAd": "1"}})
    media = station.folder / "Media"
    windows = {"frmPlayer": window(0, 0, *SCREEN)}
    for section, form, write, *place in OVERLAYS:
        keys = {"Show": "True", "Left": place[0] * TWIPS}
        if write is not None:
            keys["Path"] = put(media / section / "movie.swf", write())
        station.change(section, **keys)
        windows[form] = window(*place)
    ini.write(station.folder / "Window.ini", windows)
    put(media / "FlashBN" / "bn.swf", movies.breaking_news())
    for library, write, width in (("FlashAd", movies.flash_ad, 400), ("LeftSideAd", movies.side_ad, 300)):
        for name, colour in (("a", (110, 60, 30, 235)), ("b", (30, 60, 110, 235))):
            put(media / library / "Shop" / f"{name}.swf", write(colour, "Fresh coffee"))
        station.change(library, Show="True", Width=width * TWIPS, Height=120 * TWIPS, LastPath=str(media / library / "Shop"))
    ad = station.crawler_ad("ad", picture("header.jpg", "1920x40"), picture("scroll.jpg", "6000x90"),
                            header_height=600, Header="header.swf", Left="left.swf", Right="right.swf")
    put(ad / "header.swf", movies.band((10, 40, 120, 150), "Header of the channel"))
    for side in ("left", "right"):
        put(ad / f"{side}.swf", movies.cap((0, 120, 255, 160)))
    return station


def with_still_logo(desk):
    station = stage(desk, "logo", {"Logo": {"Show": "True"}})
    left, top, width, height = OVERLAYS[0][3:]
    station.change("Logo", Path=str(picture("logo.jpg", f"{width}x{height}")), Left=left * TWIPS)
    places = {"frmPlayer": window(0, 0, *SCREEN), "FrmLogoShow": window(left, top, width, height)}
    ini.write(station.folder / "Window.ini", places)
    return station


def window(left, top, width, height):
    return {key: measure * TWIPS for key, measure in zip(("Left", "Top", "Width", "Height"), (left, top, width, height))}


def put(path, content):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content)
    return str(path)


class Run:
    """A program on a display of its own, and what it has used since it settled."""

    def __init__(self, desk, command):
        self.heard = desk.folder / "heard.txt"
        with open(self.heard, "wb") as out:
            self.process = subprocess.Popen([str(word) for word in command], stdout=out, env=desk.environment, cwd="/")
        time.sleep(SETTLED)
        self._meter = Meter(self.process.pid, x_server())

    def cost(self):
        assert self.process.poll() is None, "it ended early"
        return self._meter.cost()

    def memory(self):
        return pss_of_tree(self.process.pid)


def measure(name, make, seconds, minutes=0):
    with Desk(*SCREEN) as desk:
        made = make(desk)
        run = Run(desk, [made.program] if isinstance(made, Station) else made)
        before = counts(run.heard) if isinstance(made, Station) else None
        time.sleep(seconds)
        cost = run.cost()
        print(f"{name:22} {cost:.2f} CPU s/s, {run.memory():.0f} MB", end="", flush=True)
        if before is not None:
            print(f", {told_since(before, run.heard)}", end="")
        print(flush=True)
        desk.screen.picture(ROOT / "build" / f"bench-station-{name.replace(' ', '-')}.png")
        watch_memory(run, minutes)
        run.process.kill()
        run.process.wait()
    return cost


def watch_memory(run, minutes):
    """Prints the memory now and then, and how that which does not depend on other programs has grown behind the first
    third, when it should be steady."""
    seen = []
    for look in range(1, LOOKS + 1 if minutes else 1):
        time.sleep(minutes * 60 / LOOKS)
        seen.append(own_of_tree(run.process.pid))
        print(f"  after {minutes * look / LOOKS:.1f} minutes {run.memory():.0f} MB, {seen[-1]:.0f} of it of no file", flush=True)
    steady = seen[LOOKS // 3 :]
    if steady:
        half = len(steady) // 2
        first, last = sum(steady[:half]) / half, sum(steady[-half:]) / half
        print(f"  behind the first third: {first:.0f} MB in the first half, {last:.0f} MB in the last, "
              f"between {min(steady):.0f} and {max(steady):.0f} MB")  # fmt: skip


def main():
    seconds = float(sys.argv[1]) if len(sys.argv) > 1 else 30
    minutes = int(sys.argv[2]) if len(sys.argv) > 2 else 0
    mpv = ["mpv", "--no-config", "--really-quiet", "--vo=x11", "--ao=null", "--hwdec=no", "--no-border", "--loop=inf",
           "--geometry=1920x1080+0+0", clip()]
    alone = measure("mpv clip alone", lambda _: mpv, seconds)
    bare = measure("clip alone", lambda desk: stage(desk, "bare", {}), seconds)
    still = measure("still logo", with_still_logo, seconds)
    whole = measure("nine movies and crawl", with_nine_movies, seconds, minutes)
    print(f"still logo / no logo       {still / bare:.2f}")
    print(f"nine movies and crawl / mpv {whole / alone:.2f}")


if __name__ == "__main__":
    main()
