#!/usr/bin/env python3
"""Holds the tables in tests/rules against the tests: every test that a table names must be there, every
row must name one, and every test must be named for some rule."""

import pathlib
import re
import sys

HERE = pathlib.Path(__file__).resolve().parent.parent
TESTS = HERE / "tests"
MACRO = re.compile(
    r"^\s*(?:TEST|TEST_F|TEST_P|RC_GTEST_PROP|RC_GTEST_FIXTURE_PROP)\(\s*(\w+)\s*,\s*(\w+)\s*[,)]",
    re.MULTILINE)
ROW = re.compile(r"^\| (.+) \| (.+) \|$")
NAME = re.compile(r"`([\w.]+)`")


def tests_that_are_there():
    found = set()
    for source in TESTS.rglob("*.cpp"):
        found |= {f"{suite}.{name}" for suite, name in MACRO.findall(source.read_text())}
    found |= {f"{path.parent.name}.{path.name.removesuffix('_test.py')}"
              for path in TESTS.glob("*/*_test.py")}
    found |= {f"{path.parent.name}.{path.name.removesuffix('_test.mjs')}"
              for path in TESTS.glob("*/*_test.mjs")}
    return found


def rows(table):
    """The rule and the tests of each row, with its line number."""
    lines = table.read_text().splitlines()
    for number, line in enumerate(lines, 1):
        if not line.startswith("|") or line in ("| Rule | Tests |", "|---|---|"):
            continue
        match = ROW.match(line)
        if match is None:
            yield number, None, []
            continue
        yield number, match.group(1), NAME.findall(match.group(2))


def main():
    there = tests_that_are_there()
    wrong = []
    named = set()
    rules = 0
    topics = [path for path in sorted(TESTS.glob("rules/*.md")) if path.name != "README.md"]
    index = (TESTS / "rules/README.md").read_text()
    for table in topics:
        if f"({table.name})" not in index:
            wrong.append(f"rules/README.md does not lead to {table.name}")
        for number, rule, tests in rows(table):
            where = f"{table.relative_to(HERE)}:{number}"
            rules += 1
            if rule is None:
                wrong.append(f"{where}: no row of two columns")
            if not tests:
                wrong.append(f"{where}: a rule without a test")
            wrong += [f"{where}: there is no test {test}" for test in tests if test not in there]
            named |= set(tests)
    wrong += [f"no rule names {test}" for test in sorted(there - named)]
    for line in wrong:
        print(line)
    print(f"Rules: {rules} in {len(topics)} topics, held by {len(there)} tests")
    return 1 if wrong else 0


sys.exit(main())
