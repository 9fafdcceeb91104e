#!/usr/bin/python3
"""The breaks with video ads: on the air, made at their desk, and cut off in the middle."""

import time

from harness import ini, media
from harness.patience import throughout, until
from harness.scenarios import main, scenario
from harness.station import Station

ADS = ("red", "green", "yellow")


def station_with_ads(desk, *colours, seconds_left=60, ads=2, **settings):
    """A station with an ad of each colour, a break of so many ads a minute, and frames that count as its programme."""
    breaks = {"Show": "True", "AdPlay": ads, "AdTime": 1, "AdTimeCount": 60 - seconds_left}
    station = Station(desk, settings={"VideoAd": breaks, "Settings": settings})
    for name, colour in zip("abc", colours):
        station.video_ad(name, media.clip(colour))
    station.playlist(media.frames())
    return station


def count(station):
    return int(station.setting("VideoAd", "AdTimeCount") or 0)


def ads_of_a_break(station):
    """Waits for a break and for its end. Gives the ads' colours, the last frame before it, the frame where the programme
    stood meanwhile by its recorded position, and the first frame after it."""
    ads, before, stood = [], None, None
    deadline = time.monotonic() + 120
    while time.monotonic() < deadline:
        frame = station.frame()
        if frame is None:
            now = station.colour()
            if now in ADS and now != (ads or [None])[-1]:
                ads.append(now)
            stood = station.setting("Playlist", "LastPositionSchdule")
        elif ads:
            return ads, before, round(float(stood) * media.FRAMES_A_SECOND), frame
        else:
            before = frame
        time.sleep(0.005)
    raise AssertionError(f"no break in two minutes; seen {ads}")


def desk_of(station):
    return station.open_form("frmVideoAdSett", "Advertisment", "Ad Settings", "Video Ad settings")


def names_in(folder):
    return sorted(path.name for path in folder.iterdir())


@scenario
def after_each_break_of_two_ads_the_programme_goes_on_at_the_frame_where_it_stopped(desk):
    station = station_with_ads(desk, *ADS, seconds_left=20)
    station.start_on_air()
    for wanted in (["red", "green"], ["yellow", "red"]):
        ads, before, stood, after = ads_of_a_break(station)
        print(f"{ads}: frame {before} before, {stood} during, {after} after the break")
        assert ads == wanted, ads
        # The recorded position is the one of the frame that is shown, or of the one that comes next.
        assert before <= stood + 1, "the programme went back for the break"
        assert stood - 1 <= after, "the programme went back after the break"
        # Two ads last for more than 100 frames. Between two looks some frames can pass.
        assert after - before < 50, "the programme ran on during the break"


@scenario
def a_countdown_that_is_cut_off_goes_on_where_it_was(desk):
    station = station_with_ads(desk, "red", seconds_left=20)
    station.start_on_air()
    until("four seconds of the countdown", lambda: count(station) >= 44)
    station.stop()
    kept = count(station)
    assert 44 <= kept < 60, kept
    station.start_on_air()
    seen = []

    def in_break():
        if station.colour() == "red":
            return True
        seen.append(count(station))
        return False

    until("the break", in_break)
    counted = [number for number in seen if number]
    assert counted == sorted(counted) and counted[0] >= kept and counted[-1] >= 58, (kept, counted)
    until("the count from zero", lambda: count(station) == 0)


@scenario
def a_break_that_is_cut_off_is_over_and_the_programme_is_on_the_air(desk):
    station = station_with_ads(desk, "red", seconds_left=6)
    station.start_on_air()
    station.await_colour("red")
    station.stop()
    assert count(station) == 0
    station.start_on_air()
    until("the programme", lambda: station.frame() is not None)
    throughout("the programme", lambda: station.colour() != "red", 3)
    until("the countdown to the next break", lambda: 2 <= count(station) < 60)


@scenario
def a_cut_while_an_ad_is_saved_leaves_no_half_ad(desk):
    station = station_with_ads(desk, "red", seconds_left=50, StartUp=1)
    station.start_on_air()
    reader = desk_of(station)
    # What follows the end of the video is none of its business, and makes it take its time to be copied.
    large = desk.folder / "large.mp4"
    large.write_bytes(media.clip("green").read_bytes())
    with open(large, "r+b") as file:
        file.truncate(2 << 30)
    reader.choose_file("Load Ad file", "Load Ad's header file", large)
    reader.write_over("Ad name", "b")
    reader.press("Save Ad file")
    folder = station.folder / "VideoAd" / "b"
    until("the copy to grow", lambda: any(path.stat().st_size for path in folder.glob(".*")), pause=0.005)
    station.stop()
    assert not (folder / "large.mp4").exists()
    station.start_on_air()
    until("the half ad to be gone", lambda: names_in(station.folder / "VideoAd") == ["a"])
    ads, *_ = ads_of_a_break(station)
    assert ads == ["red"], ads


@scenario
def a_cut_while_an_ad_is_deleted_leaves_no_half_ad(desk):
    station = station_with_ads(desk, "red", seconds_left=50, StartUp=1)
    folder = station.video_ad("b", media.clip("green"))
    for number in range(20_000):
        (folder / f"{number}.txt").touch()
    station.start_on_air()
    reader = desk_of(station)
    reader.press("b", "table cell")
    reader.press("Delete Ad file")
    reader.press("Yes")
    until("the ad to go", lambda: not folder.exists(), pause=0.001)
    station.stop()
    print("left of the ad by the cut:", [len(list(path.iterdir())) for path in folder.parent.glob(".*")])
    station.start_on_air()
    until("all of the ad to be gone", lambda: names_in(folder.parent) == ["a"])
    ads, *_ = ads_of_a_break(station)
    assert ads == ["red"], ads


@scenario
def an_ad_made_at_the_desk_plays_in_the_break_that_the_desk_sets(desk):
    station = station_with_ads(desk, "red", ads="", StartUp=1)
    station.change("VideoAd", AdTime=999)
    station.start_on_air()
    reader = desk_of(station)
    reader.choose_file("Load Ad file", "Load Ad's header file", media.clip("green"))
    reader.write_over("Ad name", "b")
    reader.write_over("Company", "Company b")
    reader.press("Save Ad file")
    reader.press("OK")
    folder = station.folder / "VideoAd" / "b"
    assert (folder / "green-2.mp4").read_bytes() == media.clip("green").read_bytes()
    assert ini.value(folder / "adinfo.ini", "AdInfo", "Company") == "Company b"
    # A field with a list goes by what stands in it, and by its own name while it is empty.
    for field, number in (("Ads each break", "2"), ("999", "1")):
        reader.write_over(field, number, "combo box")
        desk.screen.keys("Return")
    station.await_setting("VideoAd", "AdPlay", "2")
    station.await_setting("VideoAd", "AdTime", "1")
    # Closing stops nothing, and uncovers the picture on the air.
    desk.screen.ask_to_close(desk.screen.window(form="frmVideoAdSett"))
    ads, *_ = ads_of_a_break(station)
    assert ads == ["red", "green"], ads


@scenario
def an_ad_that_cannot_be_played_leaves_the_pane_on_the_air_until_the_operator_steps_in(desk):
    station = station_with_ads(desk, "red", seconds_left=20)
    (station.folder / "VideoAd" / "a" / media.clip("red").name).write_text("This is no video.\n" * 50)
    station.start_on_air()
    until("the programme", lambda: station.frame() is not None)
    station.await_colour("black")
    throughout("the pane on the air", lambda: station.alive and station.colour() == "black", 5)
    station.assert_responsive()


if __name__ == "__main__":
    main()
