#!/usr/bin/python3
"""Logo, clock and sticker over the running video, with a compositing manager and without one."""

import time

from harness import ini, media
from harness.overlays import KINDS, OPAQUE, SIDE, START, await_overlay, near, stage
from harness.patience import until
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import TWIPS


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
