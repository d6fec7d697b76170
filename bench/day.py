#!/usr/bin/env python3
"""Times whole runs of logcheck on stations that it writes itself: wall time and peak memory, from the
start of the process to its end, with warm files. Each row states its limit; the exit code is 1 when one
is passed. A heavy day is held against reads_floor, run by run in turn, and a store that asks for the
carts' own list files against the same without: such pairs say more on a machine that does other work
too."""

import argparse
import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

# Name, sizes of the sample, days, limit in milliseconds, limit in MiB.
ROWS = [
    ("ordinary day: 10 splits, 60 breaks, 5 adverts", (10, 60, 5), 1, 12, 16),
    ("heavy day: 10 splits, 1,440 breaks, 8 adverts", (10, 1440, 8), 1, 130, 96),
    ("a tenth of it: 10 splits, 144 breaks, 8 adverts", (10, 144, 8), 1, None, None),
    ("30 ordinary days", (10, 60, 5), 30, None, None),
]
HEAVY = 1  # of them
# Times what the reads alone take, and times the processor time of a store without list files of the
# carts' own: of one that asks for them and has five, just written.
FLOOR_MOST_TIMES = 1.5
OWN_FILES_MOST_TIMES = 1.5
RECORD = 300
CARTS_OF_A_PART = 1000
# The heavy day's page: mistakes in that day, the check's own time that it may take, its size in MiB.
PAGE_MISTAKES = (5, 400)
PAGE_MOST_TIMES = 2
PAGE_MOST_MIB = 5


def milliseconds(arguments):
    """Wall time of one run."""
    begin = time.perf_counter()
    code = subprocess.run(arguments, stdout=subprocess.DEVNULL, check=False).returncode
    if code not in (0, 1):
        sys.exit(f"{' '.join(arguments)} failed")
    return (time.perf_counter() - begin) * 1000


def mebibytes(arguments):
    """Peak memory of one run. Asked of time(1): a child of this interpreter would inherit its peak."""
    run = subprocess.run(["/usr/bin/time", "-q", "-f", "%M", *arguments], stdout=subprocess.DEVNULL,
                         stderr=subprocess.PIPE, text=True, check=False)
    return int(run.stderr.split()[-1]) / 1024


def measure(arguments, times):
    return statistics.median(milliseconds(arguments) for _ in range(times)), mebibytes(arguments)


