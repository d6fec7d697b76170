#!/usr/bin/env python3
"""Times `logcheck stations` over 1,000 stations for 14 days with two jobs, as text and as JSON: with carts
that have no list files of their own, with a look for one at each read, and with one for each cart. Each
station has its own folder and cart store; list files and logs are hard links of a sample's, in a temporary
folder that is removed. Each row states seconds from start to end against the limit, and the seconds of
processor time that the check took, which say more on a machine that does other work too. The exit code is
1 when the limit is passed."""

import argparse
import os
import pathlib
import re
import resource
import shutil
import subprocess
import sys
import tempfile
import time

DAYS = 14
JOBS = 2
MOST_SECONDS = 60
RECORD = 300  # bytes
CARTS_OF_A_PART = 1000


def own_list_files(sample):
    """Gives each cart of the sample that has a record a list file of its own."""
    for part in sample.glob("audio/carts *"):
        number = int(part.name.split()[-1])
        records = (part / f"Carts{number}.lst").read_bytes()
        for place in range(len(records) // RECORD):
            record = records[place * RECORD:(place + 1) * RECORD]
            file = part / f"VEL{(number - 1) * CARTS_OF_A_PART + place + 1:05}.LST"
            if not file.exists() and record.strip(b"\0 "):
                file.write_bytes(record)


def make_station(sample, station):
    """Settings are written, with the station's own paths; the rest is linked."""
    shutil.copytree(sample, station, copy_function=os.link)
    for name in ("VELKLT.INI", "VELMAR.INI"):
        text = (sample / name).read_text(encoding="cp1252")
        (station / name).unlink()
        (station / name).write_text(text.replace(str(sample), str(station)), encoding="cp1252")


def set_own_list_files(stations, value):
    for station in stations:
        file = station / "VELMAR.INI"
        text = file.read_text(encoding="cp1252")
        file.write_text(re.sub(r"(?m)^(UseIndividualCartListFiles=).*", rf"\g<1>{value}", text),
                        encoding="cp1252")


def processor_seconds():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def check(arguments):
    """Seconds from start to end, and of processor time."""
    begin, used = time.perf_counter(), processor_seconds()
    code = subprocess.run(arguments, stdout=subprocess.DEVNULL, check=False).returncode
    if code not in (0, 1):
        sys.exit(f"{' '.join(arguments)} failed")
    return time.perf_counter() - begin, processor_seconds() - used


def measure(options, name, stations, listed):
    # Files that changed within two seconds are read anew each time.
    time.sleep(3)
    over = False
    for form in ("text", "json"):
        elapsed, used = check([options.logcheck, "stations", str(listed), "--jobs", str(JOBS), "--days",
                               str(DAYS), "--date", options.date, "--format", form])
        late = elapsed > MOST_SECONDS
        over = over or late
        print(f"{len(stations)} stations, {DAYS} days, {form:<4}, {name:<35}{elapsed:7.1f} s{used:7.1f} s of "
              f"processor time   limit {MOST_SECONDS} s{'   OVER' if late else ''}", flush=True)
    return over


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--logcheck", default="build/bench/bin/logcheck")
    parser.add_argument("--stations", type=int, default=1000)
    parser.add_argument("--date", default="2027-01-15")
    options = parser.parse_args()
    options.logcheck = str(pathlib.Path(options.logcheck).resolve())
    folder = pathlib.Path(tempfile.mkdtemp(prefix="logchecker-stations-"))
    over = False
    try:
        sample = folder / "sample"
        subprocess.run([options.logcheck, "sample", str(sample), "--date", options.date, "--days", str(DAYS)],
                       check=True)
        stations = [folder / f"station {number}" for number in range(1, options.stations + 1)]
        listed = folder / "stations.txt"
        listed.write_text("".join(f"{station.name} = {station}\n" for station in stations), encoding="utf-8")
        for station in stations:
            make_station(sample, station)
        set_own_list_files(stations, 0)
        over = measure(options, "part list files alone", stations, listed) or over
        set_own_list_files(stations, 1)
        over = measure(options, "a look for each cart's own", stations, listed) or over
        for station in stations:
            shutil.rmtree(station)
        own_list_files(sample)
        for station in stations:
            make_station(sample, station)
        over = measure(options, "a list file for each cart", stations, listed) or over
    finally:
        shutil.rmtree(folder)
    return 1 if over else 0


if __name__ == "__main__":
    sys.exit(main())
