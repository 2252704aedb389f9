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
    void init()
    {
        Modul1 = Abend{};
        Namen_OK(Modul1, {{}, {"150", "-50", "0", "-100"}});
    }

    // OK settles at once, so the correction of a game left as it was, settled anew, changes nothing.
    void correctionGivesTheEveningAsIfEnteredSo()
    {
        // 99 games, every winner and East in turn, scores of all kinds; the twin stops before the last.
        Abend zwilling;
        for (int i = 1; i <= HoechstesSpiel; ++i) {
            zwilling = Modul1;
            Ergebnisse_OK(Modul1, {{Str(i % 50), i % 5 ? "-3.7" : "12.9", Str(-i), "8x"}, i % 4 + 1, i / 4 % 4 + 1});
        }
        const Abend voll = Modul1;
        // Abbruch changes the flag, which OK on the form as it opens writes anew, and nothing else.
        Eingabe_Abbruch(Modul1);
        QVERIFY(!Modul1.Gute_Eingabe);
        Korrigieren_OK(Modul1, KorrekturFormular(Modul1));
        QVERIFY(Modul1 == voll);
        // A changed game, settled once more by the main window after the dialog, is the game entered so:
        // each text read as a number into its player's field, winner and East the players chosen.
        const ResultForm anders{{"1e3", "-3.7", "abc", "2"}, 2, 3};
        Korrigieren_OK(Modul1, anders);
        Rechnen(Modul1);
        Ergebnisse_OK(zwilling, anders);
        QVERIFY(Modul1 == zwilling);
        QCOMPARE(std::tie(Modul1.Ergebnis_1[99], Modul1.Ergebnis_2[99], Modul1.Ergebnis_3[99], Modul1.Ergebnis_4[99]),
                 std::make_tuple(1000, -3, 0, 2));
        QVERIFY(std::tie(Modul1.Mahjongg[99], Modul1.Osten[99]) == std::make_tuple("Spieler 2", "Spieler 3"));
        // There is no row for a 100th game.
        Ergebnisse_OK(Modul1, {});
        QVERIFY(Modul1 == zwilling);
    }

    void namesAreTakenAsTyped()
    {
        Namen_OK(Modul1, {{" Anna ", "", " Anna ", " "}, {"1e3", "-3.7", "", "5"}});
        QVERIFY(std::tie(Modul1.Spieler1, Modul1.Spieler2, Modul1.Spieler3, Modul1.Spieler4)
                == std::make_tuple(" Anna ", "Spieler 2", " Anna ", " "));
        QCOMPARE(std::tie(Modul1.Stand_1[0], Modul1.Stand_2[0], Modul1.Stand_3[0], Modul1.Stand_4[0]),
                 std::make_tuple(1000, -3, 0, 5));
        // The correction form shows a stored name on the first player who has it, any other on the fourth.
        QCOMPARE(WahlDesNamens(Modul1, " Anna "), 1);
        QCOMPARE(WahlDesNamens(Modul1, "Anna"), 4);
    }
};

QTEST_APPLESS_MAIN(EingabeTest)

#include "EingabeTest.moc"
