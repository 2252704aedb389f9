// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The restart: a beep, the warning, and on OK an evening that begins again with the same
// players. Every way out of the warning but OK leaves the evening as it was.
#include "MainWindowWorld.h"

#include <QLineEdit>

class NeustartTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<MainWindowWorld> world;

    // Two players named, carry-overs given, then two games entered.
    void eveningWithCarryOversAndGames() const
    {
        Namen_OK(Modul1, {{"Anna", "", "", "Dora"}, {"150", "", "", "-100"}});
        world->playGames(2);
    }

    // Presses "Neustart" and leaves the warning by `leave`; notes the beeps heard meanwhile.
    int restartLeavingBy(std::function<void(QWidget *)> leave)
    {
        int beepsBeforeWarning = -1;
        world->pressAnswering("Neustart_Button", [&](QWidget *dialog) {
            beepsBeforeWarning = world->beeps.beeps;
            leave(dialog);
        });
        return beepsBeforeWarning;
    }

    static void pressOK(QWidget *dialog) { QTest::mouseClick(child<QPushButton>(dialog, "OK"), Qt::LeftButton); }

private Q_SLOTS:
    void init()
    {
        world = std::make_unique<MainWindowWorld>();
        QVERIFY(QTest::qWaitForWindowExposed(world->window.get()));
    }

    void cleanup() { world.reset(); }

    void restartKeepsThePlayersAndClearsEverythingElse()
    {
        eveningWithCarryOversAndGames();
        world->clock.moment = DateTime{FixedClock::Maerz2021 + 3'600'000};

        QCOMPARE(restartLeavingBy(pressOK), 1);
        QCOMPARE(world->beeps.beeps, 1);
        QCOMPARE(Modul1.DruckKnopf, 1);
        QCOMPARE(Modul1.Spiel_Nr, 0);
        QCOMPARE(Modul1.Spieler1, "Anna");
        QCOMPARE(Modul1.Stand_1[0], 0);
        QCOMPARE(Modul1.Stand_4[0], 0);
        QCOMPARE(world->buttonStates(), (QList<bool>{true, true, false, false}));

        const QStringList lines = world->sheetLines();
        QCOMPARE(lines.size(), 11);
        QCOMPARE(lines[0], u"Tafelkasse (Test-Version); 12.03.2021, 20:30:00"_qs);
        QCOMPARE(lines.mid(7), (QStringList{u"Anna:  0"_qs, u"Spieler 2:  0"_qs, u"Spieler 3:  0"_qs, u"Dora:  0"_qs}));
        QCOMPARE(world->sheetDiffersFromLedger(), QString());

        // The next game is game 1 again and starts from balances of 0.
        world->pressAnswering("Ergebnisse_Button", [](QWidget *dialog) {
            QTest::keyClicks(child<QLineEdit>(dialog, "Ergebnis1"), u"20"_qs);
            QTest::mouseClick(child<QPushButton>(dialog, "OK"), Qt::LeftButton);
        });
        QCOMPARE(Modul1.Spiel_Nr, 1);
        QCOMPARE(Modul1.Stand_1[1], Modul1.Umsatz_1[1]);
        QCOMPARE(Modul1.Stand_4[1], Modul1.Umsatz_4[1]);
        QCOMPARE(world->window->Anzeige->toPlainText().count(u"Spiel Nr. "_qs), 1);
        QVERIFY(world->sheetLines().contains(u"Spiel Nr. 1"_qs));
        QCOMPARE(world->sheetDiffersFromLedger(), QString());
    }

    void everyOtherWayOutOfTheWarningChangesNothing_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("Abbruch") << u"Abbruch"_qs;
        QTest::newRow("Esc") << u"Esc"_qs;
        QTest::newRow("closed by the desktop") << u"close"_qs;
    }

    void everyOtherWayOutOfTheWarningChangesNothing()
    {
        QFETCH(QString, way);
        const auto leave = [way](QWidget *dialog) {
            if (way == u"Abbruch")
                QTest::mouseClick(child<QPushButton>(dialog, "Abbruch"), Qt::LeftButton);
            else if (way == u"Esc")
                QTest::keyClick(dialog, Qt::Key_Escape);
            else
                dialog->close();
        };
        eveningWithCarryOversAndGames();
        Modul1.DruckKnopf = 1; // an earlier answer must not count
        const QString sheet = world->window->Anzeige->toPlainText();
        const std::string date = Modul1.Tagesdatum->ToString();

        QCOMPARE(restartLeavingBy(leave), 1);
        QCOMPARE(world->beeps.beeps, 1);
        QCOMPARE(Modul1.DruckKnopf, 0);
        QCOMPARE(Modul1.Spiel_Nr, 2);
        QCOMPARE(Modul1.Stand_1[0], 150);
        QCOMPARE(Modul1.Tagesdatum->ToString(), date);
        QCOMPARE(world->window->Anzeige->toPlainText(), sheet);
        QCOMPARE(world->buttonStates(), (QList<bool>{false, true, true, true}));
        QCOMPARE(world->sheetDiffersFromLedger(), QString());
    }

    void warningIsAnsweredByTheKeyboard()
    {
        world->playGames(1);
        bool iconDrawn = false;
        restartLeavingBy([&](QWidget *dialog) {
            // The canvas shows the warning icon.
            QImage canvas(46, 46, QImage::Format_ARGB32_Premultiplied);
            canvas.fill(Qt::transparent);
            child<QWidget>(dialog, "Canvas1")->render(&canvas, {}, {}, QWidget::DrawChildren);
            iconDrawn = canvas.pixelColor(15, 15).alpha() > 0;
            // Return on Abbruch, where the focus may stand, still confirms.
            QTest::keyClick(child<QPushButton>(dialog, "Abbruch"), Qt::Key_Return);
        });
        QVERIFY(iconDrawn);
        QCOMPARE(Modul1.DruckKnopf, 1);
        QCOMPARE(Modul1.Spiel_Nr, 0);
        QCOMPARE(world->sheetLines().size(), 11);
        QCOMPARE(world->beeps.beeps, 1);
    }
};

QTEST_MAIN(NeustartTest)
#include "NeustartTest.moc"
