#!/usr/bin/python3
"""The rotations of Flash movies: the column at the left of the picture, and the flash ad over it."""

import shutil
import time

from harness import media
from harness.patience import throughout, until
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import TWIPS, Station

import movies  # the demo's writer; the harness has shown the way

PLACE = (20, 20, 640, 540)
COLUMN = 150  # pixels
STAGE = 450  # height of the movies
COLOURS = ("red", "green", "yellow")
WARNING = "Error Opening File"
STEP = 14  # pixels that the mark of a counting movie moves each frame


def station_with_column(desk, written, show="True", **settings):
    """A station whose column shows these movies, by their names; the programme is blue."""
    keys = {"Show": show, "Width": COLUMN * TWIPS}
    station = Station(desk, place=PLACE, settings={"LeftSideAd": keys, "Settings": settings})
    station.change("LeftSideAd", LastPath=category(station, "Demo", written))
    station.playlist(media.clip("blue", 120))
    return station


def station_with_flash_ad(desk, written):
    """A station whose flash ad shows these movies, in the upper left corner of the screen; the programme is blue."""
    station = Station(desk, place=PLACE, settings={"FlashAd": {"Show": "True", "Left": "0"}})
    station.change("FlashAd", LastPath=category(station, "Demo", written, library="FlashAd"))
    station.playlist(media.clip("blue", 120))
    return station


def flash_ad(desk):
    """The colour in the middle of the flash ad's window."""
    window = desk.screen.window(form="frmFlashAdShow")
    return media.name_of(desk.screen.pixel(*window.centre)) if window else None


def warnings(desk):
    return [window for window in desk.screen.windows() if window.title == WARNING]


def category(station, name, written, library="LeftSideAd"):
    folder = station.folder / "Media" / library / name
    folder.mkdir(parents=True, exist_ok=True)
    for file, movie in written.items():
        # Whole in one step: the rotation may be reading the folder.
        unfinished = folder / f"{file}.part"
        unfinished.write_bytes(movie)
        unfinished.rename(folder / file)
    return folder


def of_colour(name, frames=50):
    return movies.plain(media.COLOURS[name], frames, width=COLUMN, height=STAGE)


def in_turn():
    return {f"{number} {name}.swf": of_colour(name) for number, name in enumerate(COLOURS)}


def counting(name, frames):
    """A movie of one colour whose white mark tells its frame; slow, so that a busy machine is in time."""
    parts = movies.box(1, 0, 0, COLUMN, STAGE, (*media.COLOURS[name], 255)) + movies.box(2, 0, 0, COLUMN, STEP, movies.WHITE)
    return movies.moving(COLUMN, STAGE, 10, frames, parts, [(1, movies.still), (2, lambda k: movies.matrix(0, STEP * k))])


