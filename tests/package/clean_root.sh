# shellcheck shell=bash disable=SC2034,SC2154
# A Debian 12 of its own, as small as debootstrap makes it, that the calling test does with as it likes. After lib.sh.
#
# What was downloaded is kept in a folder of the user's cache, so that only the first test needs the archive: the base
# system as an archive file, the package lists, and the packages as files. Nothing is kept installed.

readonly mirror=${ZIMBORA_DEBIAN_MIRROR:-http://deb.debian.org/debian}
root_cache=${ZIMBORA_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/zimbora}/debian-12-$(dpkg --print-architecture)

skip() {
    echo "Skipped: $*"
    exit 77
}

# enter_own_namespaces <argument of the script>...: begins the script anew, where its mounts and processes are seen by
# nobody else and end with it, however it ends.
enter_own_namespaces() {
    [[ -z ${ZIMBORA_OWN_NAMESPACES:-} ]] || return 0
    ((EUID == 0)) || skip "needs root."
    command -v debootstrap >/dev/null || skip "needs debootstrap."
    local apart=(unshare --mount --pid --fork --kill-child --mount-proc)
    "${apart[@]}" true || skip "mounts and processes of its own are not permitted here."
    export ZIMBORA_OWN_NAMESPACES=yes
    exec "${apart[@]}" "$0" "$@"
}

# set_up_clean_root <folder>: the folder is the test's own, and emptied of what a killed run has left.
set_up_clean_root() {
    unset LANGUAGE WAYLAND_DISPLAY DISPLAY
    export LC_ALL=C.UTF-8
    mkdir -p "$root_cache"/{archives,lists} "$1"
    # Another test that needs the cache or the folder waits for this one.
    exec 9>"$root_cache/lock"
    flock 9
    temp=$(realpath "$1")
    find "$temp" -mindepth 1 -delete
    children=()
    trap tidy_up_clean_root EXIT
    trap 'exit 1' INT TERM HUP
}

tidy_up_clean_root() {
    local status=$?
    set +e
    if ((status != 0 && status != 77)); then
        show_what_was_seen
    fi
    end_children
    remove_root && find "$temp" -mindepth 1 -delete
    exit "$status"
}

# have_base_system: as $root_cache/base.tar.gz, there whole or not at all.
have_base_system() {
    [[ ! -f $root_cache/base.tar.gz ]] || return 0
    debootstrap --variant=minbase --print-debs bookworm "$temp/probe" "$mirror" >"$temp/debootstrap.log" 2>&1 ||
        skip "no base system is at hand, and $mirror cannot be reached."
    rm -rf "$temp/probe"
    debootstrap --variant=minbase bookworm "$temp/base" "$mirror" >"$temp/debootstrap.log" 2>&1 ||
        fail "No base system: $(tail -n 20 "$temp/debootstrap.log")"
    rm -f "$temp/base/var/cache/apt/archives"/*.deb
    tar --create --gzip --one-file-system --directory="$temp/base" --file="$temp/base.tar.gz" .
    mv "$temp/base.tar.gz" "$root_cache"
    rm -rf "$temp/base"
}

# make_root: unpacks a base system as "$root" and mounts what its programs need.
make_root() {
    root=$temp/root
    mkdir "$root"
    tar --extract --directory="$root" --file="$root_cache/base.tar.gz"
    mount --bind "$root" "$root"
    mount -t proc proc "$root/proc"
    mount -t tmpfs -o nosuid,nodev,mode=1777 tmpfs "$root/dev/shm"
    mount --bind "$root_cache/archives" "$root/var/cache/apt/archives"
    mount --bind "$root_cache/lists" "$root/var/lib/apt/lists"
    mkdir -p "$root/tmp/.X11-unix"
    mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
    cp /etc/resolv.conf "$root/etc/resolv.conf"
    # Nothing of a system that ends in some minutes has to reach the disk, and no service is to be started.
    echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/fast"
    printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
    chmod +x "$root/usr/sbin/policy-rc.d"
    printf '%s\n' 'Acquire::Languages "none";' 'Acquire::GzipIndexes "true";' >"$root/etc/apt/apt.conf.d/small"
    printf 'deb %s %s main\n' "$mirror" bookworm "$mirror" bookworm-updates \
        "${ZIMBORA_DEBIAN_SECURITY_MIRROR:-http://deb.debian.org/debian-security}" bookworm-security \
        >"$root/etc/apt/sources.list"
}

# Not while a folder of the system itself is mounted in it.
remove_root() {
    [[ -n ${root:-} ]] || return 0
    local place
    for place in tmp/.X11-unix var/lib/apt/lists var/cache/apt/archives dev/shm proc .; do
        ! mountpoint -q "$root/$place" || umount --lazy "$root/$place"
    done
    ! grep -qF " $root" /proc/self/mountinfo || fail "Still mounted in $root: $(grep -F " $root" /proc/self/mountinfo)"
    rm -rf --one-file-system "$root"
}

# enter_root <user> <command> [<argument>...]: in place of the calling process. The root of the other system is put
# away, as a mere change of root would not do: after that, the browser engine could not lock its pages in.
# shellcheck disable=SC2016  # what it expands is its own
readonly enter_root_script='
    cd "$1" && pivot_root . mnt && umount --lazy /mnt && cd / || exit 125
    user=$2
    shift 2
    exec setpriv --reuid="$user" --regid="$user" --init-groups "$@"'

enter_root() {
    exec unshare --mount sh -c "$enter_root_script" - "$root" "$@"
}

# in_root <command> [<argument>...]: as the administrator of the clean system.
in_root() {
    (enter_root root env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@")
}

# apt_get <argument>...: with the lists that are there; when these name what the archive has no more, with new ones.
apt_get() {
    within_log in_root apt-get --yes --no-install-recommends "$@" && return
    if within_log in_root apt-get update && within_log in_root apt-get --yes --no-install-recommends "$@"; then
        return
    fi
    fail "apt-get $*: $(tail -n 30 "$temp/apt.log")"
}

within_log() {
    "$@" >>"$temp/apt.log" 2>&1
}
