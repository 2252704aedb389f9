// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main window, its menu bar and the windows it opens, where exact texts, values or the order
// of events matter: what the dialogs open on, the restart, the sheet's size and font, the about
// window, the menus, copying, printing, the locks and the keyboard. The random evening
// (ZufallsabendTest) checks ledger, enabled controls and sheet after every action; the program's
// own tests in an X server (tests/app) end it by "Quit", by the close box and by Ctrl+Q.
#include "Doubles.h"
#include "Modal.h"
#include "PrintDoubles.h"
#include "ledger/Eingabe.h"
#include "windows/Spielstand.h"
#include "windows/UeberTafelkasse.h"

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
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>

using namespace Qt::StringLiterals;

class SpielstandTest : public QObject {
    Q_OBJECT

    FixedClock clock;
    ScopedBeepCounter beeps;
    ScopedFontList fonts;
    std::unique_ptr<Spielstand> window;

    QPushButton *button(const char *name) const { return child<QPushButton>(window.get(), QLatin1String(name)); }
    QAction *item(const char *name) const { return child<QAction>(window.get(), QLatin1String(name)); }
    QString sheet() const { return window->Anzeige->toPlainText(); }
    QStringList standings() const { return sheet().split(u'\n').mid(7, 4); } // "name:  carry-over" of each player
    static void click(QWidget *d, const QString &name) { QTest::mouseClick(child<QWidget>(d, name), Qt::LeftButton); }

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
        (void)QTest::qWaitForWindowActive(window.get()); // if it fails, so does `act`
        QString opened;
        whenModal([&opened](QWidget *dialog) { opened = dialog->objectName(), dialog->close(); }, 0);
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

    // The texts of the open dialog's fields, then the names of its checked choices.
    static QStringList formOf(QWidget *dialog)
    {
        QStringList form;
        for (const QLineEdit *field : dialog->findChildren<QLineEdit *>())
            form << field->text();
        for (const QRadioButton *choice : dialog->findChildren<QRadioButton *>())
            form << (choice->isChecked() ? QStringList{choice->objectName()} : QStringList());
        return form;
    }

    // Types into the open dialog: field name and text in turn.
    static void type(QWidget *dialog, const QStringList &entries)
    {
        for (qsizetype i = 0; i + 1 < entries.size(); i += 2)
            QTest::keyClicks(child<QLineEdit>(dialog, entries[i]), entries[i + 1]);
    }

    // "family size" of the characters of the sheet, bold and italic ones included.
    QSet<QString> sheetFonts() const
    {
        QSet<QString> found;
        for (QTextCursor c(window->Anzeige->document()); c.movePosition(QTextCursor::NextCharacter);)
            found << u"%1 %2"_s.arg(c.charFormat().font().family()).arg(c.charFormat().font().pointSizeF());
        return found;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(u"Tafelkasse"_s);
        QCoreApplication::setApplicationVersion(u"9.8"_s);
    }

    void init()
    {
        Modul1 = Abend{};
        beeps.beeps = 0;
        fonts.fonts = {"Helvetica", "Courier"};
        window = std::make_unique<Spielstand>();
        window->show();
        window->Anzeige->setFocus();
    }

