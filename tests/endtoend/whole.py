#!/usr/bin/python3
"""A whole station, with everything on at once."""

import subprocess
import sys
import time

from harness import ini, media
from harness.patience import until
from harness.processes import tree_of
from harness.scenarios import main, scenario
from harness.station import PROGRAM

import stage  # the demo station, on the path by way of the harness's media

MINUTE = 60
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
}


def children(pid):
    """All processes that the station has started, and those that they have."""
    return set(tree_of(pid)) - {pid}


class Watch:
    """What of the picture has moved, and when."""

    def __init__(self, screen):
        self._screen = screen
        self._seen = {}

    def look(self):
        now = time.monotonic()
        for part, (place, _) in MOVING.items():
            rows = self._screen.rows(*place)
            known = self._seen.get(part)
            if known is None or known[0] != rows:
                self._seen[part] = rows, now

    def standing(self):
        """The parts that have stood still for longer than they may."""
        now = time.monotonic()
        return [part for part, (_, limit) in MOVING.items() if now - self._seen[part][1] > limit]


@scenario
def with_everything_on_nothing_stops_for_a_minute(desk):
    folder = desk.folder / "station"
    subprocess.run([sys.executable, media.ROOT / "demo" / "stage.py", PROGRAM, folder], check=True)
    program = desk.start(folder / "corvanta")
    until("the output window", lambda: desk.screen.window(form="frmPlayer"))
    for form in stage.PLACES:
        until(f"{form} on the air", lambda: desk.screen.window(form=form))
    watch = Watch(desk.screen)
    watch.look()
    started = None
    end = time.monotonic() + MINUTE
    while time.monotonic() < end:
        watch.look()
        assert program.poll() is None, "the station has ended"
        assert not watch.standing(), f"standing still: {watch.standing()}"
        started = started or children(program.pid)
        time.sleep(0.2)
    gone = started - children(program.pid)
    assert not gone, f"ended meanwhile: {gone}"
    assert ini.value(folder / "Settings.ini", "Playlist", "LastPlaySchdule") != "1", "the playlist went on"


if __name__ == "__main__":
    main()
