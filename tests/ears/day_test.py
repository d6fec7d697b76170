#!/usr/bin/env python3
"""A day's work by ear alone, through the accessibility bus: another day is loaded, checked and looked at
break by break, what is found is read and lines the splits up, the settings are changed, and the program is
left. Every text in every window can be heard."""

import csv
import datetime
import io
import pathlib
import subprocess
import sys

import ears
import work

BIN = pathlib.Path(sys.argv[1])
RESULTS = "Check Split Times"
HEADING = "These ad breaks did not match in all splits:"
NONE = "There were no problems found."


def in_words(day):
    return f"{day:%A} {day.day} {day:%B %Y}"


def caption(day):
    return f"Velmar KLT Log Checker : {in_words(day)}"


def shown(desk, split, day):
    """The rows of a split as logcheck tells them, in the columns that are on show."""
    done = subprocess.run([BIN / "logcheck", "show", "--settings", desk.folder / "config" / "velmar",
                           "--split", str(split), "--date", day.isoformat()],
                          capture_output=True, check=True, text=True)
    rows = []
    for line in done.stdout.splitlines():
        fields = line.split("\t")
        cells = [fields[1], fields[2], fields[4], fields[5]]
        said = [cell.strip() or "blank" for cell in cells]
        if fields[7:] == ["red"]:
            said[3] += ", no audio"
        rows.append(said)
    return rows


class Work:
    """The program on the sample station, by ear."""

    def __init__(self, desk, day):
        self.desk = desk
        self.program = desk.start(BIN / "logchecker")
        self.application = desk.application("logchecker")
        self.frame = desk.dialog(self.application, caption(day), "frame")

    def grid(self, name):
        return self.desk.find(self.frame, "table", name)

    def results(self):
        return self.desk.find(self.desk.find(self.frame, "frame", RESULTS), "table",
                              lambda name: name in (HEADING, NONE))

    def times(self, name):
        """The time of the break that a split's selection begins with."""
        rows = self.desk.selected(self.grid(name))
        return self.desk.row(self.grid(name), rows[0])[0] if rows else None


def read_the_splits(work_, day, names):
    desk = work_.desk
    for split, name in enumerate(names, 1):
        window = desk.find(work_.frame, "frame", name)
        assert in_words(day) in window.description, window.description
        grid = work_.grid(name)
        assert desk.headings(grid) == ["Time", "Description", "Cart", "Length"], desk.headings(grid)
        rows = shown(desk, split, day)
        table = grid.queryTable()
        assert (table.nRows, table.nColumns) == (len(rows), 4), (table.nRows, len(rows))
        some = [*range(9), *range(len(rows) - 3, len(rows))]
        some += [row for row, cells in enumerate(rows) if "no audio" in cells[3]][:2]
        for row in some:
            assert desk.row(grid, row) == rows[row], (desk.row(grid, row), rows[row])
        assert "showing" in desk.states(desk.cell(grid, 0, 0))
        assert "showing" not in desk.states(desk.cell(grid, len(rows) - 1, 0))
    focused = [name for name in names if [
        cell for cell in desk.first(work_.grid(name), 40) if "focused" in desk.states(cell)]]
    assert focused == names[:1], focused


def load_another_day(work_, day):
    desk = work_.desk
    desk.press(desk.find(work_.frame, "push button", "Load Day"))
    picker = desk.dialog(work_.application, "Select Time")
    days = desk.find(picker, "list", "Days")
    assert all(part.name for part in desk.all(days)), "a gap in the calendar is heard"

    # The year goes up with its number, and the days with it.
    year = desk.find(picker, "spin button", "Year")
    assert year.queryValue().currentValue == day.year, year.queryValue().currentValue
    year.queryValue().currentValue = day.year + 1
    desk.find(days, "list item", f"1 {day:%B} {day.year + 1}")
    desk.do(year, "Decrease")
    dial = desk.find(picker, "dial", "Hour dial")
    dial.queryValue().currentValue = 7
    desk.until(lambda: desk.text(desk.find(picker, "text", "Hour")) == "7", "hour of the dial")

    month = desk.one(picker, "combo box", lambda name: True)
    assert month.description == "Month", month.description
    name = f"{day.day} {day:%B %Y}"
    if month.name != f"{day:%B}":
        desk.keys("Tab", "Down" if day.day == 1 else "Up")
    desk.press(desk.find(days, "list item", name))
    desk.until(lambda: [part.name for part in desk.all(days)
                        if "selected" in desk.states(part)] == [name], f"{name!r} picked")
    desk.press(desk.find(picker, "push button", "OK"))
    desk.left(work_.application, "Select Time")
    desk.until(lambda: work_.frame.name == caption(day), "caption of the other day")


def check_the_day(work_, day, names):
    desk = work_.desk
    desk.press(desk.find(work_.frame, "push button", "Check Day"))
    results = work_.results()
    told = work.expected(BIN, desk.folder / "config", day).decode("cp1252")
    wanted = [[cell.strip() for cell in row] for row in csv.reader(io.StringIO(told))]
    desk.until(lambda: results.queryTable().nRows == len(wanted) - 1, "results")
    assert desk.headings(results) == ["Time", *names], desk.headings(results)
    for row, cells in enumerate(wanted[1:]):
        heard = desk.row(results, row)
        assert [text.split(",")[0] for text in heard] == cells, (heard, cells)
        odd = [text for text in heard[1:] if "," in text]
        assert odd, heard
        if "Not Found" in cells:
            assert "Not Found, no break at this time" in heard, heard
    desk.nothing_is_nameless(work_.frame)
    return wanted[1:]


