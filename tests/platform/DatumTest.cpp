// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the evening's date is written in the head of the sheet: plainly without a desktop, in
// the user's locale with one, always with the full year and the seconds.
#include "Doubles.h"
#include "platform/QtServices.h"

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
        QLocale::setDefault(QLocale(u"de_DE"_qs));
        platform::install(static_cast<platform::DateFormatService *>(nullptr));
    }
};

QTEST_MAIN(DatumTest)
#include "DatumTest.moc"
