"""A file of scenarios: `file.py --list` names them, `file.py NAME` plays one, `file.py` plays them all."""

import pathlib
import re
import shutil
import subprocess
import sys
import traceback

from .desk import Desk
from .media import ROOT
from .station import corvanta_is_built

FAILURES = ROOT / "build" / "e2e-failures"
# What is too large to be kept after a failure.
LARGEST_KEPT = 1 << 20

# What CTest takes for "skipped".
SKIPPED = 77

_scenarios = {}


class Skipped(Exception):
    """The machine lacks what the scenario needs."""


def scenario(function):
    """Marks a function that takes a desk. Its name, in plain words, is the behaviour that it proves."""
    _scenarios[function.__name__] = function
    return function


def has_network():
    """Whether the machine is on line as the station sees it: by a default route."""
    routes = (line.split() for line in open("/proc/net/route"))
    return any(words[1] == "00000000" and int(words[3], 16) & 1 for words in routes if words[1] != "Destination")


def require_network():
    """Skips the scenario on a machine that is off line."""
    if not has_network():
        raise Skipped("this machine has no default route")


def main():
    if sys.argv[1:] == ["--list"]:
        print("\n".join(_scenarios))
        return
    if not corvanta_is_built():
        sys.exit("The program is not built yet: cmake --build --preset release")
    names = sys.argv[1:] or list(_scenarios)
    try:
        failed = [name for name in names if not (_plays(name) if len(names) == 1 else _plays_alone(name))]
    except Skipped as reason:
        print(f"Skipped: {reason}")
        sys.exit(SKIPPED)
    if failed:
        sys.exit(f"Failed: {', '.join(failed)}")


def _plays_alone(name):
    """In a process of its own: what reads the screen stays with the first desk that it has seen."""
    return subprocess.run([sys.executable, "-B", sys.argv[0], name]).returncode in (0, SKIPPED)


def _plays(name):
    with Desk() as desk:
        try:
            _scenarios[name](desk)
            return True
        except Skipped:
            raise
        except Exception:
            traceback.print_exc()
            kept = _keep(desk, name)
            print(f"{name} failed; the screen and the station's files are in {kept}")
            return False


def _keep(desk, name):
    folder = FAILURES / re.sub(r"\W", "_", name)
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    desk.screen.picture(folder / "screen.png")
    desk.log.flush()
    for path in pathlib.Path(desk.folder).rglob("*"):
        if path.is_file() and path.stat().st_size <= LARGEST_KEPT:
            copy = folder / path.relative_to(desk.folder)
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(path, copy)
    return folder
