# What the packages share; sourced by them in the project's folder, after packages.sh.

# Two runs give the same bytes: whatever writes a date takes that of the last commit.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export SOURCE_DATE_EPOCH LC_ALL=C TZ=UTC
umask 022

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
out=$PWD/build/packages
mkdir -p "$out"

# Builds a preset's program and resources without tests.
build_shipped() { # folder, install prefix, further options
  local folder=$1 prefix=$2
  shift 2
  mkdir -p "$folder"
  # shellcheck disable=SC2046
  cmake -G Ninja -S . -B "$folder" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" -DGATEWISE_TESTS=OFF \
    -DGATEWISE_BENCH=OFF -DCMAKE_CXX_FLAGS="${shipped_flags:-}" $(launcher) "$@" >"$folder/configure.log" ||
    { cat "$folder/configure.log" >&2; return 1; }
  cmake --build "$folder"
}

# The programs for this system with their resources, once for all packages, hardened as the distribution asks for.
build_linux() {
  local linker
  shipped_flags="$(dpkg-buildflags --get CXXFLAGS | sed 's/-ffile-prefix-map=[^ ]*//; s/-g //; s/-O2 //') $(dpkg-buildflags --get CPPFLAGS) -ffile-prefix-map=$PWD=."
  linker="$(dpkg-buildflags --get LDFLAGS) -Wl,-z,now -pie"
  build_shipped build/package-linux /usr -DCMAKE_EXE_LINKER_FLAGS="$linker" -DCMAKE_POSITION_INDEPENDENT_CODE=ON
  shipped_flags=""
}

# The folder of the build stands in no file that ships.
no_traces() { # folder
  local found
  found=$(grep -rlF "$PWD" "$1" || true)
  [ -z "$found" ] && return 0
  echo "The folder of the build stands in: $found" >&2
  return 1
}

# All files of a folder carry the same date.
same_dates() { find "$1" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +; }
