// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The results and the correction dialog, the form they share: what each opens on, how OK, Return,
// Abbruch and Esc end it, the edit items in its fields, and the keyboard alone: Tab walks the form
// as it reads and enters a group of choices at its checked button, Space picks, Return presses the
// focused button or, from anywhere else, OK.
#include "support/Fenster.h"

#include <QLabel>

class ErgebnisFormularTest : public QObject, Fenster {
    Q_OBJECT

private Q_SLOTS:
    void init() { openWindow(); }

    void eachFormOpensOnWhatItChanges()
    {
        // Return in a field is OK. A pasted score is read whole, beyond a line edit's usual 32767 characters.
        ANSWER_MODAL(press("Ergebnisse_Button"), [](QWidget *d) {
            click(d, u"Mahjongg_3"_s);
            click(d, u"Osten_4"_s);
            child<QLineEdit>(d, u"Ergebnis1"_s)->insert(QString(40000, u' ') + u"-7"_s);
            type(d, {"Ergebnis2", "12"});
            QTest::keyClick(child<QLineEdit>(d, u"Ergebnis2"_s), Qt::Key_Return);
        });
        QCOMPARE(Modul1.Spiel_Nr, 1);

        // The entry opens empty on player 1 whatever the last game was. The edit items work in its
        // fields (the field after each is recorded), and Abbruch adds no game.
        QStringList form;
        Modul1.Spieler2 = "Bert";
        ANSWER_MODAL(press("Ergebnisse_Button"), [&](QWidget *d) {
            form = formOf(d) << child<QLabel>(d, u"Spieler_2"_s)->text();
            activate(d);
            QLineEdit *field = child<QLineEdit>(d, u"Ergebnis1"_s);
            QTest::keyClicks(field, u"123"_s);
            field->selectAll();
            for (const char *name : {"EditCut", "EditUndo", "EditClear", "EditPaste", "EditPaste"})
                item(name)->trigger(), form << field->text();
            click(d, u"Cancel"_s);
        });
        QCOMPARE(form, (QStringList{"", "", "", "", "Mahjongg_1", "Osten_1", "Bert:", "", "123", "", "123", "123123"}));

        // The correction opens on the last game; Esc keeps it.
        ANSWER_MODAL(press("Korrektur_Button"), [&](QWidget *d) {
            form = formOf(d);
            type(d, {"Korrektur1", "999"});
            QTest::keyClick(d, Qt::Key_Escape);
        });
        QCOMPARE(form, (QStringList{"-7", "12", "0", "0", "Mahjongg_3", "Osten_4"}));
        QCOMPARE((QList<qint64>{Modul1.Spiel_Nr, Modul1.Ergebnis_1[1]}), (QList<qint64>{1, -7}));
    }

    void theKeyboardAloneFillsAndLeavesTheForm()
    {
        QStringList paths;
        ANSWER_MODAL(command(Qt::Key_E), [&](QWidget *d) { // a game won by player 3 with player 4 as East
            activate(d);
            for (const char *score : {"10", "20", "30", "40"})
                QTest::keyClicks(d->focusWidget(), QLatin1String(score)), keys(d, u"Tab"_s);
            paths << keys(d, u"Tab Tab Tab Tab Space Tab Tab Tab Tab Tab Space Tab Backtab Backtab"_s);
            end(d, u"Return"_s);
        });
        ANSWER_MODAL(command(Qt::Key_K), [&](QWidget *d) { // the correction, typed over and left by Return on Abbruch
            activate(d);
            QTest::keyClicks(d->focusWidget(), u"999"_s);
            paths << keys(d, u"Tab Tab Tab Tab Tab Tab Backtab Backtab Backtab"_s);
            end(d, u"Return"_s);
        });
        QCOMPARE(
            paths,
            (QStringList{u"Cancel Mahjongg_1 Mahjongg_2 Mahjongg_3 Mahjongg_3 Mahjongg_4 Osten_1 Osten_2 Osten_3 "
                         u"Osten_4 Osten_4 Ergebnis1 Osten_4 Osten_3"_s,
                         u"Korrektur2 Korrektur3 Korrektur4 OK Cancel Mahjongg_3 Mahjongg_2 Mahjongg_1 Cancel"_s}));
        QCOMPARE(Modul1.Mahjongg[1] + '/' + Modul1.Osten[1], "Spieler 3/Spieler 4");
        QCOMPARE((QList<qint64>{Modul1.Spiel_Nr, Modul1.Ergebnis_1[1], Modul1.Ergebnis_4[1]}),
                 (QList<qint64>{1, 10, 40}));
    }
};

QTEST_MAIN(ErgebnisFormularTest)
#include "ErgebnisFormularTest.moc"
