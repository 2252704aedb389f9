#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# installed.sh SOURCE_DIR VERSION RELEASE_DATE: the Debian package, built as Debian builds it from a
# scratch copy of the source, passes lintian without an error or a warning; the program has the
# distribution's hardening, no RUNPATH and its debug symbols in the -dbgsym package; version and
# day are those of the build; desktop entry and metadata are valid; the program starts unpacked.
set -euo pipefail
source=$1 version=$2 day=$3
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
id=org.tafelkasse.Tafelkasse
arch=$(dpkg --print-architecture)
fail() { echo "$*"; exit 1; }
# Debian's tools in a locale every machine has; the program later in the caller's.
program_locale=${LC_ALL:-}
export LC_ALL=C.UTF-8

# The source as it stands, changes included, without build folders (the package build writes into
# it and beside it): a checkout's files, or a copy without git (a release tarball) less CMake's builds.
mkdir "$work/tafelkasse"
if [ -e "$source/.git" ]; then
    git -C "$source" ls-files -z --cached --others --exclude-standard |
        tar -C "$source" --null --ignore-failed-read -T - -cf - 2>/dev/null | tar -C "$work/tafelkasse" -xf -
else
    (cd "$source" && find . -name CMakeCache.txt -printf '%h\n') >"$work/builds"
    tar -C "$source" --anchored --exclude-from="$work/builds" -cf - . | tar -C "$work/tafelkasse" -xf -
fi

# Its tests are left out: the same tests run in this suite.
(cd "$work/tafelkasse" && DEB_BUILD_OPTIONS="nocheck parallel=2" \
    dpkg-buildpackage -b -us -uc >"$work/build.log" 2>&1) || { tail -n 40 "$work/build.log"; fail "the package build failed"; }
deb=$work/tafelkasse_${version}_$arch.deb
[ -f "$deb" ] || fail "no tafelkasse_${version}_$arch.deb: is debian/changelog at version $version?"

lintian --fail-on error,warning "$work/tafelkasse_${version}_$arch.changes" 2>/dev/null || fail "lintian found errors or warnings"

changelog_day=$(dpkg-parsechangelog -l "$work/tafelkasse/debian/changelog" -S Date | cut -d ' ' -f 2-4)
[ "$(date -d "$changelog_day" +%F)" = "$day" ] || fail "debian/changelog is of $changelog_day, the release of $day"

dpkg-deb -x "$deb" "$work/root"
cd "$work/root/usr"
for f in share/icons/hicolor/scalable/apps/$id.svg share/man/man1/tafelkasse.1.gz share/man/de/man1/tafelkasse.1.gz; do
    [ -s "$f" ] || fail "missing in the package: $f"
done
[[ $(dpkg-deb --field "$deb" Depends) == *libqt6widgets6* ]] || fail "the package does not depend on Qt"
grep -q "<release version=\"$version\" date=\"$day\"" "share/metainfo/$id.metainfo.xml" ||
    fail "the metadata does not name release $version of $day"
appstreamcli validate --no-net "share/metainfo/$id.metainfo.xml"
desktop-file-validate "share/applications/$id.desktop"
[ "$(grep -cxE "Icon=$id|Exec=tafelkasse" "share/applications/$id.desktop")" = 2 ] || fail "the desktop entry's icon or command"

# Hardening as Debian 12 gives it. Some lines cannot read yes: Fortify shows only in checked
# copies (__memcpy_chk) where the compiler knows a buffer's size, unlike the program's copies in
# std::string (blhc reads the flag from the build log instead); stack-clash probes come only with
# frames larger than a page, which it has none of; the control-flow mark needs every object linked
# to carry it, which Debian 12's crt1.o and crti.o do not; branch protection is arm64's alone.
[[ $arch == arm64 || $(hardening-check --help) != *--nobranchprotection* ]] || branch=--nobranchprotection
hardening-check --nofortify --nocfprotection ${branch:+"$branch"} bin/tafelkasse || fail "the program lacks hardening"
blhc --arch="$arch" "$work/build.log" || fail "the build missed some of the distribution's flags"
if readelf -d bin/tafelkasse | grep -E 'RPATH|RUNPATH'; then fail "the program carries a library search path"; fi
build_id=$(readelf -n bin/tafelkasse | awk '/Build ID/ { print $3 }')
[[ $(dpkg-deb --contents "$work/tafelkasse-dbgsym_${version}_$arch.deb") == *"/usr/lib/debug/.build-id/${build_id:0:2}/${build_id:2}.debug"* ]] ||
    fail "no debug symbols for the program"

LC_ALL=$program_locale "$here/start_and_quit.sh" "$PWD/bin/tafelkasse"
