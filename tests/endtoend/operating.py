#!/usr/bin/python3
"""An operator at the playlist manager, with mouse and keyboard."""

from harness import ini, media
from harness.patience import throughout, until
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import Station


def manager_of(desk, station):
    """Opens the playlist manager by the menu."""
    reader = Reader(desk.screen)
    until("the control window", station.control)
    reader.press("Broadcast", "menu item")
    reader.press("Playlist manager", "menu item")
    until("the playlist manager", lambda: desk.screen.window(form="frmPlaylist"))
    return reader


def station_with(desk, *files, **playlist):
    """A station whose control window shows; its list holds `files`."""
    station = Station(desk, settings={"Settings": {"StartUp": "1"}, "Playlist": playlist})
    station.playlist(*files)
    station.start_on_air()
    return station


@scenario
def the_manager_shows_the_clock_and_closing_it_stops_nothing(desk):
    station = station_with(desk, media.clip("red", 60))
    station.await_colour("red")
    manager_of(desk, station)
    manager = desk.screen.window(form="frmPlaylist")
    assert manager.title.startswith("Playlist- "), manager.title
    until("the clock in the title to go on", lambda: desk.screen.window(form="frmPlaylist").title != manager.title)
    desk.screen.ask_to_close(manager)
    until("the manager to go", lambda: desk.screen.window(form="frmPlaylist") is None)
    recorded = station.setting("Playlist", "LastPositionSchdule")
    until("the position to go on", lambda: station.setting("Playlist", "LastPositionSchdule") != recorded)
    assert station.colour() == "red"


@scenario
def a_box_is_written_when_it_is_ticked(desk):
    station = station_with(desk, media.clip("red", 60))
    reader = manager_of(desk, station)
    for caption, key in (("Random play  ", "RendomPlay"), ("Play from folder", "PlayLocation"), ("Preview", "ClickTOPlay")):
        reader.press(caption, "check box")
        station.await_setting("Playlist", key, "1")
    reader.press("Play one after another", "check box")
    station.await_setting("Playlist", "OneAfterAnother", "0")


@scenario
def a_click_on_a_row_goes_on_the_air_unless_preview_is_ticked(desk):
    station = station_with(desk, media.clip("red", 60), media.clip("green", 60), media.clip("blue", 60))
    station.await_colour("red")
    reader = manager_of(desk, station)
    reader.press("07:02:00 AM", "table cell")
    station.await_colour("blue")
    station.await_setting("Playlist", "LastPlaySchdule", "3")
    reader.press("Preview", "check box")
    station.await_setting("Playlist", "ClickTOPlay", "1")
    reader.press("07:01:00 AM", "table cell")
    throughout("blue on the air", lambda: station.colour() == "blue", 2)


@scenario
def a_new_running_order_is_built_and_plays(desk):
    station = Station(desk, settings={"Settings": {"StartUp": "1"}, "Playlist": {"LastPlay": "0"}})
    clips = station.clip_folder(media.clip("red", 60), media.clip("green", 60))
    station.change("Playlist", FolderPath=clips)
    station.start_on_air()
    reader = manager_of(desk, station)
    reader.press("Add new playlist")
    until("the question for its name", lambda: desk.screen.window(title="Playlist"))
    desk.screen.type("Evening")
    desk.screen.keys("Return")
    evening = station.folder / "Playlist" / "Evening.plt"
    until("the new playlist", evening.exists)
    assert evening.stat().st_size == 0
    reader.press("Evening.plt", "list item")
    reader.press("a.mp4", "list item")
    # The preview player tells the duration as soon as it has opened the file.
    until("the duration of a minute", lambda: reader.text_of("Duration:") == "0:1:0")
    reader.press("Add")
    first = until("the first entry", lambda: ini.sections(evening)[:1])[0]
    assert ini.value(evening, first, "FileName") == "a"
    assert ini.value(evening, first, "Duration") == "0:1:0"
    assert ini.value(evening, first, "Path") == str(clips / "a.mp4")
    reader.press("b.mp4", "list item")
    reader.press("Add")
    until("the second entry", lambda: len(ini.sections(evening)) == 2)
    # The control window stands behind the manager; the key brings it forward.
    desk.screen.keys("ctrl+m")
    until("the control window in front", lambda: desk.screen.front() == "frmMid")
    reader.press("Start broadcast")
    station.await_colour("red")
    reader.press("Start broadcast")
    station.await_colour("green")


@scenario
def a_row_is_moved_to_the_top_and_the_file_follows(desk):
    station = station_with(desk, media.clip("red", 60), media.clip("green", 60))
    reader = manager_of(desk, station)
    reader.press("List.plt", "list item")
    until("the playlist in the frame", lambda: reader.find("Playlist- List"))
    reader.press("Preview", "check box")
    reader.press("07:01:00 AM", "table cell")
    reader.press("Go top")
    playlist = station.folder / "Playlist" / "List.plt"
    until("the new order in the file", lambda: ini.sections(playlist) == ["07:01:00 AM", "07:00:00 AM"])
    assert station.colour() == "red"


if __name__ == "__main__":
    main()
