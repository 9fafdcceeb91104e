#!/usr/bin/python3
"""band.py [SECONDS]: what the crawler band adds to the on-air picture, in CPU seconds per second of the program and of
the X server, at 1920x1080: a 25 frames a second clip under a band with header, scrolling picture and both panels, and
the same clip alone, in turn."""

import sys

from composed import ON_AIR, clip, compare, picture


def main():
    seconds = float(sys.argv[1]) if len(sys.argv) > 1 else 20
    video = clip()
    band = [picture("header.jpg", "1920x40"), picture("scroll.jpg", "6000x90")]
    band += [picture(f"{side}.jpg", "100x130") for side in ("left", "right")]
    commands = {"clip and band": [ON_AIR, video, *band], "clip alone": [ON_AIR, video]}
    with_band, alone = compare(commands, seconds)
    print(f"with band / without {with_band / alone:.2f}")


if __name__ == "__main__":
    main()
