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

# The generated headers and the compile commands come from configuring.
[ -f build/debug/compile_commands.json ] || cmake --preset debug >/dev/null
# So do the headers that the toolkit's tools write for the windows.
mapfile -t written < <(ninja -C build/debug -t targets all |
  sed -n 's/^\([a-z_/]*_\(autogen\|layouts\)\): phony$/\1/p')
[ ${#written[@]} -eq 0 ] || cmake --build --preset debug --target "${written[@]}" -- --quiet
mapfile -t units < <(git ls-files '*.cpp' | grep -Ev '^(tests|bench|fuzz|platform/windows)/|^cmake/')
printf '%s\n' "${units[@]}" |
  xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/debug --warnings-as-errors='*' \
    --extra-arg=-Wno-unknown-warning-option 2>/dev/null
echo "clang-tidy: clean, ${#units[@]} files"
scripts/check_includes.sh
