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


def take(screen, window, name):
    """The window with its frame, as it is seen."""
    command = ["import", "-display", screen.name, "-frame", "-window", str(window.number), "-depth", "8", "-strip"]
    subprocess.run([*command, str(PICTURES / f"{name}.png")], check=True)


def take_place(screen, window, name):
    """What is seen where the window stands, with all that lies over it."""
    place = f"{window.width}x{window.height}+{window.x}+{window.y}"
    command = ["import", "-display", screen.name, "-window", "root", "-crop", place, "+repage", "-depth", "8", "-strip"]
    subprocess.run([*command, str(PICTURES / f"{name}.png")], check=True)


def main():
    folder = pathlib.Path(tempfile.gettempdir()) / "station"
    try:
        subprocess.run([sys.executable, ROOT / "demo" / "stage.py", PROGRAM, folder], check=True)
        # So wide that no form, in the middle, stands under what lies over the picture in the corner.
        with Desk(3840, 2160) as desk:
            desk.start(folder / "corvanta")
            screen = desk.screen
            reader = Reader(screen)
            control = until("the control window", lambda: screen.window(form="frmMid"))
            time.sleep(LAID_OUT)
            take(screen, control, "control-window")
            time.sleep(MOVIES_UP)
            take_place(screen, screen.window(form="frmPlayer"), "on-the-air")
            reader.press("Broadcast", "menu item")
            reader.press("Playlist manager", "menu item")
            manager = until("the playlist manager", lambda: screen.window(form="frmPlaylist"))
            reader.press("Demo.plt", "list item")
            reader.press("welcome.mp4", "list item")
            until("the duration", lambda: reader.text_of("Duration:") == "0:0:20")
            time.sleep(1)
            take(screen, manager, "playlist-manager")
            screen.ask_to_close(manager)
            screen.keys("ctrl+m")
            reader.choose_entry("Advertisment", "Ad Settings", "Crawlers  Ad settings")
            ads = until("the desk of the crawler ads", lambda: screen.window(form="frmAdSett"))
            reader.press("Bakery", "table cell")
            time.sleep(1)
            take(screen, ads, "crawler-ads")
            reader.press("Preview Ad")
            preview = until("the preview", lambda: screen.window(form="frmAdView"))
            time.sleep(LAID_OUT)
            take(screen, preview, "ad-preview")
            screen.ask_to_close(ads)
            screen.keys("ctrl+m")
            reader.choose_entry("Advertisment", "Ad Settings", "Video Ad settings")
            videos = until("the desk of the video ads", lambda: screen.window(form="frmVideoAdSett"))
            reader.press("Sunrise bakery", "table cell")
            time.sleep(LAID_OUT)
            take(screen, videos, "video-ads")
            screen.ask_to_close(videos)
            screen.keys("ctrl+m")
            reader.choose_entry("Advertisment", "Ad Settings", "Flash Ad settings")
            flash = until("the desk of the flash ads", lambda: screen.window(form="frmFlashAdSett"))
            reader.press("Demo", "list item")
            time.sleep(LAID_OUT)
            take(screen, flash, "flash-ads")
            screen.ask_to_close(flash)
            screen.keys("ctrl+m")
            reader.choose_entry("Advertisment", "Ad Settings", "Left side Ad settings")
            column = until("the desk of the left side ads", lambda: screen.window(form="frmLeftSideAdSett"))
            time.sleep(LAID_OUT)
            take(screen, column, "left-side-ads")
            screen.ask_to_close(column)
            screen.keys("ctrl+m")
            reader.choose_entry("Logo", "Logo settings")
            library = until("the library of the logo", lambda: screen.window(form="frmLogoSett"))
            reader.press("Demo", "list item")
            reader.press("logo.swf", "list item")
            time.sleep(LAID_OUT)
            take(screen, library, "logo-library")
            screen.ask_to_close(library)
            screen.keys("ctrl+m")
            reader.choose_entry("Breaking nws", "Settings")
            news = until("the desk of the news strip", lambda: screen.window(form="frmBreakingNewsSett"))
            reader.press(stage.HEADLINES[0], "table cell")
            time.sleep(1)
            take(screen, news, "news-desk")
    finally:
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main()
