#!/usr/bin/python3
"""The libraries of the overlays: categories and files, and the way of a file onto the air."""

import pathlib
import shutil
import sys

from harness import media
from harness.patience import until
from harness.scenarios import main, scenario
from harness.station import Station

sys.path.insert(0, str(media.ROOT / "demo"))
import movies  # noqa: E402

FORM = "frmLogoSett"
WIDE = 200  # pixels, of the overlay's window


def movie(desk, name, colour):
    """A movie of one colour, as the operator brings it on a stick."""
    path = pathlib.Path(desk.folder) / "stick" / name
    path.parent.mkdir(exist_ok=True)
    path.write_bytes(movies.plain(media.COLOURS[colour], width=WIDE, height=WIDE))
    return path


def station_with_library(desk, **settings):
    station = Station(desk, settings={"Settings": {"StartUp": "1"}, **settings})
    station.playlist(media.clip("red", 120))
    station.start_on_air()
    return station, station.open_form(FORM, "Logo", "Logo settings")


def answer(desk, reader, title, button):
    until(f"the box {title}", lambda: desk.screen.window(title=title))
    reader.press(button)
    until("the box to go", lambda: desk.screen.window(title=title) is None)


def add_category(desk, reader, name):
    reader.press("Add new cetagory")
    until("the question for a name", lambda: desk.screen.window(title="Category"))
    desk.screen.type(name)
    desk.screen.keys("Return")
    until(f"the category {name}", lambda: reader.find(name, "list item"))


def logo_colour(desk):
    """What the middle of the logo's window shows; None while it is not on the screen."""
    window = desk.screen.window(form="FrmLogoShow")
    return window and media.name_of(desk.screen.pixel(*window.centre))


@scenario
def a_movie_that_is_brought_into_a_new_category_goes_on_the_air_and_is_deleted_again(desk):
    station, reader = station_with_library(desk)
    add_category(desk, reader, "Summer sale")
    folder = station.folder / "Media" / "Logo" / "Summer sale"
    assert folder.is_dir()
    reader.press("Summer sale", "list item")
    brought = movie(desk, "sun.swf", "yellow")
    reader.choose_file("Browse", "Load Ad's header file", brought)
    copied = folder / "sun.swf"
    until("the copy", copied.exists)
    assert copied.read_bytes() == brought.read_bytes()
    shutil.rmtree(brought.parent)  # the stick is pulled out
    reader.press("sun.swf", "list item")
    reader.press("Set as logo")
    station.await_setting("Logo", "Path", str(copied))
    station.screen.keys("ctrl+m")
    until("the control window in front", lambda: desk.screen.front() == "frmMid")
    reader.choose_entry("Logo", "Show logo")
    station.await_setting("logo", "Show", "True")
    until("the movie on the air", lambda: logo_colour(desk) == "yellow")
    station.screen.keys("ctrl+m")
    reader = station.open_form(FORM, "Logo", "Logo settings")
    reader.press("sun.swf", "list item")
    reader.press("Delete theame")
    answer(desk, reader, "Delete logo", "Yes")
    until("the file to go", lambda: not copied.exists())
    # What is on the air stays there, and the setting names a file that is gone.
    assert station.setting("Logo", "Path") == str(copied)
    assert logo_colour(desk) == "yellow"


@scenario
def a_library_that_vanishes_stops_nobody_and_comes_back_with_the_next_category(desk):
    station, reader = station_with_library(desk)
    add_category(desk, reader, "old")
    shutil.rmtree(station.folder / "Media")
    reader.press("old", "list item")
    reader.choose_file("Browse", "Load Ad's header file", movie(desk, "lost.swf", "green"))
    reader.press("Delete theame")
    answer(desk, reader, "Delete logo", "Yes")
    reader.press("Delete cetagory")
    answer(desk, reader, "DELETE", "Yes")
    until("the category to go", lambda: reader.find("old", "list item") is None)
    add_category(desk, reader, "new")
    assert (station.folder / "Media" / "Logo" / "new").is_dir()
    assert station.alive
    station.await_colour("red")


@scenario
def the_keyboard_alone_picks_a_category_and_a_file(desk):
    station, reader = station_with_library(desk)
    for name in ("a", "b"):
        add_category(desk, reader, name)
        (station.folder / "Media" / "Logo" / name / f"{name}.jpg").write_bytes(
            media.jpeg("yellow", 120, 120).read_bytes())
    reader.press("a", "list item")
    until("its file", lambda: reader.find("a.jpg", "list item"))
    desk.screen.keys("Down")
    assert reader.find("a.jpg", "list item"), "a row is selected and not clicked"
    desk.screen.keys("Return")
    until("the file of the next category", lambda: reader.find("b.jpg", "list item"))
    desk.screen.keys("Tab", "Tab", "Tab", "Down", "space")  # past the two buttons of the categories
    reader.press("Set as logo")
    station.await_setting("Logo", "Path", str(station.folder / "Media" / "Logo" / "b" / "b.jpg"))


if __name__ == "__main__":
    main()
