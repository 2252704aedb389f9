// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the evening's date is written in the head of the sheet: plainly without a desktop, in
// the user's locale with one, in every locale with the full year and the seconds.
#include "Doubles.h"
#include "platform/QtServices.h"

#include <QRegularExpression>
#include <QTest>

class DatumTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dateAndTimeOfTheEvening()
    {
        const DateTime maerz{FixedClock::Maerz2021};
        QCOMPARE(maerz.ToString(), "12.03.2021, 19:30:00");
        // Half a second before 1970 is in its last second of 1969, which Berlin calls 00:59:59.
        QCOMPARE(DateTime{-500}.ToString(), "01.01.1970, 00:59:59");
        platform::QtDateFormat desktop;
        platform::install(&desktop);
        QCOMPARE(maerz.ToString(), "12.03.2021, 19:30:00");
        QLocale::setDefault(QLocale(u"en_US"_qs));
        QCOMPARE(maerz.ToString(), "3/12/2021, 7:30:00 PM");

        // Every locale that Qt knows writes the year in full and the seconds, in its own digits, and
        // leaves neither empty brackets nor a letter of a format that Qt does not read: the letters left
        // are the locale's own words, its AM/PM, its month and the quoted text of its formats.
        const DateTime moment{FixedClock::Maerz2021 + 47000};
        static const QRegularExpression emptyBrackets(u"\\p{Ps}\\s*\\p{Pe}"_qs), quoted(u"'([^']+)'"_qs),
            latin(u"[A-Za-z]"_qs);
        QStringList wrong;
        for (const QLocale &locale :
             QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
            QLocale::setDefault(locale);
            const QString text = QString::fromStdString(moment.ToString());
            QLocale digits = locale;
            digits.setNumberOptions(QLocale::OmitGroupSeparator);
            QStringList words{locale.amText(), locale.pmText(), locale.monthName(3, QLocale::ShortFormat)};
            const QString formats = locale.dateFormat(QLocale::ShortFormat) + locale.timeFormat(QLocale::LongFormat);
            for (auto it = quoted.globalMatch(formats); it.hasNext();)
                words << it.next().captured(1);
            // The longest first, so that "h" does not take a letter out of "horo".
            std::sort(words.begin(), words.end(),
                      [](const QString &a, const QString &b) { return a.size() > b.size(); });
            QString rest = text;
            for (const QString &word : std::as_const(words))
                rest.remove(word, Qt::CaseInsensitive);
            if (!text.contains(digits.toString(2021)) || !text.contains(digits.toString(47))
                || text.contains(emptyBrackets) || rest.contains(latin) || text.contains(u"  "_qs)
                || text.trimmed() != text)
                wrong << locale.name() + u": "_qs + text;
        }
        QLocale::setDefault(QLocale(u"de_DE"_qs));
        platform::install(static_cast<platform::DateFormatService *>(nullptr));
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }
};

QTEST_MAIN(DatumTest)
#include "DatumTest.moc"