def look_at_breaks(work_, results, names):
    """What is chosen in the results, and then in a grid, is shown in every split."""
    desk = work_.desk
    row, missing = next((row, cells.index("Not Found") - 1) for row, cells in enumerate(results)
                        if "Not Found" in cells)
    time = results[row][0]
    desk.press(desk.cell(work_.results(), row, 1))
    desk.until(lambda: all(work_.times(name) == time for i, name in enumerate(names)
                           if i != missing), f"{time} in every split that has it")
    gap = work_.grid(names[missing])
    assert time in gap.description and work_.times(names[missing]) > time, gap.description
    assert work_.grid(names[missing - 1]).description.count(time) == 0

    # By keys too, with each row told.
    desk.do(desk.cell(work_.results(), 0, 0), "SetFocus")
    desk.until(lambda: desk.selected(work_.results()) == [0], "first row selected")
    desk.hush()
    desk.keys("Down")
    desk.told("focused", "table cell", results[1][0])
    desk.told("selected", "table cell", results[1][0])

    grid = work_.grid(names[1])
    rows = [desk.row(grid, row)[0] for row in range(60)]
    start = max(row for row, text in enumerate(rows) if text != "blank")
    desk.press(desk.cell(grid, start + 1, 1))
    desk.until(lambda: all(work_.times(name) == rows[start] for name in names[1:3]),
               "break of the grid in the next split")


def settings(work_, names):
    desk = work_.desk
    desk.choose(work_.application, "Settings", "General Settings")
    dialog = desk.dialog(work_.application, "KLT Manager Settings")
    for part in desk.all(dialog):
        if part.getRoleName() == "text":
            assert desk.labels(part), part.name
    desk.write(desk.find(dialog, "text", "Number of Splits to Manage:"), str(len(names) - 1))
    desk.press(desk.find(dialog, "push button", "OK"))
    desk.left(work_.application, "KLT Manager Settings")
    desk.find(work_.frame, "label", f"{len(names) - 1} Splits")
    assert desk.one(work_.frame, "frame", names[-1]) is None

    desk.choose(work_.application, "Settings", "Cart Locations")
    dialog = desk.dialog(work_.application, "Velmar Cart Locations:")
    boxes = [part for part in desk.all(dialog) if part.getRoleName() == "text"]
    assert len(boxes) == 11 and all(desk.labels(box) for box in boxes), boxes
    one = desk.find(dialog, "check box", "Use one directory for all the carts on the Audiowall")
    desk.do(one, "Toggle")
    desk.until(lambda: "checked" in desk.states(one), "tick")
    desk.keys("Escape")
    desk.left(work_.application, "Velmar Cart Locations:")

    desk.choose(work_.application, "Settings", "Change the settings for " + names[0])
    dialog = desk.dialog(work_.application, "Velmar KLT Log File Settings:")
    desk.write(desk.find(dialog, "text", "File Extension :"), "XYZ")
    desk.until(lambda: desk.one(dialog, "label", lambda name: name.endswith(".XYZ")),
               "sample of the file's name")
    desk.press(desk.find(dialog, "push button", "Cancel"))
    desk.left(work_.application, "Velmar KLT Log File Settings:")

    desk.choose(work_.application, "Help", "About")
    about = desk.dialog(work_.application, "Velmar KLT Log Checker")
    said = [part.name for part in desk.all(about) if part.getRoleName() == "label"]
    assert any(text.startswith("Version ") for text in said), said
    desk.press(desk.find(about, "push button", "OK"))
    desk.left(work_.application, "Velmar KLT Log Checker")


def leave(work_):
    work_.desk.choose(work_.application, "File", "Exit")
    assert work_.program.wait(timeout=30) == 0, work_.program.stderr.read()


def nothing_differs(desk, day):
    subprocess.run([BIN / "logcheck", "sample", desk.folder / "config" / "velmar", "--mistakes", "0"],
                   check=True, stdout=subprocess.DEVNULL)
    work_ = Work(desk, day)
    desk.press(desk.find(work_.frame, "push button", "Check Day"))
    desk.until(lambda: work_.results().name == NONE, "word that nothing differs")
    assert desk.find(work_.frame, "label", NONE)
    desk.keys("Escape")
    leave(work_)


def main():
    with ears.Ears() as desk:
        config = desk.folder / "config"
        tomorrow = datetime.date.today() + datetime.timedelta(days=1)
        other = tomorrow + datetime.timedelta(days=1)
        work.write_sample(BIN, config, tomorrow, 2)
        work_ = Work(desk, tomorrow)
        names = [part.name for part in desk.all(work_.frame) if part.getRoleName() == "table"]
        read_the_splits(work_, tomorrow, names)
        load_another_day(work_, other)
        read_the_splits(work_, other, names)
        results = check_the_day(work_, other, names)
        look_at_breaks(work_, results, names)
        settings(work_, names)
        leave(work_)
        desk.folder.joinpath("config", "velmar").rename(desk.folder / "done")
        nothing_differs(desk, tomorrow)
        print("a day is done by ear")


main()
