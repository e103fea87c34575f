#!/bin/sh
# Fails when a C++ file of the tree is not formatted with the repository's .clang-format.
set -eu
cd "$(dirname "$0")/.."
files=$(git ls-files '*.h' '*.cpp')
[ -z "$files" ] && exit 0
# shellcheck disable=SC2086
clang-format --dry-run --Werror $files
echo "format: $(echo "$files" | wc -l) files clean"
