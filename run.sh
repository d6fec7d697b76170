#!/usr/bin/env bash
# Builds Log Checker, writes a sample station, and checks its tomorrow across all splits. Arguments go
# to the check, such as --format csv.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/tools.sh

need "${build_packages[@]}"
build release logcheck

station=build/sample
build/release/bin/logcheck sample "$station"
echo "The sample station lies in $station; SAMPLE.TXT there tells which mistakes are planted."
echo
result=0
build/release/bin/logcheck check --settings "$station" "$@" || result=$?
# 1 says that something differs, which the sample is made for.
[ "$result" -le 1 ] || exit "$result"
