# What the packages share; sourced by them in the project's folder, after packages.sh.

# Two runs give the same bytes: whatever writes a date takes that of the last commit.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export SOURCE_DATE_EPOCH LC_ALL=C TZ=UTC
umask 022

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
out=$PWD/build/packages
mkdir -p "$out"

# Builds a preset's program and resources without tests. The folder of the build stands in no file that ships.
build_shipped() { # folder, install prefix, further options
  local folder=$1 prefix=$2
  shift 2
  mkdir -p "$folder"
  # shellcheck disable=SC2046
  cmake -G Ninja -S . -B "$folder" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" -DGATEWISE_TESTS=OFF \
    -DGATEWISE_BENCH=OFF -DCMAKE_CXX_FLAGS="${shipped_flags:-} -ffile-prefix-map=$PWD=." $(launcher) "$@" >"$folder/configure.log" ||
    { cat "$folder/configure.log" >&2; return 1; }
  cmake --build "$folder"
}

# All files of a folder carry the same date.
same_dates() { find "$1" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +; }
