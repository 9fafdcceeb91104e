"""A station with logo, clock and sticker over its video."""

from . import ini, media
from .patience import until
from .station import TWIPS, Station

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
    # It may be painted by the output while it is itself on its way.
    seen = until(f"the window {form}", lambda: station.screen.window(form=form))
    assert (seen.x, seen.y, seen.width, seen.height) == (left, top, SIDE, SIDE), seen
