#!/usr/bin/python3
"""The web feed: a page of the network through its peephole, its desk, and the station's end with a page on."""

import contextlib
import time

from harness import ini, media
from harness.pages import BAD, ENDLESS, FIELD, NEVER, Pages, colour_at
from harness.patience import BROWSER, throughout, until
from harness.processes import command_of, is_there, kill_part, tree_of
from harness.reader import Reader
from harness.scenarios import main, require_network, scenario
from harness.station import TWIPS, WEB_PAGE, Station, web_page

PLACE = (60, 560, 400, 300)  # of the window: left, top, width and height in pixels
OFFSET = (-300, -200)  # of the page in it


def station_with_page(desk, address):
    """A station that shows its control window and the page at the start; the programme's frames count."""
    station = Station(desk, settings={"Settings": {"StartUp": "1"}, "WebFeed": {"Show": "True"}})
    web_page(station.folder, address, PLACE, OFFSET)
    station.playlist(media.frames())
    return station


def window(station):
    seen = station.screen.window(form="FrmWeb")
    return seen and (seen.x, seen.y, seen.width, seen.height)


def stored(station, key):
    return ini.value(station.folder / "Page.ini", WEB_PAGE, key)


def shows_page(station, place=PLACE, offset=OFFSET):
    """Whether the window stands there, and the page in it where it should be."""
    if window(station) != place:
        return False
    left, top, width, height = place
    for x in (3, width // 3, width - 4):
        for y in (3, height // 3, height - 4):
            wanted = colour_at(x - offset[0], y - offset[1])
            seen = station.screen.pixel(left + x, top + y)
            if any(abs(one - other) > 3 for one, other in zip(seen, wanted)):
                return False
    return True


def await_page(station, place=PLACE, offset=OFFSET):
    until(f"the page at {offset} in a window at {place}", lambda: shows_page(station, place, offset), BROWSER)


@contextlib.contextmanager
def page_on_the_air(desk):
    """The server of the pages, and a station that is on the air with one of them."""
    with Pages() as pages:
        station = station_with_page(desk, pages.address).start_on_air()
        await_page(station)
        yield pages, station


def open_desk(station):
    return station.open_form("frmPageSettings", "Web feed", "Settings")


def hand_the_mouse_to_the_window(station):
    """Ticks "Enable click" and clears it, and closes the desk."""
    reader = open_desk(station)
    reader.press("Enable click", "check box")
    reader.press("Enable click", "check box")
    reader.press("Ok")
    until("the desk to go", lambda: station.screen.window(form="frmPageSettings") is None)


@scenario
def a_page_is_seen_through_its_peephole_dragged_and_sized_by_its_edges_and_is_there_again(desk):
    require_network()
    with page_on_the_air(desk) as (_, station):
        hand_the_mouse_to_the_window(station)
        left, top, width, height = PLACE
        desk.screen.drag((left + width // 2, top + height // 2), (left + width // 2 + 45, top + height // 2 + 75))
        left, top = left + 45, top + 75
        await_page(station, (left, top, width, height))
        # An edge comes to where the pointer lets go of it.
        desk.screen.drag((left + width - 2, top + 100), (left + width - 60, top + 100))
        width -= 60
        await_page(station, (left, top, width, height))
        desk.screen.drag((left + 150, top + height - 3), (left + 150, top + height + 40))
        height += 40
        await_page(station, (left, top, width, height))
        desk.screen.drag((left + 2, top + 120), (left - 30, top + 120))
        left, width = left - 30, width + 30
        await_page(station, (left, top, width, height))
        assert stored(station, "FrmLeft") == str(PLACE[0] * TWIPS), "nothing is stored yet"
        station.assert_goes_on()

        Reader(desk.screen).choose_entry("Web feed", "Show web feed")
        until("the window to go", lambda: window(station) is None)
        station.await_setting("WebFeed", "Show", "False")
        measures = {"FrmLeft": left, "FrmTop": top, "FrmWidth": width, "FrmHeight": height}
        measures.update(PageLeft=OFFSET[0], PageTop=OFFSET[1])
        for key, pixels in measures.items():
            assert stored(station, key) == str(pixels * TWIPS), (key, stored(station, key), pixels * TWIPS)
        Reader(desk.screen).choose_entry("Web feed", "Show web feed")
        await_page(station, (left, top, width, height))
        station.stop()
        station.start_on_air()
        await_page(station, (left, top, width, height))


@scenario
def a_corner_pulls_both_its_edges_and_the_right_button_nothing(desk):
    require_network()
    with page_on_the_air(desk) as (_, station):
        hand_the_mouse_to_the_window(station)
        left, top, width, height = PLACE
        corner = (left + width - 2, top + height - 2)
        desk.screen.drag(corner, (corner[0] - 80, corner[1] - 20), button=3)
        throughout("the window as it was", lambda: window(station) == PLACE, 1)
        desk.screen.drag(corner, (corner[0] - 80, corner[1] - 20))
        await_page(station, (left, top, width - 82, height - 22))


@scenario
def the_desk_moves_the_page_in_its_window_and_stores_it(desk):
    require_network()
    with page_on_the_air(desk) as (_, station):
        reader = open_desk(station)
        reader.press("Up")  # two steps of 100 twips
        until("the page moved up", lambda: shows_page(station, offset=(OFFSET[0], OFFSET[1] - 200 // TWIPS)))
        assert stored(station, "PageTop") == str(OFFSET[1] * TWIPS)
        reader.press("Save position")
        until("the place to be stored", lambda: stored(station, "PageTop") == str(OFFSET[1] * TWIPS - 200))
        reader.press("Preview")
        station.assert_goes_on()


@scenario
def what_is_typed_into_a_page_reaches_its_server(desk):
    with page_on_the_air(desk) as (pages, station):
        desk.screen.click(PLACE[0] + FIELD[0] + OFFSET[0], PLACE[1] + FIELD[1] + OFFSET[1])
        time.sleep(1)
        desk.screen.type("news")
        desk.screen.keys("Return")
        until("what was typed", lambda: "/typed?text=news" in pages.asked)
        station.assert_goes_on()


@scenario
def a_page_comes_back_when_what_shows_it_is_killed(desk):
    with Pages() as pages:
        station = station_with_page(desk, pages.address).start_on_air()
        for part in ("renderer", "program"):
            await_page(station)
            asked = len(pages.asked)
            kill_part(station, part, "corvanta-pages")
            until(f"the page to be asked for again after the end of its {part}", lambda: len(pages.asked) > asked, BROWSER)
            await_page(station)
            station.assert_goes_on()


@scenario
def no_page_holds_up_the_station_or_the_page_behind_it(desk):
    require_network()
    with Pages() as pages:
        station = station_with_page(desk, pages.address)
        bad = {path.strip("/"): path for path in (NEVER, ENDLESS, *BAD)}
        with open(station.folder / "Page.ini", "a", newline="") as file:
            for name, path in bad.items():
                file.write(f"[{name}]\r\nURL={pages.at(path)}\r\nFrmTop=5000\r\n")
        station.start_on_air()
        await_page(station)
        reader = open_desk(station)
        shown = {window.number for window in desk.screen.windows()}
        for name, path in bad.items():
            reader.press(name, "list item")
            reader.press("Load")
            until(f"the page {name} to be asked for", lambda: path in pages.asked, BROWSER)
            time.sleep(3)
            station.assert_goes_on()
            assert {window.number for window in desk.screen.windows()} == shown, f"what does {name} show?"
            reader.press(WEB_PAGE, "list item")
            reader.press("Load")
            await_page(station)


def answer_yes_to_ctrl_x(desk, station):
    desk.screen.keys("ctrl+x")
    until("the question", lambda: desk.screen.window(title="Exit"))
    Reader(desk.screen).press("Yes")


def exit_at_the_desk(desk, station):
    open_desk(station).press("Exit")


def pull_the_plug(desk, station):
    station.stop()


@scenario
def after_ctrl_x_exit_and_a_cut_no_process_is_left_and_the_station_starts_again_at_once(desk):
    require_network()
    with Pages() as pages:
        station = station_with_page(desk, pages.address)
        for end in (answer_yes_to_ctrl_x, exit_at_the_desk, pull_the_plug):
            station.start_on_air()
            await_page(station)
            tree = tree_of(station.pid)
            assert any("corvanta-pages" in command_of(pid) for pid in tree), "no program that shows pages"
            assert len(tree) > 3, tree
            end(desk, station)
            until(f"the end of the station by {end.__name__}", lambda: not station.alive)
            until(f"all to be gone after {end.__name__}", lambda: not any(map(is_there, tree)))
        station.start_on_air()
        await_page(station)


if __name__ == "__main__":
    main()
