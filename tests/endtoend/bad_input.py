#!/usr/bin/python3
"""Rubbish in the station's folder: it starts, stays alive and answers its operator."""

import os

from harness import media
from harness.patience import throughout, until
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import Station


def settings_are(desk, make):
    """A station whose settings file is put there by `make`."""
    station = Station(desk)
    station.settings.unlink()
    make(station.settings)
    station.start()
    until("the splash", lambda: desk.screen.window(form="frmLoad"))
    until("the end of the splash", lambda: desk.screen.window(form="frmLoad") is None)
    station.assert_responsive()
    throughout("the station to live", lambda: station.alive, 1)
    return station


@scenario
def no_settings_at_all(desk):
    settings_are(desk, lambda path: None)


@scenario
def binary_settings(desk):
    settings_are(desk, lambda path: path.write_bytes(os.urandom(1 << 16)))


@scenario
def a_folder_in_place_of_the_settings(desk):
    settings_are(desk, lambda path: path.mkdir())


@scenario
def settings_of_a_hundred_megabytes(desk):
    line = b"Key=" + b"x" * 96 + b"\r\n"
    settings_are(desk, lambda path: path.write_bytes(b"[Settings]\r\n" + line * 1_000_000))


@scenario
def binary_playlist_and_window_places(desk):
    station = Station(desk)
    (station.folder / "Playlist").mkdir()
    for path in (station.folder / "Playlist" / "List.plt", station.folder / "Window.ini"):
        path.write_bytes(os.urandom(1 << 16))
    station.start_on_air()
    station.assert_responsive()
    throughout("the station to live", lambda: station.alive, 3)


@scenario
def media_that_are_none(desk):
    """Each bad file in turn goes on the air; after the last the good one does."""
    station = Station(desk, settings={"Settings": {"StartUp": "1"}, "Playlist": {"OneAfterAnother": "0"}})
    bad = bad_media(station.folder / "Bad")
    station.playlist(*bad, media.clip("green", 60))
    station.start_on_air()
    reader = Reader(desk.screen)
    for row in range(len(bad) + 1):
        reader.press("Start broadcast")
        station.await_setting("Playlist", "LastIndex", str(row))
        throughout("the station to live", lambda: station.alive, 0.7)
    station.await_colour("green")
    station.assert_responsive()


def bad_media(folder):
    folder.mkdir()
    good = media.clip("red").read_bytes()
    contents = {
        "empty.mp4": b"",
        "cut.mp4": good[: len(good) // 2],
        "text.mp4": b"This is no film.\n" * 100,
        "rubbish.mp4": os.urandom(1 << 16),
        "rubbish.jpg": os.urandom(1 << 12),
    }
    for name, content in contents.items():
        (folder / name).write_bytes(content)
    os.mkfifo(folder / "pipe.mp4")
    (folder / "folder.mp4").mkdir()
    return sorted(folder.iterdir())


if __name__ == "__main__":
    main()
