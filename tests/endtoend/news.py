#!/usr/bin/python3
"""The news strip on the air: its texts in turn, in every script, and its place."""

import sys
import time

from harness import ini, letters, media
from harness.feeds import Feed
from harness.patience import throughout, until
from harness.reader import Reader
from harness.scenarios import main, scenario
from harness.station import Station

sys.path.insert(0, str(media.ROOT / "demo"))
import movies  # noqa: E402

GROUND = (150, 10, 20)
LABEL = 170  # pixels on the left that the line passes behind
SIZE = 31
# What the strip shows, in the order of its headlines, and the script that it is read in. The blanks between words are
# another font's, so that of the script whose own blank is of another width there is one word.
HEADLINES = (
    ("Größe: Übermorgen öffnet die Brücke", "Latn"),
    ("রাষ্ট্রপতি বিশ্বকাপ উদ্বোধন করেছেন", "Beng"),
    ("والمستشفيات", "Arab"),
)

# As it is read: from the right, but for the Latin name and the digits of the year.
SENTENCE = (("قال", "Arab"), ("Orlin", "Latn"), ("إن", "Arab"), ("عام", "Arab"), ("2026", "Latn"), ("جديد.", "Arab"))
MARGIN = 16  # pixels between the line where it stands and the side that it is read from


def station_with_strip(desk, *headlines, hold=75, speed=5, **settings):
    """A station whose strip is on, below the output window and at the size of its movie. Without headlines there is no
    rss.ini."""
    place = {"Left": "300"}
    station = Station(desk, settings={"BreakingNews": {"Show": "True", **place}, "Settings": settings})
    windows = station.folder / "Window.ini"
    strip = {"Left": "300", "Top": str(500 * 15), "Width": "15450", "Height": "900"}
    left, top, width, height = (str(measure * 15) for measure in station.place)
    output = {"Left": left, "Top": top, "Width": width, "Height": height}
    ini.write(windows, {"frmPlayer": output, "frmBreakingNews": strip})
    movie = station.folder / "Media" / "FlashBN" / "bn.swf"
    movie.parent.mkdir(parents=True)
    movie.write_bytes(movies.breaking_news(hold=hold, speed=speed))
    if headlines:
        store(station, *headlines)
    station.playlist(media.frames())
    return station


def store(station, *headlines):
    rows = {str(row): {"Text": text, "Active": "1"} for row, text in enumerate(headlines, 1)}
    ini.write(station.folder / "rss.ini", rows)


def strip(station):
    return station.screen.window(form="frmBreakingNews")


def pixels(station):
    window = until("the strip", lambda: strip(station))
    return station.screen.pixels(window.x, window.y, window.width, window.height)


def line(station):
    """The ink of the strip's line where it stands still; empty while it moves or is away."""
    look = [row[LABEL + 4 :] for row in pixels(station)]
    seen = letters.ink(look)
    time.sleep(0.15)
    return seen if seen and letters.ink([row[LABEL + 4 :] for row in pixels(station)]) == seen else []


def await_text(station, text, script, seconds=60):
    """Waits until the strip's line stands and reads so; gives its likeness, font and ink."""
    best = (0.0, "", [])

    def reads():
        nonlocal best
        seen = line(station)
        if seen:
            best = max(best, (*letters.best_likeness(seen, text, script, SIZE), seen))
        return best[0] > 0.7

    try:
        until(f"{text} on the strip", reads, seconds)
    except AssertionError as gave_up:
        raise AssertionError(f"{gave_up}; best likeness {best[:2]}") from None
    return best


@scenario
def the_strip_shows_its_first_text_and_then_the_headlines_in_turn_in_every_script(desk):
    station = station_with_strip(desk, *(text for text, _ in HEADLINES))
    station.start_on_air()
    for text, script in (("Hello Orlin", "Latn"), *HEADLINES, HEADLINES[0]):
        likeness, font, seen = await_text(station, text, script)
        print(f"{text}: {likeness:.2f} like {font.rsplit('/', 1)[-1]}")
        station.screen.picture(media.ROOT / "build" / f"news-{script}.png")
        if script != "Latn":
            apart = letters.likeness(seen, letters.set_text(text, script, font, SIZE, letters.APART))
            print(f"  with its letters apart: {apart:.2f}")
            assert apart < likeness - 0.1, "letters that are not joined look as good"


def edges(station):
    """The columns of the strip between which its line has ink; None where it has none."""
    columns = zip(*(row[LABEL + 4 :] for row in pixels(station)))
    inked = [x for x, column in enumerate(columns, LABEL + 4) if any(p[1] >= letters.WHITE_FROM for p in column)]
    return (inked[0], inked[-1]) if inked else None


