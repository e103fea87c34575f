#!/bin/sh
# Fails when a source file includes a folder of a layer above its own. Layers, bottom first;
# a folder may include its own layer and those below it, never a neighbour of the same rank
# (subsystems meet only through the hooks the control wires).
set -eu
cd "$(dirname "$0")/.."

layers='
0 platform   # host platform: control models, records, common-library interfaces, text rules
1 core       # the component ground floor: state records, surface, host services, messages
2 config     # subsystem: settings model, item tables, the three setting sheets
2 run        # subsystem: start checks, run states, host exchange, capture
2 graph      # subsystem: chart references, plotting, cursors, layout
2 scale      # subsystem: vertical and horizontal scales, the optimiser
2 store      # subsystem: history, graph text files, project data, printing
3 control    # the control object, public interface and dispatch, wiring of subsystems
4 sim        # embedded default host: simulated common library and drive link
4 render     # drawing of the chart model to pictures
5 cli        # the command-line program
5 view       # the desktop window
'

rank_of() {
    printf '%s\n' "$layers" | awk -v d="$1" '$2 == d { print $1 }'
}

status=0
for file in $(git ls-files '*.h' '*.cpp'); do
    dir=${file%%/*}
    own=$(rank_of "$dir")
    [ -n "$own" ] || continue  # tests, benchmarks, fuzz targets and examples may use anything
    # Each quoted include of another layer's folder: its line number and folder.
    grep -n '^[[:space:]]*#[[:space:]]*include[[:space:]]*"[^"/]*/' "$file" |
        sed 's|^\([0-9]*\):[^"]*"\([^"/]*\)/.*|\1 \2|' >/tmp/check-layers.$$ || true
    while read -r line target; do
        [ "$target" = "$dir" ] && continue
        theirs=$(rank_of "$target")
        [ -n "$theirs" ] || continue
        if [ "$theirs" -ge "$own" ]; then
            echo "$file:$line: $dir/ may not include $target/ (layer $theirs, own layer $own)"
            status=1
        fi
    done </tmp/check-layers.$$
done
rm -f /tmp/check-layers.$$
[ $status -eq 0 ] && echo "layers: every include goes down"
exit $status
