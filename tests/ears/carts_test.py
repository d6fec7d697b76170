#!/usr/bin/env python3
"""Carts are picked by ear alone, through the accessibility bus: the browser's rows are a list that tells
each move, a row is made current without being taken, the search is filled in, run and chosen from, and
notes are read."""

import pathlib
import subprocess
import sys

import ears

BIN = pathlib.Path(sys.argv[1])
BROWSER, SEARCH = "Cart Browser", "Find a cart on the Audiowall"


def start(desk, *arguments):
    program = desk.start(BIN / "cartbrowser", *arguments)
    application = desk.application("cartbrowser")
    return program, application, desk.dialog(application, BROWSER)


def ended(program, code, output):
    assert program.wait(timeout=30) == code, (program.returncode, program.stderr.read())
    printed = program.stdout.read().decode()
    assert printed == output, printed


def spoken(desk, number):
    """What is to be heard of a cart, from what logcheck prints of it."""
    done = subprocess.run([BIN / "logcheck", "cart", "--settings", desk.folder / "config" / "velmar",
                           str(number)], capture_output=True, check=True, text=True)
    fields = done.stdout.rstrip("\n").split("\t")
    lines = [line.strip() for line in fields[2:5] if line.strip()]
    return ", ".join([f"Cart {number}", *lines])


def rows(desk, browser):
    return desk.find(browser, "list", "Carts")


def current(desk, browser):
    return [row.name for row in desk.children(rows(desk, browser))
            if "selected" in desk.states(row)]


def the_rows_are_a_list(desk):
    program, _, browser = start(desk, "7")
    listed = desk.children(rows(desk, browser))
    assert [row.getRoleName() for row in listed] == ["list item"] * len(listed)
    assert [row.name for row in listed][:3] == [spoken(desk, number) for number in (1, 2, 3)]
    assert current(desk, browser) == [spoken(desk, 7)], current(desk, browser)
    assert all("showing" in desk.states(row) for row in listed)

    # A move is told, with the number and the lines in full; to the next page too.
    desk.hush()
    desk.keys("Down")
    desk.told("focused", "list item", spoken(desk, 8))
    assert "focused" in desk.states(desk.one(browser, "list item", spoken(desk, 8)))
    assert current(desk, browser) == [spoken(desk, 8)]
    desk.keys("Next")
    desk.told("focused", "list item", spoken(desk, 8 + len(listed)))
    desk.press(desk.find(browser, "push button", "One cart up"))
    desk.until(lambda: current(desk, browser) == [spoken(desk, 7 + len(listed))], "move up")

    # Typing goes on in the box.
    desk.keys("Tab", "Tab", "Tab")
    desk.do(desk.find(browser, "text", "Jump to cart"), "SetFocus")
    desk.until(lambda: "focused" in desk.states(desk.find(browser, "text", "Jump to cart")),
               "focus in the box")
    desk.hush()
    desk.type("42")
    desk.keys("Return")
    desk.told("focused", "list item", spoken(desk, 42))

    # A row is made current and nothing is taken; then one is taken.
    for place, make_current in ((3, lambda row: desk.do(row, "SetFocus")),
                                (1, lambda row: row.queryComponent().grabFocus())):
        row = desk.children(rows(desk, browser))[place]
        name = row.name
        make_current(row)
        desk.until(lambda: current(desk, browser) == [name], "row made current")
        assert program.poll() is None and "showing" in desk.states(browser)
    row = desk.children(rows(desk, browser))[4]
    number = row.name.split(",")[0].removeprefix("Cart ")
    assert row.name == spoken(desk, number), row.name
    desk.press(row)
    ended(program, 0, number + "\n")


