#!/usr/bin/env python3
"""Measures a watch on ten logs: the share of one core that it takes at its usual interval; and that its memory
stays flat over 10,000 rounds. The exit code is 1 when a limit is passed."""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

MOST_PERCENT = 1
INTERVAL = 10  # seconds, as without --every
ROUNDS = 10000


def processor_seconds(process):
    fields = pathlib.Path(f"/proc/{process}/stat").read_text(encoding="ascii").rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def share(logcheck, station, seconds):
    """Percent of a core, the first check and the one behind it left out."""
    with subprocess.Popen([logcheck, "watch", "--settings", station], stdout=subprocess.DEVNULL) as watch:
        time.sleep(2.5 * INTERVAL)
        before, begin = processor_seconds(watch.pid), time.perf_counter()
        time.sleep(seconds)
        used, elapsed = processor_seconds(watch.pid) - before, time.perf_counter() - begin
        watch.terminate()
    return 100 * used / elapsed


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--logcheck", default="build/bench/bin/logcheck")
    parser.add_argument("--soak", default="build/bench/bin/watch_soak")
    parser.add_argument("--seconds", type=float, default=60)
    options = parser.parse_args()
    folder = pathlib.Path(tempfile.mkdtemp(prefix="logchecker-watch-"))
    failed = False
    try:
        logcheck = str(pathlib.Path(options.logcheck).resolve())
        for name, sizes, own in (("ordinary day", (10, 60, 5), False), ("heavy day", (10, 1440, 8), False),
                                 ("ordinary day, a list file for each cart", (10, 60, 5), True)):
            station = folder / name.replace(" ", "-")
            subprocess.run([logcheck, "sample", station, "--splits", str(sizes[0]), "--breaks", str(sizes[1]),
                            "--adverts", str(sizes[2])], check=True)
            if own:
                settings = station / "VELMAR.INI"
                text = settings.read_text(encoding="latin-1")
                settings.write_text(text + "\n[Audio]\nUseIndividualCartListFiles=1\n", encoding="latin-1")
            percent = share(logcheck, station, options.seconds)
            over = percent > MOST_PERCENT
            failed = failed or over
            print(f"watch, {name:<42}{percent:6.2f} % of a core   limit {MOST_PERCENT}{'   OVER' if over else ''}")
        failed = subprocess.run([options.soak, str(ROUNDS)], check=False).returncode != 0 or failed
    finally:
        shutil.rmtree(folder)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
