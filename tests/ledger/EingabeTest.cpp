// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the dialogs do to the evening: OK writes the next game and settles it, a correction
// leaves the evening as if the game had been entered so, Abbruch changes only the flag, and the
// names dialog takes names and carry-overs as typed.

#include "ledger/Eingabe.h"
#include "ledger/Rechnen.h"
#include "platform/Text.h"

#include <QTest>

#include <tuple>

class EingabeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // OK settles at once, so the correction of a game left as it was, settled anew, changes nothing.
    void correctionGivesTheEveningAsIfEnteredSo()
    {
        // 99 games, every winner and East in turn, scores of all kinds; the twin stops before the last.
        Abend abend, zwilling;
        Namen_OK(abend, {{}, {"150", "-50", "0", "-100"}});
        for (int i = 1; i <= HoechstesSpiel; ++i) {
            zwilling = abend;
            Ergebnisse_OK(abend, {{Str(i % 50), i % 5 ? "-3.7" : "12.9", Str(-i), "8x"}, i % 4 + 1, i / 4 % 4 + 1});
        }
        const Abend voll = abend;
        // Abbruch changes the flag, which OK on the form as it opens writes anew, and nothing else.
        Eingabe_Abbruch(abend);
        QVERIFY(!abend.Gute_Eingabe);
        Korrigieren_OK(abend, KorrekturFormular(abend));
        QVERIFY(abend == voll);
        // A changed game, settled once more by the main window after the dialog, is the game entered so:
        // each text read as a number into its player's field, winner and East the players chosen.
        const ResultForm anders{{"1e3", "-3.7", "abc", "2"}, 2, 3};
        Korrigieren_OK(abend, anders);
        Rechnen(abend);
        Ergebnisse_OK(zwilling, anders);
        QVERIFY(abend == zwilling);
        QCOMPARE(std::tie(abend.Ergebnis_1[99], abend.Ergebnis_2[99], abend.Ergebnis_3[99], abend.Ergebnis_4[99]),
                 std::make_tuple(1000, -3, 0, 2));
        QVERIFY(std::tie(abend.Mahjongg[99], abend.Osten[99]) == std::make_tuple("Spieler 2", "Spieler 3"));
        // There is no row for a 100th game.
        Ergebnisse_OK(abend, {});
        QVERIFY(abend == zwilling);
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
