#!/usr/bin/env bash
# make_forms.sh <folder of WordNet's files> <folder of the spelling dictionaries> <folder>: makes the folder of what
# explains inflected forms: the rules and words of the Hungarian spelling dictionary as they are, WordNet's exceptions,
# and a list of the check sums of both. What src/forms/form_data.h and english_data.h say of these files.
set -euo pipefail
wordnet=$1 hunspell=$2 folder=$3
export LC_ALL=C

mkdir -p "$folder"
cp --no-preserve=mode "$hunspell/hu_HU.aff" "$hunspell/hu_HU.dic" "$folder/"

# exceptions <key> <file>: its lines that lead a single word to another one.
exceptions() {
    awk -v key="$1" '!/_/ {
        bases = ""
        for (i = 2; i <= NF; ++i)
            if ($i != $1) bases = bases " " $i
        if (bases != "") print key " " $1 bases
    }' "$wordnet/$2.exc"
}

# How often texts have a word as noun, verb, adjective or adverb; single words that they have twice, and the shorter
# adjectives whether they have them or not, since nothing else tells that these can be compared.
counts() {
    awk -v keys=NVARA '
        FILENAME ~ /index/ {
            if (!/^  / && $1 ~ /^[a-z]+$/ && length($1) <= 9) seen["A " $1] += 0
            next
        }
        {
            split($1, sense, "%")
            if (sense[1] !~ /^[a-z]+$/) next
            seen[substr(keys, substr(sense[2], 1, 1), 1) " " sense[1]] += $NF
        }
        END {
            for (word in seen)
                if (seen[word] > 1 || word ~ /^A/) print word " " seen[word]
        }' "$wordnet/index.adj" "$wordnet/cntlist.rev"
}

{
    echo "# Made from WordNet: words whose forms do not follow the rules, and how often texts have words."
    sed -n 's/^  [0-9]* */# /p' "$wordnet/index.adj" | sed 's/ *$//'
    {
        exceptions n noun
        exceptions v verb
        exceptions a adj
        exceptions r adv
        counts
    } | sort
} >"$folder/angol.txt"

cd "$folder"
md5sum angol.txt hu_HU.aff hu_HU.dic | sed 's/  / /' >osszegek.txt
