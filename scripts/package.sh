#!/usr/bin/env bash
# Builds the Debian packages and has lintian look at them; any error is a failure.
#   scripts/package.sh            the packages are in build/package/debs afterwards
#   scripts/package.sh --try      also installs them on a fresh Debian in a folder, uses and removes them (as root)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

packages=build/package/debs

scripts/setup.sh build package
cmake --preset package
cmake --build --preset package --parallel "$(nproc)"
rm -rf "$packages"
cpack --config build/package/CPackConfig.cmake -B "$packages"
rm -rf "$packages/_CPack_Packages"

asRoot=()
((EUID)) || asRoot=(--allow-root)
lintian "${asRoot[@]}" --fail-on error "$packages"/*.deb
echo "package.sh: lintian accepts the packages"

if [[ ${1:-} == --try ]]; then
    tests/install/package_test.sh "$packages" build/package/fresh || (($? == 77))  # 77: could not be tried here
fi
