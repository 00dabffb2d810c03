#!/usr/bin/env bash
# Makes the feedback sounds of the program with sox: waves of 44.1 kHz, 16 bit, mono.
#
#   make_sounds.sh <folder of the sounds> <file of the silence>
#
# A sound is a sum of layers: each is one oscillator or noise with its own start, level and decay. "finish" mixes them,
# fades both ends and brings every sound to about the same loudness. Two runs give the same bytes: sox's random numbers
# start from the same seed (-R), and nothing is dithered (-D).
set -euo pipefail
export LC_ALL=C

[ $# -eq 2 ] || { echo "Usage: make_sounds.sh <folder of the sounds> <file of the silence>" >&2; exit 2; }
folder=$1
silence=$2
mkdir -p "$folder" "$(dirname "$silence")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# How loud the loudest 50 ms of a sound are, and how high a peak may be, in dB of full scale.
loudness=-16
peak=-1.5

layers=()

calc() { awk "BEGIN { printf \"%.5f\", $1 }"; }

# layer <start in s> <level in dB> "<length> <oscillator> [<pitch>]" <effects...>
layer() {
    local start=$1 level=$2 file=$work/layer${#layers[@]}.wav generator
    read -ra generator <<<"$3"
    shift 3
    sox -R -D -r 44100 -n -b 32 "$file" synth "${generator[@]}" gain "$level" "$@" pad "$start"
    layers+=(-v 1 "$file")
}

# ringing <start> <level> <pitch> <ring>: a tone that is struck and dies away, by 100 dB in the time of its ring.
ringing() {
    layer "$1" "$2" "$4 sine $3" fade l 0.002 "$4" "$(calc "$4 - 0.002")"
}

# bell <start> <level> <pitch> <ring>: the partials of a small bell, the higher the sooner gone.
bell() {
    local ratio share length
    while read -r ratio share length; do
        ringing "$1" "$(calc "$2 + $share")" "$(calc "$3 * $ratio")" "$(calc "$4 * $length")"
    done <<'PARTIALS'
1.000 0 1.0
2.004 -7 0.8
2.756 -11 0.5
5.404 -16 0.3
8.933 -22 0.15
PARTIALS
}

# bar <start> <level> <pitch> <ring>: a wooden bar under a soft mallet; that of a xylophone is tuned 1 : 3 : 6.
bar() {
    ringing "$1" "$2" "$3" "$4"
    ringing "$1" "$(calc "$2 - 11")" "$(calc "$3 * 3")" "$(calc "$4 / 2")"
    ringing "$1" "$(calc "$2 - 20")" "$(calc "$3 * 6.1")" 0.08
}

# brass <start> <level> <pitch> <length> <brightness in Hz>: two slightly detuned saws behind a filter.
brass() {
    local filter=(lowpass "$5" lowpass "$(calc "$5 * 2")")
    layer "$1" "$2" "$4 sawtooth $3" "${filter[@]}" fade h 0.03 "$4" 0.07
    layer "$1" "$2" "$4 sawtooth $(calc "$3 * 1.004")" "${filter[@]}" fade h 0.04 "$4" 0.07
}

# string <start> <level> <pitch> <ring>: a plucked string.
string() {
    layer "$1" "$2" "$4 pluck $3" lowpass 4000 fade l 0.002 "$4" "$(calc "$4 - 0.002")"
}

# finish <name>: the sound of the layers made so far.
finish() {
    local mixed=$work/mixed.wav levelled=$work/levelled.wav change
    sox -R -D -m "${layers[@]}" -b 32 "$mixed"
    # What is too deep to be heard is cut off, and so is the end of the dying away.
    sox -R -D "$mixed" -b 32 "$levelled" highpass 40 gain -n "$peak" reverse silence 1 0.005 0.15% fade h 0.03 \
        reverse fade h 0.003
    # The measuring window of sox misses what stands at the very beginning.
    change=$(sox "$levelled" -n pad 0.3 0.1 stats 2>&1 | awk -v wanted="$loudness" \
        '/^RMS Pk dB/ { change = wanted - $4; print change < 0 ? change : 0 }')
    sox -R -D "$levelled" -b 16 "$folder/$1.wav" gain "$change"
    rm -f "$work"/*
    layers=()
}

# --- Right ---

# A small bell, once.
bell 0 -14 1046.5 2.4
finish 'csengő'

# The door bell: a major third down.
bell 0 -14 659.26 1.8
bell 0.42 -14 523.25 2.4
finish 'ding-dong'

# A rising major chord on bars of steel: C E G C.
bell 0 -16 1046.5 1.2
bell 0.11 -16 1318.5 1.2
bell 0.22 -16 1568.0 1.2
bell 0.33 -14 2093.0 2.0
finish 'harangjáték'

# A run up the pentatonic scale: C D E G A C.
bar 0 -12 523.25 0.5
bar 0.08 -12 587.33 0.5
bar 0.16 -12 659.26 0.5
bar 0.24 -12 783.99 0.5
bar 0.32 -12 880.00 0.5
bar 0.40 -9 1046.5 0.9
finish 'xilofon felfelé'

# Two whistled notes, a fourth up, the second sliding into its place; a little breath with them.
layer 0 -12 '0.18 sine 1174.7' tremolo 7 12 fade h 0.03 0.18 0.05
layer 0.20 -10 '0.10 sine 1318.5-1568' fade h 0.03 0.10 0.002
layer 0.298 -10 '0.34 sine 1568' tremolo 7 18 fade h 0.004 0.34 0.10
layer 0 -42 '0.64 pinknoise' highpass 1500 fade h 0.05 0.64 0.2
finish 'füttyszó'

# --- Congratulation ---

# A fanfare: G G G, and the C major chord.
brass 0 -18 392 0.13 1500
brass 0.16 -18 392 0.13 1500
brass 0.32 -18 392 0.13 1500
brass 0.48 -21 523.25 1.1 1800
brass 0.48 -24 659.26 1.1 1800
brass 0.48 -24 783.99 1.1 1800
brass 0.48 -23 261.63 1.1 1200
finish 'fanfár'

# Forty people clap, each at a pace and with hands of their own. What is drawn for them comes from a linear congruence,
# so it is the same each time.
number=17
draw() { number=$(((number * 1103 + 12345) % 65536)); drawn=$((number % $1)); }
for ((person = 0; person < 40; ++person)); do
    draw 400; start=$(calc "$drawn / 1000")
    draw 90; pause=$(calc "0.13 + $drawn / 1000")
    draw 1100; tone=$((700 + drawn))
    draw 8; level=$((-20 - drawn))
    layer "$start" "$level" '0.09 pinknoise' band -n "$tone" 900 fade l 0.001 0.09 0.088 pad 0 "$pause" \
        repeat 9 trim 0 1.8 fade h 0 1.8 0.9
done
layer 0 -40 '2.2 pinknoise' band -n 1200 1500 fade h 0.3 2.2 0.9
finish 'taps'

# A shower of little chimes, falling and rising.
start=0
for pitch in 3136 2637 2349 2093 2349 2637 3136 3520 4186; do
    bell "$start" -22 "$pitch" 1.4
    start=$(calc "$start + 0.075")
done
finish 'csilingelés'

# A harp: up the chord of C major with its sixth.
start=0
for pitch in 130.81 164.81 196.00 220.00 261.63 329.63 392.00 440.00 523.25 659.26 783.99 1046.5; do
    string "$start" -14 "$pitch" 2.2
    start=$(calc "$start + 0.06")
done
finish 'hárfa'

# --- Wrong ---

# A buzzer, as in a quiz on television.
layer 0 -20 '0.55 square 110' lowpass 1800 fade h 0.01 0.55 0.05
layer 0 -22 '0.55 sawtooth 116.5' lowpass 1800 fade h 0.01 0.55 0.05
finish 'berregő'

# A horn, twice, with the semitone below.
brass 0 -20 146.83 0.28 900
brass 0 -22 138.59 0.28 900
brass 0.36 -20 138.59 0.62 900
brass 0.36 -22 130.81 0.62 900
finish 'mély duda'

# A trombone, down by semitones, the last note long and sagging.
brass 0 -18 293.66 0.28 1100
brass 0.32 -18 277.18 0.28 1100
brass 0.64 -18 261.63 0.28 1100
layer 0.96 -13 '1.1 sawtooth 246.94:220' lowpass 1000 lowpass 2000 tremolo 6 45 fade h 0.03 1.1 0.3
finish 'szomorú harsona'

# The bars again, down by semitones, with a last one far below.
bar 0 -10 622.25 0.4
bar 0.1 -10 587.33 0.4
bar 0.2 -10 554.37 0.4
bar 0.3 -10 523.25 0.4
bar 0.4 -10 493.88 0.4
bar 0.5 -8 349.23 0.9
finish 'xilofon lefelé'

# A whistle that slides down and lands.
layer 0 -12 '0.75 sine 1760-330' tremolo 8 15 fade h 0.04 0.75 0.08
layer 0.74 -8 '0.24 sine 140:70' fade l 0.002 0.24 0.23
finish 'lecsúszó fütty'

# A gong; its deepest partials beat against each other.
while read -r pitch level ring; do
    layer 0 "$level" "$ring sine $pitch" fade l 0.02 "$ring" "$(calc "$ring - 0.02")"
done <<'PARTIALS'
98 -14 2.9
99.6 -18 2.9
147.3 -15 2.6
198.4 -16 2.4
263.1 -18 2.0
351.7 -19 1.6
409.2 -21 1.3
588.5 -24 0.9
PARTIALS
layer 0 -24 '0.3 pinknoise' lowpass 900 fade l 0.005 0.3 0.29
finish 'gong'

# --- Help, neutral ---

# Knuckles on a wooden door, three times.
for start in 0 0.17 0.34; do
    ringing "$start" -8 172 0.20
    ringing "$start" -12 415 0.13
    layer "$start" -16 '0.08 pinknoise' lowpass 1600 fade l 0.001 0.08 0.078
done
finish 'kopogás'

# Two drops of water.
layer 0 -8 '0.16 sine 500-1500' fade l 0.004 0.16 0.155
layer 0.21 -10 '0.15 sine 650-1900' fade l 0.004 0.15 0.145
ringing 0.24 -22 1250 0.4
finish 'vízcsepp'

# A cork comes out of its bottle.
layer 0 -6 '0.14 sine 240-900' fade l 0.002 0.14 0.13
layer 0.05 -12 '0.14 pinknoise' band -n 900 600 fade l 0.002 0.14 0.13
ringing 0.07 -10 620 0.34
finish 'pukkanás'

# Silence, played instead of a sound where none is wanted.
sox -R -D -r 44100 -n -b 16 -c 1 "$silence" trim 0 0.2
