#!/usr/bin/env bash
# What goes wrong is told, and the program goes on.
set -euo pipefail
source "$(dirname "$0")/lib.sh"

test_a_missing_file_on_the_command_line_is_told() {
    # Given
    # When
    launch_program "$lists/nowhere.szs"
    # Then
    wait_for_title "Zimbora"
    press Return
    wait_for_main_window
    look_up apple alma
}

test_a_missing_dictionary_is_told_once() {
    # Given
    rm "$ZIMBORA_PROGRAM/am.txt"
    start_program
    # When
    write a
    # Then
    wait_for_title "Zimbora"
    press Return
    wait_for_main_window
    # A second message would take these keys.
    write pple
    wait_for_text apple
    main_window_is_in_front || fail "A second message came."
}

test_a_save_that_fails_is_told_and_keeps_the_pairs() {
    # Given
    start_program
    add_apple
    # When
    choose alt+f m
    # A folder that takes no files from anybody, and holds only folders, so that the file dialog looks into none.
    name_file "Mentés másként" "/proc/sys/list.szs"
    # Then
    wait_for_title "Zimbora"
    press Return
    wait_for_main_window
    expect_selected_pair apple alma
    save_as "$lists/better.szs"
    expect_lines "$lists/better.szs" "apple:alma"
}

run_tests "$@"
