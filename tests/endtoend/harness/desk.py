"""A virtual display with a window manager and a session bus of its own, for one scenario."""

import os
import pathlib
import subprocess
import tempfile

from .screen import Screen


class Desk:
    """Brings everything up on entering and takes it down on leaving. `folder` is scratch space that goes with it."""

    def __init__(self, width=1920, height=1080):
        self._width, self._height = width, height
        self._size = f"{width}x{height}x24"
        self._started = []
        self.environment = dict(os.environ)

    def __enter__(self):
        self._scratch = tempfile.TemporaryDirectory(prefix="corvanta-", ignore_cleanup_errors=True)
        self.folder = pathlib.Path(self._scratch.name)
        self.log = open(self.folder / "desk.log", "wb")
        try:
            self._bring_up()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        if hasattr(self, "screen"):
            self.screen.close()
        for process in reversed(self._started):
            process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        self.log.close()
        self._scratch.cleanup()

    def _bring_up(self):
        number = self._start_and_hear("Xvfb", "-displayfd", "{}", "-screen", "0", self._size, "-nolisten", "tcp")
        # Nothing of the user's own desktop reaches the station, and nothing of the station reaches it.
        home = self.folder / "home"
        run = self.folder / "run"
        home.mkdir()
        run.mkdir(mode=0o700)
        self.environment = {
            "PATH": os.environ["PATH"],
            "LANG": "C.UTF-8",
            "HOME": str(home),
            "XDG_CONFIG_HOME": str(home / ".config"),
            "XDG_RUNTIME_DIR": str(run),
            "DISPLAY": f":{number}",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        # The browser that plays movies keeps its processes in boxes, which root may not use.
        if os.getuid() == 0:
            self.environment["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_and_hear(
            "dbus-daemon", "--session", "--nofork", "--print-address={}"
        )
        # For libraries that this process itself uses.
        os.environ.update(self.environment)
        self.screen = Screen(f":{number}")
        self.start_window_manager()

    def start_window_manager(self, *options):
        self._manager = self.start("openbox", *options)

    def end_window_manager(self):
        self._manager.terminate()
        self._manager.wait(20)

    def two_monitors(self):
        """Makes two monitors of the one screen, each half as wide: LEFT is the first, RIGHT the second."""
        half, height = self._width // 2, self._height
        for name, left, output in (("LEFT", 0, "screen"), ("RIGHT", half, "none")):
            subprocess.run(
                ["xrandr", "--setmonitor", name, f"{half}/254x{height}/286+{left}+0", output],
                check=True, timeout=20, env=self.environment,
            )

    def start_compositing(self):
        """Brings up a compositing manager; without one a window has no alpha channel of its own."""
        self.start("picom", "--backend", "xrender", "--config", "/dev/null")

    def start(self, *command, **more):
        """Starts a program on the desk; it is ended with the desk at the latest."""
        process = subprocess.Popen(
            command, stdin=subprocess.DEVNULL, stdout=self.log, stderr=self.log, env=self.environment, **more
        )
        self._started.append(process)
        return process

    def _start_and_hear(self, *command):
        """Starts a server that writes one line to the descriptor named in place of {}; returns that line."""
        hear, tell = os.pipe()
        with open(hear) as line:
            self.start(*(word.format(tell) for word in command), pass_fds=[tell])
            os.close(tell)
            heard = line.readline().strip()
        if not heard:
            raise RuntimeError(f"{command[0]} did not come up")
        return heard
