// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The menu bar, used with the keyboard as a person uses it: the shortcuts reach the same
// code as the buttons and keep to the state of the evening, the edit commands work on the
// focused text and never harm the sheet, and printing goes through the print dialog.
#include "MainWindowWorld.h"
#include "PrintDoubles.h"
#include "windows/Menue.h"

#include <QClipboard>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTemporaryDir>

class MenueTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<MainWindowWorld> world;

    Menue *menue() const { return qobject_cast<Menue *>(world->window->menuBar()); }
    QAction *item(const char *name) const { return child<QAction>(world->window.get(), name); }

    // Ctrl (Command on macOS) with a key, typed into the focused control of the main window.
    // A desktop makes the main window active again when a dialog closes; the offscreen
    // platform does not, so the test does.
    void command(Qt::Key key) const
    {
        world->window->activateWindow();
        if (!QTest::qWaitForWindowActive(world->window.get()))
            QFAIL("the main window does not become active");
        QWidget *target = QApplication::focusWidget() ? QApplication::focusWidget() : world->window.get();
        QTest::keyClick(target, key, Qt::ControlModifier);
    }

    // Runs `act` and says whether it opened a modal dialog; a dialog that opens is closed.
    static bool opensDialog(const std::function<void()> &act)
    {
        bool opened = false;
        QTimer::singleShot(0, qApp, [&opened] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                opened = true;
                dialog->close();
            }
        });
        act();
        QTest::qWait(20);
        return opened;
    }

    static void fillAndConfirm(QWidget *dialog, const char *field, const QStringList &scores, int winner, int east)
    {
        for (int k = 0; k < 4; ++k) {
            auto *edit = child<QLineEdit>(dialog, qPrintable(QLatin1String(field) + QString::number(k + 1)));
            edit->selectAll();
            QTest::keyClicks(edit, scores[k]);
        }
        QTest::mouseClick(child<QRadioButton>(dialog, qPrintable(u"Mahjongg_%1"_qs.arg(winner))), Qt::LeftButton);
        QTest::mouseClick(child<QRadioButton>(dialog, qPrintable(u"Osten_%1"_qs.arg(east))), Qt::LeftButton);
        QTest::mouseClick(child<QPushButton>(dialog, "OK"), Qt::LeftButton);
    }

    // Namen der Spieler, Ergebnisse eingeben, Korrektur, Neu and Tafelkasse enabled, in this order.
    QList<bool> itemStates() const
    {
        return {item("ErgebnisseNamenderSpieler")->isEnabled(), item("ErgebnisseErgebnisseeingeben")->isEnabled(),
                item("ErgebnisseKorrekturletztesSpiel")->isEnabled(), item("AblageNeu")->isEnabled(),
                item("AppleTafelkasse")->isEnabled()};
    }

