#!/usr/bin/env bash
# Installs the Debian packages that a job needs and this machine lacks; does nothing when all are there.
#   scripts/setup.sh [build|bench|lint|fuzz|package]...     (default: build)
set -euo pipefail

build=(
    cmake
    ninja-build
    g++
    ccache
    libcli11-dev
    libgtest-dev
    libpcre2-dev
    qt6-base-dev
    qt6-svg-dev
    pkg-config
    python3
    cmark-gfm
)
bench=(
    libbenchmark-dev
    libglib2.0-dev
    libsimpleini-dev
    libinih-dev
    libboost-dev
)
fuzz=(
    clang
    libclang-rt-14-dev
)
lint=(
    git
    clang-format
    clang-tidy
)
package=(
    dpkg-dev
    patch
    file
    lintian
    desktop-file-utils
    debootstrap
)

fail() {
    echo "setup.sh: $*" >&2
    exit 1
}

missing=()
for group in "${@:-build}"; do
    [[ $group =~ ^(build|bench|lint|fuzz|package)$ ]] || fail "unknown group '$group': build, bench, lint, fuzz or package"
    declare -n packages=$group
    for name in "${packages[@]}"; do
        # A package that was removed but not purged is still known, with another status.
        status=$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null) || status=unknown
        [[ $status == installed ]] || missing+=("$name")
    done
done
((${#missing[@]})) || exit 0

command -v apt-get >/dev/null || fail "no apt-get here to install ${missing[*]}"
asRoot=(env DEBIAN_FRONTEND=noninteractive)
if ((EUID)); then
    command -v sudo >/dev/null || fail "installing ${missing[*]} takes root or sudo"
    asRoot=(sudo "${asRoot[@]}")
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT

# apt-get fills a screen: only its first error, if any, is worth one.
runApt() {
    "${asRoot[@]}" apt-get -q -y "$@" >"$log" 2>&1 </dev/null ||
        fail "cannot install ${missing[*]}: $(grep -m 1 '^E: ' "$log" || tail -n 1 "$log")"
}

echo "setup.sh: installing ${missing[*]}" >&2
runApt update
runApt install --no-install-recommends "${missing[@]}"
