#!/usr/bin/env bash
# clang-tidy with the checks of .clang-tidy over everything below the window. The sources of a room are read as one, for
# most of the time goes into the standard library's headers; names inside a room are therefore unique in it.
set -euo pipefail
cd "$(dirname "$0")/../.."
together=build/tidy
rm -rf "$together"
mkdir -p "$together"

for room in src/*/ tools/gt1/ tools/drive/; do
  case $room in src/window/ | src/sound_openal/) continue ;; esac
  # A room may have records and no sources.
  git ls-files "$room*.cpp" | { grep -v /windows/ || true; } | sed "s|.*|#include \"$PWD/&\"|" >"$together/$(basename "$room").cpp"
done

check() {
  clang-tidy --quiet --checks=-bugprone-suspicious-include --header-filter="^$PWD/(src|tools)/" "$1" -- \
    -std=c++20 -I"$PWD/src" -I"$PWD/tools" -DGATEWISE_VERSION='"1"' 2>/dev/null
}
export -f check
find "$together" -name '*.cpp' -size +0 -print0 | xargs -0 -P "$(nproc)" -I{} bash -c 'check "$1"' check {}
echo "tidy: $(cat "$together"/*.cpp | wc -l) sources"
