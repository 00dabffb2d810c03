#!/usr/bin/env bash
# What was probably meant: the line of help in the main window and in the mini window, and the window of phrases.
set -euo pipefail
source "$(dirname "$0")/lib.sh"
source "$(dirname "$0")/mini_window.sh"

readonly data=(alakok/angol.txt alakok/hu_HU.aff alakok/hu_HU.dic alakok/osszegek.txt am.gyk ma.gyk szavak.idx)

# Adds the first meaning of the selected hit, and saves the list under this name.
add_first_meaning_and_save() {
    press Right
    wait_for_item "$1"
    press Return
    wait_until "the word list in sight" word_list_is_shown
    save_as "$2"
}

test_the_keyboard_alone_leads_from_a_misspelt_word_to_the_right_one_in_a_saved_list() {
    # Given
    bring_suggestions
    start_program
    write recieve
    wait_for_text recieve
    # When
    tab_to "to receive"
    press Return
    wait_for_item "to receive"
    add_first_meaning_and_save kap "$lists/slips.szs"
    # Then
    expect_lines "$lists/slips.szs" "to receive:kap"
}

test_keys_lead_from_an_inflected_form_to_its_base() {
    # Given
    bring_suggestions
    start_program
    click "$from_hungarian"
    paste lovakkal
    wait_for_text lovakkal
    # When
    tab_to ló
    press Return
    wait_for_item ló
    add_first_meaning_and_save horse "$lists/forms.szs"
    # Then
    expect_lines "$lists/forms.szs" "horse:ló"
}

readonly place=(400 150)
# Where the links stand in the mini window: alone in the line, and behind the form that they explain.
readonly link_alone="1650 510"
readonly link_behind_form="2280 510"

# copy_elsewhere <text>: copies it while another program has the focus and keeps it.
copy_elsewhere() {
    bring_suggestions
    start_mini_window "${place[@]}"
    open_other_window
    copy "$1"
    write meanwhile
    press Return
    wait_until "the typed letters" typed_is meanwhile
    wait_until "the help" help_is_shown
    has_focus "$other" || fail "The other window has lost the focus."
}

# Something stands right of the caption of the search box.
help_is_shown() {
    local x y left top
    in_mini_window 1380 440
    left=$x top=$y
    in_mini_window 3400 660
    (($(import -window root -crop "$((x - left))x$((y - top))+$left+$top" -format %k info:) > 1))
}

# The focus is in the list of hits, from where this leads to the search box.
search_box_holds() {
    press F6
    typed_text_is "$1"
}

use_link_by_key() {
    xdotool windowfocus --sync "$mini"
    press F6 shift+Tab Return
}

# expect_pair_saved <pair>: adds the first meaning, and looks into the list that the main window saves.
expect_pair_saved() {
    press Down Right Return
    click_in_mini_window "$large_window_button"
    wait_for_title "Zimbora"
    press Return
    wait_for_main_window
    wait_until "the word list in sight" word_list_is_shown
    save_as "$lists/copied.szs"
    expect_lines "$lists/copied.szs" "$1"
}

test_a_click_leads_from_a_copied_hungarian_form_to_its_base() {
    # Given
    copy_elsewhere házaimban
    # When
    click_in_mini_window "$link_behind_form"
    wait_until "the base" search_box_holds ház
    # Then
    [[ $(title_in_front) == "Zimbora Magyar-angol szótár" ]] || fail "The direction is not that of the base."
    expect_pair_saved house:ház
}

test_a_key_leads_from_a_copied_unit_that_is_torn_apart_to_its_headword() {
    # Given
    copy_elsewhere "turned it off"
    # When
    use_link_by_key
    wait_until "the headword" search_box_holds "turn off"
    # Then
    expect_pair_saved "to turn off:elzár"
}

test_a_click_leads_from_a_copied_unit_that_is_torn_apart_to_its_headword() {
    # Given
    copy_elsewhere "turned it off"
    # When
    click_in_mini_window "$link_alone"
    wait_until "the headword" search_box_holds "turn off"
    # Then
    expect_pair_saved "to turn off:elzár"
}

test_a_click_leads_from_a_copied_word_to_the_headword_with_a_capital() {
    # Given
    copy_elsewhere Monday
    # When
    click_in_mini_window "$link_behind_form"
    wait_until "the headword" search_box_holds Monday
    # Then
    expect_pair_saved Monday:hétfő
}

open_phrases() {
    press F3
    wait_for_title "Kifejezések"
}

test_the_keyboard_alone_finds_a_phrase_by_words_within_it_and_adds_it() {
    # Given
    bring_suggestions
    start_program
    open_phrases
    # When
    write "eye apple"
    wait_for_text "eye apple"
    press Down
    wait_for_item $'apple of one\'s eye\tszeme fénye'
    press Return Escape
    # Then
    wait_for_main_window
    wait_until "the word list in sight" word_list_is_shown
    save_as "$lists/phrases.szs"
    expect_lines "$lists/phrases.szs" "apple of one's eye:szeme fénye"
}

# What is told of the phrases leads to their window, which shows them.
test_the_number_of_phrases_leads_to_the_phrases_themselves() {
    # Given
    bring_suggestions
    start_program
    write tablecloths
    wait_for_text tablecloths
    # When
    tab_to "1 kifejezésben"
    press Return
    # Then
    wait_for_title "Kifejezések"
    wait_for_text tablecloths
}

# The program looks up words that would need what explains, offers and finds; then it does what it always does.
expect_dictionary_and_list_to_work() {
    start_program
    click "$from_hungarian"
    paste házaimban
    wait_for_text házaimban
    open_phrases
    write apple
    wait_for_text apple
    press Escape
    wait_for_main_window
    click "$from_english"
    add_apple
    save_as "$1"
    expect_lines "$1" "apple:alma"
    press alt+F4
    expect_end_with_success
}

test_without_the_data_of_suggestions_the_dictionary_and_the_list_work() {
    expect_dictionary_and_list_to_work "$lists/without.szs"
}

test_without_one_file_of_the_data_of_suggestions_the_dictionary_and_the_list_work() {
    local i
    bring_suggestions
    for i in "${!data[@]}"; do
        mv "$ZIMBORA_PROGRAM/${data[i]}" "$temp/away"
        expect_dictionary_and_list_to_work "$lists/without$i.szs"
        mv "$temp/away" "$ZIMBORA_PROGRAM/${data[i]}"
    done
}

test_with_a_damaged_file_of_the_data_of_suggestions_the_dictionary_and_the_list_work() {
    local i
    bring_suggestions
    for i in "${!data[@]}"; do
        mv "$ZIMBORA_PROGRAM/${data[i]}" "$temp/away"
        { head -c 5000 "$temp/away" && head -c 5000 /dev/zero && tail -c +20001 "$temp/away"; } \
            >"$ZIMBORA_PROGRAM/${data[i]}"
        expect_dictionary_and_list_to_work "$lists/damaged$i.szs"
        mv "$temp/away" "$ZIMBORA_PROGRAM/${data[i]}"
    done
}

run_tests "$@"
