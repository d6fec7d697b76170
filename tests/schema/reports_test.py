#!/usr/bin/env python3
"""Holds every JSON report that the tests have made against the schema.

    reports_test.py clear|check FOLDER

The tests leave their reports in FOLDER; it is an error when there is none."""

import json
import pathlib
import shutil
import sys

import schema


def clear(folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    return 0


def check(folder):
    one, any_form = schema.for_a_report(), schema.validator()
    wrong = 0
    reports = sorted(folder.glob("*.json"))
    for path in reports:
        report = json.loads(path.read_text(encoding="utf-8"))
        of_form = one if isinstance(report, dict) else any_form
        for error in of_form.iter_errors(report):
            wrong += 1
            print(f"{path.name}: {error.json_path}: {error.message[:300]}")
            for cause in error.context or ():
                print(f"    {cause.json_path}: {cause.message[:300]}")
    print(f"{len(reports)} reports, {wrong} errors")
    return 1 if wrong or not reports else 0


if __name__ == "__main__":
    sys.exit({"clear": clear, "check": check}[sys.argv[1]](pathlib.Path(sys.argv[2])))
