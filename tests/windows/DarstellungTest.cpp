// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The size and the font of the sheet: "kleiner", "Standard" and "größer", the size kept
// through games and restarts and shared by bold and italic lines, and "Courier" or the
// system font by the fonts that the machine has.
#include "MainWindowWorld.h"

#include <QFontDatabase>

class DarstellungTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<MainWindowWorld> world;

    qreal size() const { return world->window->Anzeige->font().pointSizeF(); }

    void press(const char *name, int times = 1) const
    {
        for (int i = 0; i < times; ++i)
            QTest::mouseClick(world->button(name), Qt::LeftButton);
    }

    // The point sizes that the characters of the sheet are drawn in, bold and italic included.
    QSet<qreal> sizesOnSheet() const
    {
        QSet<qreal> sizes;
        const QTextDocument &document = *world->window->Anzeige->document();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it)
                sizes.insert(it.fragment().charFormat().font().pointSizeF());
        }
        return sizes;
    }

    static QString systemFamily() { return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(); }

private Q_SLOTS:
    void init()
    {
        world = std::make_unique<MainWindowWorld>();
        QVERIFY(QTest::qWaitForWindowExposed(world->window.get()));
    }

    void cleanup() { world.reset(); }

    void smallerStopsAtOneAndStandardBringsBackTwelve()
    {
        QCOMPARE(size(), 12.0);
        QCOMPARE(world->window->Textgroesse, 12);
        for (int expected = 11; expected >= 1; --expected) {
            press("PushButton6");
            QCOMPARE(size(), qreal(expected));
        }
        QCOMPARE(world->beeps.beeps, 0);
        press("PushButton6");
        QCOMPARE(size(), 1.0);
        QCOMPARE(world->beeps.beeps, 1);
        QCOMPARE(sizesOnSheet(), QSet<qreal>{1.0});

        press("PushButton2");
        QCOMPARE(size(), 12.0);
        press("PushButton1", 100);
        QCOMPARE(size(), 112.0);
        QCOMPARE(world->beeps.beeps, 1);
    }

    void theSizeIsKeptThroughGamesAndRestartsOnEveryRun()
    {
        press("PushButton1", 3);
        // A game whose winner is not East: one bold and one italic line.
        world->pressAnswering("Ergebnisse_Button", [](QWidget *dialog) {
            QTest::mouseClick(child<QWidget>(dialog, "Osten_2"), Qt::LeftButton);
            QTest::mouseClick(child<QPushButton>(dialog, "OK"), Qt::LeftButton);
        });
        QCOMPARE(Modul1.Spiel_Nr, 1);
        QCOMPARE(size(), 15.0);
        QCOMPARE(sizesOnSheet(), QSet<qreal>{15.0});

        world->pressAnswering("Neustart_Button", [](QWidget *dialog) {
            QTest::mouseClick(child<QPushButton>(dialog, "OK"), Qt::LeftButton);
        });
        QCOMPARE(Modul1.Spiel_Nr, 0);
        QCOMPARE(size(), 15.0);
        QCOMPARE(sizesOnSheet(), QSet<qreal>{15.0});

        press("PushButton2");
        world->playGames(3);
        QCOMPARE(sizesOnSheet(), QSet<qreal>{12.0});
    }

    void theFontFollowsTheFontList_data()
    {
        QTest::addColumn<bool>("withCourier");
        QTest::newRow("Courier installed") << true;
        QTest::newRow("no Courier") << false;
    }

    void theFontFollowsTheFontList()
    {
        QFETCH(bool, withCourier);
        world.reset();
        world = std::make_unique<MainWindowWorld>(withCourier ? std::vector<std::string>{"Palatino", "Courier"}
                                                              : std::vector<std::string>{"Palatino", "Courier New"});
        const QString family = withCourier ? u"Courier"_qs : systemFamily();
        QCOMPARE(world->window->Anzeige->font().family(), family);
        world->playGames(1);
        QCOMPARE(SheetImage::families(*world->window->Anzeige->document()), QSet<QString>{family});

        // The sheet asks again at every refresh; the window's own font stays as chosen at opening.
        world->fonts.fonts = withCourier ? std::vector<std::string>{} : std::vector<std::string>{"Courier"};
        world->window->Event_Activated();
        const QString other = withCourier ? systemFamily() : u"Courier"_qs;
        QCOMPARE(SheetImage::families(*world->window->Anzeige->document()), QSet<QString>{other});
        QCOMPARE(world->window->Anzeige->font().family(), family);

        // The head of a restart stands in the window's own font.
        world->window->Neustart();
        QCOMPARE(SheetImage::families(*world->window->Anzeige->document()), QSet<QString>{family});
    }
};

QTEST_MAIN(DarstellungTest)
#include "DarstellungTest.moc"
