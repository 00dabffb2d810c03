#!/usr/bin/env bash
# A word list from the dictionaries to the file.
set -euo pipefail
source "$(dirname "$0")/lib.sh"

test_a_meaning_that_is_double_clicked_is_saved() {
    # Given
    start_program
    look_up apple alma
    # When
    double_click "$first_meaning"
    wait_until "the word list in sight" word_list_is_shown
    save_as "$lists/my list.szs"
    # Then
    expect_lines "$lists/my list.szs" "apple:alma"
}

test_a_saved_list_comes_first_among_the_recent_files() {
    # Given
    make_list "$lists/older.szs" "dog:kutya"
    bytes_of_lines "$lists/older.szs" >"$ZIMBORA_C/zbrmkfnh.ini"
    start_program
    add_apple
    # When
    save_as "$lists/newer.szs"
    # Then
    expect_lines "$ZIMBORA_C/zbrmkfnh.ini" "$lists/newer.szs" "$lists/older.szs"
}

test_a_hungarian_word_is_saved_behind_its_english_meaning() {
    # Given
    start_program
    # When
    click "$from_hungarian"
    look_up alma apple
    double_click "$first_meaning"
    wait_until "the word list in sight" word_list_is_shown
    save_as "$lists/fruit.szs"
    # Then
    expect_lines "$lists/fruit.szs" "apple:alma"
}

test_the_keyboard_alone_finds_adds_and_saves_a_word() {
    # Given
    start_program
    # When
    write apple
    press Tab Tab Tab
    wait_for_item alma
    press Return
    wait_until "the word list in sight" word_list_is_shown
    choose alt+f m
    wait_for_title "Mentés másként"
    press ctrl+a
    write "$lists/keys.szs"
    wait_for_text "$lists/keys.szs"
    press Return
    wait_for_title "$(title_of_list "$lists/keys.szs")"
    # Then
    expect_lines "$lists/keys.szs" "apple:alma"
}

test_arrow_keys_lead_to_the_meanings_and_delete_takes_a_pair_away() {
    # Given
    start_program
    write apple
    wait_for_text apple
    # When
    press Down Right
    wait_for_item alma
    press Return
    wait_until "the word list in sight" word_list_is_shown
    press ctrl+l
    write dog
    wait_for_text dog
    press Down Right
    wait_for_item kutya
    press Return ctrl+s
    name_file "Mentés másként" "$lists/keys.szs"
    wait_for_title "$(title_of_list "$lists/keys.szs")"
    # Then
    expect_lines "$lists/keys.szs" "apple:alma" "dog:kutya"
    # When
    click "$first_pair"
    wait_for_item apple
    press Delete ctrl+s
    # Then
    expect_lines "$lists/keys.szs" "dog:kutya"
}

test_a_held_backspace_leaves_no_hits_under_an_empty_field() {
    # Given
    start_program
    write interesting
    wait_for_text interesting
    press End
    # When
    xdotool key --repeat 15 --delay 30 BackSpace
    # Then the hits cannot be entered, so that the field keeps the keyboard
    press Down
    write x
    wait_for_text x
}

test_a_list_whose_naming_was_cancelled_says_why_it_is_not_saved() {
    # Given
    make_list "$lists/animals.szs" "dog:kutya"
    start_program "$lists/animals.szs"
    expect_selected_pair dog kutya
    write eb
    press Return
    press alt+f Down Down Down Down Return
    wait_for_title "Mentés másként"
    press Escape
    wait_for_main_window
    # When
    press ctrl+n
    wait_for_title "Kilépés"
    press alt+i
    # Then
    wait_for_title "Zimbora"
    press Return
    wait_for_main_window
    expect_selected_pair dog eb
    expect_lines "$lists/animals.szs" "dog:kutya"
}

test_an_existing_file_is_replaced_only_after_a_yes() {
    # Given
    make_list "$lists/animals.szs" "dog:kutya"
    start_program
    add_apple
    choose alt+f m
    name_file "Mentés másként" "$lists/animals.szs"
    wait_for_title "Fájl felülírása"
    # When
    press alt+n
    # Then
    wait_for_title "Mentés másként"
    expect_lines "$lists/animals.szs" "dog:kutya"
    # When
    name_file "Mentés másként" "$lists/animals.szs"
    wait_for_title "Fájl felülírása"
    press alt+i
    # Then
    expect_lines "$lists/animals.szs" "apple:alma"
}

test_an_edited_pair_is_saved() {
    # Given
    make_list "$lists/animals.szs" "dog:kutya" "cat:macska"
    start_program "$lists/animals.szs"
    expect_selected_pair dog kutya
    # When
    click "$hungarian_text"
    press ctrl+a
    paste "kutyus: őz, űr"
    press Return
    choose alt+f m
    # Then
    expect_lines "$lists/animals.szs" "dog:kutyus: őz, űr" "cat:macska"
}

test_a_deleted_pair_is_not_saved() {
    # Given
    make_list "$lists/animals.szs" "dog:kutya" "cat:macska" "horse:ló"
    start_program "$lists/animals.szs"
    expect_selected_pair dog kutya
    # When
    click "$first_pair"
    click "$delete_button"
    expect_selected_pair cat macska
    choose alt+f m
    # Then
    expect_lines "$lists/animals.szs" "cat:macska" "horse:ló"
}

run_tests "$@"
