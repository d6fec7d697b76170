#!/usr/bin/env bash
# Makes the packages in build/packages: the Debian packages, with windows and without, the zip of logcheck.exe and
# the installer for Windows.
#   scripts/package.sh           all of them
#   scripts/package.sh --check   and installs, runs, upgrades and removes them in roots of their own
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/tools.sh

need "${package_packages[@]}"
build release package_files
LOGCHECKER_WINDOWS_QT=$(scripts/windows-qt.sh)
export LOGCHECKER_WINDOWS_QT
build windows package_files
rm -rf build/packages
(cd build/release && cpack -G DEB >../cpack-deb.log) || { cat build/cpack-deb.log >&2; exit 1; }
(cd build/windows && cpack -G ZIP >../cpack-zip.log) || { cat build/cpack-zip.log >&2; exit 1; }
(cd build/windows && cpack -G NSIS >../cpack-nsis.log) || { cat build/cpack-nsis.log >&2; exit 1; }
rm -rf build/packages/_CPack_Packages
ls -l build/packages
[ "${1:-}" = --check ] || exit 0
python3 scripts/check_packages.py build/packages
python3 scripts/check_windows_installer.py build/packages/logchecker-*-windows-x64.exe build/windows
