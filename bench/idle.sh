#!/usr/bin/env bash
# idle.sh [<seconds> [<runs>]]: what the program costs while nobody does anything: processor time (user and system, of
# all threads) and how often it wakes up, over a minute and three times if nothing else is said; with the mini window
# open and, for comparison, with the main window. Each run has a virtual display and a window manager of its own.
#
# ZIMBORA_BUILD names another build folder than that of the preset "dev". The program has to be built.
set -euo pipefail
cd "$(dirname "$0")/.."
source tests/e2e/lib.sh
source tests/e2e/mini_window.sh

readonly seconds=${1:-60} runs=${2:-3}
build=${ZIMBORA_BUILD:-build/dev}
binary=$(realpath "$build/bin/zimbora")
dictionaries=$(realpath "$build/program")

# In milliseconds: the 14th and 15th field, of which the second may hold blanks.
processor_time() {
    local fields
    read -r -a fields < <(sed 's/^.*) //' "/proc/$program/stat")
    echo $(((fields[11] + fields[12]) * 1000 / $(getconf CLK_TCK)))
}

wake_ups() {
    awk '/^voluntary_ctxt_switches/ {sum += $2} END {print sum}' "/proc/$program"/task/*/status
}

# measure <what is open> <command that opens it>...
measure() {
    local run time wakes
    for ((run = 1; run <= runs; run++)); do
        start_screen
        "${@:2}"
        time=$(processor_time)
        wakes=$(wake_ups)
        sleep "$seconds"
        printf '%-12s  run %d: %d ms in %d s, %d wake-ups\n' "$1" "$run" $(($(processor_time) - time)) "$seconds" \
            $(($(wake_ups) - wakes))
        end_children
    done
}

printf '%s, %s cores, Linux %s\n' "$(sed -n 's/^model name\s*: //p' /proc/cpuinfo | head -1)" "$(nproc)" "$(uname -r)"
printf 'load before: %s\n' "$(cut -d' ' -f1-3 /proc/loadavg)"
set_up_places
measure "mini window" start_mini_window 400 150
rm "$(mini_file)"
measure "main window" start_program
