#!/bin/sh
# Runs the differential suite: the Windows program under Wine and its native counterpart answer
# the same seeded cases, and the comparer checks that every difference is on the allow-list.
# Usage: tools/wine-differential.sh <native> <comparer> <windows-program> <allow-list> <work-dir>
# ZT_WINE_SEED picks another seed; WINEPREFIX another Wine prefix (default: next to work-dir).
# Exits 77 (skipped) when Wine or the Windows program is missing.
set -eu
native=$1
compare=$2
program=$3
allow=$4
work=$5
seed=${ZT_WINE_SEED:-20261123}

if ! command -v wine >/dev/null 2>&1; then
    echo "SKIPPED: wine is not installed (apt-get install wine wine64, or tools/setup.sh --wine)"
    exit 77
fi
if [ ! -f "$program" ]; then
    echo "SKIPPED: the Windows program was not built (install mingw-w64 and configure again)"
    exit 77
fi

rm -rf "$work"
mkdir -p "$work/native" "$work/windows"
export WINEPREFIX="${WINEPREFIX:-$(dirname "$work")/wine-prefix}"
export WINEDEBUG=-all
# No Mono or Gecko installers on the prefix's first start: the programs need neither.
export WINEDLLOVERRIDES="mscoree=;mshtml="

echo "seed $seed, Wine prefix $WINEPREFIX"
"$native" "$work/native" "$seed" >"$work/native.txt"
wine "$program" "$work/windows" "$seed" >"$work/windows.txt" 2>"$work/wine.log" || {
    echo "the Windows program failed under Wine:"
    tail -n 20 "$work/wine.log"
    exit 1
}
"$compare" "$work/windows.txt" "$work/native.txt" "$allow" 10000
