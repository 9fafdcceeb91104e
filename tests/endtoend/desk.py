#!/usr/bin/python3
"""The control window: its menu by mouse and by keyboard, its status bar, the guide and the tools."""

import time

from harness import media
from harness.patience import throughout, until
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import Station

SCROLL_HEIGHT = 48
BAND = ("Advertisment", "Show Ads", "Show crawlers Ad")


def station_with_desk(desk, *files, **more):
    """A station whose control window shows at the start."""
    station = Station(desk, settings={"Settings": {"StartUp": "1"}}, **more)
    station.playlist(*(files or [media.clip("red", 60)]))
    return station


def begin(desk, station):
    """Starts it, and gives a reader for its windows."""
    station.start_on_air()
    until("the control window", station.control)
    return Reader(desk.screen)


def choose(reader, *entries):
    """Opens menu after menu with the mouse, and clicks the last entry."""
    for entry in entries:
        reader.press(entry, "menu item")


def band_colour(station):
    """The colour of the scrolling picture, or of what stands in its place."""
    rows = station.band(SCROLL_HEIGHT)
    return media.name_of(rows[SCROLL_HEIGHT // 2][4])


def panel(reader, text):
    return until(f"the panel {text}", lambda: reader.find(text, "label"))


def telling_the_time(reader):
    """Whether a panel shows a time that was the time a moment ago."""
    now = time.time()
    texts = (time.strftime("%I:%M:%S %p", time.localtime(now - back)) for back in range(4))
    return any(reader.find(text, "label") for text in texts)


def tool(station, name):
    """A program of the station's tools that leaves its mark where it was started."""
    path = station.folder / "Tools" / name
    path.parent.mkdir(exist_ok=True)
    path.write_text('#!/bin/sh\npwd > "$0.started"\n')
    path.chmod(0o755)
    return path.with_name(path.name + ".started")


@scenario
def the_band_comes_and_goes_by_its_entry_and_each_change_is_written(desk):
    station = station_with_desk(desk)
    station.crawler_ad("only", media.jpeg("yellow", 480, 40), media.jpeg("green", 4000, SCROLL_HEIGHT), speed=15)
    reader = begin(desk, station)
    station.await_colour("red")
    assert band_colour(station) == "red"
    for written, colour in (("True", "green"), ("False", "red"), ("True", "green")):
        choose(reader, *BAND)
        station.await_setting("AdSettings", "Show", written)
        until(f"{colour} in the band's place", lambda: band_colour(station) == colour)
        panel(reader, f"Crawlers Ad {written}")
    station.stop()
    station.start_on_air()
    until("the band after a power cut", lambda: band_colour(station) == "green")
    panel(reader, "Crawlers Ad True")


@scenario
def the_keyboard_alone_switches_the_band(desk):
    station = station_with_desk(desk)
    station.crawler_ad("only", media.jpeg("yellow", 480, 40), media.jpeg("green", 4000, SCROLL_HEIGHT), speed=15)
    reader = begin(desk, station)
    desk.screen.keys("ctrl+m")
    until("the control window in front", lambda: desk.screen.front() == "frmMid")
    for written in ("True", "False"):
        desk.screen.keys("alt+a")
        until("the menu", lambda: reader.find("Show Ads", "menu item"))
        desk.screen.keys("Right")
        until("the menu below it", lambda: reader.find("Show crawlers Ad", "menu item"))
        desk.screen.keys("Return")
        station.await_setting("AdSettings", "Show", written)


@scenario
def the_status_bar_tells_the_time_and_what_is_on(desk):
    reader = begin(desk, station_with_desk(desk))
    for words in ("Crawlers Ad", "Video Ad", "Flash Ad", "Show clock", "Show web feed", "Show logo", "Show Stiker"):
        panel(reader, f"{words} False")
    until("the panel of the network", lambda: reader.find("Internet True") or reader.find("Internet False"))
    until("the time", lambda: telling_the_time(reader))
    choose(reader, "Advertisment", "Show Ads", "Show video Ad")
    panel(reader, "Video Ad True")


@scenario
def the_output_goes_and_comes_back_idle_until_somebody_starts_it(desk):
    station = station_with_desk(desk)
    reader = begin(desk, station)
    station.await_colour("red")
    before = station.output()
    choose(reader, "Display", "Show output")
    until("the output window to go", lambda: station.output() is None)
    station.await_setting("Output", "Show", "False")
    choose(reader, "Display", "Show output")
    after = until("the output window", station.output)
    station.await_setting("Output", "Show", "True")
    assert (after.x, after.y, after.width, after.height) == (before.x, before.y, before.width, before.height)
    throughout("nothing on the air", lambda: station.colour() == "black", 3)
    reader.press("Start broadcast")
    station.await_colour("red")


@scenario
def the_guide_opens_in_a_window_of_the_station(desk):
    station = station_with_desk(desk)
    reader = begin(desk, station)
    for _ in range(2):
        reader.press("Help", "menu item")
        until("the menu", lambda: reader.find("Ahout", "menu item"))
        desk.screen.keys("Down", "Return")  # the entry has the name of its menu
        guide = until("the guide", lambda: desk.screen.window(title="Help"))
        desk.screen.ask_to_close(guide)
        until("the guide to go", lambda: desk.screen.window(title="Help") is None)
    # It may have stood over the picture, which is painted anew where it stood.
    station.await_colour("red")
    throughout("red on the air", lambda: station.colour() == "red", 1)


@scenario
def tools_are_started_with_and_without_their_ending_and_a_missing_one_shows_nothing(desk):
    station = station_with_desk(desk)
    with_ending, without = tool(station, "SWF Easy.exe"), tool(station, "FlashMaker")
    reader = begin(desk, station)
    for entry, mark in (("SWF Easy", with_ending), ("Flash Intro Banner Maker", without)):
        choose(reader, "Tools", "Flash animation tools", entry)
        until(f"{entry} started", lambda: mark.exists() and mark.read_text())
        assert mark.read_text().strip() == str(station.folder / "Tools"), "in its own folder"
    shown = [window.title for window in desk.screen.windows()]
    choose(reader, "Tools", "Video converter", "Format Factory")
    until("the menu to close", lambda: reader.find("Format Factory", "menu item") is None)
    throughout("no message", lambda: [window.title for window in desk.screen.windows()] == shown, 1.5)
    assert station.alive


@scenario
def about_opens_in_the_middle_and_its_button_closes_it(desk):
    reader = begin(desk, station_with_desk(desk))
    choose(reader, "Help", "Ahout")
    about = until("About", lambda: desk.screen.window(form="frmAbout"))
    assert abs(about.centre[0] - 1920 / 2) <= 30 and abs(about.centre[1] - 1080 / 2) <= 30, about
    reader.press("Close")
    until("About to go", lambda: desk.screen.window(form="frmAbout") is None)


@scenario
def hide_me_hides_and_exit_asks(desk):
    station = station_with_desk(desk)
    reader = begin(desk, station)
    choose(reader, "File", "Hide me")
    until("the control window to go", lambda: station.control() is None)
    station.assert_responsive()
    choose(reader, "File", "Exit")
    until("the question", lambda: desk.screen.window(title="Exit"))
    reader.press("Yes")
    until("the end of the program", lambda: not station.alive)


if __name__ == "__main__":
    main()
