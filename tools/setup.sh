#!/bin/sh
# Installs what is missing (as root, with apt-get), configures and builds ztgraph.
# Usage: tools/setup.sh [--wine] [build-dir] [extra cmake options...]
# --wine also installs Wine and the mingw-w64 cross compiler for the differential suite.
set -eu
cd "$(dirname "$0")/.."
wine=""
if [ "${1:-}" = "--wine" ]; then
    wine="wine wine64 mingw-w64"
    shift
fi
build=${1:-build}
[ $# -gt 0 ] && shift

packages="cmake ninja-build g++ pkg-config libgtest-dev libgmock-dev libbenchmark-dev libcairo2-dev zlib1g-dev clang-format qt6-base-dev fonts-dejavu-core $wine"
missing=""
for p in $packages; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing="$missing $p"
done
if [ -n "$missing" ]; then
    echo "Installing:$missing"
    if [ "$(id -u)" -ne 0 ]; then
        echo "Run as root to install the missing packages." >&2
        exit 1
    fi
    apt-get update -qq
    DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $missing >/dev/null
fi

cmake -S . -B "$build" -G Ninja -DZTGRAPH_WERROR=ON "$@" >/dev/null
cmake --build "$build"
