#!/usr/bin/env bash
# with_screen.sh <program folder of the build> [--ordinary-user] <command> [<argument>...]: runs a command on a screen with
# a window manager of its own, in a home of its own. An ordinary user, for whom the command and its plug-ins are copied,
# runs it in place of the administrator.
set -euo pipefail
source "$(dirname "$0")/lib.sh"

dictionaries=$(realpath "$1")
shift
set_up_places
start_screen
if [[ $1 != --ordinary-user ]]; then
    "$@"
elif (($(id -u) != 0)); then
    "${@:2}"
else
    cp -r "$(dirname "$2")/plugins" "$2" "$temp"
    command=$temp/$(basename "$2")
    chown -R nobody "$temp"
    setpriv --reuid="$(id -u nobody)" --regid="$(id -g nobody)" --clear-groups "$command" "${@:3}"
fi
