#!/usr/bin/python3
"""stage.py PROGRAM FOLDER: makes FOLDER a demo station that goes on the air by itself.

The program in it is renewed each time. Clips, playlist and settings are made where they are missing and else left as
they are, so that the demo station keeps what its operator has set.
"""

import pathlib
import shutil
import sys

import clips
import movies

VIDEO = ["-c:v", "libx264", "-preset", "veryfast", "-pix_fmt", "yuv420p", "-c:a", "aac", "-shortest"]

# Display name, length in seconds, file name, and what ffmpeg makes the file from.
PROGRAMME = [
    (
        "Welcome",
        20,
        "welcome.mp4",
        ["-f", "lavfi", "-i", "gradients=s=1280x720:r=25:d=20:speed=0.01:c0=0x103060:c1=0x2080a0:c2=0x602080:n=3",
         "-f", "lavfi", "-i", "sine=frequency=330:duration=20", "-vf", clips.caption("Corvanta  -  Welcome"), *VIDEO],
    ),
    (
        "Test card",
        12,
        "test-card.mp4",
        ["-f", "lavfi", "-i", "testsrc2=s=1280x720:r=25:d=12",
         "-f", "lavfi", "-i", "sine=frequency=440:duration=12", "-vf", clips.caption("Test card"), *VIDEO],
    ),
    (
        "Interval chime",
        6,
        "interval-chime.mp3",
        ["-f", "lavfi", "-i", "aevalsrc='0.3*sin(2*PI*(440+110*floor(t))*t)*exp(-2*mod(t,1))':d=6", "-q:a", "5"],
    ),
    (
        "Back soon",
        5,
        "back-soon.jpg",
        ["-f", "lavfi", "-i", "color=c=0x204030:s=1280x720:d=1", "-vf", clips.caption("Back soon"), "-frames:v", "1"],
    ),
]

# Name of the ad, company, what scrolls, and the colours of header and scroll.
CRAWLERS = [
    ("Bakery", "Sunrise Bakery", "Fresh bread from six in the morning, every day but Monday", "0x8a4b1c", "0x3a2010"),
    ("Harbour fair", "Town Council", "The harbour fair opens on Saturday at noon, with fireworks at ten", "0x1c5a8a", "0x102838"),
    ("Library", "Public Library", "Reading hour for children on Wednesdays at four", "0x2c7a4b", "0x12301e"),
]

# Name of the ad, file name, address, the colours of its picture, and its tune in hertz.
VIDEO_ADS = [
    ("Harbour ferries", "ferries.mp4", "Pier 2", ("0x0b3d5c", "0x1f8a9c", "0x0b3d5c"), (392, 494)),
    ("Sunrise bakery", "bakery.mp4", "Mill Lane 7", ("0x7a3b12", "0xd98c3f", "0x5c2a10"), (523, 659)),
]
VIDEO_AD_SECONDS = 8

SETTINGS = {
    "Settings": {
        "ShowMouse": "1",
        "ShowTaskbar": "1",
        "StartUp": "1",
        "Ext": "*.mp4;*.mkv;*.avi;*.mpg;*.mp3;*.wav;*.jpg;*.png",
    },
    "Output": {"Show": "True"},
    "AdSettings": {"Show": "True", "LastAd": "1"},
    "VideoAd": {"Show": "True", "AdPlay": "1", "AdTime": "2"},
    "Playlist": {
        "LastPlay": "1",
        "OneAfterAnother": "1",
        "LastPlaylist": "Demo.plt",
        "LastPlaySchdule": "1",
    },
}

# Left, top, width and height in pixels. At the left edge of the picture the column of side ads, along its lower edge the
# crawler's band, 92 pixels high, and along its upper edge the news strip; what else stands above the picture shares the
# rest, each in the shape of its movie. On a display of 1920x1080 the control window comes up in the middle, below the
# right half of the picture, and what is always in front leaves it free.
COLUMN = 136
PLACES = {
    "frmPlayer": (0, 0, 896, 504),
    "FrmLogoShow": (754, 56, 132, 88),
    "frmClockShow": (COLUMN + 12, 56, 150, 48),
    "frmStikerShow": (798, 232, 88, 88),
    "frmFlashAdShow": (COLUMN + 12, 318, 280, 84),
    "frmBreakingNews": (COLUMN, 0, 760, 44),
}

# The type, and of the programme what it holds: a channel may be a file.
CHANNELS = {"TV.chn": ("Television", ["Welcome", "Test card"]), "Radio.chn": ("Music", ["Interval chime"])}

HEADLINES = [
    "The new harbour bridge opens on Monday at eight",
    "Town library: the reading hour moves to five o'clock on Wednesdays",
    "Rain until Thursday, then a dry and sunny weekend",
]


def twips(pixels):
    return str(15 * pixels)


def windows():
    keys = ("Left", "Top", "Width", "Height")
    return {form: dict(zip(keys, map(twips, place))) for form, place in PLACES.items()}


def above_the_picture(media):
    """The settings of what stands above the picture; each one's `Left` wins over its remembered place."""

    def on(form, **keys):
        return {"Show": "True", "Left": twips(PLACES[form][0]), **keys}

    return {
        "Logo": on("FrmLogoShow", Path=media / "Logo" / "Demo" / "logo.swf"),
        "Clock": on("frmClockShow", Path=media / "Clock" / "Demo" / "digital.swf"),
        "Stiker": on("frmStikerShow", Path=media / "Stiker" / "Demo" / "new.swf"),
        "FlashAd": on("frmFlashAdShow", LastPath=media / "FlashAd" / "Demo"),
        "LeftSideAd": {"Show": "True", "Width": twips(COLUMN), "LastPath": media / "LeftSideAd" / "Demo"},
        "BreakingNews": on("frmBreakingNews"),
    }


