#!/usr/bin/env python3
"""The first steps of somebody who reads nothing: the made-up station opens without settings, three clicks tell
why a break differs, F8 finds the others, the status bar tells of another day's log, F1 opens the guide, and
nothing is left behind, whichever way the program ends."""

import collections
import pathlib
import subprocess
import sys

import screen

BIN = pathlib.Path(sys.argv[1])
FRAME = "^Velmar KLT Log Checker : "
TITLE = "^Velmar KLT Log Checker$"
TINT = bytes((255, 232, 178))  # of what is set off in the results
CHECK_DAY = 180, 44            # the label beside the button
SPLITS = 5
STATUS_BAR = 600, 22, 120, 735  # right of the number of splits


class Steps:
    """The made-up station on a screen. The frame is as wide as it opens."""

    def __init__(self, desk, temporary):
        self.desk = desk
        self.temporary = temporary
        self.program = desk.start(BIN / "logchecker", "--try")
        self.frame = desk.window(FRAME, "main window with the made-up station")
        values = dict(pair.split("=") for pair in desk.tool("getwindowgeometry", "--shell", self.frame))
        self.size = int(values["WIDTH"]), int(values["HEIGHT"])
        desk.settled()

    def pixels(self):
        """The frame's, three bytes each."""
        done = subprocess.run(["import", "-silent", "-window", self.frame, "-depth", "8", "rgb:-"],
                              env=self.desk.environment, capture_output=True, check=True)
        assert len(done.stdout) == self.size[0] * self.size[1] * 3
        return done.stdout

    def part(self, pixels, width, height, left, top):
        rows = range(top, top + height)
        return [pixels[(row * self.size[0] + left) * 3:(row * self.size[0] + left + width) * 3] for row in rows]

    def break_of(self, pixels, split):
        """The pixels of the break at the top of a split's window."""
        wide = self.size[0] // SPLITS
        return b"".join(self.part(pixels, wide - 60, 40, split * wide + 25, 106))

    def filled(self, pixels, colour):
        """Which splits have their top break filled with a colour."""
        return [sum(1 for _ in occurrences(self.break_of(pixels, split), colour)) > 1000
                for split in range(SPLITS)]

    def tint(self, pixels):
        """The places of the first row of what is set off: its left end, its right end and its top."""
        first = next(occurrences(pixels, TINT), None)
        if first is None:
            return None
        top = first // self.size[0]
        row = pixels[top * self.size[0] * 3:(top + 1) * self.size[0] * 3]
        places = list(occurrences(row, TINT))
        return places[0], places[-1], top

    def tip_at(self, x, y, what):
        """Rests the pointer at a place until it is told something there."""
        before = all_windows(self.desk)
        self.desk.tool("mousemove", "--window", self.frame, x - 3, y, "mousemove_relative", 3, 0)
        return self.desk.until(lambda: all_windows(self.desk) - before, what)

    def no_tip(self):
        self.desk.tool("mousemove", "--window", self.frame, 600, 20)
        self.desk.settled()

    def until(self, condition, what):
        self.desk.until(lambda: condition(self.pixels()), what)
        self.desk.settled()

    def leave(self):
        self.desk.keys("alt+f", "x")
        assert self.program.wait(timeout=30) == 0, self.program.stderr.read()


def occurrences(pixels, colour):
    at = pixels.find(colour)
    while at >= 0:
        if at % 3 == 0:
            yield at // 3
        at = pixels.find(colour, at + 1)


def all_windows(desk):
    """Tool tips too, which bear no name."""
    return set(desk.tool("search", "--onlyvisible", "--class", "."))


def fill_of(steps, pixels):
    """The colour that fills what is selected: that of most of the break at the top."""
    found = steps.break_of(pixels, 1)
    colours = collections.Counter(found[at:at + 3] for at in range(0, len(found), 3))
    del colours[b"\xff\xff\xff"]
    return colours.most_common(1)[0][0]


