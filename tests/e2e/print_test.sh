#!/usr/bin/env bash
# A word list comes onto paper: through a print queue and into a PDF file.
set -euo pipefail
source "$(dirname "$0")/lib.sh"
source "$(dirname "$0")/print_lib.sh"

# An A4 page of 595 × 842 points, its margins 10: the layouts have 575 × 822.

# The name is that of the print-out too, which lies in a folder with those of others.
list_of_seven() {
    title=zimbora$$x$RANDOM
    make_list "$lists/$title.szs" dog:kutya cat:macska "deer:őz" "pond:tó" bird:madár tree:fűz knee:térd
}

list_of_two() {
    title=zimbora$$x$RANDOM
    make_list "$lists/$title.szs" "deer:őz" "pond:tó"
}

test_a_list_is_printed_through_a_queue() {
    # Given
    start_cups
    list_of_seven
    start_program "$lists/$title.szs"
    open_print_settings
    # When
    press Return
    wait_for_main_window
    # Then
    wait_for_print_out "$title"
    expect_pages "$temp/printed.pdf" 1
    # Every hyphen on the middle of the page; 10 + 822 / 20 above the title.
    expect_middles "$temp/printed.pdf" x - 297.5 297.5 297.5 297.5 297.5 297.5 297.5
    expect_title_at "$temp/printed.pdf" 38.75 51.1
    # The queue's way through PostScript loses ő and ű as letters, but not their pictures.
    expect_readable "$temp/printed.pdf" dog kutya madár térd
}

# expect_title_at <file> <left> <top>: of the first word, whose letters are lower than their line by a part of 12 points.
expect_title_at() {
    words_of "$1" | head -1 | awk -v x="$2" -v y="$3" -v mm="$millimetre" '
        { exit !($2 > x - mm && $2 < x + mm && $3 > y - mm && $3 < y + 2 * mm) }' ||
        fail "The title stands elsewhere: $(words_of "$1" | head -1)"
}

# expect_readable <file> <word>...
expect_readable() {
    local word
    for word in "${@:2}"; do
        words_of "$1" | grep -q " $word\$" || fail "$1 lacks the word $word."
    done
}

test_a_printed_list_in_columns_stands_on_their_axes() {
    # Given
    start_cups
    list_of_seven
    start_program "$lists/$title.szs"
    open_print_settings
    # When: over six controls to the columns
    press Tab Tab Tab Tab Tab Tab Tab Up Up Return
    wait_for_main_window
    # Then: 10 + 575 · k / 4
    wait_for_print_out "$title"
    expect_middles "$temp/printed.pdf" x - 153.75 297.5 441.25 153.75 297.5 441.25 153.75
}

test_printed_cards_of_two_pairs_are_five_turned_pages() {
    # Given
    start_cups
    list_of_two
    start_program "$lists/$title.szs"
    open_print_settings
    # When
    choose_kind 2
    press Return
    wait_for_main_window
    # Then
    wait_for_print_out "$title"
    expect_pages "$temp/printed.pdf" 5
    # The paper stays as it is, and the words are turned on it: in the middle along its height, and higher than wide.
    for word in deer pond tó; do
        expect_middles "$temp/printed.pdf" y "$word" 421
    done
    words_of "$temp/printed.pdf" | awk '$6 ~ /deer|pond/ && $5 - $3 < $4 - $2 { print; bad = 1 } END { exit bad }' ||
        fail "These words are not turned."
    expect_blank_page "$temp/printed.pdf" 5
    # A PDF file has the same, on turned paper.
    open_print_settings
    choose_kind 2
    print_into_file "$lists/cards.pdf"
    for page in 1 2 3 4; do
        expect_same_ink "$temp/printed.pdf" "$page" "$lists/cards.pdf" -90
    done
}

test_a_list_is_printed_into_a_pdf_file() {
    # Given
    list_of_seven
    start_program "$lists/$title.szs"
    open_print_settings
    # When
    print_into_file "$lists/out"
    # Then
    wait_for_main_window
    expect_pages "$lists/out.pdf" 1
    expect_middles "$lists/out.pdf" x - 297.5 297.5 297.5 297.5 297.5 297.5 297.5
    expect_title_at "$lists/out.pdf" 38.75 51.1
    expect_readable "$lists/out.pdf" őz fűz
    pdfinfo "$lists/out.pdf" | grep -q "^Title: *$title\$" || fail "The document has another title."
    [[ $(pdffonts "$lists/out.pdf" | tail -n +3 | awk '{ print $(NF - 4) }' | sort -u) == yes ]] ||
        fail "Not all fonts are in the document."
}

test_a_turned_list_stands_on_the_middle_of_the_turned_page() {
    # Given
    list_of_seven
    start_program "$lists/$title.szs"
    open_print_settings
    # When: over eight controls to the orientation, and on to "Nyomtat"
    press Tab Tab Tab Tab Tab Tab Tab Tab Tab Right Tab Tab
    print_into_file "$lists/out.pdf"
    # Then
    wait_for_main_window
    pdfinfo "$lists/out.pdf" | grep -q '^Page size: *842 x 595 ' || fail "The page is not turned."
    expect_middles "$lists/out.pdf" x - 421 421 421 421 421 421 421
}

