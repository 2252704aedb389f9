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
        QTest::addColumn<QString>("answer"); // only OK restarts
        QTest::newRow("OK clicked") << u"OK"_s;
        QTest::newRow("Abbruch clicked") << u"Abbruch"_s;
        QTest::newRow("Return on Abbruch, reached by Tab") << u"Tab Return"_s;
        QTest::newRow("close box") << u"close"_s;
    }

    void restartAfterTheWarning()
    {
        QFETCH(QString, answer);
        const bool restarted = answer == u"OK"_s;
        Modul1.Spieler2 = "Bert";
        Modul1.Stand_1[0] = 12;
        playGames(1);
        clock.moment = DateTime{FixedClock::Maerz2021 + 3'600'000};
        qint64 beepsAtWarning = -1;
        ANSWER_MODAL(command(Qt::Key_N), [&](QWidget *d) {
            beepsAtWarning = beeps.beeps;
            activate(d);
            end(d, answer);
        });
        QCOMPARE((QList<qint64>{beepsAtWarning, Modul1.Spiel_Nr}), (QList<qint64>{1, restarted ? 0 : 1}));
        QCOMPARE(
            sheet().section(u'\n', 0, 0) + u'|' + standings().join(u'|'),
            u"Tafelkasse (Test-Version); 12.03.2021, %1:00|Spieler 1:  %2|Bert:  0|Spieler 3:  0|Spieler 4:  0"_s.arg(
                restarted ? u"20:30"_s : u"19:30"_s, restarted ? u"0"_s : u"12"_s));
    }
};

QTEST_MAIN(AchtungTest)
#include "AchtungTest.moc"
