#!/usr/bin/python3
"""What goes on the air, and in which order."""

from harness import media
from harness.patience import throughout
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import Station


def clips(*colours):
    return [media.clip(colour) for colour in colours]


@scenario
def a_list_plays_in_order_and_wraps(desk):
    station = Station(desk)
    station.playlist(*clips("red", "green", "blue"))
    station.start_on_air()
    # The restored row is not part of the sequence, which begins at the first row.
    station.assert_plays("red", "red", "green", "blue", "red")
    station.await_setting("Playlist", "LastIndex", "0")
    station.await_setting("Playlist", "LastPlaySchdule", "1")


@scenario
def a_missing_file_is_skipped(desk):
    station = Station(desk)
    station.playlist(media.clip("red"), desk.folder / "gone.mp4", media.clip("blue"))
    station.start_on_air()
    station.assert_plays("red", "red", "blue", "red")


@scenario
def without_one_after_another_play_stops_at_the_end_of_the_item(desk):
    station = Station(desk, settings={"Playlist": {"OneAfterAnother": "0"}})
    station.playlist(*clips("red", "green"))
    station.start_on_air()
    station.await_colour("red")
    station.await_colour("black")
    throughout("black after the only item", lambda: station.colour() == "black", 3)
    assert station.alive


@scenario
def a_folder_plays_from_its_second_file_on(desk):
    station = Station(desk, settings={"Settings": {"StartUp": "1"}, "Playlist": {"LastPlay": "0", "PlayLocation": "1"}})
    folder = station.clip_folder(*clips("red", "green", "blue"))
    station.change("Playlist", FolderPath=folder)
    station.start_on_air()
    Reader(desk.screen).press("Start broadcast")
    station.assert_plays("green", "blue", "red", "green")
    station.await_setting("Playlist", "LastIndex", "-1")
    station.await_setting("Playlist", "LastPlayFolder", "1")


@scenario
def random_play_shows_only_what_the_list_holds(desk):
    station = Station(desk, settings={"Playlist": {"RendomPlay": "1"}})
    station.playlist(*clips("red", "green", "blue"))
    station.start_on_air()
    seen = station.items(5)
    assert len(seen) == 5 and set(seen) <= {"red", "green", "blue"}, seen
    # A draw moves no cursor.
    station.await_setting("Playlist", "LastIndex", "-1")


@scenario
def pictures_and_sound_end_and_the_next_item_follows(desk):
    station = Station(desk, settings={"Playlist": {"LastPlaySchdule": "3"}})
    station.playlist(media.picture("magenta"), media.tone(), media.clip("yellow", 3))
    station.start_on_air()
    station.assert_plays("yellow", "magenta", "yellow", "magenta")


@scenario
def stop_ends_the_item_and_start_goes_on_with_the_next(desk):
    station = Station(desk, settings={"Settings": {"StartUp": "1"}})
    station.playlist(media.clip("red", 60), media.clip("green", 60))
    station.start_on_air()
    station.await_colour("red")
    reader = Reader(desk.screen)
    reader.press("Stop broadcast")
    station.await_colour("black")
    throughout("black after a stop", lambda: station.colour() == "black", 2)
    reader.press("Start broadcast")
    station.await_colour("red")
    reader.press("Start broadcast")
    station.await_colour("green")


@scenario
def rows_in_another_spelling_than_their_files_play(desk):
    station = Station(desk)
    folder = station.clip_folder(media.clip("red"), media.clip("green"), media.clip("blue"))
    station.playlist(folder / "A.MP4", str(folder / "b.mp4").replace("/", "\\"), station.folder / "clips" / "C.Mp4")
    station.start_on_air()
    station.assert_plays("red", "red", "green", "blue")


if __name__ == "__main__":
    main()
