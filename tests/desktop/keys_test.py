#!/usr/bin/env python3
"""The mouse where it could go wrong and a day without it: a double click, a drag and the other buttons
choose no break but the one that was pressed; the keys reach what they are meant for after the start, each
load and each check; new splits stand behind the old ones; and the program can be ended behind its settings."""

import datetime
import pathlib
import re
import subprocess
import sys

import screen
import work

BIN = pathlib.Path(sys.argv[1])
WHOLE = "1280x1024+0+0"
# Places in the frame of three splits.
SECOND_BREAK = 100, 235  # in split 1, as long as the first break is at the top
CHECK_DAY = 180, 44      # the label beside the button
FIRST_SPLIT = 300, 400, 20, 105
SECOND_SPLIT = 300, 400, 430, 105
RESULTS = 300, 100, 430, 230


class Day:
    """A program on a sample station, and pictures of parts of its frame."""

    def __init__(self, desk, splits, shown):
        self.desk = desk
        self.tomorrow = datetime.date.today() + datetime.timedelta(days=1)
        config = write_station(desk, f"config{splits}", self.tomorrow, splits)
        settings = config / "velmar" / "VELKLT.INI"
        settings.write_bytes(re.sub(rb"(NumberActiveSplits)=[0-9]+", b"\\1=%d" % shown,
                                    settings.read_bytes()))
        self.program = desk.start(BIN / "logchecker", config=config)
        self.frame = desk.window(work.caption(self.tomorrow), "main window")
        values = dict(pair.split("=") for pair in
                      desk.tool("getwindowgeometry", "--shell", self.frame))
        self.left, self.top = int(values["X"]), int(values["Y"])
        self.pictures = 0

    def area(self, width, height, left, top):
        """A part of the frame, as a part of the screen."""
        return f"{width}x{height}+{self.left + left}+{self.top + top}"

    def picture(self):
        self.pictures += 1
        path = self.desk.folder / f"picture{self.pictures}.png"
        self.desk.picture(path)
        return path

    def settled(self):
        """A picture of a screen that has come to rest."""
        last = [self.picture()]

        def rests():
            last.append(self.picture())
            return self.desk.difference(last[-2], last[-1], WHOLE) == 0
        self.desk.until(rests, "rest on the screen")
        return last[-1]

    def changed(self, before, area, what):
        part = self.area(*area)
        self.desk.until(lambda: self.desk.difference(before, self.picture(), part) > 100, what)
        return self.settled()

    def same(self, before, what):
        after = self.settled()
        splits = self.area(1100, 560, 5, 100)
        assert self.desk.difference(before, after, splits) == 0, f"{what}: {before} {after}"

    def back(self):
        """To the first break."""
        self.desk.keys("ctrl+Home", "Return")
        return self.settled()

    def mouse(self, *arguments):
        self.desk.tool("mousemove", "--window", self.frame, *SECOND_BREAK, *arguments)

    def settings(self, text=None):
        """Confirms the general settings, with another number of splits if one is given."""
        self.desk.keys("alt+s", "g")
        dialog = self.desk.window("^KLT Manager Settings$")
        if text is not None:
            self.desk.keys("ctrl+a")
            self.desk.type(text)
        self.desk.keys("Return")
        self.desk.gone(dialog)
        return self.settled()

    def leave(self):
        self.desk.keys("alt+f", "x")
        assert self.program.wait(timeout=30) == 0, self.program.stderr.read()


def write_station(desk, name, day, splits):
    config = desk.folder / name
    subprocess.run([BIN / "logcheck", "sample", config / "velmar", "--date", day.isoformat(),
                    "--days", "3", "--splits", str(splits)], check=True, stdout=subprocess.DEVNULL)
    return config


def click_once_whatever_is_pressed(day):
    first = day.settled()
    day.mouse("click", 1)
    second = day.changed(first, SECOND_SPLIT, "move of every split by one click")
    day.same(day.settled(), "rest")
    assert day.desk.difference(first, day.back(), day.area(*SECOND_SPLIT)) == 0
    day.mouse("click", "--repeat", 2, "--delay", 60, 1)
    day.same(second, "a double click is one click")
    day.back()
    day.mouse("mousedown", 1, "mousemove_relative", 0, 60, "mousemove_relative", 0, 60, "mouseup", 1)
    day.same(second, "a drag takes the row that was pressed")
    first = day.back()
    for button in (3, 2):
        day.mouse("click", button)
        day.same(first, f"button {button} does nothing")


def walk_the_day_by_keys(day):
    desk = day.desk
    before = day.settled()
    # The start has left the focus in the first split, and the mouse has not taken it elsewhere.
    desk.keys(*["Down"] * 8, "Return")
    before = day.changed(before, SECOND_SPLIT, "move of the second split from the first one's grid")
    desk.keys("ctrl+d")
    before = day.changed(before, RESULTS, "results")
    desk.keys("Down", "Return")
    before = day.changed(before, FIRST_SPLIT, "move of the splits from the results")
    # A second check, with the mouse, and the next row.
    desk.click(day.frame, *CHECK_DAY)
    before = day.changed(before, RESULTS, "results without a selected row")
    desk.keys("Down", "Down", "Return")
    before = day.changed(before, FIRST_SPLIT, "move of the splits after the second check")

    desk.keys("ctrl+l")
    picker = desk.window("^Select Time$", "picker of the day")
    desk.keys("Right", "Return")
    desk.gone(picker)
    caption = work.caption(day.tomorrow + datetime.timedelta(days=1))
    desk.until(lambda: re.search(caption, desk.name(day.frame)), "caption of the other day")
    before = day.settled()
    desk.keys(*["Down"] * 8, "Return")
    before = day.changed(before, FIRST_SPLIT, "move of the splits after the load")
    desk.keys("F6", "Tab", "space")
    before = day.changed(before, RESULTS, "results of the other day, from the toolbar")
    desk.keys("Down", "Return")
    before = day.changed(before, FIRST_SPLIT, "move of the splits from the other results")
    desk.keys("Escape")
    day.changed(before, RESULTS, "end of the results")


def end_behind_the_settings(day):
    day.desk.keys("alt+s", "g")
    day.desk.window("^KLT Manager Settings$")
    day.desk.tool("windowactivate", "--sync", day.frame)
    day.desk.keys("alt+F4")
    assert day.program.wait(timeout=30) == 0, day.program.stderr.read()


def more_splits(desk):
    day = Day(desk, 6, 3)
    three = day.settings()
    day.same(day.settings(), "OK again arranges nothing anew")
    part = day.area(360, 300, 400, 70)
    six = day.settings("6")
    # A second row stands above the first one, which comes down by its captions' height.
    moved = day.area(360, 300, 400, 70 + 40)
    done = subprocess.run(["compare", "-metric", "AE", f"{three}[{part}]", f"{six}[{moved}]", "null:"],
                          capture_output=True, text=True, check=False)
    assert float(done.stderr.split()[0]) == 0, "split 2 is covered"
    day.same(day.settings(), "OK again arranges nothing anew")
    end_behind_the_settings(day)


def main():
    with screen.Screen() as desk:
        day = Day(desk, 3, 3)
        click_once_whatever_is_pressed(day)
        walk_the_day_by_keys(day)
        day.leave()
        more_splits(desk)
        print("keys and mouse reach what they are meant for")


main()
