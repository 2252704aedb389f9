// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The world every window test starts from: a fresh evening in the main window, begun on 12 March
// 2021 at 19:30 in Berlin and dated by the program's own date service in German, beeps counted,
// Courier installed; and the ways a user reaches the window's commands.
#pragma once

#include "ledger/Eingabe.h"
#include "support/Desktop.h"
#include "support/Doubles.h"
#include "support/Modal.h"
#include "windows/Spielstand.h"

#include <QKeySequence>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>

#include <memory>

struct Fenster {
    using Act = std::function<void()>;
    FixedClock clock;
    ScopedBeepCounter beeps;
    ScopedFontList fonts;
    GermanDates dates;
    std::unique_ptr<Spielstand> window;

    void openWindow()
    {
        Modul1 = Abend{};
        clock.moment = DateTime{FixedClock::Maerz2021};
        beeps.beeps = 0;
        fonts.fonts = {"Helvetica", "Courier"};
        window = std::make_unique<Spielstand>();
        window->show();
        window->Anzeige->setFocus();
    }

    QPushButton *button(const char *name) const { return child<QPushButton>(window.get(), QLatin1String(name)); }
    QAction *item(const char *name) const { return child<QAction>(window.get(), QLatin1String(name)); }
    QString sheet() const { return window->Anzeige->toPlainText(); }
    QStringList standings() const { return sheet().split(u'\n').mid(7, 4); } // "name:  carry-over" of each
    static void click(QWidget *d, const QString &name) { QTest::mouseClick(child<QWidget>(d, name), Qt::LeftButton); }
    // Ends the open dialog as its user would: "close" by its close box, a button's name by a click on
    // that button, else the keys named, as keys() types them.
    static void end(QWidget *d, const QString &way)
    {
        if (way == u"close"_s)
            d->close();
        else if (d->findChild<QPushButton *>(way))
            click(d, way);
        else
            keys(d, way);
    }
    // Types the keys named ("Esc", "Tab Space Return") where the dialog's focus stands; the names of
    // the controls that have the focus after each.
    static QString keys(QWidget *d, const QString &names)
    {
        QStringList path;
        for (const QString &key : names.split(u' ')) {
            QTest::keyClick(d->focusWidget() ? d->focusWidget() : d, QKeySequence(key)[0].key());
            path << (d->focusWidget() ? d->focusWidget()->objectName() : QString());
        }
        return path.join(u' ');
    }

    // The actions that open the window's commands: a click on a button, a menu item, Ctrl with a key.
    Act press(const char *name) const
    {
        return [this, name] { QTest::mouseClick(button(name), Qt::LeftButton); };
    }
    Act choose(const char *name) const
    {
        return [this, name] { item(name)->trigger(); };
    }
    // Typed into the focused control. A desktop makes the main window active again when a dialog
    // closes; the offscreen platform does not.
    Act command(Qt::Key key) const
    {
        return [this, key] {
            activate(window.get());
            QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
        };
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

    // Makes the dialog active, as a desktop does when it shows one: keys and edit items act there.
    static void activate(QWidget *d)
    {
        d->activateWindow();
        QVERIFY(QTest::qWaitFor([d] { return QApplication::activeWindow() == d; }));
    }
};
