// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The texts of every window at the desktop's font sizes that people use, 9 to 12 points: each
// label's and button's text stands whole in its fixed box, measured with the control's own font
// where its style draws the text. CTest runs it at the scale factors 1, 1.5 and 2.
#include "support/Fenster.h"
#include "windows/Achtung.h"
#include "windows/Ergebnisse.h"
#include "windows/Korrigieren.h"
#include "windows/Namen.h"
#include "windows/UeberTafelkasse.h"

#include <QLabel>
#include <QStyleOptionButton>

class SchriftTest : public QObject, Fenster {
    Q_OBJECT

private Q_SLOTS:
    void everyTextWholeAtTheDesktopsFont()
    {
        QStringList cut;
        for (const int points : {9, 10, 11, 12}) {
            QFont desktop = QApplication::font();
            desktop.setPointSize(points);
            QApplication::setFont(desktop);
            openWindow();
            QWidget *const spielstand = window.get();
            for (QWidget *top : std::initializer_list<QWidget *>{
                     spielstand, new Namen(spielstand), new Ergebnisse(spielstand), new Korrigieren(spielstand),
                     new Achtung(spielstand), new UeberTafelkasse(spielstand)}) {
                for (const QWidget *control : top->findChildren<QWidget *>()) {
                    const auto *label = qobject_cast<const QLabel *>(control);
                    const auto *button = qobject_cast<const QAbstractButton *>(control);
                    const QString text = label ? label->text() : button ? button->text() : QString();
                    if (control->window() != top || text.isEmpty())
                        continue;
                    // The part of the control in which its style draws the text.
                    QStyleOptionButton option;
                    option.initFrom(control);
                    const auto *push = qobject_cast<const QPushButton *>(control);
                    if (push && push->autoDefault())
                        option.features |= QStyleOptionButton::AutoDefaultButton;
                    const auto contents = push ? QStyle::SE_PushButtonContents : QStyle::SE_RadioButtonContents;
                    const QRect area
                        = label ? label->contentsRect() : control->style()->subElementRect(contents, &option, control);
                    const int wrap = label && label->wordWrap() ? Qt::TextWordWrap : 0;
                    const QRect needs = control->fontMetrics().boundingRect(area, wrap, text);
                    if (needs.width() > area.width() || needs.height() > area.height())
                        cut << u"%1 pt, %2 %3: "_s.arg(points).arg(top->objectName(), control->objectName())
                                + QString::asprintf("%dx%d in %dx%d", needs.width(), needs.height(), area.width(),
                                                    area.height());
                }
            }
        }
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u'\n')));
    }
};

QTEST_MAIN(SchriftTest)
#include "SchriftTest.moc"
