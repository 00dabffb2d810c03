# shellcheck shell=bash disable=SC2034
# Sourced by the scripts that use Wine.

# Debian's folder for it; the package with a command of its own is for 32 bits, too.
readonly wine=/usr/lib/wine/wine64
readonly wineserver=/usr/lib/wine/wineserver64

# use_prefix <folder>: every program of Windows that is started from now on sees that one, writes nothing about Wine
# itself, and neither menus nor links of the desktop are made. Wine's browser engine and its .NET are not installed. A
# program that fails ends, rather than wait in Wine's debugger.
use_prefix() {
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=;winedbg.exe="
    unset WINEARCH
}
