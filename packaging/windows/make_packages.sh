#!/usr/bin/env bash
# make_packages.sh <build folder of the preset windows>: makes the installer and the portable archive of that build, in
# its folder "package", and prints their paths.
set -euo pipefail
here=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
build=$(realpath "$1")
# File names have accents.
export LC_ALL=C.UTF-8

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
package=$build/package
# Without the version: the program takes no list into a folder whose name has a full stop.
folder=Zimbora
installed=$package/$folder
rm -rf "$package"
mkdir "$package"
cmake --install "$build" --prefix "$installed" >/dev/null

# windows_path <path below the installation>
windows_path() {
    echo "\$INSTDIR\\${1//\//\\}"
}

# What is installed, part by part, so that nothing is removed which came from elsewhere. The initial settings and the word
# lists are the user's from then on: they are not replaced, lists that were deleted do not come back with an update, and
# only what is unchanged is removed.
readonly lists=program/szószedetek
list_instructions() {
    local path
    echo '!macro install_files'
    find "$installed" -type d -not -path "$installed/$lists" -printf '%P\n' | sort | while read -r path; do
        echo "SetOutPath \"$(windows_path "$path")\""
        if [[ $path == program/kavaro ]]; then
            echo 'SetOverwrite off'
        fi
        find "$installed/$path" -maxdepth 1 -type f | sort | sed 's/.*/File "&"/'
        echo 'SetOverwrite on'
    done
    echo '!macroend'
    echo '!macro install_word_lists'
    echo "SetOutPath \"$(windows_path "$lists")\""
    echo 'SetOverwrite off'
    find "$installed/$lists" -type f | sort | sed 's/.*/File "&"/'
    echo 'SetOverwrite on'
    echo '!macroend'
    echo '!macro remove_files'
    find "$installed/$lists" -type f -printf '%P\n' | sort | while read -r path; do
        echo "!insertmacro remove_when_unchanged \"$(windows_path "$lists/$path")\" \"$installed/$lists/$path\""
    done
    find "$installed" -type f -not -path "$installed/program/kavaro/*" -not -path "$installed/$lists/*" -printf '%P\n' | sort | while read -r path; do
        echo "Delete \"$(windows_path "$path")\""
    done
    find "$installed" -mindepth 1 -type d -printf '%P\n' | sort --reverse | while read -r path; do
        echo "RMDir \"$(windows_path "$path")\""
    done
    echo '!macroend'
}

list_instructions >"$package/files.nsh"
convert -size 164x314 xc:'#dfe7f2' "$here/../../resources/icon/zimbora-128.png" -gravity center -composite \
    BMP3:"$package/side.bmp"
makensis -V2 -WX -INPUTCHARSET UTF8 -DVERSION="$version" -DFILES="$package/files.nsh" \
    -DPLAYLIST="$installed/program/kavaro/zenebeáll.ini" -DPICTURE="$package/side.bmp" \
    -DICON="$build/src/app/zimbora.ico" -DSIZE="$(du --summarize --block-size=1K --apparent-size "$installed" | cut -f1)" \
    -DOUTPUT="$package/zimbora-$version-windows-installer.exe" "$here/zimbora.nsi"
(cd "$package" && cmake -E tar cf "zimbora-$version-windows-portable.zip" --format=zip "$folder")
ls "$package"/*.exe "$package"/*.zip