def processor_milliseconds(arguments):
    """User and system time of one run."""
    process = subprocess.Popen(arguments, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, _, usage = os.wait4(process.pid, 0)
    process.returncode = 0
    return (usage.ru_utime + usage.ru_stime) * 1000


def pairs(clock, first, second, times):
    """The median of the second's time over the first's, each run of one followed by one of the other, and
    the median times of both."""
    taken = [(clock(first), clock(second)) for _ in range(times)]
    return (statistics.median(b / a for a, b in taken), statistics.median(a for a, _ in taken),
            statistics.median(b for _, b in taken))


def list_files(station):
    """The store's part list files by part."""
    return {int(re.search(r"(\d+)\.lst$", path.name)[1]): path
            for path in station.glob("audio/*/Carts*.lst")}


def floor_of(program, station):
    """The run of reads_floor for a station."""
    lists = list_files(station)
    return [program, *(str(lists[part]) for part in sorted(lists)), "--",
            *sorted(str(path) for path in station.glob("logs/*/*"))]


def measure_floor(logcheck, floor, station, times):
    """A line that holds a heavy day against its reads. Whether the limit was passed."""
    check = [logcheck, "check", "--settings", str(station)]
    reads = floor_of(floor, station)
    wall, reads_ms, check_ms = pairs(milliseconds, reads, check, times)
    processor, _, _ = pairs(processor_milliseconds, reads, check, times)
    over = processor > FLOOR_MOST_TIMES
    print(f"{'heavy day over its reads alone':<50}{wall:8.2f} times ({check_ms:.1f} over {reads_ms:.1f} ms), "
          f"processor time {processor:.2f}   limit {FLOOR_MOST_TIMES}{'   OVER' if over else ''}")
    return over


def set_own_files(station, wanted):
    """The setting that asks for list files of the carts' own."""
    settings = station / "VELMAR.INI"
    key = b"UseIndividualCartListFiles="
    settings.write_bytes(settings.read_bytes().replace(key + (b"0" if wanted else b"1"),
                                                       key + (b"1" if wanted else b"0")))


def give_own_files(station):
    """A list file of its own for each cart of the store."""
    for part, path in list_files(station).items():
        records = path.read_bytes()
        for i in range(len(records) // RECORD):
            cart = (part - 1) * CARTS_OF_A_PART + i + 1
            (path.parent / f"VEL{cart:05d}.LST").write_bytes(records[i * RECORD:(i + 1) * RECORD])


def measure_own_files(logcheck, folder, times):
    """Lines that hold the sample that asks for the carts' own list files against the sample that does not:
    as it is written, with five of them, at once, and later with one for each cart. Whether the limit, which
    is for the first, was passed."""
    checks = []
    for name, wanted in (("parts", False), ("own", True)):
        subprocess.run([logcheck, "sample", str(folder / name)], check=True)
        set_own_files(folder / name, wanted)
        checks.append([logcheck, "check", "--settings", str(folder / name)])
    factor, parts, own = pairs(processor_milliseconds, *checks, times)
    over = factor > OWN_FILES_MOST_TIMES
    print(f"{'own list files asked for over not, just written':<50}{factor:8.2f} times processor time "
          f"({own:.1f} over {parts:.1f} ms)   limit {OWN_FILES_MOST_TIMES}{'   OVER' if over else ''}")
    give_own_files(folder / "own")
    time.sleep(3)
    factor, parts, own = pairs(processor_milliseconds, *checks, times)
    print(f"{'the same, with one for each cart':<50}{factor:8.2f} times processor time ({own:.1f} over "
          f"{parts:.1f} ms)")
    return over


def measure_pages(logcheck, folder, times):
    """A line for each page of a heavy day. Whether one passed a limit."""
    failed = False
    for mistakes in PAGE_MISTAKES:
        station = str(folder / f"page-{mistakes}")
        page = folder / "page.html"
        subprocess.run([logcheck, "sample", station, "--splits", "10", "--breaks", "1440", "--adverts", "8",
                        "--mistakes", str(mistakes)], check=True)
        time.sleep(3)
        arguments = [logcheck, "check", "--settings", station]
        measure(arguments, 2)
        check, _ = measure(arguments, times)
        both, _ = measure([*arguments, "--format", "html", "--output", str(page)], times)
        size = page.stat().st_size / 1024 / 1024
        over = both > PAGE_MOST_TIMES * check or size > PAGE_MOST_MIB
        failed = failed or over
        print(f"{f'its page with {mistakes} mistakes':<50}{both:8.1f} ms {size:7.1f} MiB   the check alone "
              f"{check:.1f} ms, limit {PAGE_MOST_TIMES} times, {PAGE_MOST_MIB} MiB{'   OVER' if over else ''}")
    return failed


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--logcheck", default="build/bench/bin/logcheck")
    parser.add_argument("--floor", default="build/bench/bin/reads_floor")
    parser.add_argument("--times", type=int, default=21)
    options = parser.parse_args()
    logcheck = str(pathlib.Path(options.logcheck).resolve())
    floor = str(pathlib.Path(options.floor).resolve())
    folder = pathlib.Path(tempfile.mkdtemp(prefix="logchecker-day-"))
    failed = False
    try:
        start, _ = measure([logcheck, "--version"], options.times)
        print(f"{'process start (--version)':<50}{start:8.1f} ms")
        results = {}
        for number, (name, (splits, breaks, adverts), days, most_ms, most_mib) in enumerate(ROWS):
            station = str(folder / str(number))
            subprocess.run([logcheck, "sample", station, "--days", str(days), "--splits", str(splits),
                            "--breaks", str(breaks), "--adverts", str(adverts)], check=True)
            # Files that changed within two seconds are read anew each time.
            time.sleep(3)
            arguments = [logcheck, "check", "--settings", station, "--days", str(days)]
            measure(arguments, 2)
            elapsed, memory = measure(arguments, options.times)
            results[name] = elapsed
            limit = f"   limit {most_ms} ms, {most_mib} MiB" if most_ms else ""
            over = bool(most_ms) and (elapsed > most_ms or memory > most_mib)
            failed = failed or over
            print(f"{name:<50}{elapsed:8.1f} ms {memory:7.1f} MiB{limit}{'   OVER' if over else ''}")
        failed = measure_floor(logcheck, floor, folder / str(HEAVY), options.times) or failed
        failed = measure_own_files(logcheck, folder, options.times) or failed
        failed = measure_pages(logcheck, folder, options.times) or failed
        names = [row[0] for row in ROWS]
        tenfold = (results[names[1]] - start) / (results[names[2]] - start)
        thirty = results[names[3]] / results[names[0]]
        for text, factor, most in (("ten times the lines, above process start", tenfold, 11),
                                   ("30 days against one", thirty, 30)):
            over = factor > most
            failed = failed or over
            print(f"{text:<50}{factor:8.1f} times   limit {most}{'   OVER' if over else ''}")
    finally:
        shutil.rmtree(folder)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
