#!/usr/bin/env bash
# package_test.sh <package> <version of the program> [<test>...]: what can be said of the Debian package without
# installing it. The unpacked package is "$tree", its control fields are "$tree/DEBIAN/control".
set -euo pipefail
source "$(dirname "$0")/../e2e/lib.sh"

readonly type=application/x-zimbora-wordlist
readonly icon_sizes="16 24 32 48 64 128 256 512"

unpack() {
    unset LANGUAGE XDG_CONFIG_HOME XDG_DATA_HOME
    export LC_ALL=C.UTF-8
    temp=$(mktemp -d)
    trap 'rm -rf "$temp"' EXIT
    trap 'exit 1' INT TERM HUP
    export HOME=$temp/home
    mkdir "$HOME"
    tree=$temp/tree
    dpkg-deb --raw-extract "$package" "$tree"
    share=$tree/usr/share
    entry=$share/applications/zimbora.desktop
}

# expect_silence <command>...: it succeeds and has nothing to say.
expect_silence() {
    local said
    said=$("$@" 2>&1) || fail "$1 failed: $said"
    [[ -z $said ]] || fail "$1 says: $said"
}

field() {
    dpkg-deb --field "$package" "$1"
}

# value <key>: of the desktop entry.
value() {
    sed -n "s/^$1=//p" "$entry"
}

# Errors, warnings and lesser remarks, but for the compiler's name in the executables, which takes fifty bytes.
test_lintian_has_nothing_to_say() {
    local as_root=()
    ((EUID != 0)) || as_root=(--allow-root)
    expect_silence lintian --display-info --pedantic --suppress-tags binary-has-unneeded-section \
        "${as_root[@]}" "$package"
}

test_the_change_logs_are_those_of_this_version() {
    local debian=$share/doc/zimbora/changelog.gz
    [[ $(zcat "$debian" | dpkg-parsechangelog --file - --show-field Version) == "$version" ]] ||
        fail "The newest of Debian's change log is another version: $(zcat "$debian")"
    zcat "$share/doc/zimbora/NEWS.gz" | cmp - "$(dirname "$0")/../../CHANGELOG.md" ||
        fail "The users' change log is another."
}

test_the_control_fields_tell_what_the_package_is() {
    [[ $(field Package) == zimbora ]] || fail "It is named $(field Package)."
    [[ $(field Version) == "$version" ]] || fail "Its version is $(field Version), that of the program $version."
    [[ $(field Architecture) == "$(dpkg --print-architecture)" ]] || fail "It is for $(field Architecture)."
    [[ $(basename "$package") == "zimbora_${version}_$(field Architecture).deb" ]] || fail "Its file is $package."
    [[ $(field Description) == "English-Hungarian dictionary"*$'\n '* ]] || fail "Described as $(field Description)"
}

# The tools know what the linked libraries are; the rest has been told by hand.
test_depends_names_every_package_that_has_to_be_there() {
    local needed
    for needed in fonts-liberation qt6-translations-l10n timgm6mb-soundfont libcups2; do
        depends_on "$needed" || fail "Depends lacks $needed: $(field Depends)"
    done
    depends_on_owners_of_linked_libraries
}

depends_on() {
    grep -qxF "$1" <<<"$(field Depends | sed 's/([^)]*)//g; s/[,|]/\n/g' | tr -d ' ')"
}

