# What the packages share; sourced by them in the project's folder, after packages.sh.

# Two runs give the same bytes: whatever writes a date takes that of the last commit.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export SOURCE_DATE_EPOCH LC_ALL=C TZ=UTC
umask 022

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
out=$PWD/build/packages
mkdir -p "$out"

# Settles a build of what is handed out, without tests.
configure_shipped() { # folder, install prefix, further options
  local folder=$1 prefix=$2
  shift 2
  mkdir -p "$folder"
  # shellcheck disable=SC2046
  cmake -G Ninja -S . -B "$folder" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" -DGATEWISE_TESTS=OFF \
    -DGATEWISE_TOGETHER=ON -DGATEWISE_BENCH=OFF -DCMAKE_CXX_FLAGS="${shipped_flags:-}" $(launcher) "$@" >"$folder/configure.log" ||
    { cat "$folder/configure.log" >&2; return 1; }
}

# Pictures, recordings and data, drawn, spoken and compiled by this machine's tools, once for all packages.
build_resources() {
  configure_shipped build/package-resources /usr -DGATEWISE_WINDOW=OFF
  cmake --build build/package-resources --target delivered land skin voices sample_data
}
install_resources() { DESTDIR=$1 cmake --install build/package-resources --component resources >/dev/null; } # stage

# The programs for this system, once for its packages, hardened as the distribution asks for.
build_linux() {
  local linker
  shipped_flags="$(dpkg-buildflags --get CXXFLAGS | sed 's/-ffile-prefix-map=[^ ]*//; s/-g //; s/-O2 //') $(dpkg-buildflags --get CPPFLAGS) -ffile-prefix-map=$PWD=."
  linker="$(dpkg-buildflags --get LDFLAGS) -Wl,-z,now -pie"
  configure_shipped build/package-linux /usr -DGATEWISE_DATA=OFF -DCMAKE_EXE_LINKER_FLAGS="$linker" -DCMAKE_POSITION_INDEPENDENT_CODE=ON
  shipped_flags=""
  cmake --build build/package-linux
}

# The folder of the build stands in no file that ships.
no_traces() { # folder
  local found
  found=$(grep -rlF "$PWD" "$1" || true)
  [ -z "$found" ] && return 0
  echo "The folder of the build stands in: $found" >&2
  return 1
}

# What a folder that is handed out says of its licences: the project's word, a text for each licence that is named, and
# the copyright of each package that something was taken from.
licences() { # folder
  local licence
  mkdir -p "$1/licences"
  cp THIRD-PARTY.md "$1/"
  sed -E 's#usr/share/gatewise/##g; s#/usr/share/common-licenses/([A-Za-z]+-[0-9.]*[0-9])#licences/\1.txt#g' \
    packaging/linux/copyright >"$1/LICENCE.txt"
  for licence in Apache-2.0 GPL-2 GPL-3 LGPL-2 LGPL-2.1 LGPL-3; do
    cp "/usr/share/common-licenses/$licence" "$1/licences/$licence.txt"
  done
}
licence_of() { cp -L "/usr/share/doc/$2/copyright" "$1/licences/$2.txt"; } # folder, package

# All files of a folder carry the same date.
same_dates() { find "$1" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +; }
