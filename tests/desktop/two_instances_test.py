#!/usr/bin/env python3
"""Two desktops on one station at once: both show and check tomorrow, one changes a setting while the
other is open, and both export what logcheck finds."""

import datetime
import pathlib
import sys

import screen
import work

BIN = pathlib.Path(sys.argv[1])


def main():
    with screen.Screen() as desk:
        config = desk.folder / "config"
        tomorrow = datetime.date.today() + datetime.timedelta(days=1)
        work.write_sample(BIN, config, tomorrow, 1)
        settings = config / "velmar" / "VELKLT.INI"
        before = settings.read_bytes()
        programs = []
        frames = []
        for _ in range(2):
            programs.append(desk.start(BIN / "logchecker"))
            frames.append(desk.window(work.caption(tomorrow), "main window"))

        # The second has the focus; Alt+S, G opens its general settings, and OK writes them.
        desk.keys("alt+s", "g")
        dialog = desk.window("^KLT Manager Settings$")
        desk.keys("Return")
        desk.gone(dialog)
        changed = settings.read_bytes()
        assert changed.count(b"\n") >= before.count(b"\n"), changed
        for line in before.splitlines():
            assert line in changed.splitlines(), line

        for number, frame in enumerate(frames):
            desk.tool("windowactivate", "--sync", frame)
            desk.keys("ctrl+d")
            report = desk.folder / f"report{number}.csv"
            work.save(desk, report)
            assert report.read_bytes() == work.expected(BIN, config, tomorrow), report.read_bytes()
        for frame, program in zip(frames, programs):
            desk.tool("windowactivate", "--sync", frame)
            desk.keys("alt+f", "x")
            assert program.wait(timeout=30) == 0, program.stderr.read()
        assert settings.read_bytes() == changed
        print("two desktops got along")


main()
