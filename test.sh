#!/usr/bin/env bash
# Builds and runs all tests. With an option, one of the other checks:
#   --windows    the tests, cross-built for Windows and run under Wine
#   --sanitize   the tests with the address and undefined-behaviour sanitizers
#   --pages      logcheck's pages, looked at in a browser
#   --lint       format, clang-tidy, includes, the order of the rooms, and the table of rules
set -euo pipefail
cd "$(dirname "$0")"
. scripts/tools.sh

# run_tests PRESET JOBS
run_tests() {
  build "$1"
  ctest --test-dir "build/$1" --output-on-failure --no-tests=error -j "$2"
}

case "${1:-}" in
  "")
    need "${test_packages[@]}"
    # Many of them wait for something most of their time.
    run_tests debug "$(($(nproc) * 2))"
    ;;
  --windows)
    need "${windows_packages[@]}"
    run_tests windows "$(nproc)"
    ;;
  --sanitize)
    need "${test_packages[@]}"
    run_tests asan "$(nproc)"
    ;;
  --pages)
    need_page_tools
    build debug logcheck
    LOGCHECK=$PWD/build/debug/bin/logcheck node --test tests/pages/*_test.mjs
    ;;
  --lint)
    need "${lint_packages[@]}"
    scripts/lint.sh
    ;;
  *)
    sed -n '2,7s/^# \{0,1\}//p' "$0" >&2
    exit 2
    ;;
esac
