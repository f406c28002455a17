#!/usr/bin/env bash
# Every C++ file stands as clang-format lays it out.
set -euo pipefail
cd "$(dirname "$0")/../.."
git ls-files '*.cpp' '*.h' | xargs -r clang-format --dry-run --Werror
echo "format: $(git ls-files '*.cpp' '*.h' | wc -l) files"
