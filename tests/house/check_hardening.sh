#!/usr/bin/env bash
# check_hardening.sh <compile_commands.json> <executable or plug-in>...: has each what Debian asks of its packages?
set -euo pipefail
commands=$1
shift
failed=0
[[ -f $commands ]] || { echo "There is no $commands." >&2; exit 1; }

missing() {
    echo "$1 lacks $2." >&2
    failed=1
}

for file in "$@"; do
    headers=$(readelf --wide --file-header --program-headers --dynamic --symbols "$file")
    [[ $headers =~ Type:\ +DYN ]] || missing "$file" "addresses that are not known beforehand (PIE)"
    [[ $headers == *GNU_RELRO* ]] || missing "$file" "tables that are read only (RELRO)"
    [[ $headers == *BIND_NOW* ]] || missing "$file" "binding at the start (BIND_NOW)"
    [[ $headers == *__stack_chk_fail* ]] || missing "$file" "a guarded stack"
    ! grep -q 'GNU_STACK.*RWE' <<<"$headers" || missing "$file" "a stack that is not executed"
done

# What the compiler made of it need not be seen in the executable.
unchecked=$(grep '"command"' "$commands" | grep -v -- '-D_FORTIFY_SOURCE=[23].* -O[123s]' | grep -o '[^ /]*\.cpp"' || true)
[[ -z $unchecked ]] || missing "The build of $(wc -w <<<"$unchecked") sources" "checked functions (fortify)"
exit "$failed"
