# shellcheck shell=bash disable=SC2034,SC2154
# Shared by the tests that use the program for Windows by mouse and keys, in a Wine prefix on a screen of its own. A
# test's script sources this one, has a function set_up, which calls set_up_windows first, and ends with
# run_windows_tests "$@".
here=$(dirname "$(realpath "${BASH_SOURCE[0]}")")
source "$here/wine.sh"
source "$here/../e2e/lib.sh"
source "$here/../e2e/exercise_lib.sh"

readonly settings_key='HKCU\Software\Zimbora\szotar'
readonly uninstall_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Zimbora'
readonly engine_key='HKCU\Software\Microsoft\Internet Explorer\Main\FeatureControl\FEATURE_BROWSER_EMULATION'
readonly classes_key='HKCU\Software\Classes'
readonly machine_classes_key='HKLM\Software\Classes'

set_up_windows() {
    unset DISPLAY WAYLAND_DISPLAY ZIMBORA_C ZIMBORA_PROGRAM
    export LC_ALL=C.UTF-8
    use_prefix "$prefix"
    temp=$(mktemp -d /tmp/zimbora_e2e_XXXXXX)
    children=()
    trap tidy_up_windows EXIT
    trap 'exit 1' INT TERM HUP
    drive=$prefix/drive_c
    lists='C:\lists'
    forget_former_runs
    mkdir "$drive/lists"
}

forget_former_runs() {
    local key
    rm -rf "$drive"/{lists,Zimbora,Zimborakavaro,Zimboranull.wav,zbrmk,zbrmkfnh.ini} "$drive"/users/*/AppData/Local/Programs
    for key in 'HKCU\Software\Zimbora' "$uninstall_key" {"$classes_key","$machine_classes_key"}\\{.szs,Zimbora.WordList}; do
        "$wine" reg delete "$key" /f >/dev/null 2>&1 || true
    done
}

tidy_up_windows() {
    local status=$?
    set +e
    if ((status != 0 && status != 77)); then
        show_what_was_seen
    fi
    "$wineserver" --kill
    "$wineserver" --wait
    end_children
    rm -rf "$temp"
    exit "$status"
}

# use_program <path on drive C>: what start_program starts from now on.
use_program() {
    binary=$temp/zimbora
    printf '#!/bin/sh\nexec %q %q "$@"\n' "$wine" "$1" >"$binary"
    chmod +x "$binary"
}

# unix_path <path on drive C>
unix_path() {
    local path=${1#C:}
    echo "$drive${path//\\//}"
}

# Keys that come faster than Wine hands them on are lost, and so are those for a window that is in front but has not been
# drawn yet.
press() {
    wait_until "a screen that stands still" screen_stands_still
    xdotool key --delay 100 "$@"
}

screen_stands_still() {
    local before
    before=$(seen)
    sleep "$polling"
    [[ $(seen) == "$before" ]]
}

seen() {
    import -window root rgb:- | cksum
}

main_window_names() {
    [[ $(xdotool getwindowname "$main_window") == "$(title_of_list "$1")" ]]
}

# save_in_dialog <path>: the dialog is the system's own, which selects the proposed name when it is ready.
save_in_dialog() {
    choose alt+f m
    wait_for_title "Mentés másként"
    press ctrl+a
    write "$1"
    press Return
    wait_until "the saved list" main_window_names "$1"
    # On Windows the window behind the dialog is in front again by itself.
    xdotool windowactivate --sync "$main_window"
}

# registry_value <key> [<value>]: what the registry has there, or nothing; the key's own value when none is named.
registry_value() {
    local which=(/ve)
    (($# == 1)) || which=(/v "$2")
    "$wine" reg query "$1" "${which[@]}" 2>/dev/null | tr -d '\r' | sed -n 's/^ .*REG_[A-Z]* *//p'
}

has_registry_key() {
    "$wine" reg query "$1" >/dev/null 2>&1
}

setting_is() {
    [[ $(registry_value "$settings_key\\$1" "$2") == "$3" ]]
}

# run_windows_tests <Wine prefix> <what is tested> [<test>...]
run_windows_tests() {
    prefix=$(realpath "$1")
    run_prepared_tests set_up "$@"
}
