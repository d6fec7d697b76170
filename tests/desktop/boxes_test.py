#!/usr/bin/env python3
"""Boxes of one line on a real screen: what is pasted by key, by menu and by the middle button loses its
line breaks; a menu that closes and a window that comes back leave what is being typed alone; Return
presses the button that has the focus; and the search's heights are those of its whole window."""

import pathlib
import re
import subprocess
import sys

import screen

BIN = pathlib.Path(sys.argv[1])
TITLE = "^Velmar KLT Log Checker$"
SPLIT = "^Velmar KLT Log File Settings:$"
BROWSER = "^Cart Browser$"
SEARCH = "^Find a cart on the Audiowall$"
NAME_BOX = (300, 20)  # in the split's settings, in pixels


def copy(desk, text, selection):
    """Makes another program hold a text as its clipboard or as its selection."""
    subprocess.run(["xclip", "-selection", selection], input=text.encode(), env=desk.environment,
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def mouse(desk, window, place, button):
    desk.tool("mousemove", "--window", window, *place, "click", button)


def all_windows(desk):
    """Menus too, which bear no name."""
    return set(desk.tool("search", "--onlyvisible", "--class", "."))


def setting(config, key):
    text = (config / "velmar" / "VELKLT.INI").read_text(encoding="cp1252")
    found = re.search(f"^{key}=(.*)$", text, re.MULTILINE)
    assert found, text
    return text, found.group(1)


def paste(desk, config, logs):
    """Into the name of the first split, in all three ways."""
    program = desk.start(BIN / "logchecker", config=config)
    dialog = desk.window(SPLIT, "settings of split 1")
    desk.seen.update(desk.windows())
    copy(desk, "East\n[Oops]\nWest\n", "clipboard")
    desk.keys("ctrl+a", "ctrl+v")
    copy(desk, "\r\nSplitName2=\tNorth", "clipboard")
    mouse(desk, dialog, NAME_BOX, 3)
    desk.keys("p")
    copy(desk, "\nSouth\n", "primary")
    mouse(desk, dialog, (470, NAME_BOX[1]), 2)
    desk.keys("Tab", "ctrl+a")
    desk.type(str(logs))
    desk.keys("Return")
    desk.gone(dialog)
    text, name = setting(config, "SplitName1")
    assert name == "East[Oops]WestSplitName2=NorthSouth", text
    assert "\n[Oops]" not in text and "\nSplitName2" not in text, text
    program.kill()
    program.wait()


def type_on(desk, config, logs):
    """A menu and another window in the midst of typing."""
    program = desk.start(BIN / "logchecker", config=config)
    dialog = desk.window(SPLIT, "settings of split 1")
    desk.seen.update(desk.windows())
    desk.keys("ctrl+a")
    desk.type("Lark")
    before = all_windows(desk)
    mouse(desk, dialog, NAME_BOX, 3)
    menu = desk.until(lambda: all_windows(desk) - before, "menu of the box")
    desk.keys("Escape")
    desk.until(lambda: not menu & all_windows(desk), "end of the menu")
    desk.keys("End")
    desk.type("fi")
    # A program of another maker comes to the front, and the dialog after it.
    other = subprocess.Popen(["xev"], env=desk.environment, stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL)
    desk.programs.append(other)
    desk.window("^Event Tester$", "another window")
    desk.tool("windowactivate", "--sync", dialog)
    desk.until(lambda: desk.tool("getactivewindow") == [dialog], "dialog in front again")
    desk.type("eld")
    other.kill()
    desk.keys("Tab", "ctrl+a")
    desk.type(str(logs))
    desk.keys("Return")
    desk.gone(dialog)
    text, name = setting(config, "SplitName1")
    assert name == "Larkfield", text
    program.kill()
    program.wait()


def cancel_by_return(desk, config):
    program = desk.start(BIN / "logchecker", config=config)
    dialog = desk.window(SPLIT, "settings of split 1")
    desk.seen.update(desk.windows())
    desk.keys("ctrl+a")
    desk.type("Larkfield")
    desk.keys("shift+Tab", "Return")
    desk.gone(dialog)
    box = desk.window(TITLE, "message that nothing was entered")
    desk.keys("Return")
    desk.gone(box)
    assert program.wait(timeout=30) == 1
    assert not (config / "velmar" / "VELKLT.INI").exists()


def outer_height(desk, window):
    values = dict(pair.split("=") for pair in desk.tool("getwindowgeometry", "--shell", window))
    done = subprocess.run(["xprop", "-id", window, "_NET_FRAME_EXTENTS"], env=desk.environment,
                          capture_output=True, text=True, check=True)
    _, _, top, bottom = [int(number) for number in done.stdout.split("=")[1].split(",")]
    assert top > 0, "a window without a frame proves nothing"
    return int(values["HEIGHT"]) + top + bottom


def search_heights(desk, config):
    subprocess.run([BIN / "logcheck", "sample", config / "velmar"], check=True,
                   stdout=subprocess.DEVNULL)
    program = desk.start(BIN / "cartbrowser", config=config)
    desk.window(BROWSER, "browser")
    for _ in range(2):
        desk.keys("f")
        search = desk.window(SEARCH, "search", new=False)
        desk.until(lambda: outer_height(desk, search) == 183, "collapsed search")
        desk.type("*")
        desk.keys("Return")
        desk.until(lambda: outer_height(desk, search) == 342, "search with its list")
        desk.keys("alt+F4")  # closes it whether it has ended or not
        desk.gone(search)
        desk.window(BROWSER, "browser behind the search", new=False)
    desk.keys("Escape")
    assert program.wait(timeout=30) == 1, program.stderr.read()


def main():
    with screen.Screen() as desk:
        # The screen has no graphics card, and its driver would leave memory behind.
        desk.environment["QT_XCB_GL_INTEGRATION"] = "none"
        logs = desk.folder / "LOGS"
        logs.mkdir()
        paste(desk, desk.folder / "pasted", logs)
        type_on(desk, desk.folder / "typed", logs)
        cancel_by_return(desk, desk.folder / "cancelled")
        search_heights(desk, desk.folder / "config")
        print("boxes take one line, and are left alone")


main()
