"""A station in a folder of its own: its files, its program and what it shows."""

import os
import shutil
import string
import time

from . import ini, media
from .patience import until
from .reader import Reader

PROGRAM = media.ROOT / "build" / "release" / "app" / "corvanta"
BESIDE = [PROGRAM.with_name(name) for name in ("corvanta-movies", "corvanta-pages")]
TWIPS = 15
WEB_PAGE = "board"
"""The name of the page that a station begins with."""


class Station:
    """Stages `folder`, with the program under the name `program`. The output window stands at `place` (left, top, width, height in pixels), where forms and
    questions, which come up in the middle, leave it free."""

    def __init__(self, desk, name="station", place=(20, 20, 480, 270), settings=None, program="corvanta"):
        self.desk = desk
        self.screen = desk.screen
        self.folder = desk.folder / name
        self.place = place
        self.program = self.folder / program
        self.settings = self.folder / "Settings.ini"
        self._process = None
        self.folder.mkdir(parents=True)
        # The program finds its folder by its own file, so a link would lead it astray.
        shutil.copy2(PROGRAM, self.program)
        for beside in BESIDE:
            shutil.copy2(beside, self.folder)
        self._sections = {
            "Settings": {"ShowMouse": "1", "ShowTaskbar": "1", "StartUp": "0", "Ext": "*.mp4;*.png;*.wav"},
            "Output": {"Show": "True"},
            "Playlist": {"LastPlay": "1", "LastPlaySchdule": "1", "LastPlaylist": "List.plt", "OneAfterAnother": "1"},
        }
        ini.write(self.settings, self._sections)
        for section, keys in (settings or {}).items():
            self.change(section, **keys)
        left, top, width, height = (str(measure * TWIPS) for measure in place)
        window = {"Left": left, "Top": top, "Width": width, "Height": height}
        ini.write(self.folder / "Window.ini", {"frmPlayer": window})

    def change(self, section, **keys):
        """Sets keys of the settings before the first start."""
        self._sections.setdefault(section, {}).update(keys)
        ini.write(self.settings, self._sections)

    def playlist(self, *paths, name="List.plt"):
        """A playlist file of these media, in this order."""
        rows = {}
        for index, path in enumerate(paths):
            rows[f"07:{index:02}:00 AM"] = {
                "Duration": "0:0:2", "EndTime": f"07:{index:02}:02 AM", "FileName": "Item", "Path": str(path),
            }
        ini.write(self.folder / "Playlist" / name, rows)

    def clip_folder(self, *files):
        """A folder of the station with these files as a.mp4, b.mp4 and so on."""
        folder = self.folder / "Clips"
        folder.mkdir()
        for letter, file in zip(string.ascii_lowercase, files):
            shutil.copy2(file, folder / f"{letter}.mp4")
        return folder

    def crawler_ad(self, name, header, scroll, speed=30, header_height=300, **info):
        """A crawler ad of these pictures, as the desk would store it; the measures are twips."""
        folder = self.folder / "Ads" / name
        folder.mkdir(parents=True)
        shutil.copy2(header, folder / "header.jpg")
        shutil.copy2(scroll, folder / "scorl.jpg")
        description = {"Active": "1", "Header": "header.jpg", "Left": "left.", "Right": "right.", **info}
        settings = {"Speed": speed, "HeaderHeight": header_height, "SideWidth": "1000", "AdTop": "0"}
        ini.write(folder / "adinfo.ini", {"Info": description, "Settings": settings})
        return folder

    def band(self, height):
        """The lowest `height` rows of the picture on the air: the scrolling picture of an ad of that height."""
        left, top, width, whole = self.place
        return self.screen.pixels(left, top + whole - height, width, height)

    def video_ad(self, name, video, **info):
        """A video ad, as the desk would store it."""
        folder = self.folder / "VideoAd" / name
        folder.mkdir(parents=True)
        shutil.copy2(video, folder)
        ini.write(folder / "adinfo.ini", {"AdInfo": {"FileName": video.name, "Company": "", "Address": "", **info}})
        return folder

    def start(self, *arguments):
        self._process = self.desk.start(self.program, *arguments, cwd="/")
        return self

    def start_on_air(self):
        """Starts and waits for the output window."""
        self.start()
        until("the output window", self.output)
        return self

    @property
    def alive(self):
        return self._process is not None and self._process.poll() is None

    @property
    def pid(self):
        return self._process.pid

    def exit_status(self):
        return self._process.poll()

    def stop(self):
        """Pulls the plug."""
        self._process.kill()
        self._process.wait()

    def setting(self, section, key):
        return ini.value(self.settings, section, key)

    def await_setting(self, section, key, wanted):
        until(f"{key}={wanted} in {section}", lambda: self.setting(section, key) == wanted)

    def open_form(self, form, *entries):
        """Opens a form by the entries of the menu that lead to it. Gives a reader of its controls."""
        reader = Reader(self.screen)
        until("the control window", self.control)
        reader.choose_entry(*entries)
        until(f"the form {form}", lambda: self.screen.window(form=form))
        return reader

    def output(self):
        return self.screen.window(form="frmPlayer")

    def control(self):
        return self.screen.window(form="frmMid")

    def colour(self):
        """What is on the air: a colour's name, "mixed" when the middle and a corner of the picture differ."""
        left, top, width, height = self.place
        seen = {
            media.name_of(self.screen.pixel(x, y))
            for x, y in ((left + width // 2, top + height // 2), (left + width // 8, top + height // 8))
        }
        return seen.pop() if len(seen) == 1 else "mixed"

    def clock(self):
        """Seconds that the clip with the clock shows; None while something else is on the air."""
        left, top, width, height = self.place
        row = self.screen.pixels(left, top + height // 2, width, 1)[0]
        return media.time_of_clock([row[(2 * bit + 1) * width // (2 * media.CLOCK_BITS)] for bit in range(media.CLOCK_BITS)])

    def frame(self):
        """The number of the frame on the air of the clip whose frames count; None while something else is there."""
        left, top, width, height = self.place
        bars = [(2 * bit + 1) * width // (2 * media.FRAME_BITS) for bit in range(media.FRAME_BITS)]
        rows = [self.screen.pixels(left, top + height * part // 4, width, 1)[0] for part in (1, 3)]
        return media.number_of_frame(*([row[x] for x in bars] for row in rows))

    def await_colour(self, wanted):
        until(f"{wanted} on the air", lambda: self._is_alive() and self.colour() == wanted)

    def items(self, count, seconds=60.0):
        """The next `count` items on the air by their colours. Black parts an item from the next; a colour counts once
        it has stood for two looks."""
        seen, last, standing = [], None, "black"
        deadline = time.monotonic() + seconds
        while len(seen) < count and time.monotonic() < deadline:
            self._is_alive()
            now = self.colour()
            if now == last and now not in (standing, "mixed"):
                standing = now
                if now != "black":
                    seen.append(now)
            last = now
            time.sleep(0.03)
        return seen

    def assert_plays(self, *wanted):
        seen = self.items(len(wanted))
        assert seen == list(wanted), f"on the air were {seen} and not {list(wanted)}"

    def assert_goes_on(self, what="the programme"):
        """Its pictures count on; see `media.frames`."""
        before = until(what, self.frame)
        until(f"{what} to go on", lambda: (self.frame() or before) > before)

    def assert_responsive(self):
        """The control window comes on Ctrl+M."""
        self._is_alive()
        self.screen.keys("ctrl+m")
        until("the control window after Ctrl+M", self.control)

    def _is_alive(self):
        assert self.alive, f"the program ended with status {self.exit_status()}"
        return True


def web_page(folder, address, window, offset=(0, 0)):
    """Stores the page that a station in `folder` begins with: the place of its window (left, top, width, height) and
    where in it the page lies, in pixels."""
    keys = ("FrmLeft", "FrmTop", "FrmWidth", "FrmHeight", "PageLeft", "PageTop")
    places = {key: str(pixels * TWIPS) for key, pixels in zip(keys, (*window, *offset))}
    ini.write(folder / "Page.ini", {WEB_PAGE: {"URL": address, **places}})
    ini.write(folder / "settings_page.ini", {"StartUpPage": {"PageName": WEB_PAGE}})


def corvanta_is_built():
    return os.access(PROGRAM, os.X_OK)
