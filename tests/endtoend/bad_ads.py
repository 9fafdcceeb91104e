#!/usr/bin/python3
"""Crawler ads that are none: the band, the station and the good ad go on."""

import shutil
import subprocess

from harness import media
from harness.patience import throughout, until
from harness.scenarios import main, scenario
from harness.station import Station

HEIGHT = 48


def station_with_good_ad(desk):
    station = Station(desk, settings={"AdSettings": {"Show": "True"}})
    station.crawler_ad("z good", media.jpeg("yellow", 480, 40), media.jpeg("green", 500, HEIGHT))
    station.playlist(media.clip("red", 120))
    return station


def shows(station, colour, height=HEIGHT):
    rows = station.band(height)
    return media.name_of(rows[height // 2][4]) == colour


def blues(pixels):
    return sum(media.name_of(pixel) == "blue" for pixel in pixels)


def convert(source, target, *how):
    subprocess.run(["convert", source, *how, target], check=True, timeout=60)
    return target


@scenario
def pictures_that_are_none_and_the_good_ad_after_them(desk):
    station = station_with_good_ad(desk)
    good = media.jpeg("blue", 500, HEIGHT).read_bytes()
    bad = {
        "empty": b"",
        "text": b"This is no picture.\n" * 50,
        "head alone": good[:200],
        "of no size": good.replace(b"\xff\xc0\x00\x11\x08\x00\x30\x01\xf4", b"\xff\xc0\x00\x11\x08\x00\x00\x00\x00"),
    }
    assert bad["of no size"] != good
    picture = media.picture("blue").read_bytes()
    data = picture.index(b"IDAT") + 4
    bad["spoilt behind its head"] = picture[:data] + b"\xff" * (len(picture) - data)
    for name, content in bad.items():
        folder = station.crawler_ad(name, media.jpeg("white", 480, 40), media.jpeg("blue", 500, HEIGHT))
        for file in ("header.jpg", "scorl.jpg"):
            (folder / file).write_bytes(content)
    (station.folder / "Ads" / "no description").mkdir()
    (station.folder / "Ads" / "description is a folder" / "adinfo.ini").mkdir(parents=True)
    station.start_on_air()
    until("the good ad", lambda: shows(station, "green"))
    station.await_colour("red")
    throughout("the station to live", lambda: station.alive, 12)
    until("the good ad again", lambda: shows(station, "green"))
    station.assert_responsive()


@scenario
def a_cut_off_picture_shows_as_far_as_it_goes(desk):
    station = Station(desk, settings={"AdSettings": {"Show": "True"}})
    noise = ["-resize", "800x160!", "-attenuate", "0.2", "+noise", "Gaussian", "-sampling-factor", "1x1"]
    noisy = convert("xc:blue", desk.folder / "noisy.jpg", *noise)
    whole = noisy.read_bytes()
    folder = station.crawler_ad("cut", media.jpeg("yellow", 480, 40), noisy)
    (folder / "scorl.jpg").write_bytes(whole[: len(whole) * 7 // 10])
    station.start_on_air()
    until("the upper part of the picture", lambda: blues(station.band(160)[4][:20]) > 10)


@scenario
def a_picture_of_thirty_thousand_pixels_and_one_for_the_press(desk):
    station = Station(desk, settings={"AdSettings": {"Show": "True", "LastAd": "1"}})
    station.crawler_ad("a wide", media.jpeg("yellow", 480, 40), media.jpeg("blue", 30000, HEIGHT), speed=3000)
    press = convert(media.jpeg("green", 3000, HEIGHT), desk.folder / "cmyk.jpg", "-colorspace", "CMYK")
    station.crawler_ad("b press", media.jpeg("yellow", 480, 40), press, speed=300)
    station.start_on_air()
    until("the wide picture", lambda: shows(station, "blue"))
    until("the picture of four inks", lambda: shows(station, "green"))


@scenario
def the_ads_folder_is_deleted_while_an_ad_is_on_the_air(desk):
    station = station_with_good_ad(desk)
    station.start_on_air()
    until("the good ad", lambda: shows(station, "green"))
    shutil.rmtree(station.folder / "Ads")
    throughout("the station to live", lambda: station.alive, 10)
    until("the picture that was loaded", lambda: shows(station, "green"))
    station.await_colour("red")
    station.assert_responsive()


if __name__ == "__main__":
    main()
