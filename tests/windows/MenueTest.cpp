// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The menu bar: its items as written, opened by F10 and by Alt with a title's letter; the items of
// "Bearbeiten" copy the sheet but never edit it; "Drucken" asks the
// print dialog each time, and the other file items do nothing.
#include "support/Fenster.h"
#include "support/PrintDoubles.h"

#include <QClipboard>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <span>

class MenueTest : public QObject, Fenster {
    Q_OBJECT

private Q_SLOTS:
    void init() { openWindow(); }

    // The items as written, trailing blanks and all.
    void itemsAsWrittenOpenedByTheKeyboard()
    {
        QStringList entries;
        for (const QAction *menu : window->menuBar()->actions()) {
            entries << QString(menu->text()).remove(u'&') + u':';
            for (const QAction *a : menu->menu()->actions())
                entries << (a->isSeparator() ? u"-"_s : a->text() + u'|' + a->shortcut().toString());
        }
        QCOMPARE(entries.join(u' '),
                 u"Ablage: Neu|Ctrl+N Spielstand sichern|Ctrl+S Papierformat| Drucken|Ctrl+P Beenden|Ctrl+Q "
                 u"Bearbeiten: Undo|Ctrl+Z - Ausschneiden|Ctrl+X Kopieren|Ctrl+C Einfügen|Ctrl+V Löschen| "
                 u"Ergebnisse: Namen der Spieler  | Ergebnisse eingeben |Ctrl+E Korrektur letztes Spiel|Ctrl+K "
                 u"Tafelkasse |Ctrl+I :"_s);

        QStringList menus;
        activate(window.get());
        for (const auto &[k, m] : {std::pair{Qt::Key_F10, Qt::NoModifier}, {Qt::Key_B, Qt::AltModifier}}) {
            QTest::keyClick(QApplication::focusWidget(), k, m);
            const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            menus << (menu ? menu->title() : QString());
            for (int i = 0; i < 2 && QApplication::activePopupWidget(); ++i)
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        }
        QCOMPARE(menus, (QStringList{u"&Ablage"_s, u"&Bearbeiten"_s}));
    }

    void theSheetIsCopiedButNeverEdited()
    {
        // Pixels of the sheet in the colour of a selection: there are some only while the sheet has the focus.
        const auto selectionShown = [this] {
            const QImage image = window->Anzeige->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
            const std::span pixels(reinterpret_cast<const QRgb *>(image.constBits()), size_t(image.sizeInBytes() / 4));
            return std::ranges::count(pixels,
                                      window->Anzeige->palette().color(QPalette::Active, QPalette::Highlight).rgb())
                > 0;
        };
        playGames(1);
        const QString text = sheet();
        QTest::keyClicks(window->Anzeige, u"xyz"_s);
        command(Qt::Key_A)();
        QVERIFY(selectionShown());
        QApplication::clipboard()->setText(u"vorher"_s);
        command(Qt::Key_C)(); // typed into the sheet, it must reach it past the menu's shortcut
        QCOMPARE(QApplication::clipboard()->text(), text);
        for (const char *name : {"EditCut", "EditPaste", "EditClear", "EditUndo"})
            item(name)->trigger();
        QCOMPARE(sheet(), text);
        QApplication::clipboard()->clear(); // "Kopieren" takes the sheet's selection wherever the focus stands
        button("Ueber_Button")->setFocus();
        QVERIFY(!selectionShown());
        item("EditCopy")->trigger();
        QCOMPARE(QApplication::clipboard()->text(), text);
    }

    void printingAsksFirstAndTheOtherFileItemsDoNothing()
    {
        QCoreApplication::setApplicationName(u"Tafelkasse"_s);
        QCoreApplication::setApplicationVersion(u"9.8"_s);
        const QStringList files = QDir::current().entryList(QDir::AllEntries | QDir::Hidden);
        ScopedPrintDialog printing(false, u"abbruch.pdf"_s);
        command(Qt::Key_P)();
        QVERIFY(!answered([](QWidget *d) { d->close(); },
                          [this] { command(Qt::Key_S)(), item("AblagePapierformat")->trigger(); }));
        QCOMPARE(QDir::current().entryList(QDir::AllEntries | QDir::Hidden), files); // nothing printed or saved

        QTemporaryDir dir;
        playGames(1);
        printing.answer = true, printing.file = dir.filePath(u"druck.pdf"_s);
        item("AblageDrucken")->trigger();
        QVERIFY(pdfPages(printing.file).value(0).contains(u"Spiel Nr. 1"_s));
        const QString info = popplerOutput(u"pdfinfo"_s, {printing.file});
        const QRegularExpression metadata(u"Title: +Tafelkasse 2021-03-12\\n(.*\\n)*Creator: +Tafelkasse 9\\.8\\n"_s);
        QVERIFY2(metadata.match(info).hasMatch(), qPrintable(info));
        QCOMPARE((QList<int>{beeps.beeps, printing.opened}), (QList<int>{0, 2})); // one dialog for each Drucken
    }
};

QTEST_MAIN(MenueTest)
#include "MenueTest.moc"
