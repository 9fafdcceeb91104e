#!/usr/bin/python3
"""Logo, clock and sticker over the running video, with a compositing manager and without one."""

import time

from harness import ini, media
from harness.patience import until
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import TWIPS, Station

import movies  # on the path by way of the harness's media

SIDE = 120
# The movie in thirds, from the left: opaque, half-transparent, nothing.
OPAQUE, HALF, NOTHING = (SIDE * part // 6 for part in (1, 3, 5))
KINDS = {"FrmLogoShow": "logo", "frmClockShow": "Clock", "frmStikerShow": "Stiker"}
START = {form: (100 + 250 * index, 100) for index, form in enumerate(KINDS)}


def in_thirds():
    parts = movies.box(1, 0, 0, 100, 300, (255, 0, 255, 255)) + movies.box(2, 100, 0, 100, 300, (255, 255, 255, 128))
    return movies.moving(300, 300, 12, 12, parts, [(1, movies.still), (2, movies.still)])


def near(pixel, colour):
    return all(abs(one - other) < 24 for one, other in zip(pixel, colour))


def stage(desk, places=START, **more):
    """A station with a video of one colour and three overlays on it."""
    settings = {section: {"Show": "True"} for section in KINDS.values()}
    station = Station(desk, place=(20, 20, 960, 540), settings={**settings, **more})
    movie = station.folder / "Media" / "thirds.swf"
    movie.parent.mkdir()
    movie.write_bytes(in_thirds())
    windows = {"frmPlayer": dict(zip(("Left", "Top", "Width", "Height"), (str(m * TWIPS) for m in station.place)))}
    for form, section in KINDS.items():
        left, top = places[form]
        station.change(section, Path=str(movie), Left=str(left * TWIPS))
        windows[form] = {"Left": "0", "Top": str(top * TWIPS), "Width": str(SIDE * TWIPS), "Height": str(SIDE * TWIPS)}
    ini.write(station.folder / "Window.ini", windows)
    station.playlist(media.clip("red", 60))
    return station


def await_overlay(station, form, left, top, behind=(255, 0, 0)):
    """Waits until the overlay stands there, and what is behind it is seen through it as its movie says."""
    middle = top + SIDE // 2
    half = tuple((part + 255) // 2 for part in behind)
    for x, wanted in ((OPAQUE, (255, 0, 255)), (HALF, half), (NOTHING, behind)):
        until(f"{form} at {left}, {top} showing {wanted}", lambda: near(station.screen.pixel(left + x, middle), wanted))
    seen = station.screen.window(form=form)
    assert (seen.x, seen.y, seen.width, seen.height) == (left, top, SIDE, SIDE), seen


def stands_where_it_was_dragged_after_a_cut(desk):
    station = stage(desk).start_on_air()
    for form in KINDS:
        await_overlay(station, form, *START[form])
    ends = {form: (left + 40, top + 210) for form, (left, top) in START.items()}
    for form, section in KINDS.items():
        (left, top), (right, bottom) = START[form], ends[form]
        # By an opaque place: where nothing is seen a window without an alpha channel is not there either.
        desk.screen.drag((left + OPAQUE, top + 60), (right + OPAQUE, bottom + 60), button=3 if section == "Clock" else 1)
        await_overlay(station, form, right, bottom)
        station.await_setting(section, "Left", str(right * TWIPS))
    until("all to be remembered", lambda: all(
        ini.value(station.folder / "Window.ini", form, "Top") == str(top * TWIPS) for form, (_, top) in ends.items()))
    station.stop()
    station.start_on_air()
    for form, (left, top) in ends.items():
        await_overlay(station, form, left, top)


@scenario
def each_overlay_stands_over_the_video_and_after_a_cut_where_it_was_dragged_with_a_compositing_manager(desk):
    desk.start_compositing()
    stands_where_it_was_dragged_after_a_cut(desk)


@scenario
def each_overlay_stands_over_the_video_and_after_a_cut_where_it_was_dragged_without_a_compositing_manager(desk):
    stands_where_it_was_dragged_after_a_cut(desk)


def stack(screen):
    return [seen.form for seen in screen.windows() if seen.form in (*KINDS, "frmPlayer")]


@scenario
def with_the_output_masked_the_logo_stands_above_the_band(desk):
    # The logo stands at the lower edge of the screen, where the band goes.
    place = 120, 1080 - SIDE - 20
    station = stage(desk, {**START, "FrmLogoShow": place}, Settings={"StartUp": "1"}, AdSettings={"Show": "True"})
    station.crawler_ad("wide", media.jpeg("yellow", 960, 40), media.jpeg("green", 4000, 200))
    station.start_on_air()
    until("the control window", station.control)
    reader = Reader(desk.screen)
    until("the logo", lambda: near(desk.screen.pixel(place[0] + OPAQUE, place[1] + 60), (255, 0, 255)))
    reader.choose_entry("Display", "Musking")
    until("the masked output", lambda: station.output().y > 700)
    until("the logo above the band", lambda: stack(desk.screen).index("FrmLogoShow") > stack(desk.screen).index("frmPlayer"))
    until("the band", lambda: media.name_of(desk.screen.pixel(place[0] + SIDE + 30, place[1] + 60)) == "green")
    await_overlay(station, "FrmLogoShow", *place, behind=(0, 255, 0))


@scenario
def a_file_that_is_gone_is_told_and_holds_nothing_up(desk):
    station = stage(desk)
    station.change("logo", Path=str(station.folder / "gone.swf"))
    station.start_on_air()
    box = until("the warning", lambda: desk.screen.window(title="Error Opening File"))
    await_overlay(station, "frmClockShow", *START["frmClockShow"])
    station.await_colour("red")
    time.sleep(1)
    boxes = [seen for seen in desk.screen.windows() if seen.title == "Error Opening File"]
    assert boxes == [box], boxes
    desk.screen.keys("Return")
    until("the warning to go", lambda: desk.screen.window(title="Error Opening File") is None)


if __name__ == "__main__":
    main()
