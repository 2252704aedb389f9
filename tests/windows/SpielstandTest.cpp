// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main window: which of its commands open their dialog as the evening fills, by button, menu
// item and shortcut alike; where its controls go when it grows; the sheet's size and font. The
// random evening (ZufallsabendTest) checks ledger, enabled controls and the sheet in its styles
// after every action.
#include "support/Fenster.h"

#include <QFontDatabase>

class SpielstandTest : public QObject, Fenster {
    Q_OBJECT

    // "family size" of the characters of the sheet, bold and italic ones included.
    QSet<QString> sheetFonts() const
    {
        QSet<QString> found;
        for (QTextCursor c(window->Anzeige->document()); c.movePosition(QTextCursor::NextCharacter);)
            found << u"%1 %2"_s.arg(c.charFormat().font().family()).arg(c.charFormat().font().pointSizeF());
        return found;
    }

private Q_SLOTS:
    void init() { openWindow(); }

    void commandsOpenTheirDialogAsTheEveningAllows_data()
    {
        QTest::addColumn<int>("games");
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("opened"); // the dialog, none if empty
        for (const auto &[by, results, correction] :
             {std::tuple{"button", press("Ergebnisse_Button"), press("Korrektur_Button")},
              {"menu", choose("ErgebnisseErgebnisseeingeben"), choose("ErgebnisseKorrekturletztesSpiel")},
              {"shortcut", command(Qt::Key_E), command(Qt::Key_K)}}) {
            QTest::addRow("new game at 98 games by %s", by) << 98 << results << u"Ergebnisse"_s;
            QTest::addRow("no new game at 99 games by %s", by) << 99 << results << QString();
            QTest::addRow("correction at 99 games by %s", by) << 99 << correction << u"Korrigieren"_s;
            QTest::addRow("no correction before a game by %s", by) << 0 << correction << QString();
        }
    }

    // The dialog that opens is answered with 5 for player 1 and OK: a new game, or game 99 anew.
    void commandsOpenTheirDialogAsTheEveningAllows()
    {
        QFETCH(int, games);
        QFETCH(Act, act);
        QFETCH(QString, opened);
        playGames(games);
        QString dialog;
        const bool ran = answered(
            [&dialog](QWidget *d) {
                dialog = d->objectName();
                QLineEdit *field = d->findChildren<QLineEdit *>().value(0);
                field->selectAll(), QTest::keyClicks(field, u"5"_s), QTest::keyClick(field, Qt::Key_Return);
            },
            act);
        QCOMPARE(dialog, opened);
        const int last = games + (ran && opened == u"Ergebnisse"_s);
        QCOMPARE(Modul1.Spiel_Nr, last);
        if (ran)
            QCOMPARE(Modul1.Ergebnis_1[size_t(last)], 5);
    }

    void controlsFollowTheirLocksWhenTheWindowGrows()
    {
        const auto places = [this] {
            return QList<QRect>{window->Anzeige->geometry(), button("PushButton5")->geometry(),
                                button("Neustart_Button")->geometry(), button("PushButton6")->geometry()};
        };
        const QList<QRect> before = places();
        window->resize(window->size() + QSize(100, 100));
        QTRY_COMPARE(window->centralWidget()->size(), QSize(996, 716));
        QCOMPARE(places(),
                 (QList<QRect>{before[0].adjusted(0, 0, 100, 100), before[1].translated(100, 100), before[2],
                               before[3].translated(0, 100)}));
        window->resize(300, 200); // never smaller than at first
        QTRY_COMPARE(window->centralWidget()->size(), QSize(896, 616));
    }

    void textSizeAndFontOfTheSheet()
    {
        for (int i = 0; i < 12; ++i)
            button("PushButton6")->click();
        QCOMPARE(beeps.beeps, 1); // eleven steps from 12 to 1, then the beep

        // Bold and italic lines keep the size too. The sheet looks for Courier at every refresh, the
        // window only as it is made; a restart writes the head in the window's font.
        const QString system = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
        fonts.fonts = {"Courier New"};
        playGames(1);
        QCOMPARE(sheetFonts(), QSet<QString>{system + u" 1"_s});
        window->Neustart();
        QCOMPARE(sheetFonts(), QSet<QString>{u"Courier 1"_s});
        button("PushButton2")->click();
        QCOMPARE(sheetFonts(), QSet<QString>{u"Courier 12"_s});
        window = std::make_unique<Spielstand>();
        window->Neustart();
        QCOMPARE(sheetFonts(), QSet<QString>{system + u" 12"_s});
    }
};

QTEST_MAIN(SpielstandTest)
#include "SpielstandTest.moc"
