#!/usr/bin/env bash
# installation_test.sh <package> <folder for the system>: in a Debian 12 with nothing else, the package is installed
# with what it depends on, used by an ordinary user, and removed.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
source "$here/../e2e/lib.sh"
source "$here/../e2e/exercise_lib.sh"
source "$here/../e2e/print_lib.sh"
source "$here/clean_root.sh"

readonly home=/home/learner
readonly own_folder=$home/Documents/Zimbora
readonly saved_list=$own_folder/fruit.szs
readonly type=application/x-zimbora-wordlist

as_learner() {
    enter_root learner env -i HOME="$home" USER=learner PATH=/usr/local/bin:/usr/bin:/bin LC_ALL=C.UTF-8 \
        DISPLAY="$DISPLAY" XDG_RUNTIME_DIR="$home/.runtime" SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE="$home/.heard" "$@"
}

# The program is started by its name, as installed.
launch_program() {
    as_learner zimbora "$@" >"$temp/program.log" 2>&1 &
    program=$!
    children+=("$program")
}

began=$SECONDS
step() {
    echo "$((SECONDS - began)) s: $*"
}

install_package() {
    cp "$package" "$root/tmp/zimbora.deb"
    apt_get install /tmp/zimbora.deb
    [[ $(package_status) == "install ok installed" ]] || fail "The package is: $(package_status)"
    [[ -z $(in_root dpkg --audit) ]] || fail "$(in_root dpkg --audit)"
    [[ -z $(in_root dpkg --verify zimbora) ]] || fail "$(in_root dpkg --verify zimbora)"
}

package_status() {
    # shellcheck disable=SC2016  # dpkg-query expands it
    in_root dpkg-query --show --showformat='${Status}' zimbora 2>/dev/null || true
}

# expect_loaded <part of a file's name>...: the running program uses these files.
expect_loaded() {
    local part
    for part in "$@"; do
        wait_until "$part in use" loaded "$part"
    done
}

loaded() {
    grep -q "$1" "/proc/$program/maps"
}

do_the_main_job() {
    start_program
    [[ $(stat --format %U "/proc/$program") != root ]] || fail "The program is run by root."
    # The faces and the toolkit's Hungarian texts, neither of which any library asks for.
    expect_loaded LiberationSerif-Regular.ttf qtbase_hu.qm libqxcb.so
    add_apple
    save_as "$saved_list"
    expect_lines "$root$saved_list" apple:alma
    expect_lines "$root$home/.local/share/zimbora/c/zbrmkfnh.ini" "$saved_list"
}

find_what_is_installed_with_it() {
    local name
    for name in am.txt ma.txt szavak.idx am.gyk ma.gyk alakok; do
        [[ -s $root/usr/share/zimbora/$name &&
            $(readlink "$root$own_folder/$name") == "/usr/share/zimbora/$name" ]] ||
            fail "$name is not in the program folder."
    done
    for name in hangok zenemid kavaro; do
        diff -r "$root/usr/share/zimbora/$name" "$root$own_folder/$name" || fail "$name is not in the program folder."
    done
    (($(find "$root$own_folder/hangok" -name '*.wav' | wc -l) >= 18)) || fail "Sounds are missing."
}

read_the_help() {
    press F1
    wait_for_title "Zimbora súgó"
    expect_loaded zimbora_webengine.so libQt6WebEngineCore.so
    wait_until "the text of the help" page_holds "szótanuló program"
    press alt+F4
    wait_for_main_window
}

# page_holds <text>: all that can be selected on the page in front.
page_holds() {
    forget_clipboard
    xdotool mousemove --window "$(xdotool getactivewindow)" 500 400 click 1 key ctrl+a ctrl+c
    [[ $(timeout 5 xclip -o -selection clipboard 2>/dev/null) == *"$1"* ]]
}

