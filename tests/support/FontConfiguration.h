// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A font configuration of the test's own, with its own cache, in place of the machine's, which stays
// untouched: the given fontconfig elements. Qt's font database reads it when the application starts,
// so a test calls this from its initMain().
#pragma once

#include <QFile>
#include <QTemporaryDir>

inline void useFontConfiguration(const QString &elements)
{
    static const QTemporaryDir dir;
    QFile conf(dir.filePath(QStringLiteral("fonts.conf")));
    if (!conf.open(QIODevice::WriteOnly))
        qFatal("no font configuration of our own");
    conf.write(QStringLiteral("<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"urn:fontconfig:fonts.dtd\">\n"
                              "<fontconfig><cachedir>%1/cache</cachedir>%2</fontconfig>\n")
                   .arg(dir.path(), elements)
                   .toUtf8());
    conf.close();
    qputenv("FONTCONFIG_FILE", conf.fileName().toLocal8Bit());
}
