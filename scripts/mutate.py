#!/usr/bin/env python3
"""Breaks the system on purpose, one small change at a time, and lists the changes that no test sees.

A change that survives shows a rule without a test, or a change that makes no difference: those stand with the
reason in tests/mutants.md and don't count. docs/testing.md tells more."""

import argparse
import concurrent.futures
import pathlib
import re
import shutil
import sys
import threading
import time

from mutation.bench import Bench, ROOMS, halves
from mutation.find import changed, find

HERE = pathlib.Path(__file__).resolve().parent.parent
EQUIVALENT = HERE / "tests/mutants.md"
ROW = re.compile(r"^\| `([\w/.]+)` \| (`+) ?(.+?) ?\2 \| (`+) ?(.+?) ?\4 \| (.+) \|$")


def equivalents():
    """The changes that make no difference, as (file, line before, line after)."""
    found = {}
    for line in EQUIVALENT.read_text().splitlines():
        if match := ROW.match(line):
            found[(match[1], match[3].replace(r"\|", "|"), match[5].replace(r"\|", "|"))] = match[6]
        elif line.startswith("| `"):
            raise SystemExit(f"{EQUIVALENT.name}: not a row of file, before, after and reason:\n{line}")
    return found


def makes_no_difference(mutant, same):
    """Whether a row of the list means it: by its line, or by the line above and its own."""
    return any((mutant.file, before, mutant.after) in same
               for before in (mutant.before, f"{mutant.above} {mutant.before}"))


def mutants_of(half):
    files = [str(file.relative_to(HERE)) for room in ROOMS for file in sorted((HERE / room).rglob("*.cpp"))]
    return [mutant for file in files if halves(file) == half and not file.startswith("platform/windows/")
            for mutant in find(file, (HERE / file).read_text())]


def in_order(mutants, seed):
    """One change of each line, in an order by chance that code keeps when it moves."""
    chosen = {}
    for mutant in sorted(mutants, key=lambda mutant: mutant.rank(seed)):
        chosen.setdefault((mutant.file, mutant.line), mutant)
    return sorted(chosen.values(), key=lambda mutant: mutant.line_rank(seed))


def meant(mutant, wanted):
    return any(mutant.name == name or mutant.file == name or f"{mutant.file}:{mutant.line}" == name
               for name in wanted)


class Trial:
    """Tries mutants until as many have counted as are wanted."""

    def __init__(self, bench, count, near):
        self.bench = bench
        self.near = near
        self.count = count
        self.lock = threading.Lock()
        self.sources = {}
        self.killed = 0
        self.survived = []

    def source(self, file):
        return self.sources.setdefault(file, (HERE / file).read_text())

    def wants_more(self):
        return self.killed + len(self.survived) < self.count

    def judge(self, mutant, scratch):
        """Who killed it, "" when nobody did, None when it does not compile."""
        if not self.bench.make(mutant.file, changed(self.source(mutant.file), mutant), scratch):
            return None
        for program in self.bench.that_see(mutant.file, self.near):
            self.bench.measure(program)
            code, output = self.bench.run(program, scratch, program.limit)
            if code != 0:
                failed = re.findall(r"\[  FAILED  \] (\w+[./][\w./]+)", output)
                return f"{program.name} {failed[0] if failed else 'time' if code is None else ''}".rstrip()
        return ""

    def take(self, mutant, slot):
        begin = time.monotonic()
        killer = self.judge(mutant, self.bench.build / f"trial-{slot}")
        with self.lock:
            if killer:
                self.killed += 1
            elif killer == "":
                self.survived.append(mutant)
            what = "does not compile" if killer is None else f"killed by {killer}" if killer else "SURVIVED"
            print(f"{self.killed + len(self.survived):4d}  {mutant.name}  {what}"
                  f"  {time.monotonic() - begin:.0f} s", flush=True)
            if killer == "":
                show(mutant)

    def work(self, queue, slot):
        while True:
            with self.lock:
                mutant = next(queue, None) if self.wants_more() else None
            if mutant is None:
                return
            self.take(mutant, slot)

    def run(self, mutants, jobs):
        queue = iter(mutants)
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            for done in [pool.submit(self.work, queue, slot) for slot in range(jobs)]:
                done.result()


def show(mutant):
    print(f"        {mutant.before}\n     => {mutant.after}", flush=True)


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument("--seed", type=int, default=1, help="another choice of changes (1)")
    options.add_argument("--count", type=int, default=150, help="how many that count, in each half (150)")
    options.add_argument("--half", choices=("plain", "windows", "both"), default="both")
    options.add_argument("--only", nargs="+", metavar="ID",
                         help="these: FILE, FILE:LINE or FILE:LINE:OPERATOR, equivalent ones too")
    options.add_argument("--list", action="store_true", help="tell which, and try none")
    options.add_argument("--near", action="store_true",
                         help="run the room's own tests alone, which is quicker and finds more survivors")
    options.add_argument("--jobs", type=int, default=1, help="how many at a time (1)")
    wanted = options.parse_args()
    if shutil.which("bwrap") is None:
        raise SystemExit("bwrap is missing, which keeps broken programs from harm: apt-get install bubblewrap")

    same = equivalents()
    chosen = {}
    for half in ("plain", "windows"):
        mutants = mutants_of(half)
        if wanted.only:
            chosen[half] = [mutant for mutant in mutants if meant(mutant, wanted.only)]
        elif wanted.half in (half, "both"):
            chosen[half] = [mutant for mutant in in_order(mutants, wanted.seed)
                            if not makes_no_difference(mutant, same)]
    if wanted.list:
        for mutants in chosen.values():
            for mutant in mutants[:None if wanted.only else wanted.count]:
                print(mutant.name)
                show(mutant)
        return 0

    bench = Bench(HERE)
    bench.prepare()
    chosen = {half: mutants for half, mutants in chosen.items() if mutants}
    results = []
    for half, mutants in chosen.items():
        trial = Trial(bench, len(mutants) if wanted.only else wanted.count, wanted.near)
        trial.run(mutants, wanted.jobs)
        results.append((half, trial))
    for half, trial in results:
        counted = trial.killed + len(trial.survived)
        print(f"\n== {half}: {trial.killed} of {counted} killed, {100 * trial.killed / max(counted, 1):.1f} %")
        for mutant in trial.survived:
            print(mutant.name)
            show(mutant)
    return 1 if any(trial.survived for _, trial in results) else 0


if __name__ == "__main__":
    sys.exit(main())
