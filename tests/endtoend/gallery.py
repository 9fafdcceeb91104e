#!/usr/bin/python3
"""The gallery of the station's own controls, by mouse and by keyboard."""

import shutil

from harness.pages import Pages, colour_at
from harness.patience import BROWSER, until
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import PROGRAM


def gallery(desk):
    """The gallery on the screen, and a reader of its controls. It stands in a folder of its own, as a station does."""
    folder = desk.folder / "gallery"
    folder.mkdir()
    for name in ("corvanta-gallery", "corvanta-pages"):
        shutil.copy2(PROGRAM.with_name(name), folder)
    (folder / "Clips").mkdir()
    (folder / "Clips" / "one.mp4").write_bytes(b"")
    desk.start(folder / "corvanta-gallery")
    until("the gallery", lambda: desk.screen.window(form="frmGallery"))
    return Reader(desk.screen)


@scenario
def times_are_picked_and_typed_and_two_pickers_are_two(desk):
    reader = gallery(desk)
    reader.press("Get times")
    until("midnight", lambda: reader.find("12:00:00 AM - 12:00:00 AM", "label"))
    reader.press("Hours", "text")
    desk.screen.keys("ctrl+a")
    desk.screen.type("07")
    desk.screen.keys("Tab", "Down")
    desk.screen.keys("Tab")
    desk.screen.type("30")
    desk.screen.keys("Tab", "Down")
    reader.press("Get times")
    until("the times", lambda: reader.find("07:01:30 PM - 12:00:00 AM", "label"))


@scenario
def folders_open_and_words_come_and_go_in_order(desk):
    reader = gallery(desk)
    reader.press("Clips", "list item")
    until("the file of the folder", lambda: reader.find("one.mp4", "list item"))
    reader.press("Folder up")
    until("the folder above", lambda: reader.find("Clips", "list item"))
    reader.write_over("Word", "Traffic")
    reader.press("Add word")
    reader.press("Traffic", "list item")
    reader.press("Remove word")
    until("the word to go", lambda: reader.find("Traffic", "list item") is None)


@scenario
def a_page_fills_both_previews_and_their_surface_has_the_mouse_when_it_may(desk):
    with Pages() as pages:
        reader = gallery(desk)
        reader.write_over("Address", pages.address)
        reader.press("Show page")
        for name in ("Large page", "Small page"):
            place = until(name, lambda: reader.place(name))
            for x, y in ((30, 30), (150, 90)):
                until(f"the page in {name}", lambda: desk.screen.pixel(place.x + x, place.y + y) == colour_at(x, y), BROWSER)
        reader.press("Mouse reaches the page", "check box")
        place = reader.place("Large page")
        desk.screen.click(place.x + 50, place.y + 50)
        until("the click to be told", lambda: reader.find("Large: Click", "label"))
        desk.screen.keys("b")
        until("the key to be told", lambda: reader.find("Large: KeyDown 66", "label"))


@scenario
def its_close_box_ends_it(desk):
    gallery(desk)
    desk.screen.ask_to_close(desk.screen.window(form="frmGallery"))
    until("the gallery to go", lambda: desk.screen.window(form="frmGallery") is None)


if __name__ == "__main__":
    main()
