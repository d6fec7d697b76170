#!/usr/bin/env python3
"""A run-time error is said in a box with its number, its text and what it concerns, and ends the program
with exit code 3."""

import pathlib
import subprocess
import sys

import screen

BIN = pathlib.Path(sys.argv[1])


def main():
    with screen.Screen() as desk:
        config = desk.folder / "config"
        subprocess.run([BIN / "logcheck", "sample", config / "velmar"], check=True,
                       stdout=subprocess.DEVNULL)
        settings = config / "velmar" / "VELKLT.INI"
        text = settings.read_text(encoding="cp1252")
        lines = ["NumberActiveSplits=0" if line.startswith("NumberActiveSplits=") else line
                 for line in text.split("\n")]
        settings.write_bytes("\r\n".join(line.rstrip("\r") for line in lines).encode("cp1252"))
        program = desk.start(BIN / "logchecker")
        # The splash, the main window and the box bear the same title.
        desk.until(lambda: len([window for window in desk.windows()
                                if desk.name(window) == "Velmar KLT Log Checker"]) >= 3, "box")
        picture = desk.folder / "stopped.png"
        desk.picture(picture)
        desk.settled()
        desk.keys("Return")
        assert program.wait(timeout=30) == 3, program.returncode
        print("a run-time error is said, and the exit code is 3")


main()
