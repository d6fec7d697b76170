#!/usr/bin/env bash
# Draws every window in its states, and logcheck's pages in a browser, into build/pictures, and takes those
# that the documents show into docs/pictures.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/tools.sh

need "${test_packages[@]}"
need_page_tools
build debug logchecker_pictures logcheck
rm -rf build/pictures
build/debug/bin/logchecker_pictures build/pictures 2>/dev/null
LOGCHECK=$PWD/build/debug/bin/logcheck node tests/pages/pictures.mjs build/pictures
for name in main-4-splits-1024-checked main-5-splits-lined-up results-5-splits results-wide results-none \
  select-hour about split-settings general-settings cart-locations cart-browser print-preview find-cart-found \
  day-page board board-phone; do
  cp "build/pictures/$name.png" docs/pictures/
done
echo "Drawn: $(find build/pictures -name '*.png' | wc -l) pictures in build/pictures"
