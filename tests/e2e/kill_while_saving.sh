#!/usr/bin/env bash
# Kills a program that saves, again and again: what it was told is saved must be there, whole.
#
#   kill_while_saving.sh <folder of the executables> [<number of kills, else 1000>]
#
# Half of the kills hit a program for which the file system makes no files without a name. After each one the list must be
# whole and no older than the last save that was reported; at the end nothing but the list and the recent files is left.
set -euo pipefail

bin=$(realpath "$1")
kills=${2:-1000}
folder=$(mktemp -d)
list=$folder/lists/lista.szs
reports=$folder/reports
saver=
trap '[[ -z $saver ]] || kill -KILL "$saver" 2>/dev/null; rm -rf "$folder"' EXIT

fail() {
    echo "$*" >&2
    exit 1
}

# The number that all the lines of the list have, of which there are as many as saving_loop writes.
number_of_whole_list() {
    awk -F '[:\r]' 'NR == 1 { number = $1 }
        $1 != number || $2 != number { broken = 1 }
        END { if (broken || NR != 5000) exit 1; print number }' "$list"
}

start_saver() {
    local preloaded=""
    [[ $# -eq 0 ]] || preloaded=$bin/tests/failing_calls.so
    : >"$reports"
    LD_PRELOAD=$preloaded "$bin/saving_loop" "$list" 1000000 "$@" >"$reports" &
    saver=$!
}

mkdir "$folder/lists"
most_left=0
for ((i = 1; i <= kills; i++)); do
    if ((i % 2)); then start_saver; else start_saver named; fi
    until [[ -s $reports ]]; do
        kill -0 "$saver" 2>/dev/null || fail "The program that saves has ended by itself."
        sleep 0.005
    done
    sleep "0.0$((RANDOM % 60 + 10))"
    kill -KILL "$saver" 2>/dev/null || fail "The program that saves has ended by itself."
    wait "$saver" 2>/dev/null || true
    saver=
    found=$(number_of_whole_list) || fail "Kill $i: the list is not whole."
    # The last line may be half written.
    reported=$(awk '{ previous = last; last = $1 } END { print previous + 0 }' "$reports")
    ((found >= reported)) || fail "Kill $i: save $reported was reported, the list is that of save $found."
    left=$(find "$folder" -name '.zimbora-*' | wc -l)
    ((left <= most_left)) || most_left=$left
done
"$bin/saving_loop" "$list" 1 >/dev/null
names=$(cd "$folder" && find . -type f | sort | tr '\n' ' ')
[[ $names == "./lists/lista.szs ./recent ./reports " ]] || fail "More is left than the list: $names"
((most_left <= 2)) || fail "Unfinished files pile up: $most_left at a time."
echo "$kills kills: the list was whole each time, no reported save was lost, at most $most_left unfinished files at a time;" \
    "the last save was number $(number_of_whole_list)."
