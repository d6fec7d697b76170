#!/usr/bin/env bash
# Builds the toolkit for Windows, as DLLs, from the sources of the system's own packages, and prints the
# folder that it lies in. It takes about half an hour, once a machine: the result stays outside the
# checkout, in a folder named for its version and recipe. A run that is cut off goes on where it was.
#   scripts/windows-qt.sh
# The DLLs are separate files, so that whoever has the program can put others in their place.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/tools.sh

# Said on standard error: standard output is the folder alone.
need "${windows_qt_packages[@]}" >&2

package_version=$(dpkg-query -W -f='${source:Version}' qt6-base-dev)
version=$(dpkg-query -W -f='${source:Upstream-Version}' qt6-base-dev)
version=${version%%+*}
compiler=x86_64-w64-mingw32-g++-posix

# Windows, widgets, printing and what tests them. Direct2D stays: printing does not link without it.
recipe=(
  -DCMAKE_BUILD_TYPE=Release
  -DBUILD_SHARED_LIBS=ON
  -DQT_HOST_PATH=/usr
  "-DQT_HOST_PATH_CMAKE_DIR=/usr/lib/$(uname -m)-linux-gnu/cmake"
  -DQT_BUILD_EXAMPLES=OFF
  -DQT_BUILD_TESTS=OFF
  -DFEATURE_testlib=ON
  -DFEATURE_sql=OFF
  -DFEATURE_network=OFF
  -DFEATURE_dbus=OFF
  -DFEATURE_opengl=OFF
  -DINPUT_opengl=no
  -DFEATURE_vulkan=OFF
  -DFEATURE_xml=OFF
  -DFEATURE_concurrent=OFF
  -DFEATURE_system_zlib=OFF
  -DFEATURE_tabletevent=OFF
)
key=$(printf '%s\n' "$package_version" "$($compiler -dumpfullversion)" "${recipe[@]}" |
  sha256sum | cut -c1-12)
folder=${XDG_CACHE_HOME:-$HOME/.cache}/logchecker/windows-qt-$version-$key
if [ -f "$folder/complete" ]; then
  echo "$folder"
  exit
fi

mkdir -p "$folder"
exec 9>"$folder/lock"
flock 9
# Another run may have ended it meanwhile.
if [ -f "$folder/complete" ]; then
  echo "$folder"
  exit
fi
echo "Building Qt $version for Windows in $folder: about half an hour on two processors, this once." >&2

# The list of source packages is our own, so that the system's stays as it is.
fetch_sources() {
  local apt=$folder/apt codename
  codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
  rm -rf "$apt" "$folder/source"
  mkdir -p "$apt/lists/partial"
  local keyring=/usr/share/keyrings/debian-archive-keyring.gpg
  local suite
  for suite in "$codename main" "$codename-updates main"; do
    echo "deb-src [signed-by=$keyring] http://deb.debian.org/debian $suite"
  done >"$apt/sources.list"
  echo "deb-src [signed-by=$keyring] http://deb.debian.org/debian-security $codename-security main" \
    >>"$apt/sources.list"
  local own=(-o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null
    -o "Dir::State::Lists=$apt/lists" -o APT::Sandbox::User= -o "Dir::Cache::pkgcache=" -o "Dir::Cache::srcpkgcache=")
  apt-get "${own[@]}" -q update >/dev/null
  (cd "$apt" && apt-get "${own[@]}" -q source --download-only "qt6-base=$package_version" >/dev/null)
  # With Debian's own mendings, which are mostly those of safety.
  dpkg-source --no-check -x "$apt"/qt6-base_*.dsc "$folder/source" >/dev/null
  touch "$folder/source/.unpacked"
}

[ -f "$folder/source/.unpacked" ] || fetch_sources
build=$folder/build
if [ ! -f "$build/build.ninja" ]; then
  rm -rf "$build"
  mkdir -p "$build"
  cmake -G Ninja -S "$folder/source" -B "$build" "-DCMAKE_TOOLCHAIN_FILE=$PWD/cmake/windows-toolchain.cmake" \
    -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=BOTH "-DCMAKE_INSTALL_PREFIX=$folder" "${recipe[@]}" \
    >"$folder/configure.log" 2>&1 || {
    tail -40 "$folder/configure.log" >&2
    rm -f "$build/build.ninja"
    exit 1
  }
fi

# A line for each fifty steps, with the seconds so far.
NINJA_STATUS='[%f/%t %e] ' ninja -C "$build" 2>&1 | awk '
  /^\[[0-9]+\/[0-9]+ / { split(substr($1, 2), step, "/"); if (step[1] % 50 == 0) { print $1, $2, "Qt for Windows"; fflush() } }
  /error:|^FAILED|^ninja: / { print; fflush() }' >&2
cmake --install "$build" >"$folder/install.log"
find "$folder/bin" "$folder/plugins" -name '*.dll' -exec x86_64-w64-mingw32-strip --strip-unneeded {} +
# The licence wants the sources to be had with the DLLs: those of the package, as they were fetched.
mkdir -p "$folder/sources"
mv "$folder"/apt/qt6-base_* "$folder/sources"
rm -rf "$build" "$folder/apt" "$folder/source" "$folder"/qt6-base_*
touch "$folder/complete"
echo "$folder"
