#!/usr/bin/env bash
# Fails when a file of a plain half includes what it does not use. Needs build/lint to be configured.
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -t units < <(git ls-files '*.cpp' |
  grep -E '^(platform|common|dialogs|printing|notes|cartstore|splitlogs|cartbrowser|checking|shell|sample|headless)/' |
  grep -Ev '/ui/|^platform/windows/')
found=$(mktemp)
trap 'rm -f "$found"' EXIT
iwyu_tool -j "$(nproc)" -p build/lint "${units[@]}" -- \
  -Xiwyu --no_fwd_decls -Xiwyu --cxx17ns -Xiwyu --mapping_file="$PWD/scripts/includes.imp" 2>/dev/null |
  awk '/^\(/ { next } /should remove these lines/ { file = $1 } /^- #include/ { print file ": " $0 }' |
  sed "s,$PWD/,," | sort -u >"$found"
if [ -s "$found" ]; then
  cat "$found"
  exit 1
fi
echo "Includes: nothing superfluous in ${#units[@]} files"
