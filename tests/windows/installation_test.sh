#!/usr/bin/env bash
# installation_test.sh <Wine prefix> <folder of the packages> [<test>...]: the installer and the portable archive for
# Windows, and the program that they have put on drive C.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
source "$here/lib.sh"

set_up() {
    set_up_windows
    local_data=$("$wine" cmd /c 'echo %LOCALAPPDATA%' | tr -d '\r')
    place=$local_data'\Programs\Zimbora'
    start_menu=$(dirname "$(unix_path "$local_data")")'/Roaming/Microsoft/Windows/Start Menu/Programs'
    shown_parts=$packages/Zimbora
}

# install [<argument of the installer>...]
install() {
    "$wine" "$packages"/zimbora-*-windows-installer.exe /S "$@"
}

# The uninstaller goes on as a copy of itself, because it removes its own file.
remove() {
    "$wine" "$place\\Eltávolítás.exe" /S
    wait_until "the end of the removal" test ! -e "$(unix_path "$place")/Eltávolítás.exe"
    wait_until "the end of its copy" no_removal_is_running
}

no_removal_is_running() {
    ! pgrep -f '~nsu[0-9A-F]*\.tmp.Un\.exe' >/dev/null
}

start_installed_program() {
    use_program "$place\\program\\zimbora.exe"
    start_program "$@"
}

save_apple_as_proposed() {
    add_apple
    choose alt+f m
    wait_for_title "Mentés másként"
    press Return
    wait_until "the saved list" main_window_names "$place\\program\\apple.szs"
}

expect_all_parts_in() {
    diff -r "$shown_parts" "$1" --exclude 'Eltávolítás.exe' || fail "The installation is not what was packed."
}

# Windows takes the file types of a user before those of the machine; Wine 8 knows only these.
show_file_types_to_wine() {
    local type
    for type in .szs Zimbora.WordList; do
        "$wine" reg copy "$classes_key\\$type" "$machine_classes_key\\$type" /s /f >/dev/null
    done
}

# expect_left_in_place <path>...: these files are all that the place still holds.
expect_left_in_place() {
    local left
    left=$(find "$(unix_path "$place")" -type f -printf '%P\n' 2>/dev/null | sort || true)
    [[ $left == "$(printf '%s\n' "$@")" ]] || fail "Left in place: $left"
}

test_the_installed_program_does_the_main_job_where_it_was_put() {
    # Given
    install
    expect_all_parts_in "$(unix_path "$place")"
    # When
    start_installed_program
    save_apple_as_proposed
    # Then
    expect_lines "$(unix_path "$place")/program/apple.szs" apple:alma
    expect_lines "$drive/zbrmkfnh.ini" "$place\\program\\apple.szs"
}

test_the_order_of_a_word_file_is_checked_by_the_installed_command() {
    # Given
    install
    printf 'b\r\na\r\n' >"$(unix_path "$place")/program/magyar.skt"
    # When
    "$wine" "$place\\program\\zimbora-order.exe" "$place\\program" >/dev/null
    # Then
    expect_lines "$(unix_path "$place")/program/magyarvg.skt" A B
    rm "$(unix_path "$place")"/program/magyar{,vg}.skt
}

test_the_start_menu_and_the_list_of_programs_know_it() {
    # When
    install
    # Then
    [[ -f $start_menu/Zimbora.lnk ]] || fail "There is no entry in the start menu."
    [[ $(registry_value "$uninstall_key" DisplayName) == Zimbora ]] || fail "It has no name there."
    [[ $(registry_value "$uninstall_key" InstallLocation) == "$place" ]] || fail "Its place is not known."
    # The start menu opens it.
    "$wine" start /unix "$start_menu/Zimbora.lnk"
    wait_for_main_window
}

test_a_word_list_opens_by_its_association() {
    # Given
    install
    make_list "$(unix_path "$lists\\my list.szs")" dog:kutya cat:macska
    show_file_types_to_wine
    # When
    "$wine" start "$lists\\my list.szs"
    # Then
    wait_for_main_window
    wait_for_title "$(title_of_list "$lists\\my list.szs")"
    click "$first_pair"
    expect_selected_pair dog kutya
}

