#!/usr/bin/env python3
"""Breaks the sample station at random, thousands of times, and holds what the check says of each
against an oracle.

    broken_stations_test.py FOLDER-OF-THE-PROGRAMS [--cases N] [--seed S] [--case NUMBER]

One case is done again with its number, and its station is left there. The reports that were made go
to the folder that LOGCHECK_REPORTS names, where that is set."""

import argparse
import collections
import datetime
import hashlib
import json
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile

import breakages
import copies
import oracle
import said

DATE = datetime.date(2027, 1, 15)
KINDS = ("silent", "midnight", "passed-over", "missing-log")
NOBODY = 65534
SHARE = 0.1  # of all cases, that each code must have at the least

# The last one is the sample of the documents, with its mistakes; the others have none.
SAMPLES = (["--splits", "3", "--breaks", "6", "--adverts", "3"],
           ["--splits", "4", "--breaks", "8", "--adverts", "2"],
           ["--splits", "5", "--breaks", "5", "--adverts", "3"],
           ["--splits", "1", "--breaks", "4", "--adverts", "3"], [])
WEIGHTS = (30, 15, 12, 3, 1)


def fingerprint(folder):
    digest = hashlib.sha256()
    for path in sorted(pathlib.Path(folder).rglob("*")):
        digest.update(str(path).encode())
        if path.is_file():
            digest.update(path.read_bytes())
    return digest.hexdigest()


class Workshop:
    """The samples, and the one place where a case's station stands."""

    def __init__(self, programs, folder):
        self.folder = folder
        self.station = os.path.join(folder, "station")
        # A copy that everybody may run, in a folder that holds nothing else.
        os.mkdir(os.path.join(folder, "bin"))
        self.logcheck = shutil.copy(os.path.join(programs, "logcheck"), os.path.join(folder, "bin"))
        os.chmod(folder, 0o755)
        self.samples = []
        for number, sizes in enumerate(SAMPLES):
            subprocess.run([self.logcheck, "sample", self.station, "--date", str(DATE), "--days", "2"] +
                           sizes, check=True)
            self.samples.append(os.path.join(folder, f"sample{number}"))
            os.rename(self.station, self.samples[-1])
        self.before = [fingerprint(sample) for sample in self.samples]

    def require_untouched(self):
        assert self.before == [fingerprint(sample) for sample in self.samples]

    def run(self, arguments, plain):
        as_user = {"user": NOBODY, "group": NOBODY} if plain and os.geteuid() == 0 else {}
        done = subprocess.run([self.logcheck, "--settings", self.station] + arguments,
                              capture_output=True, timeout=60, env={"PATH": "/usr/bin:/bin"}, **as_user)
        return done.returncode, done.stdout, done.stderr.decode("utf-8", "replace")


