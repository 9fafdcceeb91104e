#!/usr/bin/python3
"""crawl.py [SECONDS]: ticks of the crawl that come late by more than a frame, per 36,000, while a 1920x1080 clip plays
under the band. Beside it, at the same time, a bare loop of the same frame clock: what it loses, the machine has taken.
Ten minutes unless told otherwise; the machine must be idle otherwise."""

import subprocess
import sys
import time

from composed import ON_AIR, Desk, clip, picture

BARE = ON_AIR.with_name("bare_loop")
TICKS = 36_000
WARM_UP = 5


def counts(heard):
    """Ticks, late ones and the latest one's milliseconds, as the program told them last."""
    lines = [line.split() for line in heard.read_text().splitlines()]
    ticks, late, worst = next(line for line in reversed(lines) if len(line) == 3)
    return int(ticks), int(late), float(worst)


def told_since(before, heard):
    """In words, the ticks since those counts, and how many of them were late."""
    ticks, late, worst = counts(heard)
    ticks, late = ticks - before[0], late - before[1]
    return f"{late} late of {ticks} ticks, {late * TICKS / ticks:.1f} per {TICKS}; latest {worst:.1f} ms"


def main():
    seconds = float(sys.argv[1]) if len(sys.argv) > 1 else 600
    band = [clip(), picture("header.jpg", "1920x40"), picture("scroll.jpg", "6000x90")]
    commands = {"crawl": [ON_AIR, *band], "bare loop": [BARE]}
    with Desk(1920, 1080) as desk:
        running = {}
        for name, command in commands.items():
            heard = desk.folder / f"{name}.txt"
            with open(heard, "wb") as out:
                words = [str(word) for word in command]
                running[name] = heard, subprocess.Popen(words, stdout=out, env=desk.environment)
        time.sleep(WARM_UP)
        before = {name: counts(heard) for name, (heard, _) in running.items()}
        time.sleep(seconds)
        for name, (heard, process) in running.items():
            assert process.poll() is None, f"{name} ended early"
            print(f"{name:10} {told_since(before[name], heard)}")
            process.kill()


if __name__ == "__main__":
    main()
