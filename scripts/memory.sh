#!/usr/bin/env bash
# Runs the whole day's check and a walk through every window under valgrind. Fails at an error, or at
# memory that is lost, that is not the system's libraries'.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/tools.sh

need "${memory_packages[@]}"
build debug logcheck logchecker_pictures
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
result=0

# run NAME STATUS COMMAND...: the command under valgrind must end with the status.
run() {
  local name=$1 expected=$2 status=0
  shift 2
  QT_QPA_PLATFORM=offscreen valgrind --leak-check=full --errors-for-leak-kinds=definite,indirect \
    --show-leak-kinds=definite,indirect --num-callers=40 --error-exitcode=99 \
    --suppressions=tests/support/valgrind.supp --log-file="$work/$name.log" "$@" >"$work/$name.out" 2>&1 ||
    status=$?
  grep -E 'definitely lost|indirectly lost|ERROR SUMMARY' "$work/$name.log" | sed "s/^==[0-9]*==/$name:/"
  if [ "$status" -ne "$expected" ]; then
    echo "$name ended with $status:" >&2
    tail -100 "$work/$name.log" >&2
    result=1
  fi
}

build/debug/bin/logcheck sample "$work/station" --date 2027-01-15
run check 1 build/debug/bin/logcheck --settings "$work/station" --date 2027-01-15 --format json
run show 0 build/debug/bin/logcheck --settings "$work/station" show --split 2 --date 2027-01-15
run cart 0 build/debug/bin/logcheck --settings "$work/station" cart 1 1161 3950 99999
run windows 0 build/debug/bin/logchecker_pictures "$work/pictures"
exit "$result"