test_pairs_are_printed_one_a_page_through_a_queue_and_into_a_pdf_file() {
    # Given
    start_cups
    list_of_two
    start_program "$lists/$title.szs"
    open_print_settings
    choose_kind 1
    # When
    press Return
    wait_for_main_window
    open_print_settings
    choose_kind 1
    print_into_file "$lists/out.pdf"
    wait_for_main_window
    # Then: a line stands in the middle, so its hyphen lies where the widths of its words say, and both lines are as high
    expect_pages "$lists/out.pdf" 2
    expect_line_in_the_middle "$lists/out.pdf" 1 421 297.5
    expect_line_in_the_middle "$lists/out.pdf" 2 421 297.5
    wait_for_print_out "$title"
    expect_pages "$temp/printed.pdf" 2
    expect_same_ink "$temp/printed.pdf" 1 "$lists/out.pdf" -90
    expect_same_ink "$temp/printed.pdf" 2 "$lists/out.pdf" -90
}

# expect_line_in_the_middle <file> <page> <x> <y>: all words of the page together.
expect_line_in_the_middle() {
    words_of "$1" | awk -v page="$2" -v x="$3" -v y="$4" -v mm="$millimetre" '
        $1 == page { if (!n++) left = $2; right = $4; top = $3; bottom = $5 }
        END { dx = (left + right) / 2 - x; dy = (top + bottom) / 2 - y
              exit !(n == 3 && dx < mm && dx > -mm && dy < 4 * mm && dy > -4 * mm) }' ||
        fail "Not in the middle of page $2: $(words_of "$1")"
}

test_cards_in_a_pdf_file_lie_in_the_middle_of_turned_pages() {
    # Given
    list_of_two
    start_program "$lists/$title.szs"
    open_print_settings
    choose_kind 2
    # When
    print_into_file "$lists/out.pdf"
    # Then
    wait_for_main_window
    expect_pages "$lists/out.pdf" 5
    pdfinfo "$lists/out.pdf" | grep -q '^Page size: *842 x 595 ' || fail "The pages are not turned."
    for word in deer őz pond tó; do
        expect_middles "$lists/out.pdf" x "$word" 421
    done
    expect_blank_page "$lists/out.pdf" 5
}

test_a_long_print_out_is_cancelled_and_leaves_nothing() {
    # Given
    seq 60000 | sed 's/.*/word&:szo&\r/' >"$lists/long.szs"
    start_program "$lists/long.szs"
    open_print_settings
    choose_kind 2
    press Tab Tab Home Return
    name_file "Mentés másként" "$lists/out.pdf"
    # When
    wait_for_title "Nyomtatás"
    press Escape
    # Then
    wait_for_title "$(title_of_exercise "Szószedet nyomtatása")"
    [[ -z $(find "$lists" -name '*.pdf*') ]] || fail "Something is left of the file."
    press Escape
    wait_for_main_window
}

test_a_printer_that_vanishes_is_told_and_the_settings_stay_open() {
    # Given
    start_cups
    list_of_two
    start_program "$lists/$title.szs"
    open_print_settings
    lpadmin -x "$queue"
    # When
    press Return
    # Then
    wait_for_title "Zimbora"
    press Return
    wait_for_title "$(title_of_exercise "Szószedet nyomtatása")"
    # It is back, and is printed on.
    add_queue
    press Return
    wait_for_main_window
    wait_for_print_out "$title"
}

test_a_printer_that_refuses_is_told_and_the_settings_stay_open() {
    # Given
    start_cups
    list_of_two
    start_program "$lists/$title.szs"
    open_print_settings
    cupsreject "$queue"
    # When
    press Return
    # Then
    wait_for_title "Zimbora"
    press Return
    wait_for_title "$(title_of_exercise "Szószedet nyomtatása")"
    [[ -z $(lpstat -W all -o) ]] || fail "The queue has a job all the same."
}

test_what_was_chosen_is_there_after_a_restart() {
    # Given
    list_of_seven
    start_program "$lists/$title.szs"
    open_print_settings
    # When: another font, italic, bold, a larger size, three columns, turned paper
    press Tab Tab Tab Home Tab space Tab space Tab Up Tab Up Up Tab Tab Right Tab Tab
    print_into_file "$lists/first.pdf"
    wait_for_main_window
    press alt+F4
    expect_end_with_success
    start_program "$lists/$title.szs"
    open_print_settings
    press Return
    name_file "Mentés másként" "$lists/second.pdf"
    wait_until "the PDF file" test -s "$lists/second.pdf"
    # Then
    expect_middles "$lists/second.pdf" x - 215.5 421 626.5 215.5 421 626.5 215.5
    cmp <(words_of "$lists/first.pdf") <(words_of "$lists/second.pdf") || fail "The second print-out is another one."
    pdffonts "$lists/second.pdf" | grep -qiE '(bold|bd).*(ita|obl)' || fail "The second print-out is not bold and italic."
}

run_tests "$@"
