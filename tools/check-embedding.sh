#!/bin/sh
# Builds and runs the example host both ways a host program embeds ztgraph: from the sources
# with add_subdirectory, and through find_package against an install into a temporary prefix.
set -eu
cd "$(dirname "$0")/.."
src=$(pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

echo "embedding: add_subdirectory"
cmake -S examples/embed_host -B "$work/sub" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DZTGRAPH_SOURCE_DIR="$src" >/dev/null
cmake --build "$work/sub" >/dev/null
"$work/sub/embed_host"

echo "embedding: find_package"
cmake -S . -B "$work/lib" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZTGRAPH_BUILD_TESTS=OFF \
    -DZTGRAPH_BUILD_BENCH=OFF -DZTGRAPH_BUILD_TOOLS=OFF -DCMAKE_INSTALL_PREFIX="$work/prefix" >/dev/null
cmake --build "$work/lib" >/dev/null
cmake --install "$work/lib" >/dev/null
cmake -S examples/embed_host -B "$work/pkg" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/pkg" >/dev/null
"$work/pkg/embed_host"
