#!/usr/bin/env bash
# Runs the fuzzers, each for so many seconds (20 unless told) or ten million inputs, as many at once as
# there are processors:
#   scripts/fuzz.sh [SECONDS] [FUZZER...]
# Each starts from its corpus in fuzz/corpus. What one finds goes to build/fuzz/found.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/tools.sh

seconds=${1:-20}
[ $# -eq 0 ] || shift
fuzzers=("$@")
if [ ${#fuzzers[@]} -eq 0 ]; then
  for source in fuzz/*Fuzzer.cpp; do fuzzers+=("$(basename "$source" .cpp)"); done
fi

need "${fuzz_packages[@]}"
build fuzz "${fuzzers[@]}"
mkdir -p build/fuzz/found build/fuzz/grown
# Files that fuzzers work on stay in memory.
scratch=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo /tmp)")
trap 'rm -rf "$scratch"' EXIT

run_fuzzer() {
  local name=$1 log=build/fuzz/$1.log
  mkdir -p "build/fuzz/grown/$name"
  TMPDIR=$scratch "build/fuzz/bin/$name" -max_total_time="$seconds" -runs=10000000 -max_len=4096 \
    -rss_limit_mb=2048 -timeout=20 -artifact_prefix="build/fuzz/found/$name-" \
    -print_final_stats=1 "build/fuzz/grown/$name" "fuzz/corpus/$name" >"$log" 2>&1 || {
    echo "$name found something:" >&2
    grep -v -E '^#[0-9]+' "$log" | tail -60 >&2
    return 1
  }
  echo "$name: $(grep -oP 'number_of_executed_units:\s+\K\d+' "$log") runs"
}
export -f run_fuzzer
export seconds scratch

printf '%s\n' "${fuzzers[@]}" | xargs -P "$(nproc)" -I{} bash -c 'set -euo pipefail; run_fuzzer {}'