test_removal_leaves_lists_own_sounds_and_settings() {
    # Given
    local program given
    install
    program=$(unix_path "$place")/program
    make_list "$program/animals.szs" dog:kutya cat:macska horse:ló
    cp "$program/hangok/gong.wav" "$program/hangok/saját.wav"
    "$wine" reg add "$settings_key\\frm_kirakó_beáll" /v nyelv /d 0 /f >/dev/null
    "$wine" reg add "$engine_key" /v zimbora.exe /t REG_DWORD /d 11001 /f >/dev/null
    bytes_of_lines ' 0' >"$program/kavaro/zenebeáll.ini"
    bytes_of_lines 'C:\lists\animals.szs' >"$drive/zbrmkfnh.ini"
    given=$(find "$program/szószedetek" -name '*.szs' -printf '%P\n' | sort | head -n 1)
    # Changed in its last byte, so that it is as long as it was.
    printf '\t' | dd of="$program/szószedetek/$given" bs=1 seek=$(($(stat -c %s "$program/szószedetek/$given") - 1)) conv=notrunc status=none
    # When
    remove
    # Then
    expect_left_in_place program/animals.szs program/hangok/saját.wav program/kavaro/zenebeáll.ini "program/szószedetek/$given"
    expect_lines "$program/animals.szs" dog:kutya cat:macska horse:ló
    expect_lines "$program/kavaro/zenebeáll.ini" ' 0'
    cmp "$shown_parts/program/hangok/gong.wav" "$program/hangok/saját.wav"
    expect_lines "$drive/zbrmkfnh.ini" 'C:\lists\animals.szs'
    setting_is frm_kirakó_beáll nyelv 0 || fail "A setting was lost."
    [[ ! -e $start_menu/Zimbora.lnk ]] || fail "The start menu still has it."
    ! has_registry_key "$uninstall_key" || fail "The list of programs still has it."
    [[ -z $(registry_value "$engine_key" zimbora.exe) ]] || fail "What it asked of the browser control is still there."
    ! has_registry_key "$classes_key\\.szs" || fail "Word lists are still opened by it."
    ! has_registry_key "$classes_key\\Zimbora.WordList" || fail "Its file type is still there."
}

test_removal_takes_the_settings_along_on_demand() {
    # Given
    install
    "$wine" reg add "$settings_key\\frm_kirakó_beáll" /v nyelv /d 0 /f >/dev/null
    mkdir -p "$drive/zbrmk/angol"
    bytes_of_lines ' 0' ' 0' ' 0' >"$drive/zbrmk/angol/kisablak.ini"
    make_list "$(unix_path "$place")/program/animals.szs" dog:kutya
    # When
    "$wine" "$place\\Eltávolítás.exe" &
    wait_for_title "Zimbora Eltávolító "
    press Down space
    import -window root "${ZIMBORA_E2E_PICTURES:-$temp}/windows-removal.png"
    press Return
    # Then
    wait_until "the end of the removal" test ! -e "$(unix_path "$place")/program/kavaro"
    [[ ! -e $drive/zbrmk ]] || fail "The place of the mini window is still there."
    ! has_registry_key 'HKCU\Software\Zimbora' || fail "The settings are still there."
    expect_left_in_place program/animals.szs
}

test_an_update_keeps_lists_and_settings_and_renews_the_parts() {
    # Given
    local program
    install
    program=$(unix_path "$place")/program
    make_list "$program/animals.szs" dog:kutya
    printf ' 0\r\n' >"$program/kavaro/zenebeáll.ini"
    printf 'damaged' >"$program/am.txt"
    # When
    install
    # Then
    expect_lines "$program/animals.szs" dog:kutya
    expect_lines "$program/kavaro/zenebeáll.ini" ' 0'
    cmp "$shown_parts/program/am.txt" "$program/am.txt"
    [[ $(registry_value "$classes_key\\.szs") == Zimbora.WordList ]] || fail "Word lists are not opened by it any more."
}

test_an_update_in_another_folder_removes_the_former_program() {
    # Given
    local former
    install
    former=$(unix_path "$place")
    make_list "$former/program/animals.szs" dog:kutya
    bytes_of_lines csengő.wav >"$former/program/kavaro/grathang.ini"
    # When
    install '/D=C:\Zimbora'
    # Then: with the settings of the former one.
    expect_lines "$drive/Zimbora/program/kavaro/grathang.ini" csengő.wav
    rm "$drive/Zimbora/program/kavaro/grathang.ini" "$former/program/kavaro/grathang.ini"
    expect_all_parts_in "$drive/Zimbora"
    expect_left_in_place program/animals.szs
    place='C:\Zimbora'
    start_installed_program
    add_apple
    press alt+F4
}

test_a_moved_program_removes_itself_only() {
    # Given
    install
    mv "$(unix_path "$place")" "$drive/Zimbora"
    install
    # When
    "$wine" 'C:\Zimbora\Eltávolítás.exe' /S
    # Then
    wait_until "the end of the removal" test ! -e "$drive/Zimbora"
    wait_until "the end of its copy" no_removal_is_running
    expect_all_parts_in "$(unix_path "$place")"
    [[ $(registry_value "$uninstall_key" InstallLocation) == "$place" ]] || fail "The list of programs has lost it."
    [[ $(registry_value "$classes_key\\.szs") == Zimbora.WordList ]] || fail "Word lists are not opened by it any more."
    [[ -f $start_menu/Zimbora.lnk ]] || fail "There is no entry in the start menu."
}

test_a_running_program_is_neither_updated_nor_removed() {
    # Given
    local status=0
    install
    start_installed_program
    # When
    install || status=$?
    # Then
    ((status == 2)) || fail "The installer ended with code $status."
    expect_all_parts_in "$(unix_path "$place")"
    # When: in its own place, so that its end can be awaited.
    status=0
    "$wine" "$place\\Eltávolítás.exe" /S "_?=$place" || status=$?
    # Then
    ((status == 2)) || fail "The uninstaller ended with code $status."
    expect_all_parts_in "$(unix_path "$place")"
    [[ -e $(unix_path "$place")/Eltávolítás.exe ]] || fail "The way to remove it has gone."
    has_registry_key "$uninstall_key" || fail "The list of programs has lost it."
    add_apple
}

