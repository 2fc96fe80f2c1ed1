#!/usr/bin/env bash
# Fails on an include that leads from a folder to one above it, and on a folder that no row knows.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# From the lowest floor up. The tests, tools and benchmarks stand beside the house and may include all of it.
floors=(platform form persistence i18n editor component desktop host)

place() {
    local i
    for i in "${!floors[@]}"; do
        [[ ${floors[i]} == "$1" ]] && echo "$i" && return
    done
    return 1
}

status=0
while IFS=: read -r file line include; do
    folder=${file%%/*}
    included=$(sed -E 's/.*"([a-z0-9]+)\/.*/\1/' <<<"$include")
    from=$(place "$folder")
    if ! to=$(place "$included"); then
        echo "$file:$line: includes a folder that has no floor: $include" >&2
        status=1
    elif ((to > from)); then
        echo "$file:$line: $folder/ stands below $included/ and must not include it" >&2
        status=1
    fi
done < <(git grep -nE '^#include "[a-z0-9]+/' -- "${floors[@]/%//*.h}" "${floors[@]/%//*.cpp}")
((status == 0)) && echo "includes.sh: every folder includes only those below it"
exit "$status"