    void anEveningFromTheNamesToARestart()
    {
        // The names open empty; an empty name field gives the player's default name back. A name may be
        // longer than a line edit's usual 32767 characters and than any line of the sheet.
        Modul1.Spieler1 = "Alt";
        const QString longName = u"Großer Drache "_s.repeated(3000);
        QStringList form;
        press("Namen_Button", [&](QWidget *d) {
            form = formOf(d);
            type(d, {"Name_2", "Bert", "Übertrag_1", "12", "Übertrag_4", "-3"});
            child<QLineEdit>(d, u"Name_3"_s)->insert(longName);
            click(d, u"OK_Name"_s);
        });
        QCOMPARE(form, QStringList(8, QString()));
        QCOMPARE(standings(), (QStringList{"Spieler 1:  12", "Bert:  0", longName + u":  0"_s, "Spieler 4:  -3"}));

        // Return in a field is OK. A pasted score is read whole, beyond a line edit's usual 32767 characters.
        press("Ergebnisse_Button", [](QWidget *d) {
            click(d, u"Mahjongg_3"_s);
            click(d, u"Osten_4"_s);
            child<QLineEdit>(d, u"Ergebnis1"_s)->insert(QString(40000, u' ') + u"-7"_s);
            type(d, {"Ergebnis2", "12"});
            QTest::keyClick(child<QLineEdit>(d, u"Ergebnis2"_s), Qt::Key_Return);
        });
        QVERIFY(!button("Namen_Button")->isEnabled());

        // The entry opens empty on player 1 whatever the last game was. The edit items work in its
        // fields (the field after each is recorded), and Abbruch adds no game.
        press("Ergebnisse_Button", [&](QWidget *d) {
            form = formOf(d) << child<QLabel>(d, u"Spieler_2"_s)->text();
            d->activateWindow(); // the items act in the active window; a desktop activates a dialog as it shows
            QVERIFY(QTest::qWaitFor([d] { return QApplication::activeWindow() == d; }));
            QLineEdit *field = child<QLineEdit>(d, u"Ergebnis1"_s);
            QTest::keyClicks(field, u"123"_s);
            field->selectAll();
            for (const char *name : {"EditCut", "EditUndo", "EditClear", "EditPaste", "EditPaste"})
                item(name)->trigger(), form << field->text();
            click(d, u"Cancel"_s);
        });
        QCOMPARE(form, (QStringList{"", "", "", "", "Mahjongg_1", "Osten_1", "Bert:", "", "123", "", "123", "123123"}));

        // The correction opens on the last game; Esc keeps it.
        press("Korrektur_Button", [&](QWidget *d) {
            form = formOf(d);
            type(d, {"Korrektur1", "999"});
            QTest::keyClick(d, Qt::Key_Escape);
        });
        QCOMPARE(form, (QStringList{"-7", "12", "0", "0", "Mahjongg_3", "Osten_4"}));
        QCOMPARE((QList<qint64>{Modul1.Spiel_Nr, Modul1.Ergebnis_1[1]}), (QList<qint64>{1, -7}));

        // The restart beeps before it warns; OK keeps the names, clears the rest and dates the sheet anew.
        clock.moment = DateTime{FixedClock::Maerz2021 + 3'600'000};
        int beepsAtWarning = -1;
        whenModal([&](QWidget *d) { beepsAtWarning = beeps.beeps, click(d, u"OK"_s); });
        command(Qt::Key_N);
        QCOMPARE(beepsAtWarning, 1);
        QCOMPARE(standings(), (QStringList{"Spieler 1:  0", "Bert:  0", longName + u":  0"_s, "Spieler 4:  0"}));
        QVERIFY(sheet().startsWith(u"Tafelkasse (Test-Version); 12.03.2021, 20:30:00\n"_s));
    }

