#!/usr/bin/env bash
# Builds the parts of Qt that the window uses for Windows, once, from the distribution's own source package of the
# version that is installed here, and prints the folder that holds them.
#
# No registry has this library ready for MinGW. The source comes from the mirror that the machine already uses, and what
# was built stays in a cache folder outside of the project, under a stamp of the version and of the options below.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

cache=${GATEWISE_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/gatewise}
version=$(dpkg-query -W -f '${Version}' qt6-base-dev)
source_package=qt6-base

off=(dbus fontconfig glib icu opengl vulkan sql network xml concurrent zstd tabletevent androiddeployqt
  system_zlib system_freetype system_harfbuzz system_pcre2 system_png system_jpeg)
options=(
  -DCMAKE_TOOLCHAIN_FILE="$here/mingw-qt.cmake" -DCMAKE_BUILD_TYPE=Release
  -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake -DQT_QMAKE_TARGET_MKSPEC=win32-g++
  -DBUILD_SHARED_LIBS=ON -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_BY_DEFAULT=OFF
  -DINPUT_opengl=no)
for feature in "${off[@]}"; do options+=("-DFEATURE_$feature=OFF"); done

stamp=$(printf '%s\n' "$version" "${options[@]##*/}" | sha256sum | cut -c1-16)
folder=$cache/qt-win64-$stamp
if [ -e "$folder/complete" ]; then
  echo "$folder"
  exit 0
fi

# The machine's own mirror, with its source packages, in lists of our own: the machine's stay as they are.
fetch_source() { # folder
  local lists=$cache/apt
  mkdir -p "$lists/lists/partial" "$1"
  apt-get indextargets --format 'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Created-By: Packages' 'Origin: Debian' | sort -u >"$lists/sources.list"
  local apt=(-qq -o "Dir::Etc::sourcelist=$lists/sources.list" -o Dir::Etc::sourceparts=/dev/null
    -o "Dir::State::lists=$lists/lists" -o APT::Sandbox::User=)
  apt-get "${apt[@]}" update
  (cd "$1" && apt-get "${apt[@]}" source "$source_package=$version")
}

work=$cache/qt-work-$stamp
if [ ! -e "$work/fetched" ]; then
  rm -rf "$work"
  fetch_source "$work" >&2
  touch "$work/fetched"
fi
source_folder=$(find "$work" -maxdepth 1 -type d -name 'qt6-base-*')
cmake -G Ninja -S "$source_folder" -B "$work/build" -DCMAKE_INSTALL_PREFIX="$folder" "${options[@]}" >"$work/configure.log" ||
  { tail -40 "$work/configure.log" >&2; exit 1; }
cmake --build "$work/build" >"$work/build.log" || { tail -40 "$work/build.log" >&2; exit 1; }
cmake --install "$work/build" >/dev/null
touch "$folder/complete"
rm -rf "$work"
echo "$folder"
