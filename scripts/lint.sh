#!/usr/bin/env bash
# Format, clang-tidy, includes, the order of the rooms and the table of rules. Fails when any of them finds something.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/tools.sh

mapfile -t sources < <(git ls-files '*.cpp' '*.h')
clang-format --dry-run --Werror "${sources[@]}"
echo "Format: clean, ${#sources[@]} files"

python3 scripts/check_rooms.py
python3 scripts/check_rules.py
python3 scripts/mutation/find_test.py

# The compile commands come from configuring: build/lint has one for each file alone, as what looks at
# includes needs it; build/tidy has one for a dozen files at a time, which costs hardly more than one.
[ -f build/lint/compile_commands.json ] || cmake --preset lint >/dev/null
cmake --preset lint -B build/tidy -DCMAKE_UNITY_BUILD=ON -DLOGCHECKER_TESTS=OFF >/dev/null
# The headers that the toolkit's tools write for the windows.
mapfile -t written < <(ninja -C build/tidy -t targets all |
  sed -n 's/^\([a-z_/]*_\(autogen\|layouts\)\): phony$/\1/p')
[ ${#written[@]} -eq 0 ] || ninja -C build/tidy --quiet "${written[@]}"
mapfile -t units < <(sed -n 's/^ *"file": "\(.*\)",*$/\1/p' build/tidy/compile_commands.json |
  grep -Ev '_autogen/|/qrc_|/cmake/' | sort -u)
[ ${#units[@]} -gt 0 ]
printf '%s\n' "${units[@]}" |
  xargs -P "$(nproc)" -n 1 clang-tidy --quiet -p build/tidy --warnings-as-errors='*' \
    --checks=-bugprone-suspicious-include --header-filter="^$PWD/[^b].*\.(h|cpp)$" \
    --extra-arg=-Wno-unknown-warning-option 2>/dev/null
echo "clang-tidy: clean, ${#units[@]} times a dozen files"
scripts/check_includes.sh