    // Keyboard alone: Tab walks each form as it reads and enters a choice at its checked button,
    // Space picks, Return presses the focused button or, from anywhere else, OK; F10 and Alt with a
    // title's letter open the menus, and the bar's shortcuts serve the about window as well.
    void theKeyboardAloneReachesEverything()
    {
        // A key goes where the keyboard's would: into an open menu, else to the control with the focus.
        const auto key = [](Qt::Key k, Qt::KeyboardModifiers m = {}) {
            QWidget *popup = QApplication::activePopupWidget();
            QTest::keyClick(popup ? popup : QApplication::focusWidget(), k, m);
            return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
        };
        const auto walk = [&key](int steps, Qt::Key k = Qt::Key_Tab) {
            QStringList path;
            while (steps-- > 0)
                path << key(k);
            return path.join(u' ');
        };
        // Runs `keys` in the dialog that a command opens, once the dialog has the keyboard.
        const auto inDialog = [](std::function<void()> keys) {
            whenModal([keys = std::move(keys)](QWidget *d) {
                d->activateWindow();
                QVERIFY(QTest::qWaitFor([d] { return QApplication::activeWindow() == d; }));
                keys();
            });
        };
        const auto toMain = [this] {
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window.get()));
        };

        toMain();
        QStringList menus;
        for (const auto &[k, m] : {std::pair{Qt::Key_F10, Qt::NoModifier}, {Qt::Key_B, Qt::AltModifier}}) {
            key(k, m);
            const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            menus << (menu ? menu->title() : QString());
            key(Qt::Key_Escape), key(Qt::Key_Escape);
        }
        QCOMPARE(menus, (QStringList{u"&Ablage"_s, u"&Bearbeiten"_s}));

        QStringList paths;
        inDialog([&] { // a game won by player 3 with player 4 as East
            for (const char *score : {"10", "20", "30", "40"})
                QTest::keyClicks(QApplication::focusWidget(), QLatin1String(score)), key(Qt::Key_Tab);
            paths << walk(4);
            key(Qt::Key_Space);
            paths << walk(5);
            key(Qt::Key_Space);
            paths << walk(1);
            paths.last() += u' ' + walk(2, Qt::Key_Backtab);
            key(Qt::Key_Return);
        });
        key(Qt::Key_E, Qt::ControlModifier);
        inDialog([&] { // the correction, typed over and left by Return on Abbruch
            QTest::keyClicks(QApplication::focusWidget(), u"999"_s);
            paths << walk(6);
            paths.last() += u' ' + walk(3, Qt::Key_Backtab);
            key(Qt::Key_Return);
        });
        toMain();
        key(Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(
            paths,
            (QStringList{u"Cancel Mahjongg_1 Mahjongg_2 Mahjongg_3"_s, u"Mahjongg_4 Osten_1 Osten_2 Osten_3 Osten_4"_s,
                         u"Ergebnis1 Osten_4 Osten_3"_s,
                         u"Korrektur2 Korrektur3 Korrektur4 OK Cancel Mahjongg_3 Mahjongg_2 Mahjongg_1 Cancel"_s}));
        QCOMPARE(Modul1.Mahjongg[1] + '/' + Modul1.Osten[1], "Spieler 3/Spieler 4");
        QCOMPARE((QList<qint64>{Modul1.Spiel_Nr, Modul1.Ergebnis_1[1], Modul1.Ergebnis_4[1]}),
                 (QList<qint64>{1, 10, 40}));

        // With the about window in front, Ctrl+E still opens the results.
        toMain();
        key(Qt::Key_I, Qt::ControlModifier);
        auto *about = window->findChild<UeberTafelkasse *>();
        QVERIFY(about && (about->activateWindow(), QTest::qWaitForWindowActive(about)));
        QString opened;
        whenModal([&opened](QWidget *d) { opened = d->objectName(), QTest::keyClick(d, Qt::Key_Escape); });
        QTest::keyClick(about, Qt::Key_E, Qt::ControlModifier);
        QCOMPARE(opened, u"Ergebnisse"_s);

        // The warning: Return on a focused Abbruch keeps the evening, Return as it opens restarts it.
        for (const bool tabbed : {true, false}) {
            inDialog([&] {
                if (tabbed)
                    paths << walk(1);
                key(Qt::Key_Return);
            });
            toMain();
            key(Qt::Key_N, Qt::ControlModifier);
            QCOMPARE(Modul1.Spiel_Nr, tabbed ? 1 : 0);
        }
        QCOMPARE(paths.last(), u"Abbruch"_s);
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

    void aboutWindowHidesByAPressAndComesNewAfterItsCloseBox()
    {
        fonts.fonts = {"Courier", "Palatino Linotype"};
        button("Ueber_Button")->click();
        QPointer<UeberTafelkasse> about = window->findChild<UeberTafelkasse *>();
        QStringList shown{about->windowTitle()};
        for (const QLabel *label : about->findChildren<QLabel *>())
            shown << label->text() << u"%1 %2"_s.arg(label->font().family()).arg(label->font().pixelSize());
        const QString system = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
        QCOMPARE(shown,
                 (QStringList{u"Tafelkasse"_s, u"Tafelkasse"_s, system + u" 36"_s,
                              u"Programm für den \"stäbchenlosen Zahlungsverkehr\"\n"
                              u"bzw. zur Berechnung der Gewinne, Verluste und Kontostände \n"
                              u"für vier Mah Jongg-SpielerInnen in bis zu 100 Spielen."_s,
                              system + u" 12"_s, shown[5], system + u" 12"_s}));
        // The credit is ours: this build's version and the licence, on one line of its box.
        const QLabel *credit = child<QLabel>(about, u"StaticText3"_s);
        QVERIFY(credit->text().contains(u" " TAFELKASSE_VERSION u" "_s) && credit->text().contains(u"GPL 3"_s));
        QCOMPARE_LE(QFontMetrics(credit->font()).horizontalAdvance(credit->text()), credit->contentsRect().width());

        // A press hides it and "Über…" shows the same window; after the close box a new one.
        QTest::mousePress(child<QLabel>(about, u"StaticText2"_s), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // a window that closed would go now
        QVERIFY(about && about->isHidden());
        button("Ueber_Button")->click();
        QVERIFY(about->isVisible());
        about->close();
        QTRY_VERIFY(!about);
        button("Ueber_Button")->click();
        QVERIFY(window->findChild<UeberTafelkasse *>()->isVisible());
    }

    // The items as written, trailing blanks and all; those of "Bearbeiten" copy the sheet but never edit it.
    void menusShowTheirItemsAndNeverEditTheSheet()
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

        // Pixels of the sheet in the colour of a selection: there are some only while the sheet has the focus.
        const auto selectionShown = [this] {
            const QImage image = window->Anzeige->viewport()->grab().toImage();
            const QRgb colour = window->Anzeige->palette().color(QPalette::Active, QPalette::Highlight).rgb();
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (image.pixel(x, y) == colour)
                        return true;
                }
            }
            return false;
        };
        const QString text = sheet();
        QTest::keyClicks(window->Anzeige, u"xyz"_s);
        command(Qt::Key_A);
        QVERIFY(selectionShown());
        QApplication::clipboard()->setText(u"vorher"_s);
        command(Qt::Key_C); // typed into the sheet, it must reach it past the menu's shortcut
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
        const QStringList files = QDir::current().entryList(QDir::AllEntries | QDir::Hidden);
        ScopedPrintDialog printing(false, u"abbruch.pdf"_s);
        command(Qt::Key_P);
        QCOMPARE(dialogOpenedBy([this] { command(Qt::Key_S), item("AblagePapierformat")->trigger(); }), QString());
        QCOMPARE(QDir::current().entryList(QDir::AllEntries | QDir::Hidden), files); // nothing printed or saved

        QTemporaryDir dir;
        playGames(1);
        printing.answer = true, printing.file = dir.filePath(u"druck.pdf"_s);
        item("AblageDrucken")->trigger();
        QVERIFY(pdfPages(printing.file).value(0).contains(u"Spiel Nr. 1"_s));
        const QString info = popplerOutput(u"pdfinfo"_s, {printing.file});
        QVERIFY2(info.contains(QRegularExpression(u"Title: +Tafelkasse 2021-03-12\\n"_s))
                     && info.contains(QRegularExpression(u"Creator: +Tafelkasse 9\\.8\\n"_s)),
                 qPrintable(info));
        QCOMPARE((QList<int>{beeps.beeps, printing.opened}), (QList<int>{0, 2})); // one dialog for each Drucken
    }
};

QTEST_MAIN(SpielstandTest)
#include "SpielstandTest.moc"
