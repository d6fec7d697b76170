#!/usr/bin/env bash
# Builds Log Checker, writes a sample station, and checks its tomorrow across all splits. Where there is
# a display the desktop opens on the station after that. Arguments go to the check, such as --format csv.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/tools.sh

need "${build_packages[@]}"
build release logcheck logchecker

station=build/sample/velmar
build/release/bin/logcheck sample "$station"
echo "The sample station lies in $station; SAMPLE.TXT there tells which mistakes are planted."
echo
result=0
build/release/bin/logcheck check --settings "$station" "$@" || result=$?
# 1 says that something differs, which the sample is made for.
[ "$result" -le 1 ] || exit "$result"

if [ $# -eq 0 ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo
  echo "Opening the desktop on the sample station."
  XDG_CONFIG_HOME=$PWD/build/sample exec build/release/bin/logchecker
fi
