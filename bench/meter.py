"""What processes use, with all that they have started: CPU time and memory."""

import os
import pathlib
import subprocess
import time

from harness.processes import tree_of

TICKS_OF_A_SECOND = os.sysconf("SC_CLK_TCK")


class Meter:
    """Watches processes and their descendants from now on."""

    def __init__(self, *roots):
        self._roots = roots
        self._began, self._before = time.monotonic(), self._used()

    def _used(self):
        return sum(used_by(pid) for root in self._roots for pid in tree_of(root))

    def cost(self):
        """CPU seconds per second, since the meter was made."""
        return (self._used() - self._before) / (time.monotonic() - self._began)


def used_by(pid):
    """CPU seconds; none where the process has ended meanwhile."""
    try:
        fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()
    except OSError:
        return 0
    return (int(fields[11]) + int(fields[12])) / TICKS_OF_A_SECOND


def pss_of_tree(root):
    """Megabytes of the process and all below it, what is shared counted once."""
    return _of_tree(root, "Pss:")


def own_of_tree(root):
    """Megabytes of the process and all below it without the pages of files: those count less as soon as any other program
    has the same library open."""
    return _of_tree(root, "Pss_Anon:", "Pss_Shmem:")


def _of_tree(root, *kinds):
    total = 0
    for pid in tree_of(root):
        try:
            lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
        except OSError:
            continue
        total += sum(int(line.split()[1]) for line in lines if line.startswith(kinds))
    return total / 1024


def x_server():
    """The display's server, of which this program has started one."""
    ours = str(os.getpid())
    servers = subprocess.run(["pgrep", "-P", ours, "Xvfb"], capture_output=True, text=True, check=True).stdout.split()
    assert len(servers) == 1, servers
    return int(servers[0])
