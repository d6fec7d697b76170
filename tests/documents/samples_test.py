#!/usr/bin/env python3
"""Runs every code sample of the documents and holds what it prints against what the document says.
Takes the folder of the programs.

A sample is a fenced block: "console" with commands behind "$ " and what they print ("..." stands for any
lines), "crontab" for the lines of cron, "bat" for a command of the Windows scheduler. Each document has a
folder of its own, with nothing in it, in which its samples run in their order. The examples of the manual
pages run on a station with mistakes, with a stand-in for the mail system and for the person who picks a
cart."""

import difflib
import os
import pathlib
import re
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent.parent.parent
PROGRAMS = pathlib.Path(sys.argv[1]).resolve()
EXAMPLE = re.compile(r"^\.nf\n(.*?)^\.fi$", re.MULTILINE | re.DOTALL)
FENCE = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
# Samples that need another machine, and the test that runs them.
ELSEWHERE = {("many-stations.md", "sh"), ("many-stations.md", "text")}  # many_stations_test.py
LINK = re.compile(r"\]\(([^)#]+)(?:#[^)]*)?\)")


class Document:
    def __init__(self, path, folder):
        self.path = path
        self.text = path.read_text(encoding="utf-8")
        self.folder = folder
        self.status = 0
        self.environment = dict(
            os.environ, HOME=str(folder), XDG_CONFIG_HOME=str(folder / "config"), LC_ALL="C.UTF-8",
            TZ="UTC", QT_QPA_PLATFORM="offscreen", PATH=f"{PROGRAMS}:{os.environ['PATH']}")
        self.problems = []
        self.samples = 0

    def check(self):
        for match in FENCE.finditer(self.text):
            line = self.text.count("\n", 0, match.start()) + 1
            self.samples += 1
            if (self.path.name, match.group(1)) in ELSEWHERE:
                continue
            run = {"console": self.console, "crontab": self.crontab, "bat": self.scheduled}.get(match.group(1))
            if run is None:
                self.problem(line, f"a sample of an unknown kind: {match.group(1)!r}")
            else:
                run(line, match.group(2))
        without = FENCE.sub("", self.text)
        if re.search(r"\n\n    \S", without):
            self.problem(0, "an indented sample, which nobody runs")
        for target in LINK.findall(without):
            if "://" not in target and not (self.path.parent / target).exists():
                self.problem(0, f"a link that leads nowhere: {target}")

    def problem(self, line, text):
        self.problems.append(f"{self.path.relative_to(HERE)}:{line}: {text}")

    def shell(self, command):
        done = subprocess.run(["bash", "-c", f"(exit {self.status})\n{command}"], cwd=self.folder,
                              env=self.environment, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, check=False, timeout=120)
        self.status = done.returncode
        return done.stdout.decode("utf-8", "replace")

    def console(self, line, block):
        for part in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]:
            command, _, expected = part.partition("\n")
            while command.endswith("\\"):
                more, _, expected = expected.partition("\n")
                command = command[:-1] + more
            self.compare(line, command, expected, self.shell(command))
        if not block.startswith("$ "):
            self.problem(line, "a sample without a command")

    def compare(self, line, command, expected, printed):
        pattern = ".*?".join(re.escape(piece) for piece in re.split(r"^\.\.\.\n", expected,
                                                                   flags=re.MULTILINE))
        blanks = re.compile(r"[ \t\r]+$", re.MULTILINE)
        if re.fullmatch(pattern, blanks.sub("", printed), re.DOTALL) is None:
            self.problem(line, f"$ {command}\n" + "\n".join(difflib.unified_diff(
                expected.splitlines(), printed.splitlines(), "the document", "the program",
                lineterm="")))

    def sample_tomorrow(self):
        self.shell("rm -rf config && logcheck sample config/velmar")

    def command_works(self, line, command):
        """Runs a check that finds tomorrow's mistakes."""
        done = subprocess.run(command, cwd=self.folder, env=self.environment, capture_output=True,
                              check=False, timeout=120)
        if done.returncode != 1:
            self.problem(line, f"{command} ended with {done.returncode}: {done.stderr.decode()}")

    def crontab(self, line, block):
        """A test of its own runs the template's lines."""
        if block != (HERE / "packaging/nightly/crontab").read_text(encoding="utf-8"):
            self.problem(line, "other lines than those of the template")

    def scheduled(self, line, block):
        match = re.search(r'/TR "([^"]*)"', block)
        if match is None:
            self.problem(line, "no command")
            return
        self.sample_tomorrow()
        # The drive of the sample is a folder here.
        (self.folder / "config/velmar/drives/c/LogChecker").mkdir(parents=True)
        words = match.group(1).split()
        if words[0] != r"C:\LogChecker\logcheck.exe":
            self.problem(line, "not the program")
        self.command_works(line, [str(PROGRAMS / "logcheck"), *words[1:]])


def stand_in(folder, name, script):
    path = folder / name
    path.write_text(f"#!/bin/sh\n{script}\n")
    path.chmod(0o755)


class ManualPage(Document):
    def check(self):
        programs = self.folder / "stand-ins"
        programs.mkdir()
        stand_in(programs, "mail", f'echo "$@" >"{self.folder}/mailed"; cat >>"{self.folder}/mailed"')
        stand_in(programs, "cartbrowser", "echo 1161")
        self.environment["LOGCHECK_MAILER"] = "mail"
        self.environment["PATH"] = f"{programs}:{self.environment['PATH']}"
        self.sample_tomorrow()
        for match in EXAMPLE.finditer(self.text):
            self.samples += 1
            line = self.text.count("\n", 0, match.start()) + 1
            command = match.group(1).replace("\\-", "-").strip()
            printed = self.shell(command)
            mailed = self.folder / "mailed"
            told = printed + (mailed.read_text() if mailed.exists() else "")
            if self.status != 0 or not re.search(r"5 ad breaks|1161\t0\tRedfern", told):
                self.problem(line, f"{command}\nends with {self.status} and prints:\n{told}")


def main():
    problems = []
    samples = 0
    for path in [HERE / "README.md", HERE / "CONTRIBUTING.md", *sorted(HERE.glob("docs/*.md")),
                 *sorted(HERE.glob("tests/rules/*.md"))]:
        with tempfile.TemporaryDirectory(prefix="logchecker-documents-") as folder:
            document = Document(path, pathlib.Path(folder))
            document.check()
            problems += document.problems
            samples += document.samples
    for path in sorted(HERE.glob("docs/man/*.1")):
        with tempfile.TemporaryDirectory(prefix="logchecker-documents-") as folder:
            page = ManualPage(path, pathlib.Path(folder))
            page.check()
            problems += page.problems
            samples += page.samples
    for problem in problems:
        print(problem)
    print(f"{samples} samples run")
    return 1 if problems or samples == 0 else 0


sys.exit(main())
