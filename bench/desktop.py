#!/usr/bin/env python3
"""Times the desktop under Xvfb on stations that it writes itself, with warm files: from the start of the
process to the first paint with tomorrow loaded, Load Day, Check Day, peak memory, and a long report. Each row states
its limit; the exit code is 1 when one is passed."""

import argparse
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

# Name, sizes of the sample, limits: first paint, Load Day, Check Day in milliseconds, memory in MiB.
ROWS = [
    ("ordinary day", (10, 60, 5), {"first_paint": 500, "load_day": 100, "check_day": 100,
                                   "memory": 120}),
    ("heavy day", (10, 1440, 8), {"first_paint": None, "load_day": 1000, "check_day": 1000,
                                  "memory": 250}),
]


REPORT_LIMIT = 2000


def run(program, environment, argument=None):
    """The figures of one run, by name; of several of a kind the median."""
    begin = time.clock_gettime(time.CLOCK_MONOTONIC)
    done = subprocess.run([program, argument or f"{begin:.6f}"], env=environment, capture_output=True, text=True,
                          check=False)
    if done.returncode != 0:
        sys.exit(f"{program} failed: {done.stderr}")
    figures = {}
    for line in done.stdout.split():
        name, value = line.split("=")
        figures.setdefault(name, []).append(float(value))
    return {name: statistics.median(values) for name, values in figures.items()}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--bin", default="build/bench/bin")
    parser.add_argument("--times", type=int, default=9)
    options = parser.parse_args()
    programs = pathlib.Path(options.bin).resolve()
    folder = pathlib.Path(tempfile.mkdtemp(prefix="logchecker-desktop-"))
    read, write = os.pipe()
    screen = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1920x1080x24"],
                              pass_fds=(write,), stderr=subprocess.DEVNULL)
    os.close(write)
    failed = False
    try:
        with os.fdopen(read) as pipe:
            display = ":" + pipe.readline().strip()
        for name, (splits, breaks, adverts), limits in ROWS:
            config = folder / name.replace(" ", "-")
            subprocess.run([programs / "logcheck", "sample", config / "velmar", "--splits",
                            str(splits), "--breaks", str(breaks), "--adverts", str(adverts)],
                           check=True)
            # Files that changed within two seconds are read anew each time.
            time.sleep(3)
            environment = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb",
                               XDG_CONFIG_HOME=str(config), XDG_RUNTIME_DIR=str(folder))
            run(programs / "desktop_bench", environment)
            runs = [run(programs / "desktop_bench", environment) for _ in range(options.times)]
            for figure, limit in limits.items():
                value = statistics.median(one[figure] for one in runs)
                unit = "MiB" if figure == "memory" else "ms"
                value = value / 1024 if figure == "memory" else value
                over = limit is not None and value > limit
                failed = failed or over
                told = f"   limit {limit} {unit}" if limit else ""
                print(f"{name + ': ' + figure:<50}{value:8.1f} {unit}{told}"
                      f"{'   OVER' if over else ''}")
        report = folder / "report.pdf"
        runs = [run(programs / "report_bench", dict(os.environ), str(report))["report"]
                for _ in range(options.times)]
        value = statistics.median(runs)
        failed = failed or value > REPORT_LIMIT
        print(f"{'report of 5,000 rows':<50}{value:8.1f} ms   limit {REPORT_LIMIT} ms"
              f"{'   OVER' if value > REPORT_LIMIT else ''}")
    finally:
        screen.kill()
        screen.wait()
        shutil.rmtree(folder)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
