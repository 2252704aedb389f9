// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main window, its menu bar and the windows it opens, driven by clicks and keys as a
// person drives them: results and corrections, names, the restart, the size and font of the
// sheet, the about window, the shortcuts, the edit commands and printing.
#include "Doubles.h"
#include "Modal.h"
#include "PrintDoubles.h"
#include "SheetImage.h"
#include "ledger/Eingabe.h"
#include "windows/Spielstand.h"
#include "windows/UeberTafelkasse.h"

#include <QAccessible>
#include <QClipboard>
#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>

class SpielstandTest : public QObject {
    Q_OBJECT

    FixedClock clock;
    ScopedBeepCounter beeps;
    ScopedMessageRecorder messages; // a real message box would stop the test
    ScopedFontList fonts;
    std::unique_ptr<Spielstand> window;

    void openWindow(std::vector<std::string> fontNames)
    {
        Modul1 = Abend{};
        beeps.beeps = 0;
        clock.moment = DateTime{FixedClock::Maerz2021};
        fonts.fonts = std::move(fontNames);
        window = std::make_unique<Spielstand>();
        window->show();
    }

    QPushButton *button(const char *name) const { return child<QPushButton>(window.get(), QLatin1String(name)); }
    QAction *item(const char *name) const { return child<QAction>(window.get(), QLatin1String(name)); }
    QString sheet() const { return window->Anzeige->toPlainText(); }

    // Clicks a button of the main window; `answer` runs on the modal dialog that it opens.
    void press(const char *name, std::function<void(QWidget *)> answer) const
    {
        whenModal(std::move(answer));
        QTest::mouseClick(button(name), Qt::LeftButton);
    }

    // Ctrl with a key, typed into the focused control. A desktop makes the main window active
    // again when a dialog closes; the offscreen platform does not.
    void command(Qt::Key key) const
    {
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
    }

    // The name of the modal dialog that `act` opens, which is then closed; empty if none.
    QString dialogOpenedBy(const std::function<void()> &act) const
    {
        window->activateWindow(); // first, so that no wait within `act` runs the answer early
        if (!QTest::qWaitForWindowActive(window.get()))
            return u"inactive"_qs;
        QString opened;
        QTimer::singleShot(0, qApp, [&opened] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                opened = dialog->objectName();
                dialog->close();
            }
        });
        act();
        QTest::qWait(20);
        return opened;
    }

    // Games straight into the ledger, then the refresh, where the dialog is not under test.
    void playGames(int count) const
    {
        for (int i = 0; i < count; ++i)
            Ergebnisse_OK(Modul1, {{"10", "20", "30", "40"}, i % 4 + 1, (i + 1) % 4 + 1});
        window->Event_Activated();
    }

    // Types the four scores into the open results or correction dialog, picks winner and
    // East, and presses OK.
    static void fillAndConfirm(QWidget *dialog, const QStringList &scores, int winner, int east)
    {
        const QList<QLineEdit *> fields = dialog->findChildren<QLineEdit *>();
        for (int k = 0; k < 4; ++k) {
            fields[k]->selectAll();
            QTest::keyClicks(fields[k], scores[k]);
        }
        click(dialog, u"Mahjongg_%1"_qs.arg(winner));
        click(dialog, u"Osten_%1"_qs.arg(east));
        click(dialog, u"OK"_qs);
    }

    // The texts of the open dialog's fields, then the names of its checked choices.
    static QStringList formOf(QWidget *dialog)
    {
        QStringList form;
        for (const QLineEdit *field : dialog->findChildren<QLineEdit *>())
            form << field->text();
        for (const QRadioButton *choice : dialog->findChildren<QRadioButton *>()) {
            if (choice->isChecked())
                form << choice->objectName();
        }
        return form;
    }

    // Types into the open dialog: field name and text in turn.
    static void type(QWidget *dialog, const QStringList &entries)
    {
        for (qsizetype i = 0; i + 1 < entries.size(); i += 2)
            QTest::keyClicks(child<QLineEdit>(dialog, entries[i]), entries[i + 1]);
    }

    static void click(QWidget *d, const QString &name) { QTest::mouseClick(child<QWidget>(d, name), Qt::LeftButton); }

    // Each player of the ledger as "name: carry-over".
    static QStringList players()
    {
        QStringList list;
        for (int k = 1; k <= 4; ++k)
            list << QString::fromStdString(Modul1.Spieler(k)) + u": "_qs + QString::number(Modul1.Stand(k)[0]);
        return list;
    }

    // "family size" of the characters of the sheet, bold and italic ones included.
    QSet<QString> sheetFonts() const
    {
        QSet<QString> found;
        for (QTextCursor c(window->Anzeige->document()); c.movePosition(QTextCursor::NextCharacter);)
            found << u"%1 %2"_qs.arg(c.charFormat().font().family()).arg(c.charFormat().font().pointSizeF());
        return found;
    }

