# Installs what a command of this house needs; sourced by ./run and ./test.
# Usage: need_packages NAME...   (Debian 12, as root or with sudo)

need_packages() {
  local id="" missing=() package
  [ -r /etc/os-release ] && id=$(. /etc/os-release && echo "${ID:-}${VERSION_ID:-}")
  if [ "$id" != debian12 ] || ! command -v apt-get >/dev/null; then
    echo "This command sets itself up on Debian 12 only; elsewhere install the equivalents of these packages and build with CMake's preset 'release': $*." >&2
    exit 1
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

# Everything that the build of the program and its folder takes.
BUILD_PACKAGES=(g++ cmake ninja-build python3 qt6-base-dev libqt6svg6-dev libgl-dev libopenal-dev libarchive-dev librsvg2-bin
  fontconfig fonts-b612 fonts-roboto-unhinted fonts-dseg fonts-ocr-b python3-fonttools flite sox)
TEST_PACKAGES=(libgtest-dev libbenchmark-dev libsqlite3-dev clang clang-format clang-tidy libclang-rt-14-dev git desktop-file-utils appstream
  libxml2-dev libxml2-utils gpsbabel  # read back the plans that are written for other programs
  poppler-utils # and the printed sheets
  xvfb dbus at-spi2-core python3-gi gir1.2-atspi-2.0) # the window as a screen reader finds it

# What the packages take besides.
PACKAGE_PACKAGES=(git dpkg-dev lintian patchelf xz-utils file)
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix gcc-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 zip)

launcher() { command -v ccache >/dev/null && echo "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache" || true; }
