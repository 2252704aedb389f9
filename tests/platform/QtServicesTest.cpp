// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop's side of the platform. Which fonts count as installed, asked of Qt's real font
// database under a font configuration that the test brings in a folder of its own, with its own
// cache: the DejaVu fonts, the monospaced ones renamed at scan time to "Courier" with the bold one
// from another foundry, and fontconfig's alias that answers "Palatino" with DejaVu Sans. How the
// evening's date is written: plainly without a desktop, in the user's locale with one, in every
// locale with the full year and the seconds.
#include "ledger/Modul1.h"
#include "support/Desktop.h"
#include "support/Doubles.h"

#include <QFontDatabase>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class QtServicesTest : public QObject {
    Q_OBJECT

public:
    static void initMain()
    {
        useOwnFontConfiguration(renamed(u"/DejaVuSansMono"_s, u"Courier"_s) + uR"(<match target="scan">
  <test name="file" compare="contains"><string>/DejaVuSansMono-Bold.ttf</string></test>
  <edit name="foundry" mode="assign_replace"><string>urw</string></edit>
</match>
<alias><family>Palatino</family><prefer><family>DejaVu Sans</family></prefer></alias>)"_s);
    }

private Q_SLOTS:
    void familyInAnyFoundryButNoStandIn()
    {
        const QStringList families = QFontDatabase::families();
        QVERIFY2(families.contains(u"Courier [urw]"_s) && families.contains(u"Courier [PfEd]"_s),
                 qPrintable(families.join(u", "_s)));
        platform::QtFonts fonts;
        const QList<bool> found{FontAvailable("Courier"), FontAvailable("DejaVu Sans"), FontAvailable("Palatino"),
                                FontAvailable("DejaVu")};
        QCOMPARE(found, (QList<bool>{true, true, false, false}));
    }

    // Without a desktop the date is written as German does, which the head of the sheet shows.
    void dateAndTimeOfTheEvening()
    {
        // Half a second before 1970 is in its last second of 1969, which Berlin calls 00:59:59.
        QCOMPARE(QString::fromStdString(DateTime{-500}.ToString()), u"01.01.1970, 00:59:59"_s);
        platform::QtDateFormat desktop;
        QLocale::setDefault(QLocale(u"en_US"_s));
        // Newer locale data sets "PM" off by a narrow no-break space, which a reader sees as a blank.
        QCOMPARE(QString::fromStdString(DateTime{FixedClock::Maerz2021}.ToString()).replace(QChar(0x202F), u' '),
                 u"3/12/2021, 7:30:00 PM"_s);

        // Every locale that Qt knows writes the year in full and the seconds, in its own digits, and
        // leaves neither empty brackets nor a letter of a format that Qt does not read: the letters left
        // are the locale's own words, its AM/PM, its month and the quoted text of its formats.
        const DateTime moment{FixedClock::Maerz2021 + 47000};
        static const QRegularExpression emptyBrackets(u"\\p{Ps}[\\s\\p{Z}]*\\p{Pe}"_s), quoted(u"'([^']+)'"_s),
            latin(u"[A-Za-z]"_s), twoBlanks(u"[\\s\\p{Z}]{2}"_s);
        QStringList wrong;
        for (const QLocale &locale :
             QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
            QLocale::setDefault(locale);
            const QString text = QString::fromStdString(moment.ToString());
            const QString year = locale.toString(2021).remove(locale.groupSeparator());
            QStringList words{locale.amText(), locale.pmText(), locale.monthName(3, QLocale::ShortFormat)};
            for (const QRegularExpressionMatch &m :
                 quoted.globalMatch(locale.dateFormat(QLocale::ShortFormat) + locale.timeFormat(QLocale::LongFormat)))
                words << m.captured(1);
            // The longest first, so that "h" does not take a letter out of "horo".
            std::ranges::sort(words, std::ranges::greater(), &QString::size);
            QString rest = text;
            for (const QString &word : std::as_const(words))
                rest.remove(word, Qt::CaseInsensitive);
            if (!text.contains(year) || !text.contains(locale.toString(47)) || text.contains(emptyBrackets)
                || rest.contains(latin) || text.contains(twoBlanks) || text.trimmed() != text)
                wrong << locale.name() + u": "_s + text;
        }
        QLocale::setDefault(QLocale(u"de_DE"_s));
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }
};

QTEST_MAIN(QtServicesTest)
#include "QtServicesTest.moc"
