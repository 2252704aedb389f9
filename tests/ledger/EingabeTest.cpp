// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the dialogs do to the evening: no game beyond the last row, and the names dialog takes
// names and carry-overs as typed.

#include "ledger/Eingabe.h"
#include "platform/Text.h"

#include <QTest>

#include <tuple>

class EingabeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The correction form as it opens, confirmed after an Abbruch, gives the full evening back, flag and
    // all; there is no row for a 100th game. (That a changed game gives the evening as if entered so,
    // the random evening checks after every action.)
    void aFullEveningStaysAsItIs()
    {
        Abend abend;
        Namen_OK(abend, {});
        for (int i = 1; i <= HoechstesSpiel; ++i)
            Ergebnisse_OK(abend, {{Str(i), "1", "2", "3"}, i % 4 + 1, i / 4 % 4 + 1});
        const Abend voll = abend;
        Eingabe_Abbruch(abend);
        Korrigieren_OK(abend, KorrekturFormular(abend));
        QVERIFY(abend == voll);
        Ergebnisse_OK(abend, {});
        QVERIFY(abend == voll);
    }

    void namesAreTakenAsTyped()
    {
        Abend abend;
        Namen_OK(abend, {{" Anna ", "", " Anna ", " "}, {"1e3", "-3.7", "", "5"}});
        QVERIFY(std::tie(abend.Spieler1, abend.Spieler2, abend.Spieler3, abend.Spieler4)
                == std::make_tuple(" Anna ", "Spieler 2", " Anna ", " "));
        QCOMPARE(std::tie(abend.Stand_1[0], abend.Stand_2[0], abend.Stand_3[0], abend.Stand_4[0]),
                 std::make_tuple(1000, -3, 0, 5));
        // The correction form shows a stored name on the first player who has it, any other on the fourth.
        QCOMPARE(WahlDesNamens(abend, " Anna "), 1);
        QCOMPARE(WahlDesNamens(abend, "Anna"), 4);
    }
};

QTEST_APPLESS_MAIN(EingabeTest)

#include "EingabeTest.moc"
