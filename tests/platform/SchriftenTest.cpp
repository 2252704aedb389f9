// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which fonts count as installed, asked of Qt's real font database under a font configuration
// that the test brings in a folder of its own, with its own cache: the DejaVu fonts, two of them
// renamed at scan time to "Courier" from two foundries, and fontconfig's alias that answers
// "Palatino" with DejaVu Sans.
#include "ledger/Modul1.h"
#include "platform/QtServices.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class SchriftenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void familyInAnyFoundryButNoStandIn()
    {
        const QStringList families = QFontDatabase::families();
        QVERIFY2(families.contains(u"Courier [urw]"_s) && families.contains(u"Courier [UKWN]"_s),
                 qPrintable(families.join(u", "_s)));
        platform::QtFonts fonts;
        platform::install(&fonts);
        QVERIFY(FontAvailable("Courier"));
        QVERIFY(FontAvailable("DejaVu Sans"));
        QVERIFY(!FontAvailable("Palatino"));
        QVERIFY(!FontAvailable("DejaVu"));
        platform::install(static_cast<platform::FontService *>(nullptr));
    }
};

int main(int argc, char *argv[])
{
    // Qt's font database reads the configuration when the application starts.
    const QTemporaryDir dir;
    QFile conf(dir.filePath(u"fonts.conf"_s));
    if (!conf.open(QIODevice::WriteOnly))
        return 1;
    conf.write(uR"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/dejavu</dir>
  <cachedir>%1/cache</cachedir>
  <match target="scan">
    <test name="file" compare="contains"><string>/DejaVuSansMono.ttf</string></test>
    <edit name="family" mode="assign_replace"><string>Courier</string></edit>
    <edit name="foundry" mode="assign_replace"><string>urw</string></edit>
  </match>
  <match target="scan">
    <test name="file" compare="contains"><string>/DejaVuSansMono-Bold.ttf</string></test>
    <edit name="family" mode="assign_replace"><string>Courier</string></edit>
    <edit name="foundry" mode="assign_replace"><string>UKWN</string></edit>
  </match>
  <alias><family>Palatino</family><prefer><family>DejaVu Sans</family></prefer></alias>
</fontconfig>
)"_s.arg(dir.path())
                   .toUtf8());
    conf.close();
    qputenv("FONTCONFIG_FILE", conf.fileName().toLocal8Bit());
    QApplication app(argc, argv);
    SchriftenTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SchriftenTest.moc"
