#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The program as a user gets it: a staged install must hold the program, a valid desktop
# entry, valid software-centre metadata and the icon; the Debian package built from it must
# carry the same files and start from where it is unpacked.
# Usage: installed.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
build=$1 source=$2
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
id=org.tafelkasse.Tafelkasse

DESTDIR=$work/stage cmake --install "$build" --prefix /usr >/dev/null
stage=$work/stage/usr
for f in bin/tafelkasse share/applications/$id.desktop share/metainfo/$id.metainfo.xml \
    share/icons/hicolor/scalable/apps/$id.svg; do
    [ -s "$stage/$f" ] || { echo "missing in the install: $f"; exit 1; }
done
desktop-file-validate "$stage/share/applications/$id.desktop"
appstreamcli validate --no-net "$stage/share/metainfo/$id.metainfo.xml"
grep -q '^Icon=org.tafelkasse.Tafelkasse$' "$stage/share/applications/$id.desktop"
grep -q '^Exec=tafelkasse$' "$stage/share/applications/$id.desktop"

(cd "$work" && cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work/deb" >/dev/null)
deb=$(ls "$work"/deb/tafelkasse_*.deb)
dpkg-deb --field "$deb" Depends | grep -q 'libqt6widgets6' || { echo "the package does not depend on Qt"; exit 1; }
contents=$(dpkg-deb --contents "$deb")
for f in usr/bin/tafelkasse usr/share/applications/$id.desktop usr/share/metainfo/$id.metainfo.xml \
    usr/share/icons/hicolor/scalable/apps/$id.svg; do
    grep -q "\./$f\$" <<<"$contents" || { echo "missing in the package: $f"; exit 1; }
done

# The packaged program, unpacked into a scratch root, starts and ends like the built one.
dpkg-deb -x "$deb" "$work/root"
"$here/start_and_quit.sh" "$work/root/usr/bin/tafelkasse" "$work/installed.png" close
