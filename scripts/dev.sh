#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# One entry point for a fresh Debian 12 machine:
#   scripts/dev.sh run   installs what is missing, builds, starts Tafelkasse
#   scripts/dev.sh test  installs what is missing, builds the normal and the
#                        sanitizer configuration and runs every test in both
set -euo pipefail

cd "$(dirname "$0")/.."
top=$(pwd)
jobs=$(nproc 2>/dev/null || echo 2)

packages_build=(cmake ninja-build g++ pkg-config qt6-base-dev qt6-translations-l10n libgl-dev)
packages_test=(xvfb xauth xdotool imagemagick poppler-utils fonts-dejavu-core python3 strace desktop-file-utils appstream dpkg-dev clang-14 libclang-rt-14-dev
    build-essential debhelper lintian devscripts blhc dbus-daemon)

source "$top/scripts/install-missing.sh"

configure_and_build() { # dir, extra cmake args...
    local dir=$1
    shift
    cmake -S "$top" -B "$top/$dir" -G Ninja "$@"
    cmake --build "$top/$dir" --parallel "$jobs"
}

case "${1:-}" in
run)
    install_missing "${packages_build[@]}"
    configure_and_build build -DCMAKE_BUILD_TYPE=RelWithDebInfo
    exec "$top/build/src/app/tafelkasse"
    ;;
test)
    install_missing "${packages_build[@]}" "${packages_test[@]}"
    configure_and_build build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTAFELKASSE_WERROR=ON
    ctest --test-dir "$top/build" --output-on-failure --parallel "$jobs"
    configure_and_build build-asan -DCMAKE_BUILD_TYPE=Debug -DTAFELKASSE_WERROR=ON -DTAFELKASSE_SANITIZE=ON
    ctest --test-dir "$top/build-asan" --output-on-failure --parallel "$jobs"
    # The fuzz targets need clang's libFuzzer; they build alone, not the whole program.
    CC=clang-14 CXX=clang++-14 cmake -S "$top" -B "$top/build-fuzz" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DTAFELKASSE_WERROR=ON -DTAFELKASSE_FUZZ=ON
    cmake --build "$top/build-fuzz" --parallel "$jobs" --target ValFuzz AbrechnungFuzz
    ctest --test-dir "$top/build-fuzz" --output-on-failure -L fuzz
    ;;
*)
    echo "usage: scripts/dev.sh run|test" >&2
    exit 2
    ;;
esac
