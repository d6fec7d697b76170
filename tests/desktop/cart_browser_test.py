#!/usr/bin/env python3
"""Carts are picked in the browser by real keys and a real mouse: jump, scroll, find by text, notes, and
every way to choose one or none. The printed number must be right."""

import pathlib
import subprocess
import sys

import screen

BIN = pathlib.Path(sys.argv[1])
BROWSER = "^Cart Browser$"
SEARCH = "^Find a cart on the Audiowall$"
ROW = 21  # pixels


def start(desk, *arguments):
    program = desk.start(BIN / "cartbrowser", *arguments)
    window = desk.window(BROWSER, "browser")
    desk.settled()
    return program, window


def ended(program, code, output):
    assert program.wait(timeout=30) == code, (program.returncode, program.stderr.read())
    printed = program.stdout.read().decode()
    assert printed == output, printed


def lines_of(config, number):
    """The texts of a cart, as logcheck prints them."""
    done = subprocess.run([BIN / "logcheck", "cart", "--settings", config / "velmar", str(number)],
                          capture_output=True, check=True, text=True)
    return done.stdout.split("\t")[2:5]


def height_of(desk, window):
    values = dict(pair.split("=") for pair in desk.tool("getwindowgeometry", "--shell", window))
    return int(values["HEIGHT"])


def jump_and_choose(desk):
    program, _ = start(desk)
    desk.type("42")
    desk.keys("Return", "Return")
    ended(program, 0, "42\n")


def scroll_and_choose(desk):
    program, _ = start(desk, "7")
    desk.keys("Down", "Down", "Up", "Return")
    ended(program, 0, "8\n")
    program, _ = start(desk, "7")
    desk.keys("Next", "Prior", "Down", "j")
    ended(program, 0, "8\n")


def click(desk):
    program, window = start(desk, "--settings=" + str(desk.folder / "config" / "velmar"), "30")
    # The first row begins below the controls for the jump; a click in the middle of the third one.
    first = 4 + 28
    desk.click(window, 200, first + 2 * ROW + ROW // 2)
    ended(program, 0, "32\n")


def turn_the_wheel(desk):
    """Three rows a notch; a click takes the row that lies there then."""
    program, window = start(desk, "30")
    first = 4 + 28
    desk.tool("mousemove", "--window", window, 200, first + ROW // 2, "click", "--repeat", 2,
              "--delay", 60, 5)
    desk.click(window, 200, first + ROW // 2)
    ended(program, 0, "36\n")


def find_and_choose(desk, config):
    # A cart whose first line no cart before it has.
    wanted = 12
    text = lines_of(config, wanted)[0].strip()
    program, _ = start(desk, "1")
    desk.keys("f")
    search = desk.window(SEARCH, "search")
    collapsed = height_of(desk, search)
    desk.type(text)
    desk.keys("Return")
    desk.until(lambda: height_of(desk, search) > collapsed, "list of what was found")
    # The list's first row lies below its heading. What was found is marked there, and the list is empty
    # further down.
    row = collapsed + 22
    desk.until(lambda: desk.colour(search, 150, row) != desk.colour(search, 150, row + 3 * ROW),
               "found cart in the list")
    desk.tool("mousemove", "--window", search, 150, row, "click", "--repeat", 2, "--delay", 60, 1)
    desk.gone(search)
    desk.window(BROWSER, "browser behind the search", new=False)
    desk.keys("Return")
    ended(program, 0, f"{wanted}\n")


def notes(desk):
    part = next((desk.folder / "config").rglob("*.[lL][sS][tT]")).parent
    (part / "VEL00005.TXT").write_bytes(b"Notes of the fifth cart\r\n")
    program, _ = start(desk, "5")
    desk.keys("t")
    window = desk.window("VEL00005|Preview|Notes", "notes of cart 5")
    desk.keys("Escape")
    desk.gone(window)
    desk.window(BROWSER, "browser behind the notes", new=False)
    desk.keys("Return")
    ended(program, 0, "5\n")


def leave(desk):
    program, _ = start(desk)
    desk.keys("Escape")
    ended(program, 1, "")
    program, window = start(desk)
    # As the close button of the frame does.
    desk.keys("alt+F4")
    desk.gone(window)
    ended(program, 1, "")


def wrong_arguments(desk):
    for arguments in (["x"], ["1", "2"], ["--settings"], ["-1"]):
        program = desk.start(BIN / "cartbrowser", *arguments)
        assert program.wait(timeout=30) == 2, arguments
        assert program.stderr.read(), arguments


def main():
    with screen.Screen() as desk:
        config = desk.folder / "config"
        # The screen has no graphics card, and its driver would leave memory behind.
        desk.environment["QT_XCB_GL_INTEGRATION"] = "none"
        subprocess.run([BIN / "logcheck", "sample", config / "velmar"], check=True,
                       stdout=subprocess.DEVNULL)
        jump_and_choose(desk)
        scroll_and_choose(desk)
        click(desk)
        turn_the_wheel(desk)
        find_and_choose(desk, config)
        notes(desk)
        leave(desk)
        wrong_arguments(desk)
        print("carts are picked")


main()
