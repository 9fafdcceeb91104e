#!/usr/bin/python3
"""memory.py [MINUTES]: whether the memory of a station with nine movies and the crawl over a 1080p clip stays where it is
behind the first third of MINUTES (30 unless told otherwise), the movies of column and flash ad following each other all
the time: as a whole (PSS), which moves with every other browser on the machine, and without the pages of files, which is
what could grow. It may run beside other work."""

import sys

from whole_station import SCREEN, Run, watch_memory, with_nine_movies
from harness.desk import Desk


def main():
    minutes = float(sys.argv[1]) if len(sys.argv) > 1 else 30
    with Desk(*SCREEN) as desk:
        run = Run(desk, [with_nine_movies(desk).program])
        watch_memory(run, minutes)
        assert run.process.poll() is None, "it ended early"
        run.process.kill()
        run.process.wait()


if __name__ == "__main__":
    main()
