#!/usr/bin/env bash
# Fails unless three are the same: the pictures that tests/e2e/pictures.sh takes, those that the documents and the help
# show, and the files that are there.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

taken() {
    tests/e2e/pictures.sh --list
}

shown() {
    local document picture
    for document in ./*.md docs/*.md resources/help/*.html; do
        { grep -aoP '!\[[^]]*\]\(\K[^)]+|<img\b[^>]*\bsrc="\K[^"]+' "$document" || true; } | while read -r picture; do
            realpath --canonicalize-missing --relative-to=. "$(dirname "$document")/$picture"
        done
    done
}

there() {
    find docs resources/help -regextype egrep -iregex '.*\.(png|jpe?g|gif|webp|svg)'
}

# compare_with_taken <command> <what its files are called>
compare_with_taken() {
    diff --label "taken by tests/e2e/pictures.sh" --label "$2" <(taken | sort) <("$1" | sort --unique)
}

[[ -n $(taken) ]] || { echo "No picture is taken." >&2; exit 1; }
status=0
compare_with_taken shown "shown by a document" || status=1
compare_with_taken there "there" || status=1
exit "$status"
