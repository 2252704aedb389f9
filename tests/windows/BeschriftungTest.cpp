// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A label that names a row of buttons, as a screen reader asks for it: each button is labelled by
// it and named by its text, the label is the label of all of them, and pressing works through the
// accessible interface, even where Qt had made an interface for a widget before the tie.
#include "windows/Beschriftung.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class BeschriftungTest : public QObject {
    Q_OBJECT

    // The names of what the widget's interface points to under that relation.
    static QStringList related(QWidget *widget, QAccessible::Relation relation)
    {
        QStringList names;
        for (const auto &[target, kind] : QAccessible::queryAccessibleInterface(widget)->relations(relation))
            names << target->text(QAccessible::Name) + (kind == relation ? u""_s : u"?"_s);
        return names;
    }

private Q_SLOTS:
    void buttonsAndLabelPointToEachOther()
    {
        QWidget row;
        auto *label = new QLabel(u"Darstellung:"_s, &row);
        const QList<QPushButton *> buttons{new QPushButton(u"kleiner"_s, &row), new QPushButton(u"größer"_s, &row)};
        (void)QAccessible::queryAccessibleInterface(buttons[0]); // one that Qt made before
        BeschrifteKnoepfe(label, buttons);
        QCOMPARE(related(label, QAccessible::Labelled), (QStringList{u"kleiner"_s, u"größer"_s}));
        for (QPushButton *button : buttons)
            QCOMPARE(related(button, QAccessible::Label), QStringList{u"Darstellung:"_s});

        QSignalSpy pressed(buttons[1], &QPushButton::clicked);
        QAccessibleInterface *button = QAccessible::queryAccessibleInterface(buttons[1]);
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(pressed.count(), 1);
    }
};

QTEST_MAIN(BeschriftungTest)
#include "BeschriftungTest.moc"
