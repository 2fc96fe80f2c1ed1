#!/usr/bin/env bash
# Holds the documents against the program: what its help lists is explained, the example of docs/script.md prints what it
# says, and docs/extending.md, followed in a copy of the project, works. (The embedding guide is followed by the install
# test, the samples by the tests of the program.)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

fail() {
    echo "docs.sh: $*" >&2
    exit 1
}

scripts/setup.sh build package
cmake --preset dev >/dev/null
cmake --build --preset dev --parallel "$(nproc)" --target kestedit
kestedit=$PWD/build/dev/host/kestedit

# The program's options, and the events of a script as the table of the document has them.
# shellcheck disable=SC2016  # the backquotes are the table's
listed() {
    local script single
    script=$("$kestedit" script --help) && single=$("$kestedit" ini get --help) || return
    grep -oE -- '--[a-z-]+' <<<"$script$single"
    sed -n '/A script has/,$p' <<<"$script" | sed -nE 's/^  ([a-z][^ ]*( [^ ]+)*)  .*/| `\1` |/p'
}
words=$(listed) || fail "the program gives no help"
[[ $(grep -c '^|' <<<"$words") -gt 20 ]] || fail "the help lists no events"
sed 's/\\\([-|]\)/\1/g' docs/kestedit.1 docs/script.md >build/documented
while read -r word; do
    grep -qF -- "$word" build/documented || fail "neither docs/kestedit.1 nor docs/script.md has $word"
done <<<"$words"
echo "docs.sh: docs/kestedit.1 and docs/script.md have all that the help lists"

# The first two indented blocks behind the synopsis: a script, and what it prints.
example() {
    awk -v wanted="$1" '/^    / { block += !inside++; if (block == wanted) print substr($0, 5); next } { inside = 0 }' docs/script.md
}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
printed=$(example 2 | env -i HOME="$folder" "$kestedit" script new) || fail "the example of docs/script.md fails"
[[ $printed == "$(example 3)" ]] || fail "the example of docs/script.md prints"$'\n'"$printed"
echo "docs.sh: the example of docs/script.md prints what it says"

copy=$PWD/build/docs
rm -rf "$copy"
mkdir -p "$copy"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents --no-dereference -t "$copy"
if ! tests/install/run_document.sh docs/extending.md "$copy" >"$copy.log" 2>&1; then
    tail -n 30 "$copy.log" >&2
    fail "docs/extending.md does not do what it says"
fi
rm -rf "$copy"
echo "docs.sh: docs/extending.md does what it says"
