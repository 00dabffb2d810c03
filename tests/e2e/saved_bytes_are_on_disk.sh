#!/usr/bin/env bash
# What is saved is on the disk: a copy of the disk that is made at once, as if the power had failed, has the list. The disk
# is a loop device, so this needs root; skipped with code 77 otherwise.
#
#   saved_bytes_are_on_disk.sh <folder of the executables>
set -euo pipefail

skip() {
    echo "Skipped: $*"
    exit 77
}

bin=$(realpath "$1")
((EUID == 0)) || skip "a loop device needs root."
command -v mkfs.ext4 >/dev/null || skip "there is no mkfs.ext4."
folder=$(mktemp -d)
mounted=()
tidy_up() {
    for place in "${mounted[@]}"; do
        umount "$place"
    done
    rm -rf "$folder"
}
trap tidy_up EXIT

fail() {
    echo "$*" >&2
    exit 1
}

mount_disk() {
    mkdir "$2"
    # Nothing comes to the disk by itself while the test runs.
    mount -o loop,commit=300 "$1" "$2" || return 1
    mounted+=("$2")
}

# take_snapshot <name>: copies the disk as it is now, and mounts the copy.
take_snapshot() {
    cp --sparse=always "$folder/disk" "$folder/$1.disk"
    mount_disk "$folder/$1.disk" "$folder/$1"
}

truncate -s 64M "$folder/disk"
mkfs.ext4 -q "$folder/disk"
mount_disk "$folder/disk" "$folder/mounted" || skip "no loop device can be mounted here."
list=$folder/mounted/lista.szs
sync -f "$folder/mounted"

"$bin/saving_loop" "$list" 1 >/dev/null
take_snapshot first
cmp -s "$list" "$folder/first/lista.szs" || fail "A new list is not on the disk after it was saved."

"$bin/saving_loop" "$list" 1 >/dev/null
echo "unsynced" >"$folder/mounted/control2"
take_snapshot second
cmp -s "$list" "$folder/second/lista.szs" || fail "A replaced list is not on the disk after it was saved."
[[ ! -e $folder/second/control2 ]] || fail "Even what nobody synced is on the disk: this proves nothing."
echo "A new and a replaced list were on the disk as soon as they were saved; a file that nobody synced was not."
