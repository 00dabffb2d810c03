#!/usr/bin/env bash
# whole_program_test.sh <Wine prefix> <folder of the program> [<test>...]: the program for Windows with the real
# dictionaries, used by mouse and keys. It lies on the drive C of the prefix, as an installed one does, and keeps its
# files and settings there.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
source "$here/lib.sh"

set_up() {
    set_up_windows
    cp -r "$program_folder" "$drive/Zimbora"
    cp -r "${program_folder}kavaro" "$drive/Zimborakavaro"
    cp "${program_folder}null.wav" "$drive/Zimboranull.wav"
    use_program 'C:\Zimbora\zimbora.exe'
}

test_the_main_job_ends_with_the_exact_bytes_in_the_file() {
    # Given
    start_program
    # When
    add_apple
    save_in_dialog "$lists\\fruit.szs"
    # Then
    expect_lines "$(unix_path "$lists\\fruit.szs")" apple:alma
    expect_lines "$drive/zbrmkfnh.ini" "$lists\\fruit.szs"
    import -window root "${ZIMBORA_E2E_PICTURES:-$temp}/windows-main-window.png"
    press alt+F4
    expect_end_with_success
}

test_a_path_in_quotation_marks_on_the_command_line_is_opened() {
    # Given
    make_list "$(unix_path "$lists\\my list.szs")" dog:kutya cat:macska
    # When
    start_program "$lists\\my list.szs"
    # Then
    wait_for_title "$(title_of_list "$lists\\my list.szs")"
    click "$first_pair"
    expect_selected_pair dog kutya
}

test_music_is_playing_until_the_piece_ends() {
    # Given
    start_program
    # When
    press alt+b z
    wait_for_exercise "Zenei beállítások"
    press Tab Tab space Return
    wait_for_exercise "névtelen szószedet"
    # Then
    wait_until "the first piece" piece_is "Tavaszi szél vizet áraszt.mid"
    # The program asks each second, and goes on to the next piece as soon as the answer is not "playing".
    sleep 4
    piece_is "Tavaszi szél vizet áraszt.mid" || fail "The piece did not go on."
    [[ $(head -n 1 "$drive/zbrmk/kavaro/zenebeáll.ini") == $' 1\r' ]] || fail "The switch was not kept."
}

# The window of the sounds, when it opens, has the name of the piece in its title.
piece_is() {
    local title
    press alt+b h
    wait_until "the window of the sounds" sounds_are_in_front
    title=$(title_in_front)
    press Escape
    wait_until "the main window in front" main_window_is_in_front
    [[ $title == "$1 - Kavaro Hangbeállítások" ]]
}

sounds_are_in_front() {
    [[ $(title_in_front) == *" - Kavaro Hangbeállítások" ]]
}

# Wine's control is there, what draws pages is not installed: the program tells so, and goes on.
test_the_help_opens_in_the_systems_browser_control() {
    # Given
    start_program
    # When
    press F1
    # Then
    wait_for_exercise "Üzenet"
    press Return
    wait_until "the help viewer" viewer_is_in_front
    press alt+a
    wait_for_text 'C:\Zimborakavaro\help\Kavaro súgó.mht'
    press alt+F4
    xdotool windowactivate --sync "$main_window"
    press alt+F4
    expect_end_with_success
}

viewer_is_in_front() {
    [[ $(title_in_front) == "Zimbora" || $(title_in_front) == "Kavaro - Súgó" ]]
}

test_settings_are_kept_in_the_registry_over_a_restart() {
    # Given
    make_list "$(unix_path "$lists\\animals.szs")" dog:kutya cat:macska horse:ló
    open_puzzle_settings
    setting_is frm_kirakó_beáll nyelv "" || fail "There is a setting before any was made."
    # When: from the second direction, which is the default, to the first.
    press Up Return
    wait_until "the setting in the registry" setting_is frm_kirakó_beáll nyelv 0
    wait_for_exercise "Kirakó"
    leave_puzzle
    # Then: from the first direction to the second.
    open_puzzle_settings
    press Down Return
    wait_until "the setting in the registry" setting_is frm_kirakó_beáll nyelv 1
    wait_for_exercise "Kirakó"
    leave_puzzle
}

open_puzzle_settings() {
    start_program "$lists\\animals.szs"
    wait_for_title "$(title_of_list "$lists\\animals.szs")"
    practise "$to_puzzle" "Kirakó"
    press alt+f b
    wait_for_exercise "Kirakó - Beállítások"
}

leave_puzzle() {
    press Escape
    wait_for_title "$(title_of_list "$lists\\animals.szs")"
    press alt+F4
    expect_end_with_success
}

program_folder=$(realpath "$2")
run_windows_tests "$@"
