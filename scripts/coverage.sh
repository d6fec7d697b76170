#!/usr/bin/env bash
# Runs all tests and tells which share of the lines they run: at least 95 % of the plain half and 85 % of
# the windows, or this fails. The lines themselves are shown in build/coverage/html.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/tools.sh

need "${coverage_packages[@]}"
build coverage
find build/coverage -name '*.gcda' -delete
ctest --test-dir build/coverage --output-on-failure --no-tests=error -j "$(nproc)" >build/coverage/tests.log ||
  { tail -60 build/coverage/tests.log >&2; exit 1; }

rooms='(platform|common|dialogs|printing|notes|cartstore|splitlogs|cartbrowser|checking|shell|sample|headless)'
mkdir -p build/coverage/html
gcovr --root . --object-directory build/coverage --exclude-unreachable-branches --exclude-throw-branches \
  --filter "$rooms/" --exclude 'platform/windows/' --json build/coverage/lines.json \
  --html-details build/coverage/html/index.html
# Half by half, from what was read above.
report() {
  echo "== $1, at least $2 %"
  shift
  local least=$1
  shift
  gcovr --root . --add-tracefile build/coverage/lines.json --sort-percentage --fail-under-line "$least" "$@" |
    awk '/^-+$/ || /^TOTAL/ || /^File/ { print; next } $4 + 0 < 90 { print }'
}
result=0
report "the plain half" 95 --exclude '.*/ui/' || result=1
report "the windows" 85 --filter '.*/ui/' || result=1
exit "$result"
