#!/usr/bin/env bash
# Runs each fuzzer for so many seconds (20 unless told), from the corpus in fuzz/corpus. What a fuzzer
# finds goes to build/fuzz/found.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/tools.sh

need "${fuzz_packages[@]}"
build fuzz RichTextFuzzer
seconds=${1:-20}
mkdir -p build/fuzz/found build/fuzz/corpus/rich-text
build/fuzz/bin/RichTextFuzzer -max_total_time="$seconds" -max_len=4096 -rss_limit_mb=2048 \
  -artifact_prefix=build/fuzz/found/ -print_final_stats=1 build/fuzz/corpus/rich-text \
  fuzz/corpus/rich-text 2>build/fuzz/RichTextFuzzer.log || {
  tail -40 build/fuzz/RichTextFuzzer.log >&2
  exit 1
}
grep -E 'number_of_executed_units' build/fuzz/RichTextFuzzer.log
