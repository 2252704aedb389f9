// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The about window: what it says and in which font, that it stands beside the main window
// without blocking it, that a press hides it and "Über…" brings the same one back, and
// that after its close box "Über…" makes a new one.
#include "MainWindowWorld.h"
#include "windows/UeberTafelkasse.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPointer>

class UeberTafelkasseTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<MainWindowWorld> world;

    UeberTafelkasse *openAbout() const
    {
        QTest::mouseClick(world->button("Ueber_Button"), Qt::LeftButton);
        return world->window->findChild<UeberTafelkasse *>();
    }

private Q_SLOTS:
    void init()
    {
        world = std::make_unique<MainWindowWorld>();
        QVERIFY(QTest::qWaitForWindowExposed(world->window.get()));
    }

    void cleanup() { world.reset(); }

    void tellsWhatTheProgramIs_data()
    {
        QTest::addColumn<bool>("withPalatino");
        QTest::newRow("Palatino installed") << true;
        QTest::newRow("no Palatino") << false;
    }

    void tellsWhatTheProgramIs()
    {
        QFETCH(bool, withPalatino);
        world->fonts.fonts = withPalatino ? std::vector<std::string>{"Courier", "Palatino"}
                                          : std::vector<std::string>{"Courier", "Palatino Linotype"};
        UeberTafelkasse *about = openAbout();
        QVERIFY(about);
        QVERIFY(QTest::qWaitForWindowExposed(about));
        QVERIFY(about->isWindow());
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        QCOMPARE(about->windowTitle(), u"Tafelkasse"_qs);
        QCOMPARE(about->minimumSize(), QSize(429, 201));
        QCOMPARE(about->maximumSize(), QSize(429, 201));
        QCOMPARE(about->grab().toImage().pixelColor(2, 2), QColor(0xEE, 0xEE, 0xEE));

        const QString family = withPalatino ? u"Palatino"_qs
                                            : QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
        const struct {
            const char *name;
            QString text;
            int size;
        } labels[] = {
            {"StaticText1", u"Tafelkasse"_qs, 36},
            {"StaticText2",
             u"Programm für den \"stäbchenlosen Zahlungsverkehr\"\n"
             u"bzw. zur Berechnung der Gewinne, Verluste und Kontostände \n"
             u"für vier Mah Jongg-SpielerInnen in bis zu 100 Spielen."_qs,
             12},
            {"StaticText3", {}, 12},
        };
        for (const auto &l : labels) {
            const QLabel *label = child<QLabel>(about, l.name);
            QVERIFY2(label, l.name);
            if (!l.text.isEmpty())
                QCOMPARE(label->text(), l.text);
            QVERIFY(label->alignment().testFlag(Qt::AlignHCenter));
            QCOMPARE(label->font().family(), family);
            QCOMPARE(label->font().pixelSize(), l.size);
            // Each line is read whole: none is wider than its label, and the three lines of
            // StaticText2 stand within its height.
            const QFontMetrics metrics(label->font());
            const QStringList lines = label->text().split(u'\n');
            for (const QString &line : lines)
                QVERIFY2(metrics.horizontalAdvance(line) <= label->width(), qPrintable(line));
            if (lines.size() > 1)
                QVERIFY(metrics.height() + (lines.size() - 1) * metrics.lineSpacing() <= label->height());
        }

        // The main window takes clicks beside it.
        QTest::mouseClick(world->button("PushButton1"), Qt::LeftButton);
        QCOMPARE(world->window->Anzeige->font().pointSizeF(), 13.0);
        QVERIFY(about->isVisible());
    }

    void aPressHidesItAndTheCloseBoxEndsIt()
    {
        QPointer<UeberTafelkasse> first = openAbout();
        QVERIFY(first);
        QVERIFY(QTest::qWaitForWindowExposed(first.data()));

        // A press on a label counts as a press on the window.
        QTest::mousePress(child<QLabel>(first.data(), "StaticText2"), Qt::LeftButton);
        QVERIFY(first);
        QVERIFY(first->isHidden());
        QCOMPARE(openAbout(), first.data());
        QVERIFY(first->isVisible());

        // A second "Über…" while it is open brings up the same window, not another.
        openAbout();
        QCOMPARE(world->window->findChildren<UeberTafelkasse *>().size(), 1);

        // After the close box the next window is a new one, which looks at the fonts anew.
        world->fonts.fonts = {"Palatino"};
        first->close();
        QTRY_VERIFY(!first);
        UeberTafelkasse *second = openAbout();
        QVERIFY(second);
        QVERIFY(second->isVisible());
        QCOMPARE(child<QLabel>(second, "StaticText1")->font().family(), u"Palatino"_qs);
        QCOMPARE(world->window->findChildren<UeberTafelkasse *>().size(), 1);
    }
};

QTEST_MAIN(UeberTafelkasseTest)
#include "UeberTafelkasseTest.moc"
