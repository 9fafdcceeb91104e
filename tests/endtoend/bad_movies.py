#!/usr/bin/python3
"""Movies on the air that are damaged, endless or too large, and what plays them killed."""

import struct
import sys
import zlib

from harness import letters, media
from harness.patience import BROWSER, until
from harness.processes import is_there, kill_part, tree_of
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import Station

sys.path.insert(0, str(media.ROOT / "demo"))
import movies  # noqa: E402

GREEN, BLUE = (0, 200, 0), (0, 0, 200)


def bomb(megabytes=600):
    """A movie of a few hundred kilobytes that unpacks to as much."""
    packer = zlib.compressobj(9)
    nothing = bytes(1 << 20)
    packed = b"".join(packer.compress(nothing) for _ in range(megabytes)) + packer.flush()
    return b"CWS" + struct.pack("<BI", 8, 8 + (megabytes << 20)) + packed


def bad_movies():
    good = movies.plain(BLUE)
    broken = bytearray(good)
    broken[len(broken) // 2] ^= 0xFF
    endless = movies.box(1, 0, 0, 320, 180, (*BLUE, 255)) + movies.place(1, 1) + movies.actions(movies.ENDLESS) + movies.SHOW
    return {
        "empty": b"",
        "of one byte": b"C",
        "without a body": good[:8],
        "cut off": good[: len(good) // 2],
        "packed with damage": bytes(broken),
        "a bomb": bomb(),
        "of version 0": movies.plain(BLUE, version=0),
        "of version 255": movies.plain(BLUE, version=255),
        "of no frame": movies.movie(320, 180, 25, 0, movies.SHOW),
        "of 65,535 frames": movies.movie(320, 180, 25, 65_535, movies.SHOW * 2),
        "in an endless script": movies.movie(320, 180, 25, 2, endless + movies.SHOW),
        "no movie at all": b"This is no movie.\n" * 1000,
    }


def station_with_strip(desk, movie, **settings):
    """A station with the news strip at the right of the output; the strip plays the movie."""
    station = Station(desk, settings={"BreakingNews": {"Left": str(600 * 15), "Show": "True"}, "Settings": settings})
    put(station, movie)
    station.playlist(media.frames())
    return station


def put(station, movie):
    path = station.folder / "Media" / "FlashBN" / "bn.swf"
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(movie)


def middle(station):
    window = station.screen.window(form="frmBreakingNews")
    return window and station.screen.pixel(*window.centre)


@scenario
def bad_movies_one_after_the_other_while_the_programme_goes_on(desk):
    station = station_with_strip(desk, movies.plain(GREEN), StartUp=1)
    station.start_on_air()
    reader = Reader(desk.screen)
    until("a good movie", lambda: middle(station) == GREEN, BROWSER)
    reader.choose_entry("Breaking nws", "Show")  # after a start with the strip on, the first use shows it again
    for what, movie in bad_movies().items():
        reader.choose_entry("Breaking nws", "Show")
        until("the strip to go", lambda: desk.screen.window(form="frmBreakingNews") is None)
        put(station, movie)
        reader.choose_entry("Breaking nws", "Show")
        until("the strip", lambda: desk.screen.window(form="frmBreakingNews"))
        station.assert_goes_on(f"the programme with a movie {what}")
    reader.choose_entry("Breaking nws", "Show")
    put(station, movies.plain(GREEN))
    reader.choose_entry("Breaking nws", "Show")
    until("a good movie again", lambda: middle(station) == GREEN, BROWSER)


def green_then_blue():
    """Green for two seconds, then blue for ever."""
    tags = movies.box(1, 0, 0, 320, 180, (*GREEN, 255)) + movies.box(2, 0, 0, 320, 180, (*BLUE, 255))
    tags += movies.place(1, 1) + movies.SHOW * 50 + movies.place(2, 2) + movies.SHOW + movies.actions(movies.STOP) + movies.SHOW
    return movies.movie(320, 180, 25, 52, tags)


@scenario
def a_surface_comes_back_by_itself_when_what_plays_it_is_killed(desk):
    station = station_with_strip(desk, green_then_blue())
    station.start_on_air()
    for part in ("renderer", "program"):
        until("the movie's end", lambda: middle(station) == BLUE, BROWSER)
        kill_part(station, part, "corvanta-movies")
        until("the movie's beginning", lambda: middle(station) == GREEN, BROWSER)
        station.assert_goes_on("the programme with a movie that was killed")


@scenario
def no_process_is_left_when_the_station_with_movies_is_killed(desk):
    station = station_with_strip(desk, movies.plain(GREEN))
    station.start_on_air()
    until("the movie", lambda: middle(station) == GREEN, BROWSER)
    tree = tree_of(station.pid)
    assert len(tree) > 3, tree
    station.stop()
    until("all to be gone", lambda: not any(map(is_there, tree)))


if __name__ == "__main__":
    main()
