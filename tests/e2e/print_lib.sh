# shellcheck shell=bash disable=SC2034,SC2154
# Printing, for the whole-program tests: a CUPS server of the test's own with a queue that prints into PDF files, and where
# words stand on the pages of those. After lib.sh.

# What the layouts put somewhere must be found there within a millimetre, in points.
readonly millimetre=2.835

# The backend of the queue works for root only, and lays its files into a folder of the system's.
cups_can_be_had() {
    ((EUID == 0)) && [[ -x /usr/sbin/cupsd && -x /usr/lib/cups/backend/cups-pdf ]]
}

# start_cups: a server that knows one queue, "$queue".
start_cups() {
    cups_can_be_had || { echo "Skipped: needs root, cupsd and cups-pdf."; exit 77; }
    local cups=$temp/cups
    queue=zimbora
    # The filters run as another user.
    chmod 711 "$temp"
    mkdir -p "$cups"/{root,cache,state,spool,log}
    cat >"$cups/cupsd.conf" <<END
Listen $cups/socket
LogLevel debug
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
  Allow all
</Location>
<Location /admin>
  Allow all
</Location>
<Policy default>
  <Limit All>
    Allow all
  </Limit>
</Policy>
END
    cat >"$cups/cups-files.conf" <<END
ServerRoot $cups/root
CacheDir $cups/cache
StateDir $cups/state
RequestRoot $cups/spool
TempDir $cups/spool
AccessLog $cups/log/access
ErrorLog $cups/log/error
PageLog $cups/log/page
Sandboxing relaxed
END
    export CUPS_SERVER=$cups/socket
    /usr/sbin/cupsd -f -c "$cups/cupsd.conf" -s "$cups/cups-files.conf" >"$cups/log/output" 2>&1 &
    children+=($!)
    wait_until "a CUPS server" cups_is_running
    add_queue
}

cups_is_running() {
    lpstat -r 2>/dev/null | grep -q 'is running'
}

# This renderer keeps the letters letters, so that they can be read in the result.
add_queue() {
    lpadmin -p "$queue" -E -v cups-pdf:/zimbora-e2e -P /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd \
        -o pdftops-renderer-default=pdftocairo 2>>"$temp/cups/log/output"
}

# wait_for_print_out <title>: moves what the queue made of the document "$1" to $temp/printed.pdf.
wait_for_print_out() {
    wait_until "a print-out of $1" a_print_out_of "$1"
    mv "$(find /var/spool/cups-pdf -name "*$1*.pdf")" "$temp/printed.pdf"
}

# The file is there before it is whole; the job ends after it.
a_print_out_of() {
    [[ -z $(lpstat -W not-completed -o 2>/dev/null) && -n $(find /var/spool/cups-pdf -name "*$1*.pdf") ]]
}

# open_print_settings: from the main window. "Nyomtat" has the focus then.
open_print_settings() {
    press ctrl+p
    wait_for_title "$(title_of_exercise "Szószedet nyomtatása")"
}

# Chooses an option of the kind, counted from 0, and comes back to "Nyomtat".
choose_kind() {
    local i
    # Over "Mégsem" to the first control, and on.
    press Tab Tab Tab Tab Tab Tab Tab Tab
    for ((i = 0; i < $1; ++i)); do
        press Down
    done
    press Tab Tab Tab
}

# print_into_file <file>: with the print settings in front.
print_into_file() {
    # Over "Mégsem" to the printers, whose first is the file.
    press Tab Tab Home Return
    name_file "Mentés másként" "$1"
    wait_until "the PDF file" test -s "${1%.pdf}.pdf"
}

pages_of() {
    pdfinfo "$1" | sed -n 's/^Pages: *//p'
}

# words_of <file>: page, left, top, right, bottom in points, and text of each word, line by line.
words_of() {
    pdftotext -bbox "$1" - 2>/dev/null | awk -F'"' '
        /<page / { ++page }
        /<word / { text = $9; gsub(/^>|<\/word>$/, "", text); print page, $2, $4, $6, $8, text, int($4 + 0.5) }' |
        sort -k1,1n -k7,7n -k2,2n | cut -d" " -f1-6
}

# expect_middles <file> <axis: x or y> <word> <points>...: the words "$3", in their order, have their middles there.
expect_middles() {
    words_of "$1" | awk -v axis="$2" -v word="$3" -v wanted="${*:4}" -v mm="$millimetre" '
        BEGIN { n = split(wanted, at, " ") }
        $6 == word {
            middle = axis == "x" ? ($2 + $4) / 2 : ($3 + $5) / 2
            difference = middle - at[++found]
            if (difference < -mm || difference > mm) { print word " " found " stands at " middle; bad = 1 }
        }
        END { exit bad || found != n }' >&2 || fail "Not where they should be in $1 (${*:2}): $(words_of "$1")"
}

# ink_of <file> <page> <degrees>: width, height, left and top of what is dark on the page, turned, in points.
ink_of() {
    pdftoppm -r 72 -gray -f "$2" -l "$2" "$1" |
        convert pgm:- -rotate "$3" -threshold 50% -trim -format '%w %h %X %Y' info:
}

# expect_same_ink <file> <page> <other file> <degrees>: the other's page, turned, is dark at the same places.
expect_same_ink() {
    echo "$(ink_of "$1" "$2" 0) $(ink_of "$3" "$2" "$4")" | awk -v mm="$millimetre" '
        NF == 8 { same = 1; for (i = 1; i <= 4; ++i) if ($i - $(i + 4) > mm || $(i + 4) - $i > mm) same = 0 }
        END { exit !same }' ||
        fail "Page $2 of $1 is dark at $(ink_of "$1" "$2" 0), of $3 at $(ink_of "$3" "$2" "$4")."
}

# The darkest dot of a page, 0 to 255.
darkest_dot() {
    pdftoppm -r 30 -gray -f "$2" -l "$2" "$1" | convert pgm:- -format '%[fx:int(255*minima)]' info:
}

expect_blank_page() {
    (($(darkest_dot "$1" "$2") == 255)) || fail "Page $2 is not blank."
}

expect_pages() {
    [[ $(pages_of "$1") == "$2" ]] || fail "$1 has $(pages_of "$1") pages, not $2."
}
