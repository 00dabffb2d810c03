#!/usr/bin/env bash
# Each exercise is practised from the menu to the end.
set -euo pipefail
source "$(dirname "$0")/lib.sh"
source "$(dirname "$0")/exercise_lib.sh"

test_the_learning_window_shows_every_pair() {
    # Given
    start_with_list "dog:kutya" "cat:macska" "horse:ló"
    practise t "Tanulás"
    # When
    for page in 1 2; do
        take_look "$page"
        press Return
        wait_until "the next page" looks_other_than "$page"
        wait_for_exercise "Tanulás"
    done
    press Return
    # Then
    expect_main_window_with_unchanged_list dog kutya
}

test_the_typed_quiz_is_answered_with_one_mistake() {
    # Given two pairs with the same answer, whichever is asked first
    start_with_list "dog:kutya" "dog:eb"
    practise "$to_quiz" "Kikérdezés"
    # When
    write cat
    wait_for_text cat
    press Return
    wait_for_message
    wait_for_exercise "Kikérdezés"
    write dog
    wait_for_text dog
    press Return
    write dog
    wait_for_text dog
    press Return
    # Then
    wait_for_message
    expect_main_window_with_unchanged_list dog kutya
}

# Where the texts of the multiple choice stand: left, top, width and height in twips of the design.
readonly question="120 860 4500 1000"
# The candidates without the digits of their keys at their left.
readonly first_candidate="900 2100 5420 640"
readonly second_candidate="900 2860 5420 640"

find_place_of_choice() {
    find_place_in_exercise 9880 5780 "$@"
}

# A long word takes more than half of its place.
holds_long_word() {
    local x y w h
    # shellcheck disable=SC2086  # a place is four words
    find_place_of_choice $1
    take_look choice
    # The frame of a place is not its text.
    local text
    text=$(convert "$temp/choice.png" -crop "$((w - 16))x$((h - 16))+$((x + 8))+$((y + 8))" +repage -fuzz 20% -trim \
        -format '%w' info: 2>/dev/null)
    ((text * 2 > w))
}

holds_short_word() {
    ! holds_long_word "$1"
}

# Sets right and wrong to the keys of the candidates.
read_candidates() {
    local answer_is=$1
    right=1 wrong=2
    "$answer_is" "$first_candidate" || right=2 wrong=1
}

test_the_multiple_choice_is_played_with_one_mistake() {
    # Given two pairs that can be told apart by the lengths of their words
    local long="extraordinary thing:rendkívüli dolog" short="ox:ló"
    start_with_list "$short" "$long"
    practise v "Választás"
    local first=holds_short_word second=holds_long_word
    if holds_long_word "$question"; then
        first=holds_long_word second=holds_short_word
    fi
    # When
    read_candidates "$first"
    press "$wrong" Return "$right" Return
    wait_until "the second question" "$second" "$question"
    read_candidates "$second"
    local x y w h place=$first_candidate
    ((right == 1)) || place=$second_candidate
    # shellcheck disable=SC2086  # a place is four words
    find_place_of_choice $place
    xdotool mousemove --window "$(xdotool getactivewindow)" $((x + w / 2)) $((y + h / 2)) click 1
    # Then
    wait_for_message
    wait_for_exercise "Választás"
    press Escape
    expect_main_window_with_unchanged_list ox ló
}

run_tests "$@"