private Q_SLOTS:
    void init()
    {
        openWindow({"Helvetica", "Courier"});
        window->Anzeige->setFocus();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    void cleanup() { window.reset(); }

    void anEveningOfEntriesCancelsAndCorrections()
    {
        Modul1.Spieler2 = "Bert";
        press("Ergebnisse_Button", [](QWidget *d) { fillAndConfirm(d, {"100", "20", "30", "40"}, 1, 2); });

        // The entry opens empty on player 1 whatever came before; Abbruch adds no game.
        const QString before = sheet();
        QStringList form;
        press("Ergebnisse_Button", [&](QWidget *d) {
            form = formOf(d) << child<QLabel>(d, u"Spieler_2"_qs)->text();
            type(d, {"Ergebnis1", "5"});
            click(d, u"Cancel"_qs);
        });
        QCOMPARE(form, (QStringList{"", "", "", "", "Mahjongg_1", "Osten_1", "Bert:"}));
        QCOMPARE(sheet(), before);

        // Return in a field is OK. A pasted score is read whole, beyond a line edit's usual
        // 32767 characters.
        press("Ergebnisse_Button", [](QWidget *d) {
            click(d, u"Mahjongg_3"_qs);
            click(d, u"Osten_4"_qs);
            child<QLineEdit>(d, u"Ergebnis1"_qs)->insert(QString(40000, u' ') + u"-7"_qs);
            type(d, {"Ergebnis2", "12"});
            QTest::keyClick(child<QLineEdit>(d, u"Ergebnis2"_qs), Qt::Key_Return);
        });

        // The correction opens on the last game and rewrites only its row; Esc keeps it.
        press("Korrektur_Button", [&](QWidget *d) {
            form = formOf(d);
            fillAndConfirm(d, {"10", "8", "50", "40"}, 4, 1);
        });
        QCOMPARE(form, (QStringList{"-7", "12", "0", "0", "Mahjongg_3", "Osten_4"}));
        QCOMPARE(Modul1.Spiel_Nr, 2);
        QCOMPARE(Modul1.Umsatz_4[2], 160);
        const Blatt blatt = Dokument(Modul1, window->Zeilen(), BlattSchrift(), Modul1.Tagesdatum->ToString());
        QCOMPARE(SheetImage::firstDifference(SheetImage::fromDocument(*window->Anzeige->document()),
                                             SheetImage::fromPieces(blatt.Stuecke)),
                 QString());
        press("Korrektur_Button", [](QWidget *d) {
            type(d, {"Korrektur1", "999"});
            QTest::keyClick(d, Qt::Key_Escape);
        });
        QCOMPARE(Modul1.Ergebnis_1[2], 10);
    }

    void buttonsItemsAndShortcutsFollowTheNumberOfGames_data()
    {
        QTest::addColumn<int>("games");
        QTest::addColumn<QList<bool>>("enabled"); // Namen, Ergebnisse, Korrektur, Neustart
        QTest::newRow("no game") << 0 << QList<bool>{true, true, false, false};
        QTest::newRow("one game") << 1 << QList<bool>{false, true, true, true};
        QTest::newRow("98 games, one row left") << 98 << QList<bool>{false, true, true, true};
        QTest::newRow("99 games, ledger full") << 99 << QList<bool>{false, false, true, true};
    }

    void buttonsItemsAndShortcutsFollowTheNumberOfGames()
    {
        QFETCH(int, games);
        QFETCH(QList<bool>, enabled);
        playGames(games);
        QList<bool> states;
        for (const char *name : {"Namen_Button", "Ergebnisse_Button", "Korrektur_Button", "Neustart_Button",
                                 "ErgebnisseNamenderSpieler", "ErgebnisseErgebnisseeingeben",
                                 "ErgebnisseKorrekturletztesSpiel", "AblageNeu"})
            states << child<QObject>(window.get(), QLatin1String(name))->property("enabled").toBool();
        QCOMPARE(states, enabled + enabled);

        // The shortcuts open what the buttons open, where the items are enabled; "Neu" beeps first.
        const QString none;
        QCOMPARE(dialogOpenedBy([this] { command(Qt::Key_E); }), enabled[1] ? u"Ergebnisse"_qs : none);
        QCOMPARE(dialogOpenedBy([this] { command(Qt::Key_K); }), enabled[2] ? u"Korrigieren"_qs : none);
        QCOMPARE(dialogOpenedBy([this] { command(Qt::Key_N); }), enabled[3] ? u"Achtung"_qs : none);
        QCOMPARE(beeps.beeps, int(enabled[3]));
        QCOMPARE(Modul1.Spiel_Nr, games);
        if (games == 99) { // the last row of a full ledger can still be corrected
            press("Korrektur_Button", [](QWidget *d) { fillAndConfirm(d, {"1", "2", "3", "4"}, 2, 2); });
            QCOMPARE(Modul1.Ergebnis_4[99], 4);
        }

        // Opening a menu sets the items anew, however the number of games came about.
        Modul1.Spiel_Nr = games == 0 ? 99 : 0;
        child<QMenu>(window.get(), u"UntitledMenu0"_qs)->popup(QPoint());
        QCOMPARE(item("ErgebnisseErgebnisseeingeben")->isEnabled(), games != 0);
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
        QCOMPARE(places(), (QList<QRect>{before[0].adjusted(0, 0, 100, 100), before[1].translated(100, 100),
                                         before[2], before[3].translated(0, 100)}));
        window->resize(300, 200); // never smaller than at first
        QTRY_COMPARE(window->centralWidget()->size(), QSize(896, 616));
    }

    void namesBeforeTheFirstGameAndRestarts()
    {
        press("Namen_Button", [](QWidget *d) {
            type(d, {"Name_1", "Anna", "Name_2", "  ", "Übertrag_1", "12", "Übertrag_4", "-3"});
            click(d, u"OK_Name"_qs);
        });
        QCOMPARE(players(), (QStringList{"Anna: 12", "  : 0", "Spieler 3: 0", "Spieler 4: -3"}));

        // The second time it opens empty again, and OK by Return takes all eight fields anew.
        QStringList opened;
        press("Namen_Button", [&](QWidget *d) {
            opened = formOf(d);
            type(d, {"Name_2", "Bert", "Übertrag_3", "500"});
            QTest::keyClick(child<QLineEdit>(d, u"Name_2"_qs), Qt::Key_Return);
        });
        QCOMPARE(opened, QStringList(8, QString()));
        const QStringList named{"Spieler 1: 0", "Bert: 0", "Spieler 3: 500", "Spieler 4: 0"};
        QCOMPARE(players(), named);

        // Abbruch and the close box keep what the last OK stored.
        for (const bool closeBox : {false, true}) {
            press("Namen_Button", [closeBox](QWidget *d) {
                type(d, {"Name_1", "Carl", "Übertrag_3", "7"});
                closeBox ? void(d->close()) : click(d, u"Abbruch_Name"_qs);
            });
        }
        QCOMPARE(players(), named);

        // After games the restart beeps, then warns; OK keeps the names, clears the rest and
        // dates the sheet anew.
        playGames(2);
        clock.moment = DateTime{FixedClock::Maerz2021 + 3'600'000};
        int beepsAtWarning = -1;
        press("Neustart_Button", [&](QWidget *d) {
            beepsAtWarning = beeps.beeps;
            click(d, u"OK"_qs);
        });
        QCOMPARE(beepsAtWarning, 1);
        QCOMPARE(players(), (QStringList{"Spieler 1: 0", "Bert: 0", "Spieler 3: 0", "Spieler 4: 0"}));
        QVERIFY(sheet().startsWith(u"Tafelkasse (Test-Version); 12.03.2021, 20:30:00\n"_qs));
        press("Ergebnisse_Button", [](QWidget *d) { fillAndConfirm(d, {"20", "", "", ""}, 1, 1); });
        QCOMPARE(Modul1.Spiel_Nr, 1);
        QCOMPARE(Modul1.Stand_3[1], Modul1.Umsatz_3[1]);

        // Abbruch changes nothing, though the answer before was OK.
        const QString before = sheet();
        press("Neustart_Button", [](QWidget *d) { click(d, u"Abbruch"_qs); });
        QCOMPARE(beeps.beeps, 2);
        QCOMPARE(sheet(), before);
    }

    void textSizeAndFontOfTheSheet_data()
    {
        QTest::addColumn<bool>("withCourier");
        QTest::newRow("Courier installed") << true;
        QTest::newRow("no Courier") << false;
    }

    void textSizeAndFontOfTheSheet()
    {
        QFETCH(bool, withCourier);
        openWindow({"Palatino", withCourier ? "Courier" : "Courier New"});
        const QString system = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
        const QString family = withCourier ? u"Courier"_qs : system;
        for (int i = 0; i < 12; ++i)
            QTest::mouseClick(button("PushButton6"), Qt::LeftButton);
        QCOMPARE(beeps.beeps, 1); // eleven steps from 12 to 1, then the beep

        // A game whose winner is not East has bold and italic lines; all keep the size. The
        // sheet asks for the font at every refresh; a restart writes its head in the window's font.
        fonts.fonts = {withCourier ? "Courier New" : "Courier"};
        playGames(1);
        QCOMPARE(sheetFonts(), QSet<QString>{(withCourier ? system : u"Courier"_qs) + u" 1"_qs});
        window->Neustart();
        QCOMPARE(sheetFonts(), QSet<QString>{family + u" 1"_qs});
        QTest::mouseClick(button("PushButton2"), Qt::LeftButton);
        QCOMPARE(sheetFonts(), QSet<QString>{family + u" 12"_qs});
    }

    void aboutWindowHidesByAPressAndComesNewAfterItsCloseBox()
    {
        fonts.fonts = {"Courier", "Palatino Linotype"};
        QTest::mouseClick(button("Ueber_Button"), Qt::LeftButton);
        QPointer<UeberTafelkasse> about = window->findChild<UeberTafelkasse *>();
        QStringList shown{about->windowTitle()};
        for (const QLabel *label : about->findChildren<QLabel *>())
            shown << label->text() << u"%1 %2"_qs.arg(label->font().family()).arg(label->font().pixelSize());
        const QString system = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
        QCOMPARE(shown, (QStringList{u"Tafelkasse"_qs, u"Tafelkasse"_qs, system + u" 36"_qs,
                                     u"Programm für den \"stäbchenlosen Zahlungsverkehr\"\n"
                                     u"bzw. zur Berechnung der Gewinne, Verluste und Kontostände \n"
                                     u"für vier Mah Jongg-SpielerInnen in bis zu 100 Spielen."_qs,
                                     system + u" 12"_qs, shown[5], system + u" 12"_qs})); // the credit is ours

        // A press on it hides it and "Über…" shows the same window; after the close box a new
        // one, which looks at the fonts anew.
        QTest::mousePress(child<QLabel>(about, u"StaticText2"_qs), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // a window that closed would go now
        QVERIFY(about && about->isHidden());
        QTest::mouseClick(button("Ueber_Button"), Qt::LeftButton);
        QVERIFY(about->isVisible());
        fonts.fonts = {"Palatino"};
        about->close();
        QTRY_VERIFY(!about);
        QTest::mouseClick(button("Ueber_Button"), Qt::LeftButton);
        QCOMPARE(child<QLabel>(window->findChild<UeberTafelkasse *>(), u"StaticText1"_qs)->font().family(),
                 u"Palatino"_qs);
    }

    void menusShowTheirItemsAsWritten()
    {
        QStringList entries;
        for (const QAction *menu : window->menuBar()->actions()) {
            entries << menu->menu()->objectName() + u':' + menu->text();
            for (const QAction *a : menu->menu()->actions())
                entries << a->objectName() + u'|' + (a->isSeparator() ? u"-"_qs : a->text()) + u'|'
                        + a->shortcut().toString();
        }
        QCOMPARE(entries.join(u' '),
                 u"UntitledMenu3:Ablage AblageNeu|Neu|Ctrl+N AblageSpielstandsichern|Spielstand sichern|Ctrl+S "
                 u"AblagePapierformat|Papierformat| AblageDrucken|Drucken|Ctrl+P FileQuit|Beenden|Ctrl+Q "
                 u"UntitledMenu1:Bearbeiten EditUndo|Undo|Ctrl+Z UntitledMenu2|-| EditCut|Ausschneiden|Ctrl+X "
                 u"EditCopy|Kopieren|Ctrl+C EditPaste|Einfügen|Ctrl+V EditClear|Löschen| "
                 u"UntitledMenu0:Ergebnisse ErgebnisseNamenderSpieler|Namen der Spieler  | "
                 u"ErgebnisseErgebnisseeingeben|Ergebnisse eingeben |Ctrl+E "
                 u"ErgebnisseKorrekturletztesSpiel|Korrektur letztes Spiel|Ctrl+K AppleTafelkasse|Tafelkasse |Ctrl+I "
                 u"UntitledMenu5:"_qs);
    }

    void theSheetIsCopiedButNeverEdited()
    {
        const QString text = sheet();
        QTest::keyClicks(window->Anzeige, u"xyz"_qs);
        QTest::keyClick(window->Anzeige, Qt::Key_Backspace);
        command(Qt::Key_A);
        QApplication::clipboard()->setText(u"vorher"_qs);
        command(Qt::Key_C); // typed into the sheet, it must reach it past the menu's shortcut
        QCOMPARE(QApplication::focusWidget(), window->Anzeige);
        QCOMPARE(QApplication::clipboard()->text(), text);
        for (Qt::Key key : {Qt::Key_X, Qt::Key_V, Qt::Key_Z})
            command(key);
        for (const char *name : {"EditCut", "EditPaste", "EditClear", "EditUndo"})
            item(name)->trigger();
        QCOMPARE(sheet(), text);

        // "Kopieren" copies the sheet's selection wherever the focus stands.
        QApplication::clipboard()->setText(u"vorher"_qs);
        button("Ueber_Button")->setFocus();
        item("EditCopy")->trigger();
        QCOMPARE(QApplication::clipboard()->text(), text);
    }

    void editItemsWorkInTheDialogsTextFields()
    {
        QStringList seen;
        press("Ergebnisse_Button", [&](QWidget *dialog) {
            // The items act in the active window; on a desktop the dialog is active as it shows.
            dialog->activateWindow();
            QVERIFY(QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; }));
            QLineEdit *field = child<QLineEdit>(dialog, u"Ergebnis1"_qs);
            QTest::keyClicks(field, u"123"_qs);
            field->selectAll();
            for (const char *name : {"EditCut", "EditUndo", "EditClear", "EditPaste", "EditPaste"}) {
                item(name)->trigger();
                seen << field->text();
            }
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QCOMPARE(seen, (QStringList{"", "123", "", "123", "123123"}));
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
        playGames(1);
        ScopedPrintDialog printed(true, dir.filePath(u"druck.pdf"_qs));
        item("AblageDrucken")->trigger();
        QVERIFY(pdfPages(printed.file).value(0).contains(u"Spiel Nr. 1"_qs));

        const QStringList files = QDir::current().entryList(QDir::AllEntries | QDir::Hidden);
        QCOMPARE(dialogOpenedBy([this] { command(Qt::Key_S); }), QString());
        QCOMPARE(dialogOpenedBy([this] { item("AblagePapierformat")->trigger(); }), QString());
        QCOMPARE(QDir::current().entryList(QDir::AllEntries | QDir::Hidden), files);
        QCOMPARE((QList<int>{beeps.beeps, printed.opened}), (QList<int>{0, 1})); // no beep, no second print dialog
    }

    void everyControlHasAnAccessibleName()
    {
        QStringList nameless, fields;
        const auto check = [&](QWidget *top) {
            for (QWidget *w : top->findChildren<QWidget *>()) {
                const QString name = QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name);
                if (w->focusPolicy() != Qt::NoFocus && name.isEmpty())
                    nameless << w->objectName();
                if (qobject_cast<QLineEdit *>(w))
                    fields << name;
            }
        };
        check(window.get());
        press("Namen_Button", [&](QWidget *d) { check(d); d->close(); });
        press("Ergebnisse_Button", [&](QWidget *d) { check(d); d->close(); });
        QCOMPARE(nameless, QStringList());
        QCOMPARE(fields.mid(0, 2), (QStringList{u"Spieler 1: Name"_qs, u"Spieler 2: Name"_qs}));
        QVERIFY(fields.contains(u"Spieler 3: Übertrag"_qs));
        QVERIFY(fields.contains(u"Spieler 4: Ergebnis"_qs));
    }

    void quitAndBeendenEndTheRunWithCodeZero()
    {
        for (const bool byMenu : {false, true}) {
            QObject scope; // takes the fallback along when the run has ended
            QTimer::singleShot(5000, &scope, [] { QCoreApplication::exit(7); });
            QTimer::singleShot(0, &scope, [&] {
                byMenu ? command(Qt::Key_Q) : QTest::mouseClick(button("PushButton5"), Qt::LeftButton);
            });
            QCOMPARE(QApplication::exec(), 0);
        }
    }
};

QTEST_MAIN(SpielstandTest)
#include "SpielstandTest.moc"
