#!/usr/bin/env python3
"""Times the search's walk over whole stores, and a refresh of the cart browser's rows. Each row states
its limit; the exit code is 1 when one is passed."""

import argparse
import json
import subprocess
import sys

# Name of the benchmark, what it does, limit in milliseconds.
ROWS = [
    ("WalkWithoutNotes/9999", "walk of 9,999 carts", 300),
    ("WalkWithNotes/12000", "walk of 12,000 carts with notes on each", 3000),
    ("ReadFiftyBrowserRows", "50 rows of the cart browser", 10),
]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--bench", default="build/bench/bin/logchecker_bench")
    options = parser.parse_args()
    names = "|".join(f"^{name}$" for name, _, _ in ROWS)
    run = subprocess.run([options.bench, f"--benchmark_filter={names}", "--benchmark_format=json",
                          "--benchmark_min_time=0.3"], stdout=subprocess.PIPE, text=True, check=True)
    times = {row["name"]: row["real_time"] for row in json.loads(run.stdout)["benchmarks"]}
    failed = False
    for name, text, limit in ROWS:
        over = times[name] > limit
        failed = failed or over
        print(f"{text:<50}{times[name]:8.2f} ms   limit {limit} ms{'   OVER' if over else ''}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
