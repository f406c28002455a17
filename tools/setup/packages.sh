# Installs what a command of this house needs; sourced by ./run, ./test and ./package.
# Usage: need_packages NAME...   (Debian 12, as root or with sudo)
# Elsewhere nothing is installed: the build looks itself for what it takes and names what is missing.

need_packages() {
  local id="" missing=() package
  [ -r /etc/os-release ] && id=$(. /etc/os-release && echo "${ID:-}${VERSION_ID:-}")
  if [ "$id" != debian12 ] || ! command -v apt-get >/dev/null; then
    need_tools
    return
  fi
  for package in "$@"; do
    dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local sudo=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "Please run this as root, or install: ${missing[*]}" >&2
      exit 1
    fi
    sudo=(sudo)
  fi
  echo "Installing: ${missing[*]}"
  "${sudo[@]}" apt-get update -qq &&
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null || {
    echo "The packages could not be installed: ${missing[*]}" >&2
    exit 1
  }
}

# Those that a step can do without; it says itself what it leaves out.
want_packages() {
  (need_packages "$@") || echo "Going on without: $*" >&2
}

# What has to be there before the build can look for the rest.
need_tools() {
  local missing=()
  command -v cmake >/dev/null || missing+=("CMake 3.25 or newer")
  command -v ninja >/dev/null || missing+=("Ninja")
  command -v c++ >/dev/null || command -v g++ >/dev/null || command -v clang++ >/dev/null ||
    missing+=("a C++20 compiler (GCC 12 or Clang 14, or newer)")
  [ ${#missing[@]} -eq 0 ] && return 0
  printf 'This command sets itself up on Debian 12 only. Missing here:\n' >&2
  printf '  - %s\n' "${missing[@]}" >&2
  exit 1
}

# Everything that the build of the program and its folder takes.
BUILD_PACKAGES=(g++ cmake ninja-build python3 qt6-base-dev libgl-dev libopenal-dev libarchive-dev librsvg2-bin
  fontconfig fonts-b612 fonts-roboto-unhinted fonts-dseg fonts-ocr-b python3-fonttools flite sox)
TEST_PACKAGES=(libgtest-dev libbenchmark-dev libsqlite3-dev clang clang-format clang-tidy libclang-rt-14-dev git desktop-file-utils appstream
  libxml2-dev libxml2-utils gpsbabel  # read back the plans that are written for other programs
  poppler-utils # and the printed sheets
  xvfb dbus at-spi2-core python3-gi gir1.2-atspi-2.0) # the window as a screen reader finds it

# What the packages take besides.
PACKAGE_PACKAGES=(git dpkg-dev lintian patchelf xz-utils file qt6-wayland)
WINE_PACKAGES=(wine) # plays what is built for Windows
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix gcc-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 zip)

# What another clone of the project has compiled serves this one too.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
launcher() { command -v ccache >/dev/null && echo "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache" || true; }