def why_a_break_differs(steps):
    """Click by click, as the guide has it."""
    desk = steps.desk
    fill = fill_of(steps, steps.pixels())
    assert steps.filled(steps.pixels(), fill) == [True] * SPLITS, "the first break of each split is selected"
    desk.click(steps.frame, *CHECK_DAY)
    steps.until(steps.tint, "result that is set off")
    left, right, top = steps.tint(steps.pixels())
    assert right - left < 70, "only one split of the first row is set off"
    assert left < steps.size[0] // 2 - 60, "and it is the first one"
    steps.tip_at((left + right) // 2, top + 5, "word on what is set off")
    desk.click(steps.frame, (left + right) // 2, top + 5)
    steps.until(lambda pixels: steps.filled(pixels, fill) == [False] + [True] * (SPLITS - 1),
                "break that the first split lacks and the others have")
    steps.tip_at(120, 116, "word on the break that stands in")
    steps.no_tip()


def from_mismatch_to_mismatch(steps):
    desk = steps.desk
    desk.keys("Escape")  # the results go, and the keys are a split's again
    steps.until(lambda pixels: not steps.tint(pixels), "end of the results")
    desk.keys("ctrl+Home", "Return")
    desk.settled()
    first = [steps.break_of(steps.pixels(), split) for split in range(SPLITS)]
    seen = [first]
    for _ in range(2):
        desk.keys("F8")
        steps.until(lambda pixels: [steps.break_of(pixels, split) for split in range(SPLITS)] not in seen,
                    "next mismatch")
        seen.append([steps.break_of(steps.pixels(), split) for split in range(SPLITS)])
    assert steps.tint(steps.pixels()), "the results are there beside the grid"
    desk.keys("shift+F8")
    steps.until(lambda pixels: [steps.break_of(pixels, split) for split in range(SPLITS)] == seen[1],
                "mismatch before that")
    # In the grid these keys lead to its first break; in the results they would lead to their first row.
    desk.keys("ctrl+Home", "Return")
    steps.until(lambda pixels: [steps.break_of(pixels, split) for split in range(SPLITS)] == first,
                "first break, since the keys are still the grid's")


def guide(steps, opened):
    desk = steps.desk
    desk.keys("F1")
    desk.until(lambda: opened.read_text().endswith("/look-at-a-break-in-every-split.html\n"), "page of a split")
    desk.keys("ctrl+d")
    desk.settled()
    desk.keys("F1")
    desk.until(lambda: opened.read_text().endswith("/find-out-why-a-break-differs.html\n"), "page of the results")
    desk.keys("alt+s", "g")
    dialog = desk.window("^KLT Manager Settings$")
    desk.keys("F1")
    desk.until(lambda: opened.read_text().endswith("/set-a-station-up.html\n"), "page of the settings")
    desk.keys("Escape")
    desk.gone(dialog)
    for page in opened.read_text().split():
        assert pathlib.Path(page.removeprefix("file://")).is_file(), page


def log_of_another_day(steps):
    """The first split's log of the next day is taken away."""
    desk = steps.desk
    logs = sorted(steps.temporary.glob("*/velmar/logs/Larkfield/*"))
    assert len(logs) == 7, logs
    logs[1].unlink()
    steps.no_tip()
    before = steps.part(steps.pixels(), *STATUS_BAR)
    days = []
    for key in ("Right", "Left"):
        desk.keys("ctrl+l")
        # It is one window, which is hidden in between.
        picker = desk.window("^Select Time$", "picker of the day", new=False)
        desk.keys(key, "Return")
        desk.gone(picker)
        desk.settled()
        days.append(steps.part(steps.pixels(), *STATUS_BAR))
        if key == "Right":
            steps.tip_at(STATUS_BAR[2] + 40, STATUS_BAR[3] + 10, "word on the day that has no log")
            steps.no_tip()
    assert days[0] != before, "the status bar tells of the other day"
    assert days[1] == before, "and no longer once the day has its log"
    steps.tip_at(120, 71, "word on the log in a split's title")


def leaves_nothing(desk, temporary):
    desk.until(lambda: not list(temporary.iterdir()), "end of the made-up station")
    assert not (desk.folder / "config" / "velmar").exists(), "no settings are left"


def no_room(desk):
    """Where the station can't be written, a box says what to do."""
    desk.environment["TMPDIR"] = str(desk.folder / "opened")  # no folder at all
    program = desk.start(BIN / "logchecker", "--try")
    box = desk.window(TITLE, "message that there is no room")
    desk.keys("Return")
    desk.gone(box)
    assert program.wait(timeout=30) == 1, program.stderr.read()


def main():
    with screen.Screen() as desk:
        temporary, opened = desk.folder / "tmp", desk.folder / "opened"
        temporary.mkdir()
        opened.write_text("")
        stand_in = desk.folder / "programs"
        stand_in.mkdir()
        (stand_in / "xdg-open").write_text(f'#!/bin/sh\necho "$1" >>{opened}\n')
        (stand_in / "xdg-open").chmod(0o755)
        desk.environment["PATH"] = f"{stand_in}:{desk.environment['PATH']}"
        desk.environment["TMPDIR"] = str(temporary)
        steps = Steps(desk, temporary)
        why_a_break_differs(steps)
        from_mismatch_to_mismatch(steps)
        guide(steps, opened)
        log_of_another_day(steps)
        steps.leave()
        leaves_nothing(desk, temporary)
        steps = Steps(desk, temporary)
        steps.program.terminate()
        assert steps.program.wait(timeout=30) == -15
        leaves_nothing(desk, temporary)
        no_room(desk)
        print("the first steps lead somewhere")


main()
