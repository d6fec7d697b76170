"""Runs a program under Wine on an X server of its own and ends as it does.

on_screen.py WINE PROGRAM ARGUMENT...

The desktop of Wine belongs to the screen on which its first program showed a window, so it goes with it.
"""

import os
import pathlib
import subprocess
import sys

SIZE = "2560x1600x24"


def end_wine(wine):
    server = pathlib.Path(wine).with_name("wineserver")
    # It says that there is none by its code.
    subprocess.run([server, "--kill"], stderr=subprocess.DEVNULL, check=False)
    subprocess.run([server, "--wait"], check=False)


def main():
    read, write = os.pipe()
    screen = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", SIZE, "-nolisten", "tcp"],
        pass_fds=(write,), stderr=subprocess.DEVNULL)
    os.close(write)
    try:
        end_wine(sys.argv[1])
        with os.fdopen(read) as pipe:
            display = ":" + pipe.readline().strip()
        done = subprocess.run(sys.argv[1:], env=dict(os.environ, DISPLAY=display), check=False)
        end_wine(sys.argv[1])
    finally:
        screen.kill()
        screen.wait()
    return done.returncode


if __name__ == "__main__":
    sys.exit(main())
