#!/usr/bin/env bash
# Draws the window with sample jobs: every page of every view, in both languages, light, dark and in high contrast.
#   scripts/screenshots.sh [FOLDER]     into FOLDER/LANGUAGE-PALETTE/VIEW-JOB/NN-page.png  (default: build/screenshots)
#   scripts/screenshots.sh --manual     and renews the pictures of the manual in docs/pictures
# With BUILD set to a configured build folder, that one is used in place of build/release.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

manual=
if [[ ${1:-} == --manual ]]; then
    manual=yes
    shift
fi
target=$(realpath -m "${1:-$root/build/screenshots}")
build=${BUILD:-$root/build/release}

cd "$root"
scripts/setup.sh build
[[ -f $build/build.ninja ]] || cmake --preset release -B "$build" >&2
cmake --build "$build" --target kestedit screenshots >&2

jobs=$(mktemp -d)
trap 'rm -rf "$jobs"' EXIT

# A job of the sample script $2 that stands in $1, with the script lines that follow before it is saved.
makeJob() {
    local name=$1 sample=$2
    shift 2
    mkdir -p "$jobs/new" "$jobs/${name%/*}"
    {
        grep -vE '^(click|nodes|print|node|frames)' "samples/$sample.script"
        printf '%s\n' "$@" 'click cmdSave'
    } | XDG_CONFIG_HOME=$jobs/config "$build/host/kestedit" script --now 2026-03-02T09:00:00 \
        --date-format dd.MM.yyyy --language lang/english.lng --job-dir "$jobs/new" new - >/dev/null
    mv "$jobs"/new/*.job "$jobs/$name.job"
}

# Every selection page of the packing job has something to show.
selection=(
    'choose optFolderMatch 2' 'type dxFolderMatch "old*"'
    'choose optFileMatch 1'   'type dxFileName "report*"'
    'choose optSize 2'        'number dxSize 10'
    'choose optAge 2'         'number dxAge 30'
    'check chkAttrHidden(0) 1'
)
makeJob english/compress compress "${selection[@]}"
makeJob english/sync sync
makeJob english/monitor monitor
makeJob german/compress compress "${selection[@]}" \
    'type dxName "Dokumente, gepackt"' \
    'type dxComment "Das Passwort steht auch in der Jobdatei. Wer sie lesen darf, kann es lesen."' \
    'type dxSource /srv/dokumente' 'type dxDest /srv/archiv' \
    'type dxFolderMatch "alt*"' 'type dxFileName "bericht*"'
makeJob german/sync sync 'type dxName "Laptop und Server"' \
    'type dxSource /home/anna/projekte' 'type dxDest /mnt/server/projekte'
makeJob german/monitor monitor 'type dxName "Neue Scans"' \
    'type dxExecParam "--ordner /srv/scans --sprache de"'

for language in english german; do
    for palette in light dark contrast; do
        for view in 4-compress 4-sync 4-monitor 9-sync 15-compress 23-monitor; do
            QT_LOGGING_RULES="*.warning=false" XDG_RUNTIME_DIR=$jobs "$build/tools/screenshots" \
                "$jobs/$language/${view#*-}.job" "${view%-*}" "lang/$language.lng" $palette \
                "$target/$language-$palette/$view"
        done
    done
done
echo "screenshots.sh: the pictures are in $target"

[[ -n $manual ]] || exit 0

# The picture of the manual, and which of the drawn ones it is.
pictures=(
    name        light/4-compress/00-fraComment
    mode        light/4-compress/01-fraMode
    paths       light/4-compress/02-fraPath
    interval    light/4-compress/03-fraMonitoring
    time        light/4-sync/03-fraMonitoring
    monitoring  light/4-monitor/03-fraMonitoring
    program     light/4-monitor/04-fraExecute
    folders     light/4-compress/05-fraFolders
    files       light/4-compress/06-fraFiles
    extensions  light/4-compress/07-fraExtensions
    size        light/4-compress/08-fraFilesize
    date        light/4-compress/09-fraDate
    attributes  light/4-compress/10-fraAttributes
    compression light/4-compress/11-fraCompression
    existing    light/4-compress/12-fraExisting
    synchronise light/4-sync/12-fraExisting
    reduced     light/23-monitor/00-fraPath
    dark        dark/4-compress/01-fraMode
    contrast    contrast/4-compress/01-fraMode
)
for language in english german; do
    mkdir -p "docs/pictures/$language"
    for ((i = 0; i < ${#pictures[@]}; i += 2)); do
        cp "$target/$language-${pictures[i + 1]}.png" "docs/pictures/$language/${pictures[i]}.png"
    done
done
cp docs/pictures/english/compression.png docs/pictures/window.png
echo "screenshots.sh: the pictures of the manual are renewed"
