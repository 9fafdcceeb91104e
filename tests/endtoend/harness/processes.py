"""The processes of a station."""

import os
import pathlib
import signal


def tree_of(pid):
    """The process and all below it."""
    parents = {}
    for entry in pathlib.Path("/proc").iterdir():
        if entry.name.isdigit():
            try:
                parents[int(entry.name)] = int((entry / "stat").read_text().rpartition(")")[2].split()[1])
            except OSError:
                pass
    tree, waiting = [], [pid]
    while waiting:
        one = waiting.pop()
        tree.append(one)
        waiting += [child for child, parent in parents.items() if parent == one]
    return tree


def command_of(pid):
    """How the process was called, as one text; some join their words themselves."""
    try:
        return pathlib.Path(f"/proc/{pid}/cmdline").read_bytes().decode(errors="replace").replace("\0", " ")
    except OSError:
        return ""


def is_there(pid):
    try:
        return pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0] != "Z"
    except OSError:
        return False


def kill_part(station, part, program):
    """Kills the renderers of what plays the station's movies or shows its pages, or that program itself."""
    called = {
        "renderer": lambda command: "--type=renderer " in command,
        "program": lambda command: command.split(" ")[0] == str(station.folder / program),
    }
    victims = [pid for pid in tree_of(station.pid) if called[part](command_of(pid))]
    assert victims, f"no {part}"
    for pid in victims:
        os.kill(pid, signal.SIGKILL)