private Q_SLOTS:
    void init()
    {
        world = std::make_unique<MainWindowWorld>();
        world->window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(world->window.get()));
        world->window->Anzeige->setFocus();
    }

    void cleanup() { world.reset(); }

    void menusShowTheirItemsAsWritten()
    {
        QVERIFY(menue());
        QStringList titles;
        for (const QAction *menu : menue()->actions())
            titles << menu->menu()->objectName() + u' ' + menu->text();
        QCOMPARE(titles, (QStringList{u"UntitledMenu3 Ablage"_qs, u"UntitledMenu1 Bearbeiten"_qs,
                                      u"UntitledMenu0 Ergebnisse"_qs, u"UntitledMenu5 "_qs}));

        const auto items = [this](const char *menu) {
            QStringList entries;
            for (const QAction *a : child<QMenu>(world->window.get(), menu)->actions())
                entries << u"%1 \"%2\" %3"_qs.arg(a->objectName(), a->isSeparator() ? u"-"_qs : a->text(),
                                                 a->shortcut().toString());
            return entries;
        };
        QCOMPARE(items("UntitledMenu3"),
                 (QStringList{u"AblageNeu \"Neu\" Ctrl+N"_qs, u"AblageSpielstandsichern \"Spielstand sichern\" Ctrl+S"_qs,
                              u"AblagePapierformat \"Papierformat\" "_qs, u"AblageDrucken \"Drucken\" Ctrl+P"_qs,
                              u"FileQuit \"Beenden\" Ctrl+Q"_qs}));
        QCOMPARE(items("UntitledMenu1"),
                 (QStringList{u"EditUndo \"Undo\" Ctrl+Z"_qs, u"UntitledMenu2 \"-\" "_qs,
                              u"EditCut \"Ausschneiden\" Ctrl+X"_qs, u"EditCopy \"Kopieren\" Ctrl+C"_qs,
                              u"EditPaste \"Einfügen\" Ctrl+V"_qs, u"EditClear \"Löschen\" "_qs}));
        QCOMPARE(items("UntitledMenu0"),
                 (QStringList{u"ErgebnisseNamenderSpieler \"Namen der Spieler  \" "_qs,
                              u"ErgebnisseErgebnisseeingeben \"Ergebnisse eingeben \" Ctrl+E"_qs,
                              u"ErgebnisseKorrekturletztesSpiel \"Korrektur letztes Spiel\" Ctrl+K"_qs,
                              u"AppleTafelkasse \"Tafelkasse \" Ctrl+I"_qs}));
        QCOMPARE(items("UntitledMenu5"), QStringList());
        // On macOS these two move to the application menu; Qt guesses for no other item.
        QCOMPARE(item("FileQuit")->menuRole(), QAction::QuitRole);
        QCOMPARE(item("AppleTafelkasse")->menuRole(), QAction::AboutRole);
        QCOMPARE(item("AblageNeu")->menuRole(), QAction::NoRole);

        // The bar stands above the content, which keeps its size of 896 by 616.
        world->window->resize(1, 1);
        QTRY_COMPARE(world->window->centralWidget()->size(), QSize(896, 616));
        QCOMPARE(world->window->centralWidget()->y(), menue()->geometry().bottom() + 1);
        QCOMPARE(world->window->height(), menue()->height() + 616);
    }

    void itemsFollowTheNumberOfGames_data()
    {
        QTest::addColumn<int>("games");
        QTest::addColumn<QList<bool>>("states");
        QTest::newRow("no game") << 0 << QList<bool>{true, true, false, false, true};
        QTest::newRow("one game") << 1 << QList<bool>{false, true, true, true, true};
        QTest::newRow("98 games, one row left") << 98 << QList<bool>{false, true, true, true, true};
        QTest::newRow("99 games, ledger full") << 99 << QList<bool>{false, false, true, true, true};
    }

    void itemsFollowTheNumberOfGames()
    {
        QFETCH(int, games);
        QFETCH(QList<bool>, states);
        world->playGames(games);
        QCOMPARE(itemStates(), states);

        // Opening a menu sets the items anew, however the number of games came about.
        Modul1.Spiel_Nr = games == 0 ? 99 : 0;
        QMenu *ergebnisse = child<QMenu>(world->window.get(), "UntitledMenu0");
        ergebnisse->popup(world->window->mapToGlobal(QPoint(0, 0)));
        QCOMPARE(itemStates()[1], games == 0 ? false : true);
        ergebnisse->hide();
        Modul1.Spiel_Nr = games;
    }

    void shortcutsReachTheButtonsCodeAndKeepToTheState()
    {
        // Before the first game there is nothing to correct and nothing to restart.
        QVERIFY(!opensDialog([this] { command(Qt::Key_K); }));
        QVERIFY(!opensDialog([this] { command(Qt::Key_N); }));
        QCOMPARE(world->beeps.beeps, 0);

        whenModal([](QWidget *dialog) { fillAndConfirm(dialog, "Ergebnis", {"100", "20", "30", "40"}, 1, 2); });
        command(Qt::Key_E);
        QCOMPARE(Modul1.Spiel_Nr, 1);
        QCOMPARE(Modul1.Umsatz_1[1], 400);
        QCOMPARE(world->sheetDiffersFromLedger(), QString());
        QCOMPARE(world->buttonStates(), (QList<bool>{false, true, true, true}));

        // A full ledger takes no 100th game, but its last game can be corrected.
        world->playGames(98);
        QVERIFY(!opensDialog([this] { command(Qt::Key_E); }));
        QCOMPARE(Modul1.Spiel_Nr, 99);
        whenModal([](QWidget *dialog) { fillAndConfirm(dialog, "Korrektur", {"1", "2", "3", "4"}, 2, 2); });
        command(Qt::Key_K);
        QCOMPARE(Modul1.Spiel_Nr, 99);
        QCOMPARE(Modul1.Ergebnis_4[99], 4);
        QCOMPARE(Modul1.Umsatz_2[99], 12);
        QCOMPARE(world->sheetDiffersFromLedger(), QString());

        // The restart beeps first, then asks; Abbruch keeps the evening, OK clears it.
        QString warning;
        int beepsBeforeWarning = -1;
        whenModal([&](QWidget *dialog) {
            warning = QString::fromLatin1(dialog->metaObject()->className());
            beepsBeforeWarning = world->beeps.beeps;
            QTest::mouseClick(child<QPushButton>(dialog, "Abbruch"), Qt::LeftButton);
        });
        command(Qt::Key_N);
        QCOMPARE(warning, u"Achtung"_qs);
        QCOMPARE(beepsBeforeWarning, 1);
        QCOMPARE(Modul1.Spiel_Nr, 99);
        whenModal([](QWidget *dialog) { QTest::mouseClick(child<QPushButton>(dialog, "OK"), Qt::LeftButton); });
        command(Qt::Key_N);
        QCOMPARE(world->beeps.beeps, 2);
        QCOMPARE(Modul1.Spiel_Nr, 0);
        QCOMPARE(itemStates(), (QList<bool>{true, true, false, false, true}));

        // "Namen der Spieler  " opens the names dialog; Ctrl+I shows the about window.
        QString names;
        whenModal([&](QWidget *dialog) {
            names = QString::fromLatin1(dialog->metaObject()->className());
            dialog->close();
        });
        item("ErgebnisseNamenderSpieler")->trigger();
        QCOMPARE(names, u"Namen"_qs);
        command(Qt::Key_I);
        QTRY_VERIFY(QApplication::activeWindow() && QApplication::activeWindow()->inherits("UeberTafelkasse"));
    }

    void copyingTheSheetWorksAndEditingItDoesNot()
    {
        QTextEdit *sheet = world->window->Anzeige;
        QTextCursor cursor = sheet->textCursor();
        cursor.setPosition(0);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        sheet->setTextCursor(cursor);
        const QString title = cursor.selectedText();
        QVERIFY(title.startsWith(u"Tafelkasse"_qs));

        // Typed into the sheet itself, Ctrl+C reaches it past the menu's shortcut.
        QApplication::clipboard()->setText(u"vorher"_qs);
        sheet->setFocus();
        command(Qt::Key_C);
        QCOMPARE(QApplication::focusWidget(), sheet);
        QCOMPARE(QApplication::clipboard()->text(), title);

        const QString before = sheet->toPlainText();
        for (Qt::Key key : {Qt::Key_X, Qt::Key_V, Qt::Key_Z})
            command(key);
        for (const char *name : {"EditCut", "EditPaste", "EditClear", "EditUndo"})
            item(name)->trigger();
        QCOMPARE(sheet->toPlainText(), before);
        QCOMPARE(QApplication::clipboard()->text(), title);

        // "Kopieren" copies the sheet's selection wherever the focus stands.
        QApplication::clipboard()->setText(u"vorher"_qs);
        world->button("Ueber_Button")->setFocus();
        item("EditCopy")->trigger();
        QCOMPARE(QApplication::clipboard()->text(), title);
    }

    void editItemsWorkInTheDialogsTextFields()
    {
        QStringList seen;
        whenModal([&](QWidget *dialog) {
            auto *field = child<QLineEdit>(dialog, "Ergebnis1");
            // The edit items act on the focus of the active window, as they do on a desktop,
            // where the dialog is active as soon as it shows.
            dialog->activateWindow();
            const bool active = QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; });
            seen << (active ? u"aktiv"_qs : u"nicht aktiv"_qs);
            field->setFocus();
            QTest::keyClicks(field, u"123"_qs);
            field->selectAll();
            item("EditCut")->trigger();
            seen << field->text() << QApplication::clipboard()->text();
            item("EditPaste")->trigger();
            seen << field->text();
            item("EditUndo")->trigger();
            seen << field->text();
            item("EditPaste")->trigger();
            field->selectAll();
            item("EditClear")->trigger();
            seen << field->text();
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        command(Qt::Key_E);
        QCOMPARE(seen, (QStringList{u"aktiv"_qs, QString(), u"123"_qs, u"123"_qs, QString(), QString()}));
        QCOMPARE(Modul1.Spiel_Nr, 0);
    }

    void printingAsksFirstAndTheOtherFileItemsDoNothing()
    {
        QTemporaryDir dir;
        {
            ScopedPrintDialog cancelled(false, dir.filePath(u"abbruch.pdf"_qs));
            command(Qt::Key_P);
            QCOMPARE(cancelled.opened, 1);
            QVERIFY(!QFile::exists(cancelled.file));
        }
        world->playGames(1);
        ScopedPrintDialog printed(true, dir.filePath(u"druck.pdf"_qs));
        item("AblageDrucken")->trigger();
        QCOMPARE(printed.opened, 1);
        const QStringList pages = pdfPages(printed.file);
        QCOMPARE(pages.size(), 1);
        QVERIFY(pages[0].contains(u"Spiel Nr. 1"_qs));

        const QString sheet = world->window->Anzeige->toPlainText();
        const QStringList files = QDir::current().entryList(QDir::AllEntries | QDir::Hidden);
        QVERIFY(!opensDialog([this] { command(Qt::Key_S); }));
        QVERIFY(!opensDialog([this] { item("AblagePapierformat")->trigger(); }));
        QCOMPARE(world->window->Anzeige->toPlainText(), sheet);
        QCOMPARE(QDir::current().entryList(QDir::AllEntries | QDir::Hidden), files);
        QCOMPARE(world->beeps.beeps, 0);
        QCOMPARE(printed.opened, 1);
    }

    void beendenEndsTheRunWithCodeZero()
    {
        QTimer stop;
        stop.setSingleShot(true);
        connect(&stop, &QTimer::timeout, qApp, [] { QCoreApplication::exit(7); });
        stop.start(5000);
        QTimer::singleShot(0, qApp, [this] { command(Qt::Key_Q); });
        QCOMPARE(QApplication::exec(), 0);
    }
};

QTEST_MAIN(MenueTest)
#include "MenueTest.moc"
