#!/usr/bin/env bash
# whole_program_test.sh <Wine prefix> <folder of the program> [<test>...]: the program for Windows with the real
# dictionaries, used by mouse and keys. It lies on the drive C of the prefix, as an installed one does, and keeps its
# files and settings there.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
source "$here/lib.sh"
source "$here/../e2e/print_lib.sh"

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

test_a_name_is_taken_as_it_was_chosen() {
    # Given
    start_program
    add_apple
    # When
    save_in_dialog "$lists\\fruit"
    # Then
    expect_lines "$drive/lists/fruit" apple:alma
    [[ $(ls "$drive/lists") == fruit ]] || fail "Not the only list: $(ls "$drive/lists")"
}

test_music_is_playing_until_the_piece_ends() {
    # Given
    start_program
    # When
    choose alt+b z
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
    choose alt+b h
    wait_until "the window of the sounds" sounds_are_in_front
    title=$(title_in_front)
    wait_until "the main window in front" escape_leads_to_main_window
    [[ $title == "$1 - Kavaro Hangbeállítások" ]]
}

# Wine loses a key now and then when a window has just come to the front.
escape_leads_to_main_window() {
    local patience=5
    press Escape
    within_patience main_window_is_in_front
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
    choose alt+f b
    wait_for_exercise "Kirakó - Beállítások"
}

leave_puzzle() {
    press Escape
    wait_for_title "$(title_of_list "$lists\\animals.szs")"
    press alt+F4
    expect_end_with_success
}

# Printers, which Wine takes from CUPS; the toolkit draws on them as on any of Windows.

# open_print_settings_of <line>...: of a list whose name, "$title", is that of the print-out too.
open_print_settings_of() {
    title=zimbora$$x$RANDOM
    make_list "$(unix_path "$lists\\$title.szs")" "$@"
    start_program "$lists\\$title.szs"
    wait_for_title "$(title_of_list "$lists\\$title.szs")"
    open_print_settings
}

test_a_list_is_printed_on_a_printer_of_the_system() {
    # Given
    start_cups
    open_print_settings_of dog:kutya cat:macska "deer:őz" bird:madár
    # When
    press Return
    wait_for_title "$(title_of_list "$lists\\$title.szs")"
    # Then
    wait_for_print_out "$title"
    expect_pages "$temp/printed.pdf" 1
    expect_middles "$temp/printed.pdf" x - 297.5 297.5 297.5 297.5
    for word in dog kutya őz madár; do
        words_of "$temp/printed.pdf" | grep -q " $word\$" || fail "The print-out lacks the word $word."
    done
}

test_cards_are_printed_each_in_the_middle_of_a_turned_page() {
    # Given
    start_cups
    open_print_settings_of "deer:őz" "pond:tó"
    choose_kind 2
    # When
    press Return
    wait_for_title "$(title_of_list "$lists\\$title.szs")"
    # Then
    wait_for_print_out "$title"
    expect_pages "$temp/printed.pdf" 5
    for word in deer őz pond tó; do
        expect_middles "$temp/printed.pdf" x "$word" 421
    done
    expect_blank_page "$temp/printed.pdf" 5
}

test_a_cancelled_print_out_does_not_reach_the_printer() {
    # Given
    start_cups
    mapfile -t pairs < <(seq 60000 | sed 's/.*/word&:szo&/')
    open_print_settings_of "${pairs[@]}"
    choose_kind 2
    press Return
    # When
    wait_for_title "Nyomtatás"
    press Escape
    # Then
    wait_for_title "$(title_of_exercise "Szószedet nyomtatása")"
    press Escape
    wait_for_title "$(title_of_list "$lists\\$title.szs")"
    press alt+F4
    expect_end_with_success
    [[ -z $(lpstat -W all -o) ]] || fail "The queue has a job."
}

program_folder=$(realpath "$2")
run_windows_tests "$@"
