#!/usr/bin/python3
"""everything.py [MINUTES]: a station with every feature on: nine movies, the crawl, a web page that changes five times a
second, and a live channel over the clip. First how long it takes from its start, without the splash's two
seconds, to the programme's first picture and to the last of its overlays, column and page, of which the most stand where
only the window's final size, two seconds after it has opened, brings them out; then, while it plays for
MINUTES (10 unless told otherwise), CPU seconds per second of the process tree and of the X server, late ticks of the
crawl, and memory: as a whole and without the pages of files."""

import subprocess
import sys
import time

from composed import picture
from crawl import counts, told_since
from harness import ini, media
from harness.desk import Desk
from harness.patience import until
from harness.station import web_page
from harness.streams import Streams
from meter import Meter, x_server
from startup import LOOK_EVERY, SPLASH
from whole import PAGE, put_channel_on_air
from whole_station import OVERLAYS, SCREEN, SETTLED, Run, put, stage, watch_memory, window, with_nine_movies

import movies  # the station's own, which the demo makes

PAGE_PLACE = (1240, 620, 380, 240)
COLUMN = 300
COLOURS = {"FrmLogoShow": "yellow", "frmClockShow": "magenta", "frmStikerShow": "white", "frmFlashAdShow": "green"}
PROGRAMME = (700, 300)
"""A place that the picture fills also in the window's own size, which it keeps for two seconds after it has opened."""
STRIP = (90, 0, 10)
"""Of the edge of the demo's strip."""


def add_page(station, body):
    page = station.folder / "page.html"
    page.write_text(body)
    web_page(station.folder, page, PAGE_PLACE)
    station.change("WebFeed", Show="True")


def in_plain_colours(desk):
    """Every feature that is seen, each in a colour of its own over a red programme."""
    station = stage(desk, "colours", {"AdSettings": {"Show": "True", "LastAd": "1"}})
    station.playlist(media.clip("red", 60))
    media_folder, windows = station.folder / "Media", {"frmPlayer": window(0, 0, *SCREEN)}
    for section, form, _, *place in OVERLAYS:
        windows[form] = window(*place)
        keys = {"Show": "True", "Left": windows[form]["Left"]}
        if form in COLOURS and section != "FlashAd":
            keys["Path"] = put(media_folder / section / "movie.swf", movies.plain(media.COLOURS[COLOURS[form]]))
        station.change(section, **keys)
    ini.write(station.folder / "Window.ini", windows)
    put(media_folder / "FlashBN" / "bn.swf", movies.breaking_news())
    for library, width, colour in (("FlashAd", 400, "green"), ("LeftSideAd", COLUMN, "blue")):
        put(media_folder / library / "Shop" / "a.swf", movies.plain(media.COLOURS[colour], 250))
        shop = str(media_folder / library / "Shop")
        station.change(library, Show="True", Width=window(0, 0, width, 0)["Width"], Height=1800, LastPath=shop)
    station.crawler_ad("ad", picture("header.jpg", "1920x40"), picture("scroll.jpg", "6000x90"), header_height=600)
    add_page(station, "<body style='background:#00ff00'>")
    return station


def start_up():
    """Seconds to the programme, and to the last of what stands on it."""
    with Desk(*SCREEN) as desk:
        station = in_plain_colours(desk)
        places = {form: place for _, form, _, *place in OVERLAYS}
        marks = {colour: middle(places[form]) for form, colour in COLOURS.items()}
        marks["blue"] = COLUMN // 2, 400
        page = middle(PAGE_PLACE)
        began = time.monotonic()
        process = subprocess.Popen([station.program], env=desk.environment, cwd="/", stdout=subprocess.DEVNULL)

        def shows(point, colour):
            return media.name_of(desk.screen.pixel(*point)) == colour

        def all_show():
            left, top, _, height = places["frmBreakingNews"]
            strip = desk.screen.pixel(left + 5, top + height // 2)
            is_strip = all(abs(one - other) < 12 for one, other in zip(strip, STRIP))
            return is_strip and shows(page, "green") and all(shows(point, colour) for colour, point in marks.items())

        until("the programme", lambda: shows(PROGRAMME, "red"), pause=LOOK_EVERY)
        programme = time.monotonic() - began - SPLASH
        until("all that stands on it", all_show, pause=LOOK_EVERY)
        last = time.monotonic() - began - SPLASH
        desk.screen.picture(media.ROOT / "build" / "bench-everything-in-colours.png")
        process.kill()
        process.wait()
    return programme, last


def middle(place):
    left, top, width, height = place
    return left + width // 2, top + height // 2


def play(minutes):
    with Desk(*SCREEN) as desk, Streams(desk.folder / "streams") as streams:
        station = with_nine_movies(desk)
        add_page(station, PAGE)
        station.change("Settings", StartUp="1")  # the control window in front, which the channel is picked from
        run = Run(desk, [station.program])
        put_channel_on_air(desk, station.folder, streams.mpeg_ts(media.PATTERN))
        time.sleep(SETTLED)
        meter, before = Meter(run.process.pid, x_server()), counts(run.heard)
        desk.screen.picture(media.ROOT / "build" / "bench-everything.png")
        watch_memory(run, minutes)
        assert run.process.poll() is None, "it ended early"
        print(f"{meter.cost():.2f} CPU s/s, {told_since(before, run.heard)}")
        run.process.kill()
        run.process.wait()


def main():
    minutes = float(sys.argv[1]) if len(sys.argv) > 1 else 10
    programme, last = start_up()
    print(f"start to the programme {programme:.2f} s, to the last of what stands on it {last:.2f} s, without the splash")
    play(minutes)


if __name__ == "__main__":
    main()
