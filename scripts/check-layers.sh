#!/bin/bash
# Fails when a file under src/ includes a header from its own layer or from a layer above:
# each folder may include only folders of the layers below it (docs/architecture.md shows
# the layers). A new folder must be given a layer here.
set -euo pipefail
src=${1:?usage: check-layers.sh SOURCE_FOLDER}

# From the bottom up; folders on one line are in the same layer and don't include each other.
layers=(
    "common"
    "taskcontract platform store"
    "gui"
    "diagnostics"
    "formats sideactions tray"
    "scheduling recordingslist player"
    "recording"
    "control options"
    "shell"
)

declare -A rank
for i in "${!layers[@]}"; do
    for folder in ${layers[$i]}; do
        rank[$folder]=$i
    done
done

cd "$src"
status=0
for folder in */; do
    folder=${folder%/}
    if [[ ! -v rank[$folder] ]]; then
        echo "src/$folder: in no layer"
        status=1
    fi
done

while IFS=: read -r file line text; do
    from=${file%%/*}
    to=$(sed -E 's/^[[:space:]]*#[[:space:]]*include "([a-z]+)\/.*/\1/' <<<"$text")
    [[ $from == "$to" || ! -v rank[$from] || ! -v rank[$to] ]] && continue
    if ((rank[$to] >= rank[$from])); then
        echo "src/$file:$line: $from must not include $to"
        status=1
    fi
done < <(grep -rnE '^[[:space:]]*#[[:space:]]*include "[a-z]+/' --include='*.h' --include='*.cpp' -- */)
exit $status
