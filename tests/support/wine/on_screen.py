"""Runs a program on an X server of its own and ends as it does.

on_screen.py PROGRAM ARGUMENT...
"""

import os
import subprocess
import sys

SIZE = "1280x1024x24"


def main():
    read, write = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", SIZE, "-nolisten", "tcp"],
        pass_fds=(write,), stderr=subprocess.DEVNULL)
    os.close(write)
    try:
        with os.fdopen(read) as pipe:
            display = ":" + pipe.readline().strip()
        done = subprocess.run(sys.argv[1:], env=dict(os.environ, DISPLAY=display), check=False)
    finally:
        server.kill()
        server.wait()
    return done.returncode


if __name__ == "__main__":
    sys.exit(main())
