#!/usr/bin/python3
"""What the desktop's window manager does, and when it comes, takes nothing off the air."""

import time

from harness import media
from harness.overlays import KINDS, START, await_overlay, stage
from harness.patience import until
from harness.scenarios import main, scenario
from harness.station import Station

# How long before or after the output window the window manager is started, in milliseconds.
OFFSETS = (-300, -100, 0, 30, 100, 300, 700, 1500)


def stands(station, colour, seconds=1):
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if station.colour() != colour:
            return False
        time.sleep(0.05)
    return True


def await_for_good(station, colour):
    """A window manager that comes up takes each window down for a moment."""
    until(f"{colour} on the air to stay", lambda: stands(station, colour))


def station_in_red(desk, name="station", place=(0, 0, 1920, 1080)):
    """A station whose output fills the display."""
    station = Station(desk, name, place=place, settings={"Settings": {"StartUp": "0"}})
    station.playlist(media.clip("red", 60))
    return station


@scenario
def the_programme_shows_whenever_the_window_manager_comes(desk):
    for offset in OFFSETS:
        desk.end_window_manager()
        until("no window manager", lambda: not desk.screen.has_window_manager())
        station = station_in_red(desk, f"station{offset}").start()
        if offset < 0:
            time.sleep(2.3 + offset / 1000)  # the splash stands for two seconds
        else:
            until("the output window", station.output, pause=0.005)
            time.sleep(offset / 1000)
        desk.start_window_manager()
        until("the window manager", desk.screen.has_window_manager)
        await_for_good(station, "red")
        station.stop()


@scenario
def a_request_that_a_window_manager_has_lost_is_made_again(desk):
    desk.end_window_manager()
    until("no window manager", lambda: not desk.screen.has_window_manager())
    desk.screen.lose_requests(True)
    station = station_in_red(desk).start()
    until("the output window to be made", lambda: desk.screen.has_made("frmPlayer"))
    time.sleep(0.5)
    assert station.output() is None
    desk.screen.lose_requests(False)
    await_for_good(station, "red")


@scenario
def the_programme_and_its_overlays_show_though_the_window_manager_comes_late(desk):
    desk.end_window_manager()
    station = stage(desk).start_on_air()
    station.await_colour("red")
    desk.start_window_manager()
    for form in KINDS:
        await_overlay(station, form, *START[form])
    desk.start_window_manager("--replace")
    time.sleep(1)
    for form in KINDS:
        await_overlay(station, form, *START[form])


@scenario
def nobody_lays_the_desktop_bare_while_the_station_is_on_the_air(desk):
    station = stage(desk).start_on_air()
    for form in KINDS:
        await_overlay(station, form, *START[form])
    for _ in range(3):
        desk.screen.bare_the_desktop()
        time.sleep(0.2)
        for form in KINDS:
            await_overlay(station, form, *START[form])
        until("the desktop not to be bare", lambda: not desk.screen.is_bare())
    await_for_good(station, "red")


@scenario
def whichever_desktop_is_switched_to_the_programme_stands_on_it(desk):
    station = stage(desk).start_on_air()
    for number in (1, 3, 0):
        desk.screen.switch_to_desktop(number)
        until("the other desktop", lambda: desk.screen.desktop() == number)
        for form in KINDS:
            await_overlay(station, form, *START[form])
        await_for_good(station, "red")


@scenario
def a_programme_that_is_minimised_comes_back(desk):
    station = stage(desk).start_on_air()
    await_overlay(station, "FrmLogoShow", *START["FrmLogoShow"])
    for form in ("frmPlayer", "FrmLogoShow"):
        desk.screen.minimise(desk.screen.window(form=form))
        await_overlay(station, "FrmLogoShow", *START["FrmLogoShow"])
        await_for_good(station, "red")


if __name__ == "__main__":
    main()
