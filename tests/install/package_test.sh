#!/usr/bin/env bash
# Installs the packages on a fresh Debian in a folder of its own, runs the program there, builds the example hosts
# from what the packages brought, does what the embedding guide says with the packages that it names, and removes
# everything again.
#   package_test.sh PACKAGE-FOLDER WORK-FOLDER
# Exits 77 where it cannot be tried: making such a folder takes root and debootstrap. DEBIAN_MIRROR names another mirror.
set -euo pipefail
source_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
packages=$1
work=$2
mirror=${DEBIAN_MIRROR:-http://deb.debian.org/debian}
release=bookworm

fail() {
    echo "package_test.sh: $*" >&2
    exit 1
}

skip() {
    echo "package_test.sh: not tried: $*" >&2
    exit 77
}

((EUID == 0)) || skip "changing the root folder takes root"
command -v debootstrap >/dev/null || skip "there is no debootstrap here"

# Only what this script has mounted is unmounted, and nothing is deleted while it is there.
root=$(realpath -m "$work")
cleanUp() {
    if mountpoint -q "$root/proc"; then umount "$root/proc"; fi
}
trap cleanUp EXIT
cleanUp
rm -rf "$root"

debootstrap --variant=minbase "$release" "$root" "$mirror" >"$root.log" 2>&1 ||
    { tail -n 5 "$root.log" >&2 && fail "debootstrap has failed"; }
mount -t proc proc "$root/proc"

inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 "$@"; }
apt() {
    inside apt-get -q -y "$@" >>"$root.log" 2>&1 || { tail -n 20 "$root.log" >&2 && fail "apt-get $* has failed"; }
}
# Every path of the fresh system that a package could leave something in.
snapshot() { (cd "$root" && find usr etc opt srv var/lib/dpkg/info \( -name __pycache__ -prune \) -o -print | sort); }

mkdir "$root/packages"
cp "$packages"/*.deb "$root/packages/"
apt update
# What the packages need comes first, so that the difference of the two snapshots is theirs alone.
for package in "$packages"/*.deb; do dpkg-deb -f "$package" Depends; done | tr ',' '\n' |
    sed 's/([^)]*)//; s/ //g' | grep -v kestedit | sort -u >"$root.needs"
mapfile -t needs <"$root.needs"
read -ra tools < <(sed -n 's/^    apt install \(cmake .*\)/\1/p' "$source_folder/docs/embedding.md")
((${#tools[@]})) || fail "docs/embedding.md names no packages for its commands"
# One of the examples has a window of its own.
apt install --no-install-recommends "${needs[@]}" "${tools[@]}" qt6-base-dev
snapshot >"$root.before"

echo "--- installing"
inside sh -c 'apt-get -q -y install --no-install-recommends /packages/*.deb' >>"$root.log" 2>&1 ||
    { tail -n 20 "$root.log" >&2 && fail "the packages cannot be installed"; }

echo "--- running the program"
inside sh -c 'mkdir -p /tmp/jobs && printf "type dxName Night\nclick cmdSave\n" |
    kestedit script --job-dir /tmp/jobs new' | grep -qx 'event SearchJobs' || fail "the program has not saved a job"
grep -q '^Name=Night' "$root/tmp/jobs/Night.job" || fail "the saved job has no name"

echo "--- building the example hosts"
for host in host-plain host-c host-qt; do
    inside sh -c "cmake -G Ninja -S /usr/share/doc/libkestedit-dev/examples/$host -B /tmp/$host &&
        cmake --build /tmp/$host" >>"$root.log" 2>&1 || { tail -n 20 "$root.log" >&2 && fail "$host does not build"; }
done
inside /tmp/host-plain/host-plain /tmp/jobs Day /in /out | grep -qx '/in -> /out' || fail "host-plain does not run"
inside python3 -B /usr/share/doc/libkestedit-dev/examples/host-python/host.py /tmp/jobs Snake \
    /usr/share/kestedit/lang/english.lng | grep -q 'the job has changed' || fail "host.py does not run"

echo "--- following the embedding guide"
mkdir "$root/tmp/guide"
cp "$source_folder/examples/host-python/kestedit.py" "$root/tmp/guide"
cp "$source_folder/tests/install/run_document.sh" "$root/tmp"
inside bash /tmp/run_document.sh /usr/share/doc/libkestedit-dev/embedding.md /tmp/guide >>"$root.log" 2>&1 ||
    { tail -n 20 "$root.log" >&2 && fail "docs/embedding.md is wrong, or names too few packages"; }

echo "--- removing"
names=()
for package in "$packages"/*.deb; do names+=("$(dpkg-deb -f "$package" Package)"); done
apt purge "${names[@]}"
snapshot >"$root.after"
diff "$root.before" "$root.after" || fail "the packages leave these paths behind"

cleanUp
rm -rf "$root"
echo "package_test.sh: all is well"
