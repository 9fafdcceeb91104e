#!/usr/bin/python3
"""Online channels: a stream over the programme, and what becomes of it when its source dies."""

import functools

from harness import ini, media
from harness.patience import throughout, until
from harness.scenarios import main, require_network, scenario
from harness.station import Station
from harness.streams import SENDERS, Streams

FORM = "frmOnlineTV"
ENTRIES = ("Online channels", "TV channels")
START, STOP = "Start broadcast of the channel", "Stop broadcast of the channel"
# What the status line says of a stream that is not there.
GONE = ("Cannot be played", "Connecting...", "Buffering")
# The pauses in which a stream is tried again grow to half a minute.
COMES_BACK = 90


def station_with_channels(desk, channels):
    """A station that plays red and blue in turn, and its desk with these channels of the type "Live"."""
    require_network()
    station = Station(desk, settings={"Settings": {"StartUp": "1"}})
    station.playlist(media.clip("red", 3), media.clip("blue", 3))
    ini.write(station.folder / "OnlineChannel" / "TV.chn", {"Live": channels})
    station.start_on_air()
    return station, station.open_form(FORM, *ENTRIES)


def put_on_air(reader, channel):
    reader.press("Live", "list item")
    reader.press(channel, "list item")
    reader.press(START)


def says(reader, *words):
    """Which of these the status line says now."""
    return next((word for word in words if reader.find(word, "label")), None)


def assert_playlist_goes_on(station):
    """The next item is taken up, whatever lies over the picture."""
    row = station.setting("Playlist", "LastPlaySchdule")
    until("the next item of the playlist", lambda: station.setting("Playlist", "LastPlaySchdule") != row)


def goes_on_air_breaks_and_comes_back(desk, make):
    with Streams(desk.folder / "streams") as streams:
        station, reader = station_with_channels(desk, {"Green": make(streams)})
        put_on_air(reader, "Green")
        station.await_colour("green")
        until("the status of the stream", lambda: says(reader, "Playing"))
        assert_playlist_goes_on(station)
        throughout("green over the playlist", lambda: station.colour() == "green", 2)
        streams.cut()
        until("the word of the broken stream", lambda: says(reader, *GONE))
        windows = {seen.title for seen in desk.screen.windows()}
        assert_playlist_goes_on(station)
        assert {seen.title for seen in desk.screen.windows()} == windows, "nothing but the status line tells of it"
        streams.mend()
        until("green again", lambda: station.colour() == "green", COMES_BACK)
        until("the status of the stream", lambda: says(reader, "Playing"))
        reader.press(STOP)
        until("the playlist again", lambda: station.colour() in ("red", "blue"))
        station.assert_responsive()


def go_on_air_in_turn(desk, makers):
    """Makers by their channel's name: each gives the address of a stream of the colour it is told."""
    with Streams(desk.folder / "streams") as streams:
        colours = dict(zip(makers, ("green", "yellow", "magenta", "white")))
        addresses = {name: make(streams, colour=colours[name]) for name, make in makers.items()}
        station, reader = station_with_channels(desk, addresses)
        for name, colour in colours.items():
            put_on_air(reader, name)
            station.await_colour(colour)
            until("the status of the stream", lambda: says(reader, "Playing"))
        reader.press(STOP)
        until("the playlist again", lambda: station.colour() in ("red", "blue"))


@scenario
def a_live_hls_stream_goes_on_air_over_the_playlist_and_comes_back_after_a_cut(desk):
    goes_on_air_breaks_and_comes_back(desk, lambda streams: streams.hls("green"))


@scenario
def a_plain_transport_stream_goes_on_air_over_the_playlist_and_comes_back_after_a_cut(desk):
    goes_on_air_breaks_and_comes_back(desk, lambda streams: streams.mpeg_ts("green"))


@scenario
def a_stream_that_stands_still_shows_in_the_status_line_and_all_else_goes_on(desk):
    with Streams(desk.folder / "streams") as streams:
        station, reader = station_with_channels(desk, {"Green": streams.mpeg_ts("green")})
        put_on_air(reader, "Green")
        station.await_colour("green")
        streams.stall()
        until("the word of the stream that stands still", lambda: says(reader, *GONE))
        assert_playlist_goes_on(station)
        station.assert_responsive()
        streams.flowing.set()
        until("the status of the stream", lambda: says(reader, "Playing"), COMES_BACK)
        station.await_colour("green")


@scenario
def streams_over_udp_rtp_srt_and_rtmp_go_on_air(desk):
    go_on_air_in_turn(desk, {name: functools.partial(Streams.over, scheme=name) for name in SENDERS})


@scenario
def streams_over_https_rtsp_and_mms_go_on_air(desk):
    go_on_air_in_turn(desk, {"https": Streams.https, "rtsp": Streams.rtsp, "mms": Streams.mms})


@scenario
def an_address_that_must_not_play_is_refused_in_the_status_line_and_the_playlist_goes_on(desk):
    station, reader = station_with_channels(desk, {"Pattern": "av://lavfi:testsrc", "Word": "no address"})
    for channel in ("Pattern", "Word"):
        put_on_air(reader, channel)
        until("the refusal", lambda: says(reader, "Cannot be played"))
        assert_playlist_goes_on(station)
        reader.press(STOP)
        until("the playlist again", lambda: station.colour() in ("red", "blue"))


if __name__ == "__main__":
    main()