def await_standing(station, first, from_the_right):
    """Waits until a line stands that begins with that word at the side it is read from."""
    until(f"{first} at the beginning of the strip's line",
          lambda: letters.likeness_at_side(line(station), *first, SIZE, from_the_right) > 0.7, 60)


@scenario
def a_sentence_that_is_read_from_the_right_has_its_latin_words_and_numbers_in_their_places(desk):
    station = station_with_strip(desk, " ".join(text for text, _ in SENTENCE), hold=200)
    station.start_on_air()
    width = until("the strip", lambda: strip(station)).width
    alike = []

    def reads():
        nonlocal alike
        seen = line(station)
        _, right = edges(station) or (0, 0)
        if not seen or not width - 2 * MARGIN < right < width - MARGIN / 2:
            return False
        words = letters.words(seen, len(SENTENCE))[::-1]
        alike = [letters.best_likeness(ink, *word, SIZE)[0] for ink, word in zip(words, SENTENCE)]
        return len(words) == len(SENTENCE) and min(alike) > 0.7

    try:
        until("the sentence with its beginning at the right", reads, 60)
    finally:
        print("word by word:", *(f"{one:.2f}" for one in alike))
    station.screen.picture(media.ROOT / "build" / "news-sentence.png")


def passes_from_its_beginning(desk, text, first, from_the_right):
    """The line stands with its first word on the side it is read from, leaves on that side, its end last, and the next
    headline follows."""
    station = station_with_strip(desk, text, "The end", hold=40, speed=10)
    station.start_on_air()
    await_standing(station, first, from_the_right)
    station.screen.picture(media.ROOT / "build" / f"news-long-{first[1]}.png")
    width = strip(station).width

    def is_leaving():
        """Its end is seen, far from the side that it came in by, and its beginning has passed the other one."""
        left, right = edges(station) or (0, width)
        return left > LABEL + 150 and right > width - 40 if from_the_right else left < LABEL + 40 and right < width - 150

    until("the end of the line to pass", is_leaving, 60)
    # Were it to go on for as long as the longest line, it would take that long again.
    await_text(station, "The end", "Latn", seconds=25)


@scenario
def a_long_line_that_is_read_from_the_left_passes_leftwards(desk):
    passes_from_its_beginning(desk, "Beginning " + "and so on " * 14, ("Beginning", "Latn"), from_the_right=False)


@scenario
def a_long_line_that_is_read_from_the_right_passes_rightwards(desk):
    passes_from_its_beginning(desk, "جديد " + "قال إن عام 2026 " * 9, ("جديد", "Arab"), from_the_right=True)


@scenario
def with_no_headline_the_strip_loops_with_its_text_and_makes_no_file(desk):
    station = station_with_strip(desk, hold=10)
    station.start_on_air()
    for _ in range(3):
        await_text(station, "Hello Orlin", "Latn")
        until("the line to be gone", lambda: not letters.ink([row[LABEL + 4 :] for row in pixels(station)]))
    assert not (station.folder / "rss.ini").exists()


@scenario
def the_strip_is_opaque_in_its_own_background_above_the_picture(desk):
    station = station_with_strip(desk)
    station.start_on_air()
    until("the ground", lambda: station.screen.pixel(*_corner(station)) == GROUND)
    seen = {pixel for row in pixels(station)[:4] for pixel in row}
    assert seen <= {GROUND, (90, 0, 10)}, seen


def _corner(station):
    window = until("the strip", lambda: strip(station))
    return window.x + window.width - 5, window.y + 5


@scenario
def a_new_station_has_the_movie_and_a_strip_without_one_is_empty_and_silent(desk):
    station = station_with_strip(desk)
    movie = station.folder / "Media" / "FlashBN" / "bn.swf"
    movie.unlink()
    movie.parent.rmdir()
    station.start_on_air()
    until("the movie", movie.exists)
    await_text(station, "Hello Orlin", "Latn")
    station.stop()
    movie.write_bytes(b"")
    station.start_on_air()
    until("the strip", lambda: strip(station))
    until("the splash to go", lambda: station.screen.window(form="frmLoad") is None)
    throughout("an empty strip", lambda: {p for row in pixels(station) for p in row} == {(0, 0, 0)}, 3)
    station.assert_responsive()


