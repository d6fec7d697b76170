#!/usr/bin/env python3
"""Times a board of 1,000 stations and 14 days from the stations' JSON reports: wall time and peak memory,
from the start of the process to the page on disk, with warm files. Each row states its limit; the exit code
is 1 when one is passed."""

import argparse
import json
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

STATIONS = 1000
DAYS = 14
MOST_SECONDS = 2.0
MOST_MIB = 50


def run(arguments):
    """Wall time in seconds and peak memory in MiB of one run. Memory is asked of time(1): a child of this
    interpreter would inherit its peak."""
    begin = time.perf_counter()
    done = subprocess.run(["/usr/bin/time", "-q", "-f", "%M", *arguments], stdout=subprocess.DEVNULL,
                          stderr=subprocess.PIPE, text=True, check=False)
    elapsed = time.perf_counter() - begin
    if done.returncode not in (0, 1):
        sys.exit(f"{' '.join(arguments[:3])} failed: {done.stderr[:500]}")
    return elapsed, int(done.stderr.split()[-1]) / 1024


def made_reports(logcheck, folder, sample):
    """The report of one real station, under the names of all."""
    station = folder / "station"
    subprocess.run([logcheck, "sample", str(station), "--days", str(DAYS), *sample], check=True)
    written = subprocess.run([logcheck, "check", "--settings", str(station), "--days", str(DAYS),
                              "--format", "json"], stdout=subprocess.PIPE, check=False).stdout
    report = json.loads(written)
    files = []
    for number in range(1, STATIONS + 1):
        report["station"] = f"Station {number:04}"
        files.append(folder / f"{number:04}.json")
        files[-1].write_text(json.dumps(report, indent=2), encoding="utf-8")
    return [str(file) for file in files], sum(file.stat().st_size for file in files)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--logcheck", default="build/bench/bin/logcheck")
    parser.add_argument("--times", type=int, default=5)
    options = parser.parse_args()
    logcheck = str(pathlib.Path(options.logcheck).resolve())
    failed = False
    for name, sample in (("no mistake", ["--breaks", "60", "--mistakes", "0"]),
                         ("5 mistakes a day", ["--mistakes", "5"])):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="logchecker-board-"))
        try:
            files, size = made_reports(logcheck, folder, sample)
            page = folder / "board.html"
            arguments = [logcheck, "board", "--output", str(page), *files]
            run(arguments)
            runs = [run(arguments) for _ in range(options.times)]
            seconds = statistics.median(elapsed for elapsed, _ in runs)
            memory = max(peak for _, peak in runs)
            over = seconds > MOST_SECONDS or memory > MOST_MIB
            failed = failed or over
            print(f"{STATIONS} stations, {DAYS} days, {name}: {size / 2**20:.0f} MiB of JSON, "
                  f"{page.stat().st_size / 2**20:.1f} MiB of page, {seconds:.2f} s, {memory:.1f} MiB   "
                  f"limit {MOST_SECONDS} s, {MOST_MIB} MiB{'   OVER' if over else ''}")
        finally:
            shutil.rmtree(folder)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
