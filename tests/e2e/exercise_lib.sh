# shellcheck shell=bash disable=SC2034,SC2154
# Shared by the tests that practise: a list that must stay as it is, the exercise in front, and places in its window.

# start_with_list <line>...: the program with a list of these pairs, of which a copy is kept.
start_with_list() {
    list=$lists/practice.szs
    make_list "$list" "$@"
    cp -p "$list" "$temp/copy.szs"
    start_program "$list"
    wait_for_title "$(title_of_list "$list")"
}

# A message closes by itself, so none is pressed away: a key that comes late would go to the window behind it.
wait_for_message() {
    wait_for_title "$(title_of_exercise "$list szószedet")"
}

# wait_for_exercise <caption>
wait_for_exercise() {
    wait_for_title "$(title_of_exercise "$1")"
}

# The main window is back with its pairs, of which "$1 - $2" is selected, and neither changed nor written.
expect_main_window_with_unchanged_list() {
    wait_for_title "$(title_of_list "$list")"
    main_window=$(xdotool getactivewindow)
    expect_selected_pair "$1" "$2"
    cmp "$list" "$temp/copy.szs" || fail "The list was changed."
    [[ ! $list -nt $temp/copy.szs ]] || fail "The list was written."
    # It asks no question, because nothing has to be saved.
    press alt+F4
    expect_end_with_success
    cmp "$list" "$temp/copy.szs" || fail "The list was changed at the end."
}

take_look() {
    import -window "$(xdotool getactivewindow)" "$temp/$1.png"
}

looks_other_than() {
    take_look now
    ! compare -metric AE "$temp/$1.png" "$temp/now.png" null: 2>/dev/null
}

looks_like() {
    ! looks_other_than "$1"
}

# find_place_in_exercise <right> <bottom> <left> <top> <width> <height>: sets x, y, w and h to the pixels of a place of the
# design in the exercise's window, whose controls end at `right` and `bottom`, 120 twips before its edges; the menu bar
# takes the rest.
find_place_in_exercise() {
    local WIDTH HEIGHT
    eval "$(xdotool getactivewindow getwindowgeometry --shell | grep -E '^(WIDTH|HEIGHT)=[0-9]+$')"
    read -r x y w h < <(awk -v width="$WIDTH" -v height="$HEIGHT" -v right="$1" -v bottom="$2" -v x="$3" -v y="$4" \
        -v w="$5" -v h="$6" 'BEGIN {
        ratio = (width * 15 - 120) / right / 15
        menu_bar = height - int(bottom * ratio + 8.5)
        printf "%d %d %d %d\n", x * ratio, menu_bar + y * ratio, w * ratio, h * ratio
    }')
}

# click_in_exercise <x> <y>: in pixels of the window.
click_in_exercise() {
    xdotool mousemove --window "$(xdotool getactivewindow)" "$1" "$2" click 1
}