def column(station):
    """The pixels of the column, from its top to where the programme begins below it."""
    left, top, _, height = PLACE
    rows = station.screen.pixels(left, top, COLUMN, height)
    while rows and media.name_of(rows[-1][COLUMN // 2]) == "blue":
        rows.pop()
    return rows


def colours(rows):
    """What is seen in the column's corners and down its middle."""
    return {media.name_of(rows[y][x]) for y in (2, -3) for x in (2, -3)} | {media.name_of(row[COLUMN // 2]) for row in rows[::20]}


def shows(station, *wanted):
    rows = column(station)
    return len(rows) > PLACE[3] // 2 and colours(rows) <= set(wanted)


def frame_of(rows):
    """The colour and the frame of a counting movie; None where the mark is between two places."""
    names = [media.name_of(row[COLUMN // 2]) for row in rows]
    marks = [y for y, name in enumerate(names) if name == "white"]
    others = set(names) & set(COLOURS)
    if not marks or len(others) != 1:
        return None
    middle = (marks[0] + marks[-1] + 1) / 2
    return others.pop(), round((middle * STAGE / len(rows) - STEP / 2) / STEP) + 1


@scenario
def the_columns_movies_follow_each_other_without_a_blank_moment_while_their_form_is_hidden(desk):
    station = station_with_column(desk, in_turn()).start_on_air()
    until("the first movie", lambda: shows(station, "red"))
    turns, looks, deadline = ["red"], 0, time.monotonic() + 20
    while time.monotonic() < deadline:
        rows = column(station)
        assert len(rows) > PLACE[3] // 2, f"nothing in the column after {turns}"
        seen = colours(rows)
        assert seen <= set(COLOURS), f"the column shows {seen} after {turns}"
        if len(seen) == 1 and turns[-1:] != list(seen):
            turns += seen
        looks += 1
        time.sleep(0.002)
    print(f"{len(turns)} movies in {looks} looks")
    assert len(turns) >= 8 and turns == [COLOURS[turn % 3] for turn in range(len(turns))], turns
    assert desk.screen.window(form="frmLeftSideAdSett") is None


@scenario
def each_movie_stays_to_three_frames_before_its_end_by_its_own_count(desk):
    lengths = {"red": 20, "green": 30, "yellow": 14}
    written = {f"{number} {name}.swf": counting(name, lengths[name]) for number, name in enumerate(COLOURS)}
    station = station_with_column(desk, written).start_on_air()
    passes, deadline = [], time.monotonic() + 60
    while len(passes) < 8 and time.monotonic() < deadline:
        seen = frame_of(column(station))
        if seen is not None:
            name, frame = seen
            if not passes or passes[-1][0] != name:
                passes.append((name, []))
            if passes[-1][1][-1:] != [frame]:
                passes[-1][1].append(frame)
        time.sleep(0.004)
    for name, frames in passes[:-1]:
        print(name, frames[0], "to", frames[-1], "of", lengths[name])
    # The first pass may have been seen from its middle on, the last one not to its end.
    assert [name for name, _ in passes] == [COLOURS[turn % 3] for turn in range(8)], passes
    for name, frames in passes[1:-1]:
        assert frames == sorted(frames), f"{name} began anew before it was followed: {frames}"
        assert lengths[name] - 4 <= frames[-1] <= lengths[name], f"{name} of {lengths[name]} went to {frames[-1]}"


@scenario
def a_library_that_vanishes_in_the_middle_leaves_column_and_programme_and_comes_back(desk):
    station = station_with_column(desk, in_turn()).start_on_air()
    until("the first movie", lambda: shows(station, "red"))
    shutil.rmtree(station.folder / "Media")
    left, top, width, height = PLACE
    programme = left + width - 40, top + height // 2
    throughout("movie and programme", lambda: shows(station, *COLOURS) and media.name_of(desk.screen.pixel(*programme)) == "blue", 8)
    assert [window.title for window in desk.screen.windows() if window.title == "Corvanta 6.0"] == []
    category(station, "Demo", in_turn())
    for name in (*COLOURS, *COLOURS):
        until(f"{name} in the column", lambda: shows(station, name))
    station.assert_responsive()


@scenario
def the_flash_ads_movies_follow_each_other_in_a_window_over_the_picture(desk):
    station = station_with_flash_ad(desk, in_turn()).start_on_air()
    for name in (*COLOURS, *COLOURS):
        until(f"{name} in the flash ad", lambda: flash_ad(desk) == name)
    assert desk.screen.window(form="frmFlashAdSett") is None
    assert desk.screen.front() == "frmFlashAdShow"
    station.assert_responsive()


@scenario
def the_flash_ad_is_seen_under_a_compositing_manager(desk):
    desk.start_compositing()
    station = station_with_flash_ad(desk, in_turn()).start_on_air()
    for name in COLOURS:
        until(f"{name} in the flash ad", lambda: flash_ad(desk) == name)


@scenario
def a_library_that_vanishes_under_the_flash_ad_brings_one_warning_and_the_programme_goes_on(desk):
    station = station_with_flash_ad(desk, in_turn()).start_on_air()
    until("the first movie", lambda: flash_ad(desk) == "red")
    shutil.rmtree(station.folder / "Media")
    until("the warning", lambda: warnings(desk))
    left, top, width, height = PLACE
    programme = left + width - 40, top + height // 2
    throughout("one warning, movie and programme", lambda: len(warnings(desk)) == 1 and flash_ad(desk) in COLOURS
               and media.name_of(desk.screen.pixel(*programme)) == "blue", 8)
    category(station, "Demo", in_turn(), library="FlashAd")
    desk.screen.ask_to_close(warnings(desk)[0])
    for name in (*COLOURS, *COLOURS):
        until(f"{name} in the flash ad", lambda: flash_ad(desk) == name)
    assert not warnings(desk)


@scenario
def a_category_and_its_movies_made_at_the_desk_come_on_the_air(desk):
    station = station_with_column(desk, {}, show="False", StartUp="1").start_on_air()
    reader = Reader(desk.screen)
    until("the control window", station.control)
    files = {name: desk.folder / f"{name}.swf" for name in ("green", "red")}
    for name, file in files.items():
        file.write_bytes(of_colour(name))
    reader.choose_entry("Advertisment", "Show Ads", "Show left side Ad")
    station.await_setting("LeftSideAd", "Show", "True")
    reader.choose_entry("Advertisment", "Ad Settings", "Left side Ad settings")
    until("the desk", lambda: desk.screen.window(form="frmLeftSideAdSett"))
    reader.press("Add new cetagory")
    until("the question", lambda: desk.screen.window(title="Category"))
    desk.screen.type("Sweets")
    desk.screen.keys("Return")
    reader.press("Sweets", "list item")
    folder = station.folder / "Media" / "LeftSideAd" / "Sweets"
    station.await_setting("LeftSideAd", "LastPath", str(folder))
    for name, file in files.items():
        reader.choose_file("Browse", "Load flash Ad file", file)
        until("the copy", (folder / file.name).exists)
    for name in ("green", "red", "green"):
        until(f"{name} in the column", lambda: shows(station, name))
    desk.screen.ask_to_close(desk.screen.window(form="frmLeftSideAdSett"))
    until("the desk to go", lambda: desk.screen.window(form="frmLeftSideAdSett") is None)
    for name in ("red", "green", "red"):
        until(f"{name} while the desk is closed", lambda: shows(station, name))


if __name__ == "__main__":
    main()
