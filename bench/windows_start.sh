#!/usr/bin/env bash
# windows_start.sh [<starts>]: the Windows program under Wine beside an empty window of the same toolkit: the size of the
# executable; the time from the start of the process until the window is in front; and then its memory (resident, and of
# that what it shares with no other process). Both are started in turn, 15 times if nothing else is said: the median, the
# lowest and the highest.
#
# ./build-windows has to be run before.
set -euo pipefail
cd "$(dirname "$0")/.."
readonly starts=${1:-15}
build=build/windows
tools/windows/configure.sh "$(tools/windows/build_qt.sh)" -DZIMBORA_BENCHMARKS=ON >&2
cmake --build "$build" --target empty_window zimbora >&2
tests/windows/make_prefix.sh "$PWD/$build/wine"

source tests/windows/lib.sh
prefix=$(realpath "$build/wine")
use_prefix "$prefix"
# Its own start is not measured.
"$wineserver" --persistent
set_up_windows
cp -r "$build"/program{,kavaro,null.wav} "$drive/lists"
cp "$build/bin/empty_window.exe" "$drive/lists"
start_screen

milliseconds() {
    local now=${EPOCHREALTIME/[.,]/}
    echo $((now / 1000))
}

# memory <field of the kernel's summary>..., in KiB
memory() {
    local pattern
    pattern=$(IFS='|' && echo "$*")
    awk -v pattern="^($pattern):" '$0 ~ pattern {sum += $2} END {print sum}' "/proc/$program/smaps_rollup"
}

# measure <name> <path on drive C> <command that is true when its window is in front>
measure() {
    local begin
    use_program "$2"
    begin=$(milliseconds)
    launch_program
    wait_until "the window" "$3"
    echo $(($(milliseconds) - begin)) >>"$temp/$1.time"
    # What is done after the first painting belongs to it.
    sleep 1
    memory Rss >>"$temp/$1.resident"
    memory Private_Clean Private_Dirty >>"$temp/$1.own"
    press alt+F4
    expect_end_with_success
}

empty_window_is_in_front() {
    title_in_front_is "Empty window"
}

# spread <file> <divisor>: median, lowest, highest
spread() {
    sort -n "$1" | awk -v d="$2" '{v[NR] = $1 / d} END {printf "%.0f (%.0f to %.0f)", v[int((NR + 1) / 2)], v[1], v[NR]}'
}

printf '%s, %s cores, %s\n' "$(sed -n 's/^model name\s*: //p' /proc/cpuinfo | head -1)" "$(nproc)" "$("$wine" --version)"
printf 'load before: %s\n' "$(cut -d' ' -f1-3 /proc/loadavg)"
for ((start = 0; start <= starts; start++)); do
    measure program 'C:\lists\program\zimbora.exe' main_window_is_in_front
    measure empty 'C:\lists\empty_window.exe' empty_window_is_in_front
    # The first start fills the caches of the system.
    ((start > 0)) || rm "$temp"/{program,empty}.*
done
for name in program empty; do
    executable=$drive/lists/program/zimbora.exe
    [[ $name == program ]] || executable=$drive/lists/empty_window.exe
    printf '%-8s %s bytes, in front after %s ms, resident %s MiB, own %s MiB\n' "$name" "$(stat -c %s "$executable")" \
        "$(spread "$temp/$name.time" 1)" "$(spread "$temp/$name.resident" 1024)" "$(spread "$temp/$name.own" 1024)"
done
