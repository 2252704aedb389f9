// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main window with its results and correction dialogs, driven as a person drives them:
// clicks, typing, Return and Esc. After every step the sheet in the window must be the
// document of the ledger as it stands, styles included.
#include "Doubles.h"
#include "Modal.h"
#include "SheetImage.h"
#include "ledger/Eingabe.h"
#include "windows/Spielstand.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>

#include <cstdint>
#include <limits>
#include <memory>

class SpielstandTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<FixedClock> clock;
    std::unique_ptr<ScopedBeepCounter> beeps;
    std::unique_ptr<ScopedMessageRecorder> messages;
    std::unique_ptr<ScopedFontList> fonts;
    std::unique_ptr<Spielstand> window;

    QPushButton *button(const char *name) { return child<QPushButton>(window.get(), name); }

    // The sheet in the window must read as the document of the ledger.
    void verifySheetIsLedger()
    {
        const Blatt blatt = Dokument(Modul1, window->Zeilen(), BlattSchrift(), Modul1.Tagesdatum->ToString());
        const SheetImage expected = SheetImage::fromPieces(blatt.Stuecke);
        const SheetImage shown = SheetImage::fromDocument(*window->Anzeige->document());
        QVERIFY2(shown == expected, qPrintable(SheetImage::firstDifference(shown, expected)));
    }

    // Fills the open results or correction dialog and presses OK.
    static void fillAndConfirm(QWidget *dialog, const char *field, const QStringList &scores, int winner, int east)
    {
        for (int k = 0; k < 4; ++k) {
            auto *edit = child<QLineEdit>(dialog, qPrintable(QLatin1String(field) + QString::number(k + 1)));
            QVERIFY(edit);
            edit->selectAll();
            QTest::keyClicks(edit, scores[k]);
        }
        QTest::mouseClick(child<QRadioButton>(dialog, qPrintable(u"Mahjongg_%1"_qs.arg(winner))), Qt::LeftButton);
        QTest::mouseClick(child<QRadioButton>(dialog, qPrintable(u"Osten_%1"_qs.arg(east))), Qt::LeftButton);
        QTest::mouseClick(child<QPushButton>(dialog, "OK"), Qt::LeftButton);
    }

    void enterGame(const QStringList &scores, int winner, int east)
    {
        whenModal([=](QWidget *dialog) { fillAndConfirm(dialog, "Ergebnis", scores, winner, east); });
        QTest::mouseClick(button("Ergebnisse_Button"), Qt::LeftButton);
    }

    // Games through the ledger alone, where the dialog itself is not under test.
    static void playGames(int count)
    {
        for (int i = 0; i < count; ++i)
            Ergebnisse_OK(Modul1, {{"10", "20", "30", "40"}, i % 4 + 1, (i + 1) % 4 + 1});
    }

    QVector<bool> buttonStates()
    {
        return {button("Namen_Button")->isEnabled(), button("Ergebnisse_Button")->isEnabled(),
                button("Korrektur_Button")->isEnabled(), button("Neustart_Button")->isEnabled()};
    }

