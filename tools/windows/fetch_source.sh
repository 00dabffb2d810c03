#!/usr/bin/env bash
# fetch_source.sh <package> <version> <SHA-256 of its .dsc file> <folder>: fetches that version of a source package from
# the Debian archive and unpacks it as <folder>/<package>. Every file is checked: the list of the archive against
# Debian's key, the .dsc file against the given sum, the rest against the sums in it. apt gets a configuration of its
# own, so the package sources of this system are neither needed nor changed.
set -euo pipefail
package=$1 version=$2 sum=$3
mkdir -p "$4"
folder=$(cd "$4" && pwd)

apt=$folder/apt
mkdir -p "$apt/lists/partial" "$apt/cache/archives/partial"
cat >"$apt/debian.sources" <<SOURCES
Types: deb-src
URIs: ${ZIMBORA_DEBIAN_MIRROR:-http://deb.debian.org/debian}
Suites: bookworm
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg
SOURCES
cat >"$apt/apt.conf" <<CONFIGURATION
Dir::Etc::SourceList "$apt/debian.sources";
Dir::Etc::SourceParts "-";
Dir::State::Lists "$apt/lists";
Dir::Cache "$apt/cache";
Acquire::Languages "none";
APT::Sandbox::User "$(id -un)";
CONFIGURATION
export APT_CONFIG=$apt/apt.conf

apt-get --quiet=2 update
cd "$folder"
apt-get --quiet=2 --only-source --download-only source "$package=$version" >/dev/null || {
    echo "A(z) $package csomag $version változatának forrása nem tölthető le." >&2
    exit 1
}
dsc=${package}_${version#*:}.dsc
echo "$sum  $dsc" | sha256sum --check --quiet
# The archive's signature has been checked already, the maintainer's key is not at hand.
dpkg-source --no-check --require-strong-checksums --extract "$dsc" "$package" >/dev/null
