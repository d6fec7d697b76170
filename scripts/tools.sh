# Sourced by run.sh, test.sh and the benchmarks: sees to it that the tools of a step are there.

# need PACKAGE...: installs the Debian packages that are missing; says plainly what to install where it
# can't.
need() {
  if ! command -v dpkg-query >/dev/null 2>&1; then
    need_elsewhere
    return
  fi
  local missing=()
  local package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null 2>&1 || ! sudo -v; then
      echo "These packages are missing, and installing them takes rights that you don't have here." >&2
      echo "Ask for: apt-get install ${missing[*]}" >&2
      exit 1
    fi
    as_root=(sudo)
  fi
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -q >/dev/null || true
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends -o DPkg::Lock::Timeout=600 "${missing[@]}" >/dev/null
}

# Systems without Debian packages: the tools by name, and the libraries in words.
need_elsewhere() {
  local tool
  for tool in cmake ninja c++ rsvg-convert; do
    command -v "$tool" >/dev/null 2>&1 && continue
    echo "$tool is missing. Log Checker needs CMake 3.25, Ninja, a C++20 compiler, Qt 6.4, rsvg-convert, ALSA," >&2
    echo "CLI11, nlohmann-json and Python 3 with its markdown package; its tests also need GoogleTest," >&2
    echo "RapidCheck, Xvfb and xdotool." >&2
    exit 1
  done
}

plain_packages=(cmake ninja-build g++ libasound2-dev libcli11-dev nlohmann-json3-dev)
build_packages=("${plain_packages[@]}" qt6-base-dev librsvg2-bin qt6-multimedia-dev libcups2-dev python3
  python3-markdown)
test_packages=("${build_packages[@]}" acl libgtest-dev libgmock-dev librapidcheck-dev libjpeg-dev
  libgumbo-dev locales python3 python3-jsonschema xvfb openbox xdotool xclip x11-utils imagemagick
  fonts-dejavu-core poppler-utils cups systemd parallel openssh-client openssh-server bsdutils
  at-spi2-core dbus python3-pyatspi)
windows_qt_packages=(cmake ninja-build g++-mingw-w64-x86-64-posix qt6-base-dev qt6-base-dev-tools dpkg-dev)
windows_packages=("${plain_packages[@]}" "${windows_qt_packages[@]}" librsvg2-bin wine64 googletest python3
  python3-markdown xvfb fonts-wine fonts-liberation fonts-dejavu-core poppler-utils cups)
package_packages=("${build_packages[@]}" "${windows_packages[@]}" nsis dpkg-dev desktop-file-utils appstream
  python3 xvfb openbox xdotool x11-utils imagemagick fonts-dejavu-core)
lint_packages=("${test_packages[@]}" clang-format clang-tidy iwyu python3)
fuzz_packages=("${plain_packages[@]}" clang libclang-rt-14-dev libgumbo-dev llvm)
coverage_packages=("${test_packages[@]}" gcovr)
mutation_packages=("${test_packages[@]}" bubblewrap lld)
memory_packages=("${build_packages[@]}" "${test_packages[@]}" valgrind)
page_packages=("${plain_packages[@]}" chromium nodejs poppler-utils fonts-dejavu-core)
benchmark_packages=("${build_packages[@]}" libbenchmark-dev python3 time xvfb)

# need_page_tools: what looks at pages in a browser. The packages of npm are those of the lock file, to
# the byte; they lie outside the checkout, in a folder that is named for that file, and
# LOGCHECKER_PAGE_TOOLS says where.
need_page_tools() {
  need "${page_packages[@]}"
  # Node.js from elsewhere than Debian brings its own.
  command -v npm >/dev/null 2>&1 || need npm
  local hash folder fresh
  hash=$(cat tests/pages/package.json tests/pages/package-lock.json | sha256sum | cut -c1-16)
  folder=${XDG_CACHE_HOME:-$HOME/.cache}/logchecker/pages-$hash
  if [ ! -d "$folder" ]; then
    mkdir -p "$(dirname "$folder")"
    fresh=$(mktemp -d "$folder.XXXXXX")
    cp tests/pages/package.json tests/pages/package-lock.json "$fresh"
    npm ci --prefix "$fresh" --ignore-scripts --no-audit --no-fund --loglevel=error
    # Whole or not at all; another run may have been quicker.
    mv -T "$fresh" "$folder" 2>/dev/null || rm -rf "$fresh"
  fi
  export LOGCHECKER_PAGE_TOOLS=$folder
}

# build PRESET [TARGET...]: configures, when that has not been done, and builds.
build() {
  local preset=$1
  shift
  if [ "$preset" = windows ]; then
    LOGCHECKER_WINDOWS_QT=$(scripts/windows-qt.sh)
    export LOGCHECKER_WINDOWS_QT
  fi
  local launcher=()
  command -v ccache >/dev/null 2>&1 && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  if [ ! -f "build/$preset/build.ninja" ]; then
    cmake --preset "$preset" "${launcher[@]}" >"build-$preset.log" 2>&1 || {
      cat "build-$preset.log" >&2
      exit 1
    }
    rm -f "build-$preset.log"
  fi
  local targets=()
  [ $# -gt 0 ] && targets=(--target "$@")
  cmake --build --preset "$preset" "${targets[@]}" -- --quiet
}
