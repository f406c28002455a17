#!/usr/bin/env bash
# clang-tidy with the checks of .clang-tidy over the sources below the window: those that the last ten commits touched,
# or with --all every one. The whole house takes several minutes.
set -euo pipefail
cd "$(dirname "$0")/../.."

sources() {
  git ls-files 'src/*.cpp' 'tools/gt1/*.cpp' 'tools/drive/*.cpp' | grep -v -e src/window/ -e /windows/ -e src/sound_openal/
}

touched() {
  git diff --name-only --diff-filter=d "$(git rev-list -n 1 --skip=10 HEAD)" -- | sort
}

if [ "${1:-}" != --all ] && [ "$(git rev-list --count HEAD)" -gt 10 ]; then
  files=$(comm -12 <(sources | sort) <(touched))
else
  files=$(sources)
fi
[ -z "$files" ] && echo "tidy: no source touched" && exit 0
echo "$files" | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/release 2>/dev/null
echo "tidy: $(echo "$files" | wc -l) files"
