#!/usr/bin/env python3
"""Without a display, and when the display goes, the programs say so in one line and end with exit code 2;
where no screen is asked for they run without one, and on a small one the whole window is seen."""

import os
import pathlib
import re
import subprocess
import sys

import screen
import work

BIN = pathlib.Path(sys.argv[1])
PROGRAMS = ("logchecker", "cartbrowser")
FRAME = {"logchecker": "^Velmar KLT Log Checker : ", "cartbrowser": "^Cart Browser$"}
# What opens a dialog, and its name.
DIALOG = {"logchecker": (["alt+s", "g"], "^KLT Manager Settings$"),
          "cartbrowser": (["f"], "^Find a cart on the Audiowall$")}


def without_display(desk):
    bare = {name: value for name, value in desk.environment.items()
            if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    for more in ({}, {"DISPLAY": ""}, {"DISPLAY": ":32109"}, {"DISPLAY": "nonsense"},
                 {"WAYLAND_DISPLAY": "wayland-77"}, {"QT_QPA_PLATFORM": "xcb"},
                 {"QT_QPA_PLATFORM": "\x1b[2Jnonsense"}):
        for program in PROGRAMS:
            done = subprocess.run([BIN / program], env={**bare, **more}, capture_output=True,
                                  check=False, timeout=60)
            words = f"{program}: no display can be opened\n".encode()
            assert (done.returncode, done.stdout, done.stderr) == (2, b"", words), (more, done)


def display_goes(program, managed, dialog):
    with screen.Screen() as desk:
        work.write_sample(BIN, desk.folder / "config")
        process = desk.start(BIN / program)
        desk.window(FRAME[program])
        if dialog:
            keys, name = DIALOG[program]
            desk.keys(*keys)
            desk.window(name)
        if not managed:
            desk.manager.kill()
            desk.manager.wait()
        desk.server.kill()
        result = (process.wait(timeout=60), process.stdout.read(), process.stderr.read())
        words = f"{program}: the display is gone\n".encode()
        assert result == (2, b"", words), (program, managed, dialog, result)


def no_screen_asked_for(desk):
    environment = {**desk.environment, "QT_QPA_PLATFORM": "offscreen"}
    environment.pop("DISPLAY")
    process = subprocess.Popen([BIN / "logchecker"], env=environment, stderr=subprocess.PIPE)
    maps = pathlib.Path(f"/proc/{process.pid}/maps")
    desk.until(lambda: "libqoffscreen" in maps.read_text(), "program without a screen")
    try:
        process.wait(timeout=2)
        raise AssertionError((process.returncode, process.stderr.read()))
    except subprocess.TimeoutExpired:
        process.terminate()
        process.communicate()


def small_screen(size):
    with screen.Screen(size) as desk:
        work.write_sample(BIN, desk.folder / "config")
        desk.start(BIN / "logchecker")
        frame = desk.window(FRAME["logchecker"])
        desk.settled()
        said = subprocess.run(["xwininfo", "-id", frame], env=desk.environment, capture_output=True,
                              text=True, check=True).stdout
        left, top, width, height = (
            int(re.search(name + r":\s*(-?\d+)", said)[1])
            for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        done = subprocess.run(["xprop", "-id", frame, "_NET_FRAME_EXTENTS"], env=desk.environment,
                              capture_output=True, text=True, check=True)
        before, after, above, below = (int(number) for number in done.stdout.split("=")[1].split(","))
        assert above > 0, "a window without a frame proves nothing"
        assert left - before >= 0 and top - above >= 0, (size, left, top)
        assert left + width + after <= size[0], (size, left, width)
        assert top + height + below <= size[1], (size, top, height)


def main():
    os.environ.pop("WAYLAND_DISPLAY", None)
    with screen.Screen() as desk:
        work.write_sample(BIN, desk.folder / "config")
        without_display(desk)
        no_screen_asked_for(desk)
    for program in PROGRAMS:
        for managed in (True, False):
            for dialog in (False, True):
                display_goes(program, managed, dialog)
    for size in ((1024, 768), (800, 600)):
        small_screen(size)
    print("a display that goes is told, and a small one is enough")


main()
