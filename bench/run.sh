#!/usr/bin/env bash
# Builds the release and measures it: whole runs of the check against their limits, then single
# routines.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/tools.sh

need "${benchmark_packages[@]}"
build bench logcheck reads_floor logchecker_bench soak_bench watch_soak desktop_bench report_bench browser_bench note_bench
python3 bench/day.py
python3 bench/stations.py
python3 bench/store.py
python3 bench/board.py
python3 bench/watch.py
python3 bench/desktop.py
python3 bench/browser.py
build/bench/bin/logchecker_bench --benchmark_min_time=0.3
build/bench/bin/soak_bench