class Case:
    def __init__(self, workshop, seed, number):
        self.workshop = workshop
        self.number = number
        self.rng = random.Random(f"{seed}:{number}")
        self.plain = self.rng.random() < 0.3
        self.copy = copies.Copy(self.rng.choices(workshop.samples, WEIGHTS)[0], workshop.station)
        self.done = []
        self.wrong = []

    def break_it(self):
        for _ in range(self.rng.choice((0, 1, 1, 2, 2, 3))):
            harmless = self.rng.random() < 0.25
            breakage = self.rng.choice(breakages.HARMLESS if harmless else breakages.BREAKAGES)
            breakage(self.copy, self.rng)
            self.done.append(breakage.__name__)

    def check(self):
        """The code that both gave; what parted them is in `wrong`."""
        days = self.rng.choice((1, 1, 1, 2))
        accepted = [kind for kind in KINDS if self.rng.random() < 0.25]
        create = self.rng.random() < 0.1
        skip = self.rng.random() < 0.15
        station = oracle.Station(self.workshop.station, os.path.dirname(self.workshop.logcheck),
                                 self.plain, create)
        meant = station.check(DATE, days, skip)
        arguments = ["--date", str(DATE), "--days", str(days)]
        arguments += [word for kind in accepted for word in ("--accept", kind)]
        arguments += ["--create-missing"] * create + ["--skip-missing"] * skip
        form = self.rng.choice(("json", "json", "json", "text", "csv"))
        code, output, errors = self.workshop.run(arguments + ["--format", form], self.plain)
        expected = max(day.code(accepted) for day in meant)
        if code != expected:
            self.wrong.append(f"{form} {accepted}: code {code}, not {expected}: {errors.strip()}")
        if form == "json":
            self.compare(json.loads(output), meant, accepted)
            keep_report(output)
        paths = said.mixed_paths(errors + said.text_of(form, output))
        self.expect("paths with two separators", paths, [])
        return expected

    def compare(self, report, meant, accepted):
        self.expect("code", report["code"], max(day.code(accepted) for day in meant))
        self.expect("days", [told["date"] for told in report["days"]],
                    [str(day.date) for day in meant])
        for told, day in zip(report["days"], meant):
            self.expect(f"{day.date} code", told["code"], day.code(accepted))
            self.expect(f"{day.date} trouble", "trouble" in told, bool(day.trouble))
            if day.trouble:
                self.expect("noLogYet", told["noLogYet"], day.no_log_yet)
                self.expect("warnings of trouble",
                            [one for one in told["warnings"] if one["kind"] == "silent"], [])
            else:
                self.compare_day(told, day)

    def compare_day(self, told, day):
        kinds = collections.Counter((one["kind"], one["split"]) for one in told["warnings"]
                                    if one["kind"] != "station")
        self.expect(f"{day.date} warnings", sorted(kinds.items()), sorted(day.kinds.items()))
        of_station = sum(one["kind"] == "station" for one in told["warnings"])
        self.expect(f"{day.date} station", of_station, day.station_warnings)
        counts = dict(day.counts, mismatches=len(day.mismatches), warnings=len(told["warnings"]))
        self.expect(f"{day.date} counts", told["counts"], counts)
        self.expect(f"{day.date} mismatches",
                    [(one["seconds"], [None if split is None else split["seconds"]
                                       for split in one["lengths"]]) for one in told["mismatches"]],
                    [(time, [shown(length) for length in lengths])
                     for time, lengths in day.mismatches])

    def expect(self, what, told, meant):
        if told != meant:
            self.wrong.append(f"{what}: {told}, not {meant}")

    def end(self):
        self.copy.end()


def shown(length):
    """A length in single precision as the shortest decimal that means it; None where it is none."""
    if length is None or length - length != 0:
        return None
    for digits in range(1, 10):
        text = f"{length:.{digits}g}"
        if oracle.single(float(text)) == length:
            return float(text)
    return length


def keep_report(data):
    folder = os.environ.get("LOGCHECK_REPORTS")
    if folder:
        with tempfile.NamedTemporaryFile(dir=folder, suffix=".json", delete=False) as file:
            file.write(data)


def do_cases(workshop, seed, numbers):
    codes = collections.Counter()
    failures = 0
    for number in numbers:
        case = Case(workshop, seed, number)
        case.break_it()
        codes[case.check()] += 1
        if case.wrong:
            failures += 1
            print(f"case {number} (seed {seed}, {'plain' if case.plain else 'root'}): {case.done}")
            print("".join(f"  {line}\n" for line in case.wrong), end="")
        case.end()
    return codes, failures


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("programs")
    parser.add_argument("--cases", type=int, default=2000)
    parser.add_argument("--seed", type=int, default=14)
    parser.add_argument("--case", type=int)
    options = parser.parse_args()
    if options.case is not None:
        return do_one(options)
    fast = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    with tempfile.TemporaryDirectory(dir=fast) as folder:
        workshop = Workshop(options.programs, folder)
        print(f"seed {options.seed}")
        codes, failures = do_cases(workshop, options.seed, range(options.cases))
        workshop.require_untouched()
    print(f"{options.cases} stations: {codes[0]} in order, {codes[1]} to mend, {codes[2]} in trouble; "
          f"{failures} where the check and the oracle part")
    hollow = [code for code in (0, 1, 2) if codes[code] < SHARE * options.cases]
    if hollow:
        print(f"too few stations with the codes {hollow}")
    return 1 if failures or hollow else 0


def do_one(options):
    folder = tempfile.mkdtemp()
    case = Case(Workshop(options.programs, folder), options.seed, options.case)
    case.break_it()
    print(f"case {options.case}: {case.done}, code {case.check()}, station {case.copy.folder}")
    print("\n".join(case.wrong))
    return 1 if case.wrong else 0


if __name__ == "__main__":
    sys.exit(main())
