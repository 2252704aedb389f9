#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# One entry point for a fresh Debian 12 or 13 machine:
#   scripts/dev.sh run      installs what is missing, builds the program, starts Tafelkasse
#   scripts/dev.sh test     installs what is missing, checks the format and the scripts, builds
#                           the normal, sanitizer and fuzz configurations, runs every test in
#                           them and the static analysis
#   scripts/dev.sh analyse  the format, the scripts and the static analysis alone
set -euo pipefail

cd "$(dirname "$0")/.."
top=$(pwd)
jobs=$(nproc 2>/dev/null || echo 2)

# clang, clang-tidy, clang-format and libclang-rt-dev are each release's own version (14 on
# Debian 12, 19 on Debian 13), so the same names serve both.
packages_build=(cmake ninja-build g++ pkg-config qt6-base-dev qt6-translations-l10n libgl-dev libxcb1-dev libfontconfig-dev)
packages_test=(xvfb xauth xdotool x11-utils weston qt6-wayland openbox at-spi2-core python3-pyatspi python3-xlib
    imagemagick poppler-utils fonts-dejavu-core fonts-urw-base35 python3 strace dbus-daemon
    desktop-file-utils appstream dpkg-dev clang libclang-rt-dev
    build-essential debhelper lintian devscripts blhc)
packages_analysis=(clang-tidy clazy clang-format shellcheck)

source "$top/scripts/install-missing.sh"

configure() { # build dir, cmake args...
    local dir=$1
    shift
    cmake -S "$top" -B "$top/$dir" -G Ninja "$@"
}

build() { # build dir, [--target TARGET...]
    local dir=$1
    shift
    cmake --build "$top/$dir" --parallel "$jobs" "$@"
}

# The analysis reads the normal build's compile commands.
normal=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_EXPORT_COMPILE_COMMANDS=ON)

# Static analysis of our sources with the compile commands of the normal build: clang-tidy
# with the checks in .clang-tidy, and clazy with the checks of Qt's level 1 and those of level 2
# that fit a program of this size. Any finding fails; a finding that is wrong for a line is
# silenced at that line with its reason.
clazy_checks=level1,base-class-event,copyable-polymorphic,ctor-missing-parent-argument,function-args-by-ref,function-args-by-value,global-const-char-pointer,missing-qobject-macro,missing-typeinfo,qstring-allocations,returning-void-expression,rule-of-three,static-pmf,virtual-call-ctor
analyse() {
    local sources tidy=0 clazy=0 start=$SECONDS
    mapfile -t sources < <(find "$top/src" -name '*.cpp' | sort)
    # clang-tidy counts what it hides in Qt's headers; only what it shows matters.
    printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P "$jobs" clang-tidy -p "$top/build" --quiet 2>&1 \
        | sed '/^[0-9]* warnings\? generated\.$/d' || tidy=$?
    printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P "$jobs" clazy-standalone -p "$top/build" \
        --checks="$clazy_checks" --header-filter="^$top/src/[a-z]+/[^/]+\.h$" --extra-arg=-Werror || clazy=$?
    [ "$tidy" -eq 0 ] || echo "clang-tidy has findings (above)." >&2
    [ "$clazy" -eq 0 ] || echo "clazy has findings (above)." >&2
    [ "$tidy" -eq 0 ] && [ "$clazy" -eq 0 ] || return 1
    echo "clang-tidy and clazy: no findings in ${#sources[@]} files of src/ ($((SECONDS - start)) s)"
}

# Every C++ file as .clang-format has it, and every script without a finding of shellcheck
# (.shellcheckrc lets it follow what a script sources). Any difference or finding fails.
check_style() {
    local cxx scripts
    mapfile -t cxx < <(find src tests bench \( -name '*.cpp' -o -name '*.h' \) | sort)
    mapfile -t scripts < <(find scripts tests/app bench -name '*.sh' | sort)
    scripts+=(.ci/run)
    clang-format --dry-run --Werror "${cxx[@]}"
    shellcheck "${scripts[@]}"
    echo "clang-format and shellcheck: no findings in ${#cxx[@]} C++ files and ${#scripts[@]} scripts"
}

case "${1:-}" in
run)
    install_missing "${packages_build[@]}"
    configure build "${normal[@]}"
    build build --target tafelkasse
    exec "$top/build/src/app/tafelkasse"
    ;;
test)
    install_missing "${packages_build[@]}" "${packages_test[@]}" "${packages_analysis[@]}"
    check_style
    configure build "${normal[@]}" -DTAFELKASSE_WERROR=ON
    build build
    ctest --test-dir "$top/build" --output-on-failure --parallel "$jobs"
    configure build-asan -DCMAKE_BUILD_TYPE=Debug -DTAFELKASSE_WERROR=ON -DTAFELKASSE_SANITIZE=ON
    build build-asan
    ctest --test-dir "$top/build-asan" --output-on-failure --parallel "$jobs"
    # The fuzz targets need clang's libFuzzer; they build alone, not the whole program.
    CC=clang CXX=clang++ configure build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTAFELKASSE_WERROR=ON \
        -DTAFELKASSE_FUZZ=ON
    build build-fuzz --target ValFuzz AbrechnungFuzz
    # Each fuzz target runs for a fixed time on one core: the analysis takes the other meanwhile.
    analyse >"$top/build/analysis.log" 2>&1 &
    analysis=$!
    fuzz_rc=0 analysis_rc=0
    ctest --test-dir "$top/build-fuzz" --output-on-failure -L fuzz || fuzz_rc=$?
    wait $analysis || analysis_rc=$?
    cat "$top/build/analysis.log"
    [ "$fuzz_rc" -eq 0 ] && [ "$analysis_rc" -eq 0 ]
    ;;
analyse)
    install_missing "${packages_build[@]}" "${packages_analysis[@]}"
    configure build "${normal[@]}"
    check_style
    build build --target tafelkasse # the analysis needs the files that moc writes
    analyse
    ;;
*)
    echo "usage: scripts/dev.sh run|test|analyse" >&2
    exit 2
    ;;
esac
