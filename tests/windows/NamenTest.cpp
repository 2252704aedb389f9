// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The names dialog as the players use it before the first game: typing, OK, Abbruch, Esc
// and the close box, and what the head of the sheet shows afterwards.
#include "MainWindowWorld.h"

#include <QLineEdit>

class NamenTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<MainWindowWorld> world;

    static QLineEdit *field(QWidget *dialog, const QString &name) { return child<QLineEdit>(dialog, qPrintable(name)); }

    // Types into the named fields of the open dialog; every field must open empty.
    static bool fill(QWidget *dialog, const QList<std::pair<QString, QString>> &entries)
    {
        for (int k = 1; k <= 4; ++k) {
            if (!field(dialog, u"Name_%1"_qs.arg(k))->text().isEmpty()
                || !field(dialog, u"Übertrag_%1"_qs.arg(k))->text().isEmpty())
                return false;
        }
        for (const auto &[name, text] : entries)
            QTest::keyClicks(field(dialog, name), text);
        return true;
    }

    QStringList headPlayers() const { return world->sheetLines().mid(7, 4); }

private Q_SLOTS:
    void init()
    {
        world = std::make_unique<MainWindowWorld>();
        QVERIFY(QTest::qWaitForWindowExposed(world->window.get()));
    }

    void cleanup() { world.reset(); }

    void namesTwiceBeforeTheFirstGame()
    {
        bool openedEmpty = false;
        world->pressAnswering("Namen_Button", [&](QWidget *dialog) {
            openedEmpty = fill(dialog,
                               {{u"Name_1"_qs, u"Anna"_qs},
                                {u"Name_2"_qs, u"  "_qs},
                                {u"Name_4"_qs, u" Dora "_qs},
                                {u"Übertrag_1"_qs, u"12.9"_qs},
                                {u"Übertrag_2"_qs, u"-3.7"_qs},
                                {u"Übertrag_4"_qs, u"zehn"_qs}});
            QTest::mouseClick(child<QPushButton>(dialog, "OK_Name"), Qt::LeftButton);
        });
        QVERIFY(openedEmpty);
        QCOMPARE(Modul1.Spieler1, "Anna");
        QCOMPARE(Modul1.Spieler2, "  "); // blanks are a name and stay as typed
        QCOMPARE(Modul1.Spieler3, "Spieler 3");
        QCOMPARE(Modul1.Spieler4, " Dora ");
        QCOMPARE((std::array{Modul1.Stand_1[0], Modul1.Stand_2[0], Modul1.Stand_3[0], Modul1.Stand_4[0]}),
                 (std::array<std::int64_t, 4>{12, -3, 0, 0}));
        QCOMPARE(Modul1.Spiel_Nr, 0);
        QCOMPARE(headPlayers(), (QStringList{u"Anna:  12"_qs, u"  :  -3"_qs, u"Spieler 3:  0"_qs, u" Dora :  0"_qs}));
        QCOMPARE(world->sheetDiffersFromLedger(), QString());

        // The second time the dialog opens empty again, and OK takes all eight fields anew.
        world->pressAnswering("Namen_Button", [&](QWidget *dialog) {
            openedEmpty = fill(dialog, {{u"Name_2"_qs, u"Bert"_qs}});
            QTest::keyClick(field(dialog, u"Name_2"_qs), Qt::Key_Return);
        });
        QVERIFY(openedEmpty);
        QCOMPARE(headPlayers(), (QStringList{u"Spieler 1:  0"_qs, u"Bert:  0"_qs, u"Spieler 3:  0"_qs, u"Spieler 4:  0"_qs}));

        // Abbruch, Esc and the close box keep what the last OK stored.
        const auto typeThen = [](std::function<void(QWidget *)> leave) {
            return [leave](QWidget *dialog) {
                fill(dialog, {{u"Name_1"_qs, u"Carl"_qs}, {u"Übertrag_3"_qs, u"500"_qs}});
                leave(dialog);
            };
        };
        world->pressAnswering("Namen_Button", typeThen([](QWidget *dialog) {
                                  QTest::mouseClick(child<QPushButton>(dialog, "Abbruch_Name"), Qt::LeftButton);
                              }));
        world->pressAnswering("Namen_Button", typeThen([](QWidget *dialog) {
                                  QTest::keyClick(field(dialog, u"Übertrag_3"_qs), Qt::Key_Escape);
                              }));
        world->pressAnswering("Namen_Button", typeThen([](QWidget *dialog) { dialog->close(); }));
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        QCOMPARE(Modul1.Spieler1, "Spieler 1");
        QCOMPARE(Modul1.Stand_3[0], 0);
        QCOMPARE(headPlayers(), (QStringList{u"Spieler 1:  0"_qs, u"Bert:  0"_qs, u"Spieler 3:  0"_qs, u"Spieler 4:  0"_qs}));
    }

    void tabRunsDownTheNamesOverTheButtonsAndDownTheCarryOvers()
    {
        QStringList visited;
        world->pressAnswering("Namen_Button", [&](QWidget *dialog) {
            // The dialog's own focus, which becomes the keyboard's when the dialog is active.
            for (int i = 0; i < 10; ++i) {
                visited << dialog->focusWidget()->objectName();
                QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
            }
            // Return on the last carry-over is OK, not a step to the next field.
            QTest::keyClicks(field(dialog, u"Übertrag_4"_qs), u"-25"_qs);
            QTest::keyClick(field(dialog, u"Übertrag_4"_qs), Qt::Key_Return);
        });
        QCOMPARE(visited,
                 (QStringList{u"Name_1"_qs, u"Name_2"_qs, u"Name_3"_qs, u"Name_4"_qs, u"Abbruch_Name"_qs, u"OK_Name"_qs,
                              u"Übertrag_1"_qs, u"Übertrag_2"_qs, u"Übertrag_3"_qs, u"Übertrag_4"_qs}));
        QCOMPARE(Modul1.Stand_4[0], -25);
    }

    void namesOfAnyLengthAndCarryOversBeyondSixtyFourBits()
    {
        const QString longName = QString(40000, u'ä') + u"\U0001F004"_qs;
        world->pressAnswering("Namen_Button", [&](QWidget *dialog) {
            field(dialog, u"Name_3"_qs)->setText(longName);
            QTest::keyClicks(field(dialog, u"Übertrag_1"_qs), u"123456789012345678901234567890"_qs);
            QTest::keyClicks(field(dialog, u"Übertrag_2"_qs), u"-1e300"_qs);
            QTest::mouseClick(child<QPushButton>(dialog, "OK_Name"), Qt::LeftButton);
        });
        QCOMPARE(QString::fromStdString(Modul1.Spieler3), longName);
        QCOMPARE(Modul1.Stand_1[0], std::numeric_limits<std::int64_t>::max());
        QCOMPARE(Modul1.Stand_2[0], std::numeric_limits<std::int64_t>::min());
        QCOMPARE(world->sheetDiffersFromLedger(), QString());
    }

    void namesOnlyBeforeTheFirstGame()
    {
        world->pressAnswering("Ergebnisse_Button", [](QWidget *dialog) {
            QTest::mouseClick(child<QPushButton>(dialog, "OK"), Qt::LeftButton);
        });
        QCOMPARE(Modul1.Spiel_Nr, 1);
        QVERIFY(!world->button("Namen_Button")->isEnabled());
        world->playGames(5);
        QVERIFY(!world->button("Namen_Button")->isEnabled());
    }
};

QTEST_MAIN(NamenTest)
#include "NamenTest.moc"