depends_on_owners_of_linked_libraries() {
    local file library path owner
    local -A seen=()
    while read -r file; do
        ldd "$file" >"$temp/libraries"
        while read -r library; do
            [[ -z ${seen[$library]:-} ]] || continue
            seen[$library]=yes
            # The loader stands there by its path.
            path=$(realpath "$(awk -v name="$library" '$1 == name { print $3 } $1 ~ "/" name "$" { print $1 }' "$temp/libraries")")
            owner=$(dpkg-query --search "*${path#/usr}" | sed -n '1s/:.*//p')
            depends_on "$owner" || fail "$file needs $library, but Depends lacks $owner."
        done < <(objdump -p "$file" | awk '$1 == "NEEDED" { print $2 }')
    done < <(elf_files)
    ((${#seen[@]} > 5)) || fail "Few linked libraries were found: ${!seen[*]}"
}

elf_files() {
    find "$tree/usr" -type f -exec file {} + | sed -n 's/: *ELF .*//p'
}

test_the_desktop_entry_is_valid() {
    # The hints would have "Dictionary" joined by "Office" or "TextTools", but each of these by a second menu.
    expect_silence desktop-file-validate --no-hints "$entry"
}

test_the_desktop_entry_names_what_the_package_brings() {
    local command
    read -r command _ <<<"$(value Exec)"
    [[ -x $tree/usr/bin/$command ]] || fail "There is no command $command."
    [[ $(value Exec) == *" %f" ]] || fail "A file would not be handed over: $(value Exec)"
    [[ -f $share/icons/hicolor/48x48/apps/$(value Icon).png ]] || fail "There is no icon $(value Icon)."
    [[ ";$(value MimeType)" == *";$type;"* ]] || fail "It opens $(value MimeType) only."
    grep -q "type=\"$type\"" "$share/mime/packages/zimbora.xml" || fail "$type is not defined."
}

# The project has no domain of its own, so the identity cannot be one turned round.
test_the_application_data_are_valid() {
    local said
    said=$(appstreamcli validate --no-net --pedantic --override=cid-desktopapp-is-not-rdns=info \
        "$share/metainfo/zimbora.metainfo.xml" 2>&1) || fail "$said"
    ! grep -E '^[EWP]:' <<<"$said" || fail "$said"
}

test_the_application_data_belong_to_the_desktop_entry() {
    local data=$share/metainfo/zimbora.metainfo.xml
    grep -q "<launchable type=\"desktop-id\">$(basename "$entry")</launchable>" "$data" ||
        fail "They are not of $(basename "$entry")."
    grep -q "<mediatype>$type</mediatype>" "$data" || fail "They lack $type."
    grep -q "<release version=\"$version\"" "$data" || fail "They lack the version $version."
}

test_a_word_list_is_known_by_its_name_and_opened_by_the_program() {
    # Given a desktop that knows this package and nothing else
    export XDG_DATA_DIRS=$share XDG_CONFIG_DIRS=$temp/config PATH=$tree/usr/bin:$PATH
    update-mime-database "$share/mime"
    update-desktop-database "$share/applications"
    printf 'dog:kutya\r\n' >"$temp/animals.szs"
    printf 'dog:kutya\r\n' >"$temp/animals.txt"
    # Then
    [[ $(type_of "$temp/animals.szs") == "$type" ]] || fail "A list passes for $(type_of "$temp/animals.szs")."
    [[ $(type_of "$temp/animals.txt") != "$type" ]] || fail "Any text passes for a list."
    [[ $(icon_of "$temp/animals.szs") == zimbora,* ]] || fail "Its icon is $(icon_of "$temp/animals.szs")."
    [[ $(gio mime "$type") == "Default application for "*": zimbora.desktop"* ]] || fail "$(gio mime "$type")"
}

type_of() {
    gio info --attributes=standard::content-type "$1" | sed -n 's/^ *standard::content-type: //p'
}

icon_of() {
    gio info --attributes=standard::icon "$1" | sed -n 's/^ *standard::icon: //p' | tr -d ' '
}

test_the_icon_has_every_size() {
    local size icon found
    for size in $icon_sizes; do
        icon=$share/icons/hicolor/${size}x$size/apps/zimbora.png
        [[ -f $icon ]] || fail "There is no icon of $size pixels."
        found=$(identify -format '%m %wx%h %A' "$icon")
        [[ $found == "PNG ${size}x$size "* && $found != *" Undefined" && $found != *" False" ]] ||
            fail "The icon of $size pixels is: $found"
        (($(convert "$icon" -format '%k' info:) > 8)) || fail "The icon of $size pixels is nearly empty."
    done
    found=$(find "$share/icons" -name '*.png' | wc -l)
    ((found == $(wc -w <<<"$icon_sizes"))) || fail "There are $found icons."
    [[ $(file --brief --mime-type "$share/icons/hicolor/scalable/apps/zimbora.svg") == image/svg+xml ]] ||
        fail "The scalable icon is not a drawing."
}

test_the_manual_pages_read_well() {
    local page command
    for command in zimbora zimbora-order; do
        for page in man1 hu/man1; do
            page=$share/man/$page/$command.1.gz
            [[ -f $page ]] || fail "There is no $page."
            MANROFFSEQ='' MANWIDTH=80 expect_silence formatted "$page"
            expect_whatis "$command" "$page"
            [[ $(zcat "$page") == ".TH ${command^^} 1 "*"\"Zimbora $version\""* ]] || fail "$page is of another version."
        done
        [[ $(zcat "$page") == *".SH LEÍRÁS"* ]] || fail "$page is not Hungarian."
    done
}

test_every_command_has_a_manual_page_and_runs() {
    local command
    for command in "$tree"/usr/bin/*; do
        [[ -f $share/man/man1/$(basename "$command").1.gz ]] || fail "There is no page of $command."
    done
    printf 'b\r\na\r\n' >"$temp/magyar.skt"
    "$tree/usr/bin/zimbora-order" "$temp" >"$temp/said" || fail "$(cat "$temp/said")"
    [[ $(<"$temp/magyarvg.skt") == $'A\r\nB\r' ]] || fail "Sorted: $(od -c "$temp/magyarvg.skt")"
}

formatted() {
    man --warnings --encoding=UTF-8 --local-file --troff-device=utf8 --ditroff "$1" >/dev/null
}

# expect_whatis <command> <page>: the line that the index of manual pages has of it.
expect_whatis() {
    [[ $(lexgrog "$2") == *": \"$1 - "*\" ]] || fail "The index takes nothing from $2: $(lexgrog "$2" 2>&1)"
}

# What every user reads and runs, nobody but root may change; nothing lies where users keep their own.
test_files_lie_below_usr_and_belong_to_root() {
    local odd
    odd=$(dpkg-deb --contents "$package" | awk '
        $2 != "root/root" || $6 !~ /^\.\/(usr\/.*)?$/ || $6 ~ /^\.\/usr\/local/ { print; next }
        $1 ~ /^l/ { next }
        $1 ~ /^d/ && $1 != "drwxr-xr-x" { print; next }
        $1 ~ /^-/ && $1 != "-rw-r--r--" && !($1 == "-rwxr-xr-x" && $6 ~ /^\.\/usr\/bin\//) { print }')
    [[ -z $odd ]] || fail "These should be otherwise: $odd"
}

test_nothing_of_the_making_machine_is_in_the_package() {
    local found
    found=$(grep -rlF -e "$(realpath "$(dirname "$package")/../..")" "$tree") || true
    [[ -z $found ]] || fail "The folder of the sources is named in: $found"
}

# run_package_tests <package> <version> [<test>...]: each in a process of its own; all when none is named.
run_package_tests() {
    local all failed=0 one
    package=$(realpath "$1")
    version=$2
    shift 2
    if (($# == 1)); then
        declare -F "$1" >/dev/null || fail "No such test: $1"
        unpack
        "$1"
        return
    fi
    mapfile -t all < <(declare -F | sed -n 's/^declare -f \(test_.*\)/\1/p')
    for one in "${@:-${all[@]}}"; do
        if "$0" "$package" "$version" "$one"; then
            echo "ok $one"
        else
            echo "FAILED: $one" >&2
            failed=1
        fi
    done
    return "$failed"
}

run_package_tests "$@"
