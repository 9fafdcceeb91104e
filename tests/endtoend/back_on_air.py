#!/usr/bin/python3
"""Back on the air by itself: after a power cut, on the right screen, at the right time."""

import datetime
import random
import time

from harness import ini, media
from harness.patience import throughout, until
from harness.scenarios import main, scenario
from harness.station import Station

CUTS = 10


def position(station):
    return float(station.setting("Playlist", "LastPositionSchdule") or 0)


def first_reading_behind(station, seconds):
    """The clock's first reading that is at least that late; None before it."""
    reading = station.clock()
    return reading if reading is not None and reading >= seconds else None


@scenario
def ten_power_cuts_in_a_row_come_back_to_the_same_row_within_a_second(desk):
    # At the window's design size the picture is laid out in its place from the first moment.
    station = Station(desk, place=(20, 20, 1030, 768), settings={"Playlist": {"LastPlaySchdule": "2"}})
    station.playlist(media.clip("red", 60), media.clock(), media.clip("green", 60))
    station.start_on_air()
    until("some seconds of the item", lambda: first_reading_behind(station, 4))
    chance = random.Random(6)
    differences = []
    for _ in range(CUTS):
        time.sleep(chance.uniform(1.2, 2.6))
        station.stop()
        recorded = position(station)
        assert station.setting("Playlist", "LastPlaySchdule") == "2"
        station.start_on_air()
        # The item begins anew, and half a second after the form's load it goes to the recorded place.
        came_back = until(f"the clock at {recorded:.1f} s", lambda: first_reading_behind(station, recorded - 1.5), pause=0.01)
        differences.append(came_back - recorded)
    print("recorded and seen after it, in seconds:", " ".join(f"{one:+.2f}" for one in differences))
    # The clock counts half seconds.
    assert all(-1 - 0.5 < one <= 1 for one in differences), differences


@scenario
def the_window_lands_in_the_middle_of_monitor_two(desk):
    desk.two_monitors()
    station = Station(desk, settings={"Output": {"Monitor2": "True"}})
    station.playlist(media.clip("green", 60))
    station.start_on_air()
    station.place = (960 + (960 - 480) // 2, (1080 - 270) // 2, 480, 270)
    until("the window in the middle of monitor 2", lambda: stands_at(station, station.place))
    station.await_colour("green")
    throughout("it stays there, also through the layout after two seconds", lambda: stands_at(station, station.place), 3)


@scenario
def a_window_that_is_on_monitor_two_already_stays_where_it_is(desk):
    desk.two_monitors()
    place = (1000, 40, 480, 270)
    station = Station(desk, place=place, settings={"Output": {"Monitor2": "True"}})
    station.playlist(media.clip("green", 60))
    station.start_on_air()
    station.await_colour("green")
    throughout("it stays where it is", lambda: stands_at(station, place), 3)


@scenario
def without_the_key_a_window_on_monitor_two_comes_back_to_monitor_one(desk):
    desk.two_monitors()
    station = Station(desk, place=(1000, 40, 480, 270))
    station.playlist(media.clip("green", 60))
    station.start_on_air()
    until("the window in the middle of monitor 1", lambda: stands_at(station, ((960 - 480) // 2, (1080 - 270) // 2, 480, 270)))


@scenario
def a_panel_on_monitor_two_moves_the_middle_up(desk):
    desk.two_monitors()
    desk.screen.dock(960, 960, 40, 1080)
    station = on_monitor(desk, 2)
    until("the window in the middle of what is free", lambda: stands_at(station, (960 + 240, 385, 480, 270)))


@scenario
def a_panel_on_monitor_one_leaves_monitor_two_alone(desk):
    desk.two_monitors()
    desk.screen.dock(0, 960, 40, 1080)
    station = on_monitor(desk, 2)
    until("the window in the middle of monitor 2", lambda: stands_at(station, (960 + 240, 405, 480, 270)))


@scenario
def a_panel_on_monitor_one_moves_the_middle_of_monitor_one_up(desk):
    desk.two_monitors()
    desk.screen.dock(0, 960, 40, 1080)
    station = on_monitor(desk, 1)
    until("the window in the middle of what is free", lambda: stands_at(station, (240, 385, 480, 270)))


def on_monitor(desk, number):
    """A station whose window stands on the other monitor at the start and belongs on this one."""
    station = Station(desk, place=(1000 if number == 1 else 20, 40, 480, 270))
    if number == 2:
        station.change("Output", Monitor2="True")
    station.playlist(media.clip("green", 60))
    return station.start_on_air()


def stands_at(station, place):
    window = station.output()
    return window is not None and (window.x, window.y, window.width, window.height) == place


def time_text(moment):
    return moment.strftime("%I:%M:%S %p")


def date_text(moment):
    return f"{moment.month}/{moment.day}/{moment.year}"


def in_some_seconds():
    return datetime.datetime.now().replace(microsecond=0) + datetime.timedelta(seconds=10)


@scenario
def a_row_starts_at_the_time_that_it_names(desk):
    station = Station(desk, settings={"Playlist": {"TimeON": "1"}})
    at = in_some_seconds()
    rows = {"first": {"Path": media.clip("red", 60)}, time_text(at): {"Path": media.clip("green", 60)}}
    ini.write(station.folder / "Playlist" / "List.plt", rows)
    station.start_on_air()
    station.await_colour("red")
    while datetime.datetime.now() < at - datetime.timedelta(milliseconds=300):
        assert station.colour() == "red", "started before its time"
        time.sleep(0.02)
    station.await_colour("green")
    print(f"seen {(datetime.datetime.now() - at).total_seconds():.2f} s after its second began")
    station.await_setting("Playlist", "LastPlaySchdule", "2")


@scenario
def a_day_schedule_exchanges_the_playlist_and_the_running_item_plays_on(desk):
    station = Station(desk, settings={"Playlist": {"DaySchdule": "1"}})
    at = in_some_seconds()
    station.playlist(media.clip("red", 14), media.clip("blue", 60))
    station.playlist(media.clip("green", 60), name="Evening.plt")
    ini.write(station.folder / "Schedule.ini", {f"{date_text(at)}-{time_text(at)}": {"PlaylistName": "Evening.plt"}})
    station.start_on_air()
    station.await_setting("Playlist", "LastPlaylist", "Evening.plt")
    assert datetime.datetime.now() >= at
    assert station.colour() == "red"
    # The sequence has not begun: its first row is that of the new list.
    station.await_colour("green")


if __name__ == "__main__":
    main()
