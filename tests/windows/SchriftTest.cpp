// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The texts of every window at the desktop's font sizes that people use, 9 to 12 points: each
// label's and button's text stands whole in its fixed box, measured with the control's own font
// as the control draws it. CTest runs it at the scale factors 1, 1.5 and 2 as well.
#include "Doubles.h"
#include "windows/Achtung.h"
#include "windows/Ergebnisse.h"
#include "windows/Korrigieren.h"
#include "windows/Namen.h"
#include "windows/Spielstand.h"
#include "windows/UeberTafelkasse.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

using namespace Qt::StringLiterals;

class SchriftTest : public QObject {
    Q_OBJECT

    FixedClock clock;
    ScopedBeepCounter beeps;
    ScopedFontList fonts;

    // The part of the control in which its style draws the text.
    static QRect textArea(const QWidget *control)
    {
        const auto *button = qobject_cast<const QAbstractButton *>(control);
        if (!button)
            return control->contentsRect();
        QStyleOptionButton option;
        option.initFrom(button);
        option.text = button->text();
        const auto *push = qobject_cast<const QPushButton *>(button);
        if (push && push->autoDefault())
            option.features |= QStyleOptionButton::AutoDefaultButton;
        return button->style()->subElementRect(push ? QStyle::SE_PushButtonContents : QStyle::SE_RadioButtonContents,
                                               &option, button);
    }

    // Each text of the window that its box cuts, with what it needs and what it has.
    static QStringList cut(const QWidget *window)
    {
        QStringList cut;
        for (const QWidget *control : window->findChildren<QWidget *>()) {
            if (control->window() != window)
                continue;
            const auto *label = qobject_cast<const QLabel *>(control);
            const auto *button = qobject_cast<const QAbstractButton *>(control);
            const QString text = label ? label->text() : button ? button->text() : QString();
            if (text.isEmpty())
                continue;
            const QRect area = textArea(control);
            const int wrap = label && label->wordWrap() ? Qt::TextWordWrap : 0;
            const QRect needs = control->fontMetrics().boundingRect(area, wrap, text);
            if (needs.width() > area.width() || needs.height() > area.height())
                cut << u"%1 %2: \"%3\" needs %4x%5, has %6x%7"_s.arg(window->objectName(), control->objectName(), text)
                           .arg(needs.width())
                           .arg(needs.height())
                           .arg(area.width())
                           .arg(area.height());
        }
        return cut;
    }

private Q_SLOTS:
    void everyTextWholeAtTheDesktopsFont_data()
    {
        QTest::addColumn<int>("points");
        for (const int points : {9, 10, 11, 12})
            QTest::addRow("%d pt", points) << points;
    }

    void everyTextWholeAtTheDesktopsFont()
    {
        QFETCH(int, points);
        QFont desktop = QApplication::font();
        desktop.setPointSize(points);
        QApplication::setFont(desktop);

        Spielstand main;
        const std::vector<QWidget *> windows{&main,
                                             new Namen(&main),
                                             new Ergebnisse(&main),
                                             new Korrigieren(&main),
                                             new Achtung(&main),
                                             new UeberTafelkasse(&main)};
        QStringList found;
        for (const QWidget *window : windows)
            found << cut(window);
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
    }
};

QTEST_MAIN(SchriftTest)
#include "SchriftTest.moc"
