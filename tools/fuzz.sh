#!/bin/sh
# Builds the fuzz targets (Clang, libFuzzer, AddressSanitizer, UndefinedBehaviorSanitizer) and
# runs each over its seed corpus for a fixed time.
# Usage: tools/fuzz.sh [seconds per target] [target...]   (default 20 s, every target)
# New inputs go to build-fuzz/corpus/<target>/, crashes to build-fuzz/crashes/; a crash fails.
set -eu
cd "$(dirname "$0")/.."
seconds=${1:-20}
[ $# -gt 0 ] && shift

build=$(pwd)/build-fuzz
src=$(pwd)

# Clang with its libFuzzer runtime, installed when missing (as root).
for p in clang libclang-rt-dev; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        [ "$(id -u)" -eq 0 ] || { echo "Run as root to install $p." >&2; exit 1; }
        apt-get update -qq
        DEBIAN_FRONTEND=noninteractive apt-get install -y -qq clang libclang-rt-dev >/dev/null
        break
    fi
done
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
    -DZTGRAPH_FUZZ=ON -DZTGRAPH_WERROR=ON -DZTGRAPH_BUILD_TESTS=OFF -DZTGRAPH_BUILD_BENCH=OFF \
    -DZTGRAPH_BUILD_TOOLS=OFF -DZTGRAPH_BUILD_VIEW=OFF -DZTGRAPH_INSTALL=OFF >/dev/null

targets=${*:-$(cd fuzz && ls *_fuzz.cpp | sed 's/\.cpp$//')}
# Only the targets and what they link (the renderer is not among it).
cmake --build "$build" --target $targets
mkdir -p "$build/crashes"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
for t in $targets; do
    mkdir -p "$build/corpus/$t"
    echo "fuzz: $t for $seconds s"
    "$build/fuzz/$t" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -artifact_prefix="$build/crashes/$t-" -print_final_stats=1 \
        "$build/corpus/$t" "$src/fuzz/corpus/$t" 2>"$build/$t.log" || {
        tail -n 60 "$build/$t.log"
        echo "fuzz: $t failed; the input is in $build/crashes/" >&2
        exit 1
    }
    grep -E '^stat::number_of_executed_units|^#[0-9]+ *DONE' "$build/$t.log" | tr '\n' ' '
    echo
done
