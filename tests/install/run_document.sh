#!/usr/bin/env bash
# Does what a document says, in one folder and in the order of the document: writes each fenced block that names a file
# ("```c job.c"), applies each "```diff" block, runs each "```sh" block. Fails at the first step that fails.
#   run_document.sh DOCUMENT FOLDER
set -euo pipefail
document=$(realpath "$1")
mkdir -p "$2"
cd "$2"

awk '
    /^```/ && inside { if (ends) print ends; inside = 0; next }
    /^```/ {
        inside = 1
        ends = "END_OF_BLOCK"
        if ($2 != "") print "cat >" $2 " <<\"END_OF_BLOCK\""
        else if ($1 == "```diff") print "patch -p1 <<\"END_OF_BLOCK\""
        else if ($1 == "```sh") ends = ""
        else inside = ends = ""
        next
    }
    inside
' "$document" >.commands.sh
[[ -s .commands.sh ]] || { echo "run_document.sh: $document has no commands" >&2; exit 1; }
bash -euxo pipefail .commands.sh
