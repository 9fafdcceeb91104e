#!/usr/bin/python3
"""next_ad.py [ROUNDS]: how long the GUI thread is held while the next crawler ad comes on the air, a JPEG of 6000x90
under a 1920x1080 clip, each time one that was not decoded before. Beside it, in turn, the same half second without a
new ad."""

import statistics
import subprocess
import sys

from composed import ON_AIR, Desk, clip, picture

NEXT_AD = ON_AIR.with_name("next_ad")


def stage(folder, ads):
    """A station with so many ads of pictures of their own."""
    header, scroll = picture("header.jpg", "1920x40").read_bytes(), picture("scroll.jpg", "6000x90").read_bytes()
    for number in range(ads):
        ad = folder / "Ads" / f"{number:03}"
        ad.mkdir(parents=True)
        (ad / "header.jpg").write_bytes(header)
        (ad / "scorl.jpg").write_bytes(scroll)
        (ad / "adinfo.ini").write_text(
            "[Info]\r\nActive=1\r\nHeader=header.jpg\r\nLeft=left.\r\nRight=right.\r\n"
            "[Settings]\r\nSpeed=30\r\nHeaderHeight=600\r\nSideWidth=1500\r\nAdTop=0\r\n"
        )
    (folder / "Window.ini").write_text("[frmPlayer]\r\nLeft=0\r\nTop=0\r\nWidth=28800\r\nHeight=16200\r\n")


def main():
    rounds = int(sys.argv[1]) if len(sys.argv) > 1 else 30
    video = clip()
    with Desk(1920, 1080) as desk:
        folder = desk.folder / "station"
        stage(folder, rounds + 2)
        command = [str(NEXT_AD), str(folder), str(video), str(rounds)]
        heard = subprocess.run(command, stdout=subprocess.PIPE, env=desk.environment, text=True, check=True).stdout
    pairs = [tuple(map(float, line.split())) for line in heard.splitlines()]
    for name, held in zip(("next ad", "no ad"), zip(*pairs)):
        print(f"{name:8} median {statistics.median(held):.1f} ms, longest {max(held):.1f} ms, of {len(held)}")


if __name__ == "__main__":
    main()
