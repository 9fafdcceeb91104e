#!/usr/bin/python3
"""A whole station, with everything on at once."""

import subprocess
import sys
import time

from harness import ini, media
from harness.patience import until
from harness.processes import tree_of
from harness.reader import Reader
from harness.scenarios import has_network, main, scenario
from harness.station import PROGRAM, web_page
from harness.streams import Streams

import stage  # the demo station, on the path by way of the harness's media

STATION = "station"
MINUTE = 60
# A page that never rests, and where its window stands: beside the picture and the control window.
PAGE = "<body><script>setInterval(() => document.body.style.background = 'hsl(' + Date.now() / 20 % 360 + ',80%,50%)', 200)</script>"
PAGE_PLACE = (1500, 20, 380, 240)
# Of each part of the picture the place that is looked at, as left, top, width and height within the output window, and
# for how many seconds it may stand still. The programme has a still picture and a tune without one, back to back; the
# crawler begins with an empty screen.
MOVING = {
    "the programme": ((450, 110, 240, 20), 25),
    "the clock": (stage.PLACES["frmClockShow"], 10),
    "the logo": (stage.PLACES["FrmLogoShow"], 20),
    "the sticker": (stage.PLACES["frmStikerShow"], 20),
    "the flash ad": (stage.PLACES["frmFlashAdShow"], 20),
    "the column": ((0, 40, stage.COLUMN, 200), 20),
    "the strip": (stage.PLACES["frmBreakingNews"], 20),
    "the crawl": ((0, 448, 896, 56), 20),
    "the page": (PAGE_PLACE, 20),
}
# What a channel on the air covers; its own picture is where the programme's was.
COVERED = ("the programme", "the crawl")


def children(pid):
    """All processes that the station has started, and those that they have."""
    return set(tree_of(pid)) - {pid}


class Watch:
    """What of the picture has moved, and when."""

    def __init__(self, screen, moving):
        self._screen = screen
        self._moving = moving
        self._seen = {}

    def look(self):
        now = time.monotonic()
        for part, (place, _) in self._moving.items():
            rows = self._screen.rows(*place)
            known = self._seen.get(part)
            if known is None or known[0] != rows:
                self._seen[part] = rows, now

    def standing(self):
        """The parts that have stood still for longer than they may."""
        now = time.monotonic()
        return [part for part, (_, limit) in self._moving.items() if now - self._seen[part][1] > limit]


def staged(folder):
    """A demo station with a page, and a channel that is not on the air yet."""
    page = folder / "page.html"
    page.write_text(PAGE)
    web_page(folder, page, PAGE_PLACE)
    subprocess.run([sys.executable, media.ROOT / "demo" / "stage.py", PROGRAM, folder], check=True)
    with open(folder / "Settings.ini", "a", newline="") as settings:
        settings.write(ini.text({"WebFeed": {"Show": "True"}}))


def assert_nothing_stops(desk, program, moving, seconds):
    """Gives the rows of the playlist that were on the air meanwhile."""
    watch = Watch(desk.screen, moving)
    watch.look()
    rows = set()
    started = None
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        watch.look()
        assert program.poll() is None, "the station has ended"
        assert not watch.standing(), f"standing still: {watch.standing()}"
        started = started or children(program.pid)
        rows.add(ini.value(desk.folder / STATION / "Settings.ini", "Playlist", "LastPlaySchdule"))
        time.sleep(0.2)
    gone = started - children(program.pid)
    assert not gone, f"ended meanwhile: {gone}"
    return rows


def put_channel_on_air(desk, folder, address):
    """The desk of the channels is closed behind it: it stands over the picture."""
    ini.write(folder / "OnlineChannel" / "TV.chn", {"Live": {"Pattern": address}})
    reader = Reader(desk.screen)
    reader.choose_entry("Online channels", "TV channels")
    form = until("the desk of the channels", lambda: desk.screen.window(form="frmOnlineTV"))
    reader.press("Live", "list item")
    reader.press("Pattern", "list item")
    reader.press("Start broadcast of the channel")
    until("the stream", lambda: reader.find("Playing", "label"))
    desk.screen.ask_to_close(form)
    until("the desk to go", lambda: desk.screen.window(form="frmOnlineTV") is None)


@scenario
def with_everything_on_nothing_stops_for_a_minute(desk):
    folder = desk.folder / STATION
    folder.mkdir()
    staged(folder)
    program = desk.start(folder / "corvanta")
    until("the output window", lambda: desk.screen.window(form="frmPlayer"))
    for form in (*stage.PLACES, "FrmWeb"):
        until(f"{form} on the air", lambda: desk.screen.window(form=form))
    # Off line the station opens no desk of channels.
    if not has_network():
        rows = assert_nothing_stops(desk, program, MOVING, MINUTE)
    else:
        rows = assert_nothing_stops(desk, program, MOVING, MINUTE / 2)
        with Streams(desk.folder / "streams") as streams:
            put_channel_on_air(desk, folder, streams.mpeg_ts(media.PATTERN))
            moving = {part: row for part, row in MOVING.items() if part not in COVERED}
            moving["the channel"] = MOVING["the programme"]
            rows |= assert_nothing_stops(desk, program, moving, MINUTE / 2)
            desk.screen.picture(media.ROOT / "build" / "whole-station.png")
    assert len(rows) > 1, f"the playlist stood at {rows}"


if __name__ == "__main__":
    main()