test_a_part_that_cannot_be_written_ends_the_installation() {
    # Given
    local status=0
    mkdir -p "$(unix_path "$place")/program/am.txt"
    # When
    install || status=$?
    # Then
    ((status == 2)) || fail "The installer ended with code $status."
    ! has_registry_key "$uninstall_key" || fail "The list of programs has it."
}

test_nothing_is_installed_unasked_among_files_of_others() {
    # Given
    local status=0 installer
    echo "mine" >"$drive/lists/Olvassel.txt"
    # When
    install '/D=C:\lists' || status=$?
    # Then
    ((status == 2)) || fail "The installer ended with code $status."
    [[ $(ls "$drive/lists") == Olvassel.txt && $(<"$drive/lists/Olvassel.txt") == mine ]] || fail "The folder was changed."
    # When: on the pages of the installer that is asked.
    "$wine" "$packages"/zimbora-*-windows-installer.exe '/D=C:\lists' &
    wait_for_title "Zimbora Telepítő"
    installer=$(xdotool getactivewindow)
    press Return
    wait_until "the page of the folder" page_has_box 'C:\lists'
    press Return
    wait_until "a message" another_window_is_in_front "$installer"
    import -window root "${ZIMBORA_E2E_PICTURES:-$temp}/windows-installer-other-files.png"
    press Escape
    wait_until "the page again" page_has_box 'C:\lists'
    # Then
    [[ $(ls "$drive/lists") == Olvassel.txt ]] || fail "The folder was changed."
}

test_what_opened_word_lists_before_does_so_again_after_the_removal() {
    # Given
    "$wine" reg add "$classes_key\\.szs" /ve /d Other.List /f >/dev/null
    install
    [[ $(registry_value "$classes_key\\.szs") == Zimbora.WordList ]] || fail "Word lists are not opened by the program."
    # An update must not take itself for what was there before.
    install
    # When
    remove
    # Then
    [[ $(registry_value "$classes_key\\.szs") == Other.List ]] || fail "Word lists are opened by something else."
}

test_a_file_type_that_another_program_took_over_stays_its_own() {
    # Given
    install
    "$wine" reg add "$classes_key\\.szs" /ve /d Other.List /f >/dev/null
    # When
    remove
    # Then
    [[ $(registry_value "$classes_key\\.szs") == Other.List ]] || fail "Word lists are opened by something else."
}

test_the_pages_of_the_installer_lead_to_the_running_program() {
    # When
    "$wine" "$packages"/zimbora-*-windows-installer.exe &
    wait_for_title "Zimbora Telepítő"
    press Return
    wait_until "the page of the folder" page_has_box "$place"
    import -window root "${ZIMBORA_E2E_PICTURES:-$temp}/windows-installer.png"
    press Return
    wait_until "the end of the installation" test -e "$(unix_path "$place")/Eltávolítás.exe"
    wait_until "the list of programs" has_registry_key "$uninstall_key"
    press Return
    # Then
    wait_for_main_window
    expect_all_parts_in "$(unix_path "$place")"
}

test_a_folder_whose_name_has_a_full_stop_is_asked_about() {
    # Given
    local installer
    "$wine" "$packages"/zimbora-*-windows-installer.exe &
    wait_for_title "Zimbora Telepítő"
    installer=$(xdotool getactivewindow)
    press Return
    wait_until "the page of the folder" page_has_box "$place"
    # When: the program refuses names with a full stop.
    write 'C:\lists\a.b'
    press Return
    wait_until "a message" another_window_is_in_front "$installer"
    import -window root "${ZIMBORA_E2E_PICTURES:-$temp}/windows-installer-full-stop.png"
    press Escape
    wait_until "the page again" page_has_box 'C:\lists\a.b'
    # Then
    [[ -z $(ls -A "$(unix_path "$lists")") ]] || fail "Something was put there."
    # When
    write 'C:\Zimbora'
    press Return
    # Then
    wait_until "the list of programs" has_registry_key "$uninstall_key"
    expect_all_parts_in "$drive/Zimbora"
}

another_window_is_in_front() {
    local now
    now=$(xdotool getactivewindow 2>/dev/null) && [[ $now != "$1" ]]
}

# The box with the folder has the focus.
page_has_box() {
    copied_is "$1" ctrl+a
}

test_the_portable_program_runs_from_where_it_is_unpacked() {
    # Given
    unzip -q "$packages"/zimbora-*-windows-portable.zip -d "$drive/lists"
    # When
    place=$lists'\Zimbora'
    start_installed_program
    save_apple_as_proposed
    # Then
    expect_lines "$(unix_path "$place")/program/apple.szs" apple:alma
    rm "$(unix_path "$place")/program/apple.szs"
    expect_all_parts_in "$(unix_path "$place")"
    press alt+F4
}

packages=$(realpath "$2")
run_windows_tests "$@"
