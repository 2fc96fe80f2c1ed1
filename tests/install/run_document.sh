#!/usr/bin/env bash
# Does what a document says: writes each fenced block that names a file ("```c job.c") and runs each "```sh" block, in
# order, in one folder. Fails at the first command that fails.
#   run_document.sh DOCUMENT FOLDER
set -euo pipefail
document=$(realpath "$1")
mkdir -p "$2"
cd "$2"

awk -v script=.commands.sh '
    /^```/ && inside { inside = 0; if (file != script) close(file); next }
    /^```/ { inside = 1; file = $2 != "" ? $2 : $1 == "```sh" ? script : "/dev/null"; if (file != script) printf "" > file; next }
    inside { print >> file }
' "$document"
[[ -s .commands.sh ]] || { echo "run_document.sh: $document has no commands" >&2; exit 1; }
bash -euxo pipefail .commands.sh
