// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop's own services where a test wants the program as it runs: the date written by the
// service that main() installs, on a German desktop; and a font configuration of the test's own, in a
// folder with its own cache, so that the machine's fonts and caches are never touched.
#pragma once

#include "platform/QtServices.h"

#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

struct GermanDates {
    platform::QtDateFormat service;
    GermanDates() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
};

// Qt reads FONTCONFIG_FILE as the application starts, so a test calls this from initMain. The DejaVu
// fonts, with `rules` (fontconfig elements) applied to them.
inline void useOwnFontConfiguration(const QString &rules)
{
    static const QTemporaryDir dir;
    QFile conf(dir.filePath(u"fonts.conf"_s));
    if (!conf.open(QIODevice::WriteOnly))
        qFatal("no font configuration of our own");
    conf.write(uR"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig><dir>/usr/share/fonts/truetype/dejavu</dir><cachedir>%1/cache</cachedir>%2</fontconfig>
)"_s.arg(dir.path(), rules)
                   .toUtf8());
    qputenv("FONTCONFIG_FILE", conf.fileName().toLocal8Bit());
}

// A font renamed as fontconfig reads it in: the file whose path contains `file` becomes `family`.
inline QString renamed(const QString &file, const QString &family)
{
    return uR"(<match target="scan"><test name="file" compare="contains"><string>%1</string></test>
<edit name="family" mode="assign_replace"><string>%2</string></edit></match>)"_s.arg(file, family);
}
