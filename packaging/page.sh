#!/usr/bin/env bash
# Makes a page for browsers of a document. Its links to other documents lead to their pages; those that leave the folder
# of the documents become plain text, since only the documents are installed.
#   page.sh CMARK-GFM DOCUMENT.md PAGE.html
set -euo pipefail
markdown=$1
document=$2
page=$3

language=en
if [[ $document == *.de.md ]]; then language=de; fi
title=$(sed -n '1s/^# //p' "$document")

{
    cat <<EOF
<!DOCTYPE html>
<html lang="$language">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<meta name="color-scheme" content="light dark">
<title>$title</title>
<style>
body { font-family: sans-serif; line-height: 1.5; max-width: 50rem; margin: 2rem auto; padding: 0 1rem; }
img { max-width: 100%; }
pre, code { font-family: monospace; }
pre { padding: 0.5rem 1rem; border: 1px solid gray; overflow-x: auto; }
table { border-collapse: collapse; }
th, td { padding: 0.25rem 0.75rem; border: 1px solid gray; text-align: left; vertical-align: top; }
</style>
</head>
<body>
EOF
    "$markdown" --extension table "$document" | sed -E \
        -e 's|<a href="\.\./[^"]*">([^<]*)</a>|\1|g' \
        -e 's|(<a href="[a-z.-]+)\.md([#"])|\1.html\2|g'
    echo "</body>"
    echo "</html>"
} >"$page"