hear_music() {
    press alt+b z
    wait_for_exercise "Zenei beállítások"
    press Tab Tab space Return
    wait_for_title "$(title_of_list "$saved_list")"
    wait_until "music" something_is_heard
    expect_loaded zimbora_sound.so libSDL2_mixer
}

something_is_heard() {
    [[ -s $root$home/.heard && -n $(tr -d '\0' <"$root$home/.heard" | head -c 1 | od -An -tx1) ]]
}

print_the_list() {
    open_print_settings
    # Over "Mégsem" to the printers, whose first is the file.
    press Tab Tab Home Return
    name_file "Mentés másként" "$home/Documents/fruit.pdf"
    wait_for_main_window
    [[ $(pdftotext "$root$home/Documents/fruit.pdf" -) == *alma* ]] || fail "The word is not on the page."
    expect_loaded libcups.so
}

end_the_program() {
    press alt+F4
    expect_end_with_success
}

# As a file manager does it: by the type that the name of the file has and the program that is for this type.
open_the_list_as_a_desktop_does() {
    local found
    found=$(as_learner_now gio info --attributes=standard::content-type "$saved_list")
    [[ $found == *"standard::content-type: $type"* ]] || fail "The list passes for: $found"
    as_learner_now gio open "$saved_list" >"$temp/program.log" 2>&1
    wait_for_main_window
    wait_for_title "$(title_of_list "$saved_list")"
    expect_selected_pair apple alma
    press alt+F4
    wait_until "the end of the program" no_program_runs
}

as_learner_now() {
    (as_learner "$@")
}

no_program_runs() {
    ! pgrep --exact zimbora >/dev/null
}

# What the user's folder holds, byte for byte.
state_of_home() {
    (cd "$root$home" && find . -printf '%y %m %U %p %l\n' | sort && find . -type f -exec sha256sum {} + | sort -k 2)
}

# remove_package <remove or purge>
remove_package() {
    state_of_home >"$temp/home_before"
    in_root dpkg-query --listfiles zimbora >"$temp/files"
    apt_get "$1" zimbora
    state_of_home >"$temp/home_after"
    cmp "$temp/home_before" "$temp/home_after" || fail "What the user keeps was changed by $1."
    [[ $(package_status) != *installed ]] || fail "The package is still there."
    expect_nothing_left
}

expect_nothing_left() {
    local left
    (($(wc -l <"$temp/files") > 50)) || fail "The package had few files."
    left=$(while read -r file; do
        [[ ! -f $root$file && ! -L $root$file ]] || echo "$file"
    done <"$temp/files")
    [[ -z $left ]] || fail "These files are left: $left"
    left=$(find "$root" -xdev -ipath '*zimbora*' -not -path "$root$home/*" -not -path "$root/tmp/zimbora.deb")
    [[ -z $left ]] || fail "This is left: $left"
    left=$(grep -rl zimbora "$root"/usr/share/{mime,applications,icons} "$root"/etc 2>/dev/null || true)
    [[ -z $left ]] || fail "The package is still named in: $left"
}

run_installation_test() {
    name=installation_test
    set_up_clean_root "$2"
    package=$(realpath "$1")
    have_base_system
    step "a base system is at hand"
    start_screen
    make_root
    in_root useradd --create-home learner
    mkdir -m 700 "$root$home/.runtime"
    chown --reference="$root$home" "$root$home/.runtime"

    install_package
    step "installed with what it depends on. $(grep "^After this operation" "$temp/apt.log")"
    do_the_main_job
    find_what_is_installed_with_it
    read_the_help
    print_the_list
    # Last: music that plays names itself in the titles of the other windows.
    hear_music
    end_the_program
    step "used"

    # What belongs to any desktop.
    apt_get install shared-mime-info desktop-file-utils libglib2.0-bin
    open_the_list_as_a_desktop_does
    step "opened by the type of the list"

    remove_package remove
    step "removed"
    install_package
    open_the_list_as_a_desktop_does
    step "installed again"
    remove_package purge
    step "purged"
}

enter_own_namespaces "$@"
run_installation_test "$@"