@scenario
def headlines_of_ten_thousand_letters_and_strange_signs_pass_and_the_programme_goes_on(desk):
    strange = ["[1] = ; \"quoted\" 100% <b>&amp;</b> \\n", "x" * 10_000, "ব" * 10_000, "\u202e\ufeff\u0007 \U0001f4f0", "The end"]
    station = station_with_strip(desk, *strange, hold=25, speed=50)
    station.start_on_air()
    before = until("the programme", station.frame)
    await_text(station, "The end", "Latn", seconds=170)
    after = until("the programme", station.frame)
    assert after != before
    station.assert_responsive()


@scenario
def headlines_written_at_the_desk_come_on_the_strip_and_the_sliders_place_it(desk):
    station = station_with_strip(desk, hold=40, StartUp=1)
    station.start_on_air()
    reader = Reader(desk.screen)
    until("the control window", station.control)
    reader.choose_entry("Breaking nws", "Settings")
    window = until("the desk", lambda: desk.screen.window(form="frmBreakingNewsSett"))
    assert not (station.folder / "rss.ini").exists()
    for text in ("First headline", "Second headline"):
        reader.write_over("Headline", text)
        reader.press("Add")
        until("the headline in the list", lambda: reader.find(text, "table cell"))
    desk.screen.picture(media.ROOT / "build" / "news-desk.png")
    rss = station.folder / "rss.ini"
    assert ini.sections(rss) == ["1", "2"] and ini.value(rss, "2", "Text") == "Second headline"
    reader.press("Second headline", "table cell")
    desk.screen.keys("alt+Up")
    until("the order on the disk", lambda: ini.value(rss, "1", "Text") == "Second headline")
    reader.press("Active", "check box")
    until("the switch on the disk", lambda: ini.value(rss, "1", "Active") == "0")
    reader.press("Left of the strip", "slider")
    desk.screen.keys("Home")
    until("the strip at the edge", lambda: strip(station).x == 0)
    station.await_setting("BreakingNews", "Left", "0")
    desk.screen.keys("Right", "Right", "Right")
    station.await_setting("BreakingNews", "Left", "45")
    assert strip(station).x == 3
    desk.screen.ask_to_close(window)
    await_text(station, "First headline", "Latn")


@scenario
def after_the_plug_was_pulled_the_strip_is_back_where_the_desk_put_it(desk):
    station = station_with_strip(desk, "Only headline", StartUp=1)
    station.start_on_air()
    reader = Reader(desk.screen)
    until("the control window", station.control)
    reader.choose_entry("Breaking nws", "Settings")
    until("the desk", lambda: desk.screen.window(form="frmBreakingNewsSett"))
    for slider, keys in (("Left", ["Right"] * 7), ("Top", ["Left"] * 5), ("Height", ["Right"] * 4)):
        reader.press(f"{slider} of the strip", "slider")
        desk.screen.keys("Home", *keys) if slider == "Left" else desk.screen.keys(*keys)
        time.sleep(0.3)
    now = strip(station)
    station.await_setting("BreakingNews", "Left", str(7 * 15))
    until("the place on the disk",
          lambda: ini.value(station.folder / "Window.ini", "frmBreakingNews", "Height") == str(now.height * 15))
    station.stop()
    station.start_on_air()
    then = until("the strip", lambda: strip(station))
    assert (then.x, then.y, then.width, then.height) == (now.x, now.y, now.width, now.height), (now, then)


@scenario
def the_titles_of_a_feed_follow_the_own_headline_and_stay_when_the_feed_is_gone(desk):
    with Feed("<b>Br&uuml;cke</b> wieder offen", "Second of the feed") as feed:
        station = station_with_strip(desk, "Own headline", speed=20, StartUp=1)
        station.start_on_air()
        reader = station.open_form("frmBreakingNewsSett", "Breaking nws", "Settings")
        reader.write_over("Address of the feed", feed.address)
        reader.write_over("Minutes between two fetches", "1")
        assert feed.asked == 0, "nothing is fetched before it is saved"
        reader.press("Save the feed")
        until("the feed to be fetched", lambda: feed.asked)
        assert ini.value(station.folder / "rss.ini", "Feed", "URL") == feed.address
        desk.screen.picture(media.ROOT / "build" / "news-feed-desk.png")
        desk.screen.ask_to_close(desk.screen.window(form="frmBreakingNewsSett"))
        for text in ("Own headline", "Brücke wieder offen", "Second of the feed"):
            await_text(station, text, "Latn", seconds=120)
        feed.gone = True
        asked = feed.asked
        until("the feed to be asked for in vain", lambda: feed.asked > asked, 90)
        for text in ("Own headline", "Second of the feed"):
            await_text(station, text, "Latn", seconds=120)
        station.assert_responsive()


if __name__ == "__main__":
    main()
