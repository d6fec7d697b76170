#!/usr/bin/env python3
"""Reports of the sample that the schema takes, and all that it has to refuse.

    refusals_test.py FOLDER-OF-THE-PROGRAMS

Each field of a good report is left out, renamed and given another type in turn, at every depth."""

import copy
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

import schema

DATE = "2027-01-15"
# By the place of a field: values that have the right type and are wrong all the same.
WRONG_VALUES = (
    (["program"], "logchecker"), (["schema"], 2), (["code"], 3), (["code"], -1), (["days"], []),
    (["checkedAt"], "2027-01-15 14:03:21"), (["checkedAt"], "2027-13-15T14:03:21Z"),
    (["checkedAt"], "x2027-01-15T14:03:21Z"), (["version"], "one"),
    (["days", 0, "date"], "15.01.2027"), (["days", 0, "date"], "2027-00-15"),
    (["days", 0, "code"], 2), (["days", 0, "code"], 3), (["days", 1, "code"], 1),
    (["days", 1, "noLogYet"], None), (["days", 1, "trouble"], ""),
    (["days", 1, "trouble"], "two\nlines"),
    (["days", 0, "splits"], []), (["days", 0, "splits", 0, "number"], 0),
    (["days", 0, "splits", 0, "number"], 11), (["days", 0, "splits", 0, "breaks"], -1),
    (["days", 0, "splits", 0, "breaks"], 1.5),
    (["days", 0, "warnings", 0, "kind"], "other"), (["days", 0, "warnings", 0, "split"], 0),
    (["days", 0, "warnings", 0, "text"], ""),
    (["days", 0, "mismatches", 0, "time"], "4:01"), (["days", 0, "mismatches", 0, "time"], "24:01"),
    (["days", 0, "mismatches", 0, "time"], "--:--"), (["days", 0, "mismatches", 0, "time"], None),
    (["days", 0, "mismatches", 0, "seconds"], 99999), (["days", 0, "mismatches", 0, "seconds"], 61),
    (["days", 0, "mismatches", 0, "seconds"], None), (["days", 0, "mismatches", 0, "lengths"], []),
    (["days", 0, "mismatches", 0, "adverts", 1], []),
)


def report_of(programs, change=lambda station: None):
    """The report on two days of the sample, of which the second has no log."""
    with tempfile.TemporaryDirectory() as folder:
        station = os.path.join(folder, "station")
        logcheck = os.path.join(programs, "logcheck")
        subprocess.run([logcheck, "sample", station, "--date", DATE], check=True)
        change(pathlib.Path(station))
        done = subprocess.run([logcheck, "--settings", station, "--date", DATE, "--days", "2",
                               "--format", "json"], capture_output=True, check=False)
        return json.loads(done.stdout)


def start_at_midnight(station):
    for log in station.glob("logs/*/*"):
        log.write_bytes(re.sub(rb"(?m)^00:01", b"00:00", log.read_bytes()))


def places(value, path=()):
    """The path of each field, at every depth; of a list the first entry stands for all."""
    if isinstance(value, dict):
        for key in value:
            yield path + (key,)
            yield from places(value[key], path + (key,))
    elif isinstance(value, list):
        for at, entry in enumerate(value[:2]):
            yield from places(entry, path + (at,))


def at(report, path):
    for step in path:
        report = report[step]
    return report


def changed(report, path, change):
    result = copy.deepcopy(report)
    change(at(result, path[:-1]), path[-1])
    return result


def other_type(value):
    return {} if isinstance(value, (str, bool, type(None))) else "text"


def spoilt(report):
    """Reports with one thing wrong each, and what that is."""
    for path in places(report):
        value = at(report, path)
        yield f"without {path}", changed(report, path, lambda parent, key: parent.pop(key))
        yield f"beside {path}", changed(
            report, path, lambda parent, key: parent.update({key + "2": parent[key]}))
        yield f"another type at {path}", changed(
            report, path, lambda parent, key, new=other_type(value): parent.update({key: new}))
    for path, value in WRONG_VALUES:
        yield f"{value!r} at {path}", changed(
            report, path, lambda parent, key, new=value: parent.__setitem__(key, new))


def main():
    programs = sys.argv[1]
    validator = schema.validator()
    good = report_of(programs)
    midnight = report_of(programs, start_at_midnight)
    troubled = report_of(programs, lambda station: (station / "VELMAR.INI").write_bytes(b""))
    taken = (good, midnight, troubled, [good, troubled], [])
    wrong = [f"refused: {report}" for report in taken if not validator.is_valid(report)]
    assert midnight["days"][0]["mismatches"][0]["seconds"] is None
    cases = [case for report in (good, midnight) for case in spoilt(report)
             if case[1] != report]
    wrong += [f"taken: {what}" for what, report in cases if validator.is_valid(report)]
    wrong += [f"taken in a list: {what}" for what, report in cases[:50]
              if validator.is_valid([good, report])]
    print("\n".join(wrong + [f"{len(cases)} spoilt reports"]))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
