#!/usr/bin/python3
"""Takes the pictures of the operator guide anew, from the demo station on a virtual display."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests" / "endtoend"))
sys.path.insert(0, str(ROOT / "demo"))
import stage  # noqa: E402
from harness.desk import Desk  # noqa: E402
from harness.patience import until  # noqa: E402
from harness.reader import Reader  # noqa: E402
from harness.station import PROGRAM  # noqa: E402

PICTURES = ROOT / "docs" / "pictures"
# The picture on the air is laid out for its window two seconds after that has come up.
LAID_OUT = 3
# The first movie brings up the program that plays them all.
MOVIES_UP = 8

AD_SETTINGS = "Advertisment", "Ad Settings"
# Each desk, the entries of the menu that lead to it, and its pictures: what is pressed before, the form that is seen (the
# desk itself where none is named), and its name.
DESKS = [
    ("frmPlaylist", ("Broadcast", "Playlist manager"),
     [([("Demo.plt", "list item"), ("welcome.mp4", "list item")], None, "playlist-manager")]),
    ("frmAdSett", (*AD_SETTINGS, "Crawlers  Ad settings"),
     [([("Bakery", "table cell")], None, "crawler-ads"), ([("Preview Ad",)], "frmAdView", "ad-preview")]),
    ("frmVideoAdSett", (*AD_SETTINGS, "Video Ad settings"), [([("Sunrise bakery", "table cell")], None, "video-ads")]),
    ("frmFlashAdSett", (*AD_SETTINGS, "Flash Ad settings"), [([("Demo", "list item")], None, "flash-ads")]),
    ("frmLeftSideAdSett", (*AD_SETTINGS, "Left side Ad settings"), [([], None, "left-side-ads")]),
    ("frmLogoSett", ("Logo", "Logo settings"),
     [([("Demo", "list item"), ("logo.swf", "list item")], None, "logo-library")]),
    ("frmStikerSett", ("Stiker", "Settings"), [([("Demo", "list item")], None, "sticker-library")]),
    ("frmClockSett", ("Clock", "Clock settings"), [([("Demo", "list item")], None, "clock-library")]),
    ("frmAbout", ("Help", "Ahout"), [([], None, "about")]),
    ("frmBreakingNewsSett", ("Breaking nws", "Settings"), [([(stage.HEADLINES[0], "table cell")], None, "news-desk")]),
    ("frmPageSettings", ("Web feed", "Settings"),
     [([("Town board", "list item"), ("Preview",)], None, "web-feed-desk")]),
    ("frmSettings", ("Tools", "Settings"), [([], None, "system-settings")]),
    # Opens on a machine that is on line alone.
    ("frmOnlineTV", ("Online channels", "TV channels"),
     [([("Television", "list item"), ("Preview", "check box"), ("Test card", "list item")], None, "online-channels")]),
    ("frmOnlineRadio", ("Online channels", "Radio channel"), [([("Music", "list item")], None, "radio-channels")]),
]  # fmt: skip


def take(screen, form, name):
    """The form's window with its frame, as it is seen."""
    number = str(screen.window(form=form).number)
    command = ["import", "-display", screen.name, "-frame", "-window", number, "-depth", "8", "-strip"]
    subprocess.run([*command, str(PICTURES / f"{name}.png")], check=True)


def take_place(screen, window, name):
    """What is seen where the window stands, with all that lies over it."""
    place = f"{window.width}x{window.height}+{window.x}+{window.y}"
    command = ["import", "-display", screen.name, "-window", "root", "-crop", place, "+repage", "-depth", "8", "-strip"]
    subprocess.run([*command, str(PICTURES / f"{name}.png")], check=True)


def take_desk(screen, reader, form, entries, pictures):
    """Opens a form from the menu, takes its pictures and closes it."""
    reader.choose_entry(*entries)
    desk = until(f"the form {form}", lambda: screen.window(form=form))
    for presses, shown, name in pictures:
        for what in presses:
            reader.press(*what)
        time.sleep(LAID_OUT)
        take(screen, shown or form, name)
    screen.ask_to_close(desk)
    screen.keys("ctrl+m")


def main():
    folder = pathlib.Path(tempfile.gettempdir()) / "station"
    try:
        subprocess.run([sys.executable, ROOT / "demo" / "stage.py", PROGRAM, folder], check=True)
        # So wide that no form, in the middle, stands under what lies over the picture in the corner.
        with Desk(3840, 2160) as desk:
            desk.start(folder / "corvanta")
            screen = desk.screen
            reader = Reader(screen)
            until("the control window", lambda: screen.window(form="frmMid"))
            time.sleep(LAID_OUT)
            take(screen, "frmMid", "control-window")
            time.sleep(MOVIES_UP)
            take_place(screen, screen.window(form="frmPlayer"), "on-the-air")
            # On a machine that is off line the station does not switch it.
            reader.choose_entry("Web feed", "Show web feed")
            until("the web feed", lambda: screen.window(form="FrmWeb"))
            time.sleep(MOVIES_UP)
            take_place(screen, screen.window(form="FrmWeb"), "web-feed")
            for row in DESKS:
                take_desk(screen, reader, *row)
    finally:
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main()
