"""What processes use, with all that they have started: CPU time and memory."""

import os
import pathlib
import subprocess
import time

TICKS_OF_A_SECOND = os.sysconf("SC_CLK_TCK")


class Meter:
    """Watches processes and their descendants from now on."""

    def __init__(self, *roots):
        self._roots = roots
        self._began, self._before = time.monotonic(), self._used()

    def _used(self):
        known = processes()
        return sum(known[pid][1] for root in self._roots for pid in tree(root, known))

    def cost(self):
        """CPU seconds per second, since the meter was made."""
        return (self._used() - self._before) / (time.monotonic() - self._began)


def processes():
    """Of each process its parent's number and the CPU seconds that it has used."""
    known = {}
    for entry in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            fields = (entry / "stat").read_text().rsplit(")", 1)[1].split()
        except OSError:
            continue  # it has ended meanwhile
        known[int(entry.name)] = int(fields[1]), (int(fields[11]) + int(fields[12])) / TICKS_OF_A_SECOND
    return known


def tree(root, known):
    """A process and all its descendants."""
    waiting = [root]
    while waiting:
        pid = waiting.pop()
        yield pid
        waiting += [child for child, (parent, _) in known.items() if parent == pid]


def pss_of_tree(root):
    """Megabytes of the process and all below it, what is shared counted once."""
    total = 0
    for pid in tree(root, processes()):
        try:
            lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
        except OSError:
            continue
        total += sum(int(line.split()[1]) for line in lines if line.startswith("Pss:"))
    return total / 1024


def x_server():
    """The display's server, of which this program has started one."""
    ours = str(os.getpid())
    servers = subprocess.run(["pgrep", "-P", ours, "Xvfb"], capture_output=True, text=True, check=True).stdout.split()
    assert len(servers) == 1, servers
    return int(servers[0])
