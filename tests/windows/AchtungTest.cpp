// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The warning before a restart: the beep comes before it; OK, in any way, clears the games and the
// carry-overs, keeps the names and dates the sheet anew; every other way out keeps the evening.
// Return and Esc as the warning opens are the random evening's.
#include "support/Fenster.h"

class AchtungTest : public QObject, Fenster {
    Q_OBJECT

private Q_SLOTS:
    void init() { openWindow(); }

    void restartAfterTheWarning_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("restarted");
        QTest::newRow("OK clicked") << u"OK"_s << true;
        QTest::newRow("Abbruch clicked") << u"Abbruch"_s << false;
        QTest::newRow("Return on Abbruch, reached by Tab") << u"Tab Return"_s << false;
        QTest::newRow("close box") << u"close"_s << false;
    }

    void restartAfterTheWarning()
    {
        QFETCH(QString, answer);
        QFETCH(bool, restarted);
        Modul1.Spieler2 = "Bert";
        Modul1.Stand_1[0] = 12;
        playGames(1);
        clock.moment = DateTime{FixedClock::Maerz2021 + 3'600'000};
        int beepsAtWarning = -1;
        ANSWER_MODAL(command(Qt::Key_N), [&](QWidget *d) {
            beepsAtWarning = beeps.beeps;
            activate(d);
            end(d, answer);
        });
        QCOMPARE(beepsAtWarning, 1);
        QCOMPARE(Modul1.Spiel_Nr, restarted ? 0 : 1);
        QCOMPARE(sheet().section(u'\n', 0, 0),
                 restarted ? u"Tafelkasse (Test-Version); 12.03.2021, 20:30:00"_s
                           : u"Tafelkasse (Test-Version); 12.03.2021, 19:30:00"_s);
        QCOMPARE(standings(),
                 (QStringList{restarted ? u"Spieler 1:  0"_s : u"Spieler 1:  12"_s, u"Bert:  0"_s, u"Spieler 3:  0"_s,
                              u"Spieler 4:  0"_s}));
    }
};

QTEST_MAIN(AchtungTest)
#include "AchtungTest.moc"
