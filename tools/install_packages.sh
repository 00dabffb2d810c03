#!/usr/bin/env bash
# Installs those of the named Debian packages that are missing, through sudo when not root. With none missing it does
# nothing, so that it needs neither a network nor rights then.
set -euo pipefail

missing=()
for package in "$@"; do
    dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
        missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "Telepítés: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Ehhez rendszergazda vagy sudo kell; előbb telepítse ezeket a csomagokat." >&2; exit 1; }
    as_root=(sudo)
fi
"${as_root[@]}" apt-get update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install --yes --no-install-recommends "${missing[@]}"
