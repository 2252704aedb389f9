// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The texts of every window at the desktop's font sizes that people use, 9 to 12 points: each
// label's and button's text stands whole in its fixed box, measured with the control's own font
// where its style draws the text. CTest runs it at the scale factors 1, 1.5 and 2.
#include "support/Doubles.h"
#include "windows/Achtung.h"
#include "windows/Ergebnisse.h"
#include "windows/Korrigieren.h"
#include "windows/Namen.h"
#include "windows/Spielstand.h"
#include "windows/UeberTafelkasse.h"

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
    static QRect textArea(const QAbstractButton *button)
    {
        QStyleOptionButton option;
        option.initFrom(button);
        const auto *push = qobject_cast<const QPushButton *>(button);
        if (push && push->autoDefault())
            option.features |= QStyleOptionButton::AutoDefaultButton;
        return button->style()->subElementRect(push ? QStyle::SE_PushButtonContents : QStyle::SE_RadioButtonContents,
                                               &option, button);
    }

private Q_SLOTS:
    void everyTextWholeAtTheDesktopsFont()
    {
        QStringList cut;
        for (const int points : {9, 10, 11, 12}) {
            QFont desktop = QApplication::font();
            desktop.setPointSize(points);
            QApplication::setFont(desktop);
            Spielstand main;
            for (QWidget *window : std::initializer_list<QWidget *>{&main, new Namen(&main), new Ergebnisse(&main),
                                                                    new Korrigieren(&main), new Achtung(&main),
                                                                    new UeberTafelkasse(&main)}) {
                for (const QWidget *control : window->findChildren<QWidget *>()) {
                    const auto *label = qobject_cast<const QLabel *>(control);
                    const auto *button = qobject_cast<const QAbstractButton *>(control);
                    const QString text = label ? label->text() : button ? button->text() : QString();
                    if (control->window() != window || text.isEmpty())
                        continue;
                    const QRect area = label ? label->contentsRect() : textArea(button);
                    const int wrap = label && label->wordWrap() ? Qt::TextWordWrap : 0;
                    const QRect needs = control->fontMetrics().boundingRect(area, wrap, text);
                    if (needs.width() > area.width() || needs.height() > area.height())
                        cut << u"%1 pt, %2 %3: %4x%5 in %6x%7"_s.arg(points)
                                   .arg(window->objectName(), control->objectName())
                                   .arg(needs.width())
                                   .arg(needs.height())
                                   .arg(area.width())
                                   .arg(area.height());
                }
            }
        }
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u'\n')));
    }
};

QTEST_MAIN(SchriftTest)
#include "SchriftTest.moc"