private Q_SLOTS:
    void init()
    {
        Modul1 = Abend{};
        clock = std::make_unique<FixedClock>();
        beeps = std::make_unique<ScopedBeepCounter>();
        messages = std::make_unique<ScopedMessageRecorder>();
        fonts = std::make_unique<ScopedFontList>(std::vector<std::string>{"Helvetica", "Courier"});
        window = std::make_unique<Spielstand>();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    void cleanup()
    {
        window.reset();
        fonts.reset();
        messages.reset();
        beeps.reset();
        clock.reset();
    }

    void startShowsTheEmptyEvening()
    {
        QCOMPARE(window->windowTitle(), u"Tafelkasse Version x vom 16.11.2019"_qs);
        QCOMPARE(Modul1.Spieler3, "Spieler 3");
        QCOMPARE(buttonStates(), (QVector<bool>{true, true, false, false}));
        QCOMPARE(window->Anzeige->toPlainText().count(u'\n') + 1, 11);
        QVERIFY(window->Anzeige->toPlainText().startsWith(u"Tafelkasse (Test-Version); 12.03.2021, 19:30:00\n"_qs));
        verifySheetIsLedger();
    }

    void anEveningOfEntriesCancelsAndCorrections()
    {
        enterGame({u"100"_qs, u"20"_qs, u"30"_qs, u"40"_qs}, 1, 2);
        QCOMPARE(Modul1.Spiel_Nr, 1);
        QCOMPARE(Modul1.Umsatz_1[1], 400);
        QCOMPARE(Modul1.Umsatz_2[1], -260);
        QCOMPARE(buttonStates(), (QVector<bool>{false, true, true, true}));
        verifySheetIsLedger();

        // Abbruch: no game, and the next entry takes the same row.
        const QString before = window->Anzeige->toPlainText();
        whenModal([](QWidget *dialog) { QTest::mouseClick(child<QPushButton>(dialog, "Cancel"), Qt::LeftButton); });
        QTest::mouseClick(button("Ergebnisse_Button"), Qt::LeftButton);
        QCOMPARE(Modul1.Spiel_Nr, 1);
        QVERIFY(!Modul1.Gute_Eingabe);
        QCOMPARE(window->Anzeige->toPlainText(), before);

        enterGame({u"10"_qs, u"8"_qs, u"50"_qs, u"4"_qs}, 3, 3);
        QCOMPARE(Modul1.Spiel_Nr, 2);
        QCOMPARE(Modul1.Stand_3[2], Modul1.Stand_3[1] + 300);
        verifySheetIsLedger();

        // The correction opens on the last game and rewrites only its row.
        QStringList shownScores;
        bool winnerShown = false, eastShown = false;
        whenModal([&](QWidget *dialog) {
            for (int k = 1; k <= 4; ++k)
                shownScores << child<QLineEdit>(dialog, qPrintable(u"Korrektur%1"_qs.arg(k)))->text();
            winnerShown = child<QRadioButton>(dialog, "Mahjongg_3")->isChecked();
            eastShown = child<QRadioButton>(dialog, "Osten_3")->isChecked();
            fillAndConfirm(dialog, "Korrektur", {u"10"_qs, u"8"_qs, u"50"_qs, u"40"_qs}, 4, 1);
        });
        const std::int64_t firstGameBalance = Modul1.Stand_1[1];
        QTest::mouseClick(button("Korrektur_Button"), Qt::LeftButton);
        QCOMPARE(shownScores, (QStringList{u"10"_qs, u"8"_qs, u"50"_qs, u"4"_qs}));
        QVERIFY(winnerShown && eastShown);
        QCOMPARE(Modul1.Spiel_Nr, 2);
        QCOMPARE(Modul1.Stand_1[1], firstGameBalance);
        QCOMPARE(Modul1.Umsatz_1[2], -156);
        QCOMPARE(Modul1.Umsatz_4[2], 160);
        QCOMPARE(Modul1.Stand_4[2], Modul1.Stand_4[1] + 160);
        QCOMPARE(messages->messages.size(), 0u);
        verifySheetIsLedger();

        // Abbruch in the correction leaves the row as it is.
        whenModal([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        QTest::mouseClick(button("Korrektur_Button"), Qt::LeftButton);
        QCOMPARE(Modul1.Umsatz_4[2], 160);
        verifySheetIsLedger();
    }

    void dialogsOpenAsTheyShould()
    {
        Modul1.Spieler2 = "Bert";
        Ergebnisse_OK(Modul1, {{"-7", "0", "3", "1"}, 3, 4});
        window->Event_Activated();

        // The entry always opens empty on player 1, whatever the game before was.
        QStringList texts;
        bool firstChecked = false;
        QString secondLabel;
        whenModal([&](QWidget *dialog) {
            for (int k = 1; k <= 4; ++k)
                texts << child<QLineEdit>(dialog, qPrintable(u"Ergebnis%1"_qs.arg(k)))->text();
            firstChecked = child<QRadioButton>(dialog, "Mahjongg_1")->isChecked()
                && child<QRadioButton>(dialog, "Osten_1")->isChecked();
            secondLabel = child<QLabel>(dialog, "Spieler_2")->text();
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QTest::mouseClick(button("Ergebnisse_Button"), Qt::LeftButton);
        QCOMPARE(texts, (QStringList{QString(), QString(), QString(), QString()}));
        QVERIFY(firstChecked);
        QCOMPARE(secondLabel, u"Bert:"_qs);

        // The correction shows a negative score with its sign and a zero as "0".
        QString negative, zero;
        whenModal([&](QWidget *dialog) {
            negative = child<QLineEdit>(dialog, "Korrektur1")->text();
            zero = child<QLineEdit>(dialog, "Korrektur2")->text();
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QTest::mouseClick(button("Korrektur_Button"), Qt::LeftButton);
        QCOMPARE(negative, u"-7"_qs);
        QCOMPARE(zero, u"0"_qs);
    }

    void returnConfirmsAndEscapeCancels()
    {
        // Return in a score field presses OK; nothing typed elsewhere gives 0.
        whenModal([](QWidget *dialog) {
            auto *field = child<QLineEdit>(dialog, "Ergebnis2");
            QTest::keyClicks(field, u"12.9"_qs);
            QTest::keyClick(field, Qt::Key_Return);
        });
        QTest::mouseClick(button("Ergebnisse_Button"), Qt::LeftButton);
        QCOMPARE(Modul1.Spiel_Nr, 1);
        QVERIFY(Modul1.Gute_Eingabe);
        QCOMPARE(Modul1.Ergebnis_2[1], 12);
        QCOMPARE(Modul1.Mahjongg[1], Modul1.Spieler1);
        QCOMPARE(Modul1.Osten[1], Modul1.Spieler1);

        whenModal([](QWidget *dialog) {
            QTest::keyClicks(child<QLineEdit>(dialog, "Ergebnis1"), u"55"_qs);
            QTest::keyClick(child<QLineEdit>(dialog, "Ergebnis1"), Qt::Key_Escape);
        });
        QTest::mouseClick(button("Ergebnisse_Button"), Qt::LeftButton);
        QCOMPARE(Modul1.Spiel_Nr, 1);
        QVERIFY(!Modul1.Gute_Eingabe);
        verifySheetIsLedger();
    }

    void aScoreOfAnyLengthIsTakenWhole()
    {
        // Pasted text far beyond a line edit's usual limit of 32767 characters: the number
        // at its end is read, and a number beyond 64 bits stops at the largest one.
        const QString blanks(40000, u' ');
        whenModal([&](QWidget *dialog) {
            child<QLineEdit>(dialog, "Ergebnis1")->insert(blanks + u"7"_qs);
            child<QLineEdit>(dialog, "Ergebnis2")->insert(u"9"_qs.repeated(40000));
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        QTest::mouseClick(button("Ergebnisse_Button"), Qt::LeftButton);
        QCOMPARE(Modul1.Spiel_Nr, 1);
        QCOMPARE(Modul1.Ergebnis_1[1], 7);
        QCOMPARE(Modul1.Ergebnis_2[1], std::numeric_limits<std::int64_t>::max());
        verifySheetIsLedger();
    }

    void buttonsFollowTheNumberOfGames_data()
    {
        QTest::addColumn<int>("games");
        QTest::addColumn<QVector<bool>>("states");
        QTest::newRow("no game") << 0 << QVector<bool>{true, true, false, false};
        QTest::newRow("one game") << 1 << QVector<bool>{false, true, true, true};
        QTest::newRow("98 games, one row left") << 98 << QVector<bool>{false, true, true, true};
        QTest::newRow("99 games, ledger full") << 99 << QVector<bool>{false, false, true, true};
    }

    void buttonsFollowTheNumberOfGames()
    {
        QFETCH(int, games);
        QFETCH(QVector<bool>, states);
        playGames(games);
        window->Event_Activated();
        QCOMPARE(buttonStates(), states);
        QCOMPARE(window->Anzeige->toPlainText().count(u'\n') + 1, 11 + 9 * games);
        verifySheetIsLedger();
    }

    void lastOfNinetyNineGamesCanBeCorrected()
    {
        playGames(99);
        window->Event_Activated();
        whenModal([](QWidget *dialog) {
            fillAndConfirm(dialog, "Korrektur", {u"1"_qs, u"2"_qs, u"3"_qs, u"4"_qs}, 2, 2);
        });
        QTest::mouseClick(button("Korrektur_Button"), Qt::LeftButton);
        QCOMPARE(Modul1.Spiel_Nr, 99);
        QCOMPARE(Modul1.Ergebnis_4[99], 4);
        QCOMPARE(Modul1.Umsatz_2[99], 12);
        QCOMPARE(Modul1.Stand_2[99], Modul1.Stand_2[98] + 12);
        QCOMPARE(buttonStates(), (QVector<bool>{false, false, true, true}));
        verifySheetIsLedger();
    }

    void equalNamesAndRefreshesKeepTheSheetExact()
    {
        Modul1.Spieler1 = "Ann";
        Modul1.Spieler3 = "Ann";
        playGames(3);
        Modul1.Mahjongg[3] = "nobody";
        window->Event_Activated();
        window->Event_Activated();
        verifySheetIsLedger();
        // The sheet is in the font of the sheet, everywhere.
        QCOMPARE(SheetImage::families(*window->Anzeige->document()), QSet<QString>{u"Courier"_qs});
    }

    void theSheetCanBeSelectedAndCopiedButNeverEdited()
    {
        const QString before = window->Anzeige->toPlainText();
        window->Anzeige->setFocus();
        QTest::keyClicks(window->Anzeige, u"xyz"_qs);
        QTest::keyClick(window->Anzeige, Qt::Key_Backspace);
        QCOMPARE(window->Anzeige->toPlainText(), before);
        QTest::keyClick(window->Anzeige, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(window->Anzeige->textCursor().selectedText().size(), before.size());
    }

    void controlsFollowTheirLocksWhenTheWindowGrows()
    {
        QWidget *content = window->centralWidget();
        QCOMPARE(content->size(), QSize(896, 616));
        const QRect sheet = window->Anzeige->geometry();
        const QRect quit = button("PushButton5")->geometry();
        const QRect restart = button("Neustart_Button")->geometry();
        const QRect smaller = button("PushButton6")->geometry();
        QCOMPARE(sheet, QRect(-1, 72, 898, 484));

        window->resize(window->size() + QSize(100, 100));
        QTRY_COMPARE(content->size(), QSize(996, 716));
        QCOMPARE(window->Anzeige->geometry(), sheet.adjusted(0, 0, 100, 100));
        QCOMPARE(button("PushButton5")->geometry(), quit.translated(100, 100));
        QCOMPARE(button("Neustart_Button")->geometry(), restart);
        QCOMPARE(button("PushButton6")->geometry(), smaller.translated(0, 100));

        // Never smaller than the first size.
        window->resize(300, 200);
        QTRY_COMPARE(content->size(), QSize(896, 616));
    }
};

QTEST_MAIN(SpielstandTest)
#include "SpielstandTest.moc"
