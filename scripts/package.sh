#!/usr/bin/env bash
# Makes the packages in build/packages: the Debian packages, with windows and without, and the zip of logcheck.exe.
#   scripts/package.sh           all of them
#   scripts/package.sh --check   and installs, runs, upgrades and removes the Debian packages in roots of their own
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/tools.sh

need "${package_packages[@]}"
build release package_files
build windows logcheck
rm -rf build/packages
(cd build/release && cpack -G DEB >../cpack-deb.log) || { cat build/cpack-deb.log >&2; exit 1; }
(cd build/windows && cpack -G ZIP >../cpack-zip.log) || { cat build/cpack-zip.log >&2; exit 1; }
rm -rf build/packages/_CPack_Packages
ls -l build/packages
[ "${1:-}" != --check ] || python3 scripts/check_packages.py build/packages
