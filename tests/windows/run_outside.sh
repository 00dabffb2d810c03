#!/usr/bin/env bash
# run_outside.sh <answer> <program> <argument>...: runs a program of this machine for a test under Wine, which can start
# one but not wait for it. The file <answer> is there when the program has succeeded, with what it has written;
# <answer>.failed when it has not. Paths on drives are those of Windows.
set -euo pipefail

# on_this_machine <text>
on_this_machine() {
    if [[ $1 =~ ^([A-Za-z]):[/\\] ]]; then
        local drive=${BASH_REMATCH[1],,}
        echo "$ZIMBORA_TEST_DRIVES/$drive:/${1:3}" | tr '\\' /
    else
        echo "$1"
    fi
}

arguments=()
for argument in "$@"; do
    arguments+=("$(on_this_machine "$argument")")
done
answer=${arguments[0]}
if "${arguments[@]:1}" >"$answer.part" 2>&1; then
    mv "$answer.part" "$answer"
else
    mv "$answer.part" "$answer.failed"
fi
