// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The about window: its texts in Palatino where that font is installed, else in the desktop's
// font; a press hides it and "Über…" shows the same window again, after its close box a new one;
// the main window's shortcuts serve while it is in front.
#include "support/Fenster.h"
#include "windows/UeberTafelkasse.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPointer>

#include <optional>

class UeberTafelkasseTest : public QObject, Fenster {
    Q_OBJECT

public:
    // A font configuration in which DejaVu Serif is installed under the name "Palatino".
    static void initMain() { useOwnFontConfiguration(renamed(u"/DejaVuSerif"_s, u"Palatino"_s)); }

private Q_SLOTS:
    void init() { openWindow(); }

    void textsInPalatinoWhereItIsInstalled_data()
    {
        QTest::addColumn<bool>("installed");
        QTest::newRow("Palatino among the desktop's fonts") << true;
        QTest::newRow("only a Palatino Linotype") << false;
    }

    void textsInPalatinoWhereItIsInstalled()
    {
        QFETCH(bool, installed);
        fonts.fonts = {"Courier", "Palatino Linotype"};
        {
            std::optional<platform::QtFonts> desktopFonts;
            if (installed)
                desktopFonts.emplace();
            button("Ueber_Button")->click();
        }
        auto *about = window->findChild<UeberTafelkasse *>();
        QStringList shown{about->windowTitle()};
        for (const QLabel *label : about->findChildren<QLabel *>())
            shown << label->text() << u"%1 %2"_s.arg(label->font().family()).arg(label->font().pixelSize());
        const QString font = installed ? u"Palatino"_s : QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
        QCOMPARE(shown,
                 (QStringList{u"Tafelkasse"_s, u"Tafelkasse"_s, font + u" 36"_s,
                              u"Programm für den \"stäbchenlosen Zahlungsverkehr\"\n"
                              u"bzw. zur Berechnung der Gewinne, Verluste und Kontostände \n"
                              u"für vier Mah Jongg-SpielerInnen in bis zu 100 Spielen."_s,
                              font + u" 12"_s, shown[5], font + u" 12"_s}));
        // The credit is ours: this build's version and the licence, on one line of its box.
        const QLabel *credit = child<QLabel>(about, u"StaticText3"_s);
        QVERIFY(credit->text().contains(u" " TAFELKASSE_VERSION u" "_s) && credit->text().contains(u"GPL 3"_s));
        QCOMPARE_LE(QFontMetrics(credit->font()).horizontalAdvance(credit->text()), credit->contentsRect().width());
    }

    void aPressHidesItAndTheCloseBoxEndsIt()
    {
        button("Ueber_Button")->click();
        QPointer<UeberTafelkasse> about = window->findChild<UeberTafelkasse *>();
        QTest::mousePress(child<QLabel>(about, u"StaticText2"_s), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // a window that closed would go now
        QVERIFY(about && about->isHidden());
        command(Qt::Key_I)();
        QVERIFY(about->isVisible());

        // With the about window in front, Ctrl+E still opens the results.
        QVERIFY(QTest::qWaitForWindowActive(about));
        QString opened;
        ANSWER_MODAL([&] { QTest::keyClick(about, Qt::Key_E, Qt::ControlModifier); },
                     [&opened](QWidget *d) { opened = d->objectName(), QTest::keyClick(d, Qt::Key_Escape); });
        QCOMPARE(opened, u"Ergebnisse"_s);

        about->close();
        QTRY_VERIFY(!about);
        button("Ueber_Button")->click();
        QVERIFY(window->findChild<UeberTafelkasse *>()->isVisible());
    }
};

QTEST_MAIN(UeberTafelkasseTest)
#include "UeberTafelkasseTest.moc"
