#!/usr/bin/env python3
"""Times the windows of the cart store under Xvfb: whole walks of the search, a Stop in the middle of one,
a refresh of the browser's rows, and long lines in the viewer of notes. Each row states its limit; the exit code is 1 when one is passed."""

import argparse
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile

# Name of the figure, what it is, its limit, its unit. Of several the median counts.
ROWS = [
    ("walk_none", "search of 9,999 carts that finds nothing", 300, "ms"),
    ("walk_all", "search of 9,999 carts that finds them all", 300, "ms"),
    ("walk_notes", "search of 12,000 carts with their notes", 3000, "ms"),
    ("carts_after_stop", "carts looked at after Stop", 1, ""),
    ("stop", "from Stop to the end of the search", 100, "ms"),
    ("refresh", "refresh of the browser's rows", 10, "ms"),
    ("note_1", "note of one line of 1 MB until it is shown", 1000, "ms"),
    ("note_1_held", "longest hold-up while the rest is laid out", 500, "ms"),
    ("note_16", "note of one line of 16 MB until it is shown", 5000, "ms"),
    ("note_16_held", "longest hold-up while the rest is laid out", 500, "ms"),
]
# Of these the worst counts.
WORST = ("carts_after_stop", "stop", "note_1", "note_1_held", "note_16", "note_16_held")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--bin", default="build/bench/bin")
    programs = pathlib.Path(parser.parse_args().bin).resolve()
    read, write = os.pipe()
    screen = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1920x1200x24"],
                              pass_fds=(write,), stderr=subprocess.DEVNULL)
    os.close(write)
    try:
        with os.fdopen(read) as pipe:
            display = ":" + pipe.readline().strip()
        with tempfile.TemporaryDirectory() as runtime:
            environment = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb",
                               XDG_RUNTIME_DIR=runtime)
            printed = "".join(
                subprocess.run(command, env=environment, stdout=subprocess.PIPE, text=True,
                               check=True).stdout
                for command in ([programs / "browser_bench"],
                                [programs / "note_bench", f"{runtime}/note.txt"]))
    finally:
        screen.kill()
        screen.wait()
    figures = {}
    for line in printed.split():
        name, value = line.split("=")
        figures.setdefault(name, []).append(float(value))
    failed = False
    for name, text, limit, unit in ROWS:
        values = figures[name]
        value = max(values) if name in WORST else statistics.median(values)
        over = value > limit
        failed = failed or over
        text += f" ({figures['rows'][0]:.0f})" if name == "refresh" else ""
        print(f"{text:<50}{value:8.2f} {unit}   limit {limit} {unit}{'   OVER' if over else ''}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
