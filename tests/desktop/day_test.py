#!/usr/bin/env python3
"""A day's work on a freshly written sample station, by real keys and a real mouse: see tomorrow, check
it, click through what differs, save it, load another day, check and save that, and leave. The saved
files must be logcheck's, byte for byte."""

import datetime
import pathlib
import re
import sys

import screen
import work

BIN = pathlib.Path(sys.argv[1])


def main():
    with screen.Screen() as desk:
        config = desk.folder / "config"
        tomorrow = datetime.date.today() + datetime.timedelta(days=1)
        work.write_sample(BIN, config, tomorrow, 3)
        program = desk.start(BIN / "logchecker")
        frame = desk.window(work.caption(tomorrow), "main window with tomorrow in it")

        # Check the day with the mouse, on the label beside the button.
        before, after = desk.folder / "before.png", desk.folder / "after.png"
        desk.picture(before)
        desk.click(frame, 180, 44)
        geometry = desk.tool("getwindowgeometry", "--shell", frame)
        values = dict(pair.split("=") for pair in geometry)
        left, top = int(values["X"]), int(values["Y"])
        width = int(values["WIDTH"])
        middle = f"300x200+{left + width // 2 - 150}+{top + 300}"
        desk.until(lambda: desk.picture(after) or desk.difference(before, after, middle) > 1000,
                   "results window")
        desk.settled()

        # A click on the second row lines the first split up on another break.
        desk.picture(before)
        rows_left = width // 2 - 140
        first_split = f"180x500+{left + 20}+{top + 120}"
        for height in range(260, 420, 13):
            desk.click(frame, rows_left, height)
            desk.settled()
            desk.picture(after)
            if desk.difference(before, after, first_split) > 1000:
                break
        else:
            raise AssertionError("no click on a row lined the splits up")

        report = desk.folder / "tomorrow.csv"
        # The click has selected one row, which stands for the whole list.
        work.save(desk, report)
        assert report.read_bytes() == work.expected(BIN, config, tomorrow), report.read_bytes()

        # Another day, from the keyboard alone.
        desk.keys("ctrl+l")
        picker = desk.window("^Select Time$", "picker of the day")
        desk.keys("Right", "Right", "Return")
        desk.gone(picker)
        later = tomorrow + datetime.timedelta(days=2)
        desk.until(lambda: re.search(work.caption(later), desk.name(frame)), "caption of the other day")
        desk.keys("ctrl+d")
        report = desk.folder / "later.csv"
        work.save(desk, report)
        assert report.read_bytes() == work.expected(BIN, config, later), report.read_bytes()

        desk.keys("Escape")
        desk.keys("alt+f", "x")
        assert program.wait(timeout=30) == 0, program.stderr.read()
        print("a day's work is done")


main()
