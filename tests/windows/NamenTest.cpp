// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The names dialog as the sheet's head shows it: the dialog opens empty every time, OK takes all
// eight fields anew, an empty name gives the player's default name back, and Abbruch, Esc and the
// close box leave names and carry-overs as they were.
#include "support/Fenster.h"

class NamenTest : public QObject, Fenster {
    Q_OBJECT
    const QString longName = u"Großer Drache "_s.repeated(3000); // longer than a line edit takes by default

private Q_SLOTS:
    void init() { openWindow(); }

    void eachConfirmationTakesTheFieldsAnew_data()
    {
        QTest::addColumn<QString>("second"); // how the second dialog ends: a button, Esc or the close box
        QTest::addColumn<QStringList>("head"); // each player's name and carry-over after it
        const QStringList first{u"Spieler 1:  12"_s, u"Bert:  0"_s, longName + u":  0"_s, u"Spieler 4:  -3"_s};
        QTest::newRow("OK replaces names and carry-overs")
            << u"OK_Name"_s << QStringList{u"Anna:  5"_s, u"Spieler 2:  0"_s, u"Spieler 3:  0"_s, u"Spieler 4:  0"_s};
        QTest::newRow("Abbruch keeps them") << u"Abbruch_Name"_s << first;
        QTest::newRow("Esc keeps them") << u"Esc"_s << first;
        QTest::newRow("the close box keeps them") << u"close"_s << first;
    }

    void eachConfirmationTakesTheFieldsAnew()
    {
        QFETCH(QString, second);
        QFETCH(QStringList, head);
        QStringList forms;
        ANSWER_MODAL(press("Namen_Button"), [&](QWidget *d) {
            forms << formOf(d);
            type(d, {"Name_2", "Bert", "Übertrag_1", "12", "Übertrag_4", "-3"});
            child<QLineEdit>(d, u"Name_3"_s)->insert(longName);
            click(d, u"OK_Name"_s);
        });
        ANSWER_MODAL(press("Namen_Button"), [&](QWidget *d) {
            forms << formOf(d);
            type(d, {"Name_1", "Anna", "Übertrag_1", "5"});
            end(d, second);
        });
        QCOMPARE(forms, QStringList(16, QString()));
        QCOMPARE(standings(), head);
    }
};

QTEST_MAIN(NamenTest)
#include "NamenTest.moc"
