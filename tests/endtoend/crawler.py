#!/usr/bin/python3
"""The crawler ads: made at their desk, and on the air."""

import time

from harness import ini, media
from harness.patience import until
from harness.scenarios import main, scenario
from harness.station import Station

SCROLL_HEIGHT = 48
# Twips a tick: no step of a clock of its own would fall on whole numbers of it.
RULER_SPEED = 90
TWIPS = 15


def desk_of(station):
    return station.open_form("frmAdSett", "Advertisment", "Ad Settings", "Crawlers  Ad settings")


def make_ad(desk, reader, station, name, header, scroll):
    reader.choose_file("Load Header", "Load Ad's header file", header)
    reader.choose_file("Load Scorl", "Load Ad's scorl file", scroll)
    reader.write_over("Ad name", name)
    reader.press("Save")
    folder = station.folder / "Ads" / name
    until(f"the ad {name}", (folder / "scorl.jpg").exists)
    return folder


def colours_of_band(station):
    """The colours of the header and of the scrolling picture at the left end of the band."""
    rows = station.band(SCROLL_HEIGHT + 20)
    return media.name_of(rows[6][4]), media.name_of(rows[20 + SCROLL_HEIGHT // 2][4])


@scenario
def the_first_start_makes_every_folder_that_the_forms_write_into(desk):
    station = Station(desk).start_on_air()
    for folder in ("Playlist", "Ads", "VideoAd", "OnlineChannel", "Media/Logo", "Media/FlashAd", "Media/LeftSideAd"):
        assert (station.folder / folder).is_dir(), folder


@scenario
def three_ads_made_at_the_desk_run_on_the_air_in_turn(desk):
    station = Station(desk, settings={"Settings": {"StartUp": "1"}})
    station.playlist(media.clip("black", 60))
    station.start_on_air()
    reader = desk_of(station)
    made = {"a": ("yellow", "red"), "b": ("white", "green"), "c": ("magenta", "blue")}
    for name, (header, scroll) in made.items():
        pictures = media.jpeg(header, 480, 40), media.jpeg(scroll, 600, SCROLL_HEIGHT)
        folder = make_ad(desk, reader, station, name, *pictures)
        for copy, picture in zip(("header.jpg", "scorl.jpg"), pictures):
            assert (folder / copy).read_bytes() == picture.read_bytes(), copy
        assert ini.value(folder / "adinfo.ini", "Settings", "Speed") == "30"
    # The first ad of all has to be chosen: a band that never had one has no speed.
    reader.press("a", "table cell")
    station.await_setting("AdSettings", "LastAd", "1")
    desk.screen.keys("ctrl+m")
    until("the control window in front", lambda: desk.screen.front() == "frmMid")
    reader.choose_entry("Advertisment", "Show Ads", "Show crawlers Ad")
    station.await_setting("AdSettings", "Show", "True")
    seen = []
    deadline = time.monotonic() + 90
    while len(seen) < 7 and time.monotonic() < deadline:
        now = colours_of_band(station)
        if now in made.values() and seen[-1:] != [now]:
            seen.append(now)
        time.sleep(0.05)
    order = list(made.values())
    first = order.index(seen[0])
    assert seen == [order[(first + turn) % 3] for turn in range(7)], seen


@scenario
def the_band_stands_only_at_whole_steps_while_a_full_hd_clip_plays_and_settings_are_written(desk):
    station = Station(desk, settings={"AdSettings": {"Show": "True"}})
    station.crawler_ad("ruler", media.jpeg("white", 480, 40), media.ruler(), speed=RULER_SPEED)
    station.playlist(media.full_hd())
    station.start_on_air()
    step = RULER_SPEED // TWIPS
    until("the band", lambda: media.place_on_ruler(station.band(media.RULER_HEIGHT)) is not None)
    time.sleep(3)  # the picture is laid out anew two seconds after it came up
    written = {station.setting("Playlist", "LastPositionSchdule")}
    places = []
    deadline = time.monotonic() + 10
    while time.monotonic() < deadline:
        place = media.place_on_ruler(station.band(media.RULER_HEIGHT))
        written.add(station.setting("Playlist", "LastPositionSchdule"))
        assert place is not None, "the band is torn, or not there"
        assert place % step == 0, f"{place} pixels are no whole number of steps of {step}"
        places.append(place)
    assert len(set(places)) > 5, f"only {len(set(places))} places in ten seconds"
    assert places == sorted(places, reverse=True), "the band has gone back"
    assert len(written) >= 8, f"the settings were written {len(written)} times only"


@scenario
def a_cut_while_an_ad_is_saved_leaves_no_half_file_and_the_station_comes_back(desk):
    station = Station(desk, settings={"Settings": {"StartUp": "1"}, "AdSettings": {"Show": "True"}})
    station.crawler_ad("good", media.jpeg("yellow", 480, 40), media.jpeg("green", 4000, SCROLL_HEIGHT))
    station.playlist(media.clip("red", 60))
    station.start_on_air()
    reader = desk_of(station)
    reader.press("Stop")
    # What follows the end of a JPEG is none of its business, and makes it take its time to be copied.
    large = desk.folder / "large.jpg"
    large.write_bytes(media.jpeg("white", 480, 40).read_bytes() + bytes(400 << 20))
    reader.choose_file("Load Header", "Load Ad's header file", large)
    reader.choose_file("Load Scorl", "Load Ad's scorl file", large)
    reader.write_over("Ad name", "new")
    reader.press("Save")
    folder = station.folder / "Ads" / "new"
    until("the new folder", (folder / "adinfo.ini").exists, pause=0.005)
    station.stop()
    station.start_on_air()
    for file in folder.glob("*.jpg"):
        assert file.stat().st_size == large.stat().st_size, f"{file.name} is half"
    station.await_colour("red")
    until("the good ad on the band", lambda: colours_of_band(station)[1] == "green")


@scenario
def a_cut_while_an_ad_is_deleted_leaves_no_half_ad_and_the_station_comes_back(desk):
    station = Station(desk, settings={"Settings": {"StartUp": "1"}, "AdSettings": {"Show": "True"}})
    station.crawler_ad("good", media.jpeg("yellow", 480, 40), media.jpeg("green", 4000, SCROLL_HEIGHT))
    folder = station.crawler_ad("old", media.jpeg("white", 480, 40), media.jpeg("blue", 4000, SCROLL_HEIGHT))
    for number in range(20_000):
        (folder / f"{number}.txt").touch()
    station.playlist(media.clip("red", 60))
    station.start_on_air()
    reader = desk_of(station)
    reader.press("Stop")
    reader.press("old", "table cell")
    reader.press("Remove")
    reader.press("Yes")
    until("the ad to go", lambda: not folder.exists(), pause=0.001)
    station.stop()
    print("left of the ad by the cut:", [len(list(path.iterdir())) for path in folder.parent.glob(".*")])
    station.start_on_air()
    until("all of the ad to be gone", lambda: [path.name for path in folder.parent.iterdir()] == ["good"])
    station.await_colour("red")
    until("the good ad on the band", lambda: colours_of_band(station)[1] == "green")


@scenario
def the_preview_stands_above_the_bottom_and_its_close_box_takes_it_away(desk):
    station = Station(desk, settings={"Settings": {"StartUp": "1"}, "AdSettings": {"Show": "True", "AutoView": "1"}})
    station.crawler_ad("only", media.jpeg("yellow", 480, 40), media.jpeg("green", 2000, SCROLL_HEIGHT))
    station.start_on_air()
    preview = until("the preview", lambda: desk.screen.window(form="frmAdView"))
    assert preview.title == "Ad's preview"
    desk.screen.keys("ctrl+m")
    until("the control window in front of the keyboard", station.control)
    until("its picture", lambda: media.name_of(desk.screen.pixel(preview.x + 5, preview.y + 30)) == "green")
    desk.screen.ask_to_close(preview)
    until("the preview to go", lambda: desk.screen.window(form="frmAdView") is None)
    # A pass of 2000 pixels is some 17 seconds long; then the box "Auto preview" brings it up again.
    until("the preview with the next ad", lambda: desk.screen.window(form="frmAdView"), seconds=60)


if __name__ == "__main__":
    main()
