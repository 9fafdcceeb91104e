#!/usr/bin/python3
"""An operator makes a running order."""

import shutil

from harness import media
from harness.patience import until
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import Station


def desk_of_an_operator(desk):
    """A station with an empty playlist and a folder of two clips, and its playlist manager on the screen."""
    station = Station(desk, settings={"Settings": {"StartUp": "1"}, "Playlist": {"LastPlay": "0", "LastPlaylist": ""}})
    folder = station.folder / "Clips"
    folder.mkdir()
    shutil.copy2(media.clip("red"), folder / "news.mp4")
    shutil.copy2(media.clip("green", 3), folder / "weather.mp4")
    station.change("Playlist", FolderPath=folder)
    (station.folder / "Playlist").mkdir()
    (station.folder / "Playlist" / "Day.plt").touch()
    station.start_on_air()
    until("the control window", station.control)
    return station, Reader(desk.screen)


def sections(station):
    text = (station.folder / "Playlist" / "Day.plt").read_bytes().decode()
    return [line[1:-1] for line in text.splitlines() if line.startswith("[")]


def names(station):
    text = (station.folder / "Playlist" / "Day.plt").read_bytes().decode()
    return [line.removeprefix("FileName=") for line in text.splitlines() if line.startswith("FileName=")]


@scenario
def a_running_order_is_made_moved_about_and_put_on_the_air(desk):
    station, reader = desk_of_an_operator(desk)
    reader.press("Broadcast", "menu item")
    reader.press("Playlist manager", "menu item")
    reader.press_row("Playlists", "list", 0)
    until("the playlist on the screen", lambda: reader.find("Playlist- Day"))
    reader.press_row("Files", "list", 0)
    until("the duration of the clip", lambda: reader.text_of("Duration:") == "0:0:2")
    reader.press("Add")
    until("the first entry in the file", lambda: names(station) == ["news"])
    reader.press_row("Files", "list", 1)
    until("the duration of the clip", lambda: reader.text_of("Duration:") == "0:0:3")
    reader.press("Add")
    until("the second entry in the file", lambda: names(station) == ["news", "weather"])
    assert sections(station) == ["12:00:00 AM", "12:00:03 AM"], sections(station)
    assert station.colour() == "black", "making a list put something on the air"
    reader.press("Preview", "check box")
    reader.press_row("Running order", "tree", 1)
    reader.press("Go top")
    until("the new order in the file", lambda: names(station) == ["weather", "news"])
    reader.press("Preview", "check box")
    reader.press_row("Running order", "tree", 1)
    station.await_colour("red")


if __name__ == "__main__":
    main()