def a_row_out_of_sight_does_not_show(desk):
    program, _, browser = start(desk, "1")
    double = desk.find(browser, "check box", "Double height")
    before = rows(desk, browser).childCount
    hidden = desk.children(rows(desk, browser))[-1]
    assert "showing" in desk.states(hidden)
    desk.do(double, "Toggle")
    desk.until(lambda: rows(desk, browser).childCount == before // 2, "half as many rows")
    assert "showing" not in desk.states(hidden), hidden.name
    desk.press(desk.find(browser, "push button", "Cancel"))
    ended(program, 1, "")


def find_a_cart(desk):
    program, application, browser = start(desk, "3")
    desk.press(desk.find(browser, "push button", "Find"))
    search = desk.dialog(application, SEARCH)
    desk.write(desk.find(search, "text", "Find this text"), "jingle 1")
    boxes = [part for part in desk.all(search) if part.getRoleName() == "combo box"]
    assert [desk.labels(box) for box in boxes] == [["Find this text:"], ["Find direction:"]]
    desk.press(desk.find(search, "page tab", "Advanced"))
    give = desk.until(lambda: [part for part in desk.all(search)
                               if part.getRoleName() == "combo box"], "tolerance")
    assert desk.labels(give[0]) == ["Give or Take:"], desk.labels(give[0])
    length = desk.find(search, "text", "Length in minutes and seconds")
    assert "Only search carts whose lengths are:" in desk.labels(length)
    desk.nothing_is_nameless(search)
    for name in ("Only Search these lines:", "Line 3", "Only Search these lines:"):
        box = desk.find(search, "check box", name)
        was = "checked" in desk.states(box)
        desk.do(box, "Toggle")
        desk.until(lambda: ("checked" in desk.states(box)) != was, f"tick of {name!r}")
    desk.press(desk.find(search, "page tab", "Basic"))

    desk.hush()
    desk.press(desk.find(search, "push button", "Find"))
    desk.until(lambda: "enabled" in desk.states(desk.find(search, "push button", "Find")),
               "end of the search")
    found = desk.find(search, "table", "Carts found")
    desk.told("focused", "table cell", "10")
    # The column that is hidden from the eye is hidden from the ear.
    assert desk.headings(found) == ["Cart", "Line 1", "Line 2", "Line 3", "Length"]
    cells = [part.name for part in desk.children(found)]
    assert len(cells) % 5 == 0 and not [name for name in cells if name.startswith("0000")], cells
    assert desk.row(found, 1)[:2] == ["11", "Larkfield Radio jingle 11"], desk.row(found, 1)
    assert desk.selected(found) == [0], desk.selected(found)

    desk.keys("Down")
    desk.told("focused", "table cell", "11")
    assert desk.selected(found) == [1], desk.selected(found)
    heading = desk.first(found, 1)[0]
    desk.press(heading)
    desk.press(heading)
    desk.until(lambda: desk.row(found, 0)[0] != "10", "carts in the other order")
    desk.do(desk.cell(found, 3, 1), "SetFocus")
    desk.until(lambda: desk.selected(found) == [3], "fourth cart selected")
    number = desk.row(found, 3)[0]
    desk.press(desk.cell(found, 3, 0))
    desk.left(application, SEARCH)
    # The browser, which has the focus again, tells where it has jumped.
    desk.told("focused", "list item", spoken(desk, int(number)))
    desk.keys("Return")
    ended(program, 0, number + "\n")


def nothing_is_found(desk):
    program, application, browser = start(desk, "3")
    desk.press(desk.find(browser, "push button", "Find"))
    search = desk.dialog(application, SEARCH)
    desk.write(desk.find(search, "text", "Find this text"), "no cart says this")
    desk.press(desk.find(search, "push button", "Find"))
    found = desk.find(search, "table", "Carts found")
    desk.until(lambda: found.queryTable().nRows == 1, "row that says so")
    assert "No carts found." in desk.row(found, 0), desk.row(found, 0)
    desk.keys("Escape")
    desk.left(application, SEARCH)
    desk.dialog(application, BROWSER)
    desk.keys("Escape")
    ended(program, 1, "")


def read_notes(desk):
    part = next((desk.folder / "config").rglob("*.[lL][sS][tT]")).parent
    (part / "VEL00005.TXT").write_bytes(b"Notes of the fifth cart\r\nSecond line\r\n")
    program, application, browser = start(desk, "5")
    desk.keys("t")
    notes = desk.until(lambda: [window for window in desk.children(application)
                                if window.name != browser.name and
                                "active" in desk.states(window)], "notes")[0]
    desk.nothing_is_nameless(notes)
    text = desk.text(desk.find(notes, "text", "Text of the file"))
    assert text.split() == "Notes of the fifth cart Second line".split(), text
    name = notes.name
    desk.press(desk.find(notes, "push button", "OK"))
    desk.left(application, name)
    desk.dialog(application, BROWSER)
    desk.keys("Escape")
    ended(program, 1, "")


def main():
    with ears.Ears() as desk:
        subprocess.run([BIN / "logcheck", "sample", desk.folder / "config" / "velmar"], check=True,
                       stdout=subprocess.DEVNULL)
        the_rows_are_a_list(desk)
        a_row_out_of_sight_does_not_show(desk)
        find_a_cart(desk)
        nothing_is_found(desk)
        read_notes(desk)
        print("carts are picked by ear")


main()