def write_ini(path, sections):
    """Writes an INI file the way the station does, unless there is one."""
    if path.exists():
        return
    path.parent.mkdir(parents=True, exist_ok=True)
    lines = []
    for name, keys in sections.items():
        lines += [f"[{name}]", *(f"{key}={value}" for key, value in keys.items())]
    path.write_bytes("".join(f"{line}\r\n" for line in lines).encode())


def time_text(second_of_day):
    hour, rest = divmod(second_of_day % 86400, 3600)
    return f"{(hour + 11) % 12 + 1:02}:{rest // 60:02}:{rest % 60:02} {'AM' if hour < 12 else 'PM'}"


def running_order(folder):
    """The rows of the demo playlist, one after another from 7 in the morning."""
    start = 7 * 3600
    rows = {}
    for name, seconds, file_name, _ in PROGRAMME:
        rows[time_text(start)] = {
            "Duration": f"0:{seconds // 60}:{seconds % 60}",
            "EndTime": time_text(start + seconds),
            "FileName": name,
            "Path": folder / file_name,
        }
        start += seconds + 1
    return rows


def plate(path, width, height, colour, text, place):
    """A JPEG of one colour with a line of text on it."""
    ground = ["-f", "lavfi", "-i", f"color=c={colour}:s={width}x{height}:d=1"]
    clips.make(path, *ground, "-vf", clips.line(text, height * 6 // 10, place), "-frames:v", "1", "-q:v", "2")


def crawlers(folder):
    for name, company, text, header, scroll in CRAWLERS:
        ad = folder / name
        plate(ad / "header.jpg", 1024, 36, header, company, "(w-tw)/2")
        plate(ad / "scorl.jpg", 2400, 56, scroll, text, "1024")
        info = {
            "CompanyName": company, "Address": "", "StartDate": "1/1/2026", "EndDate": "12/31/2026", "Active": "1",
            "Header": "header.jpg", "Left": "left.", "Right": "right.",
        }
        settings = {"Speed": "30", "HeaderHeight": "540", "SideWidth": "1500", "AdTop": "0"}
        write_ini(ad / "adinfo.ini", {"Info": info, "Settings": settings})


def video_ads(folder):
    for name, file_name, address, colours, (low, high) in VIDEO_ADS:
        size = f"s=1280x720:r=25:d={VIDEO_AD_SECONDS}"
        shades = ":".join(f"c{number}={colour}" for number, colour in enumerate(colours))
        tune = f"aevalsrc='0.2*sin(2*PI*if(mod(floor(2*t)\\,2)\\,{high}\\,{low})*t)*exp(-4*mod(t\\,0.5))':d={VIDEO_AD_SECONDS}"
        clips.make(
            folder / name / file_name,
            "-f", "lavfi", "-i", f"gradients={size}:speed=0.02:{shades}:n={len(colours)}",
            "-f", "lavfi", "-i", tune, "-vf", clips.caption(name), *VIDEO,
        )
        info = {"FileName": file_name, "Company": name, "Address": address}
        write_ini(folder / name / "adinfo.ini", {"AdInfo": info})


# What the web feed of the demo shows: a page on the disk, so that it needs no network.
BOARD = """<!DOCTYPE html><html><head><meta charset="utf-8"><title>Town board</title></head>
<body style="margin:0;font-family:sans-serif;background:#f4efe2;color:#203040">
<h1 style="margin:0;padding:24px;background:#1c5a8a;color:white">Town board</h1>
<ul style="font-size:28px;line-height:1.8">
<li>Harbour fair: Saturday at noon</li><li>Reading hour: Wednesday at four</li><li>Market: every morning</li>
</ul></body></html>
"""


def web_pages(station):
    """The page, and where it and its window stand: below the picture. It is switched on in the menu."""
    page = station / "Pages" / "board.html"
    if not page.exists():
        page.parent.mkdir()
        page.write_text(BOARD, encoding="utf-8")
    place = {"PageTop": 0, "PageLeft": 0, "FrmHeight": 4500, "FrmWidth": 7800, "FrmTop": 8400, "FrmLeft": 1500}
    write_ini(station / "Page.ini", {"Town board": {"URL": str(page), **{key: str(value) for key, value in place.items()}}})
    write_ini(station / "settings_page.ini", {"StartUpPage": {"PageName": "Town board"}})


def main():
    program, station = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    clip_folder = station / "Media" / "Clips"
    for _, _, file_name, recipe in PROGRAMME:
        clips.make(clip_folder / file_name, *recipe)
    if not (station / "Ads").exists():
        crawlers(station / "Ads")
    if not (station / "VideoAd").exists():
        video_ads(station / "VideoAd")
    movies.make(station / "Media")
    SETTINGS["Playlist"]["FolderPath"] = str(clip_folder)
    write_ini(station / "Settings.ini", SETTINGS | above_the_picture(station / "Media"))
    write_ini(station / "Window.ini", windows())
    clip_of = {name: clip_folder / file_name for name, _, file_name, _ in PROGRAMME}
    for file_name, (kind, names) in CHANNELS.items():
        write_ini(station / "OnlineChannel" / file_name, {kind: {name: clip_of[name] for name in names}})
    write_ini(station / "rss.ini", {str(row): {"Text": text, "Active": "1"} for row, text in enumerate(HEADLINES, 1)})
    web_pages(station)
    write_ini(station / "Playlist" / "Demo.plt", running_order(clip_folder))
    # A running program's file cannot be written over, but it can be replaced.
    for name in ("corvanta", "corvanta-movies", "corvanta-pages"):
        renewed = station / f"{name}.new"
        shutil.copy2(program.with_name(name), renewed)
        renewed.replace(station / name)


if __name__ == "__main__":
    main()
