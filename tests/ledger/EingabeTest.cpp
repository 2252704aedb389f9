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

namespace {

auto alleFelder(const Abend &a)
{
    return std::tie(a.Spieler1, a.Spieler2, a.Spieler3, a.Spieler4, a.Osten, a.Mahjongg, a.Ergebnis_1, a.Ergebnis_2,
                    a.Ergebnis_3, a.Ergebnis_4, a.Spiel_Nr, a.Umsatz_1, a.Umsatz_2, a.Umsatz_3, a.Umsatz_4, a.Stand_1,
                    a.Stand_2, a.Stand_3, a.Stand_4, a.Gute_Eingabe, a.DruckKnopf, a.Tagesdatum);
}

} // namespace

class EingabeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Modul1 = Abend{};
        Namen_OK(Modul1, {{}, {"150", "-50", "0", "-100"}});
    }

    void okWritesTheNextGameAndSettlesIt()
    {
        Ergebnisse_OK(Modul1, {}); // nothing typed, nothing clicked
        Ergebnisse_OK(Modul1, {{"12.9", "-3.7", "abc", "7e0"}, 2, 3});
        QVERIFY(std::tie(Modul1.Mahjongg[1], Modul1.Osten[1], Modul1.Mahjongg[2], Modul1.Osten[2])
                == std::make_tuple("Spieler 1", "Spieler 1", "Spieler 2", "Spieler 3"));
        QCOMPARE(std::tie(Modul1.Ergebnis_1[2], Modul1.Ergebnis_2[2], Modul1.Ergebnis_3[2], Modul1.Ergebnis_4[2]),
                 std::make_tuple(12, -3, 0, 7));
        QVERIFY(Modul1.Gute_Eingabe);
        // Settled at once: settling once more changes nothing.
        const Abend eingegeben = Modul1;
        Rechnen(Modul1);
        QVERIFY(alleFelder(Modul1) == alleFelder(eingegeben));
    }

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
        QVERIFY(alleFelder(Modul1) == alleFelder(voll));
        // A changed game, settled once more by the main window after the dialog, is the game entered so.
        const ResultForm anders{{"1000", "-1", "0", "2"}, 2, 4};
        Korrigieren_OK(Modul1, anders);
        Rechnen(Modul1);
        Ergebnisse_OK(zwilling, anders);
        QVERIFY(alleFelder(Modul1) == alleFelder(zwilling));
        // There is no row for a 100th game.
        Ergebnisse_OK(Modul1, {});
        QVERIFY(alleFelder(Modul1) == alleFelder(zwilling));
    }

    void namesAreTakenAsTyped()
    {
        Namen_OK(Modul1, {{" Anna ", "", " Anna ", " "}, {"7", "-3.7", "", "x"}});
        QVERIFY(std::tie(Modul1.Spieler1, Modul1.Spieler2, Modul1.Spieler3, Modul1.Spieler4)
                == std::make_tuple(" Anna ", "Spieler 2", " Anna ", " "));
        QCOMPARE(std::tie(Modul1.Stand_1[0], Modul1.Stand_2[0], Modul1.Stand_3[0], Modul1.Stand_4[0]),
                 std::make_tuple(7, -3, 0, 0));
        // The correction form shows a stored name on the first player who has it, any other on the fourth.
        QCOMPARE(WahlDesNamens(Modul1, " Anna "), 1);
        QCOMPARE(WahlDesNamens(Modul1, "Anna"), 4);
    }
};

QTEST_APPLESS_MAIN(EingabeTest)

#include "EingabeTest.moc"
