// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Tabellenmass.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>

using namespace Qt::StringLiterals;

void FesteGroesse(QWidget *fenster, QSize groesse)
{
    if (QGuiApplication::platformName().startsWith(u"wayland"_s)) {
        fenster->setMinimumSize(groesse);
        fenster->resize(groesse);
    } else {
        fenster->setFixedSize(groesse);
    }
}

void SchriftInPixeln(QWidget *control, int pixel)
{
    QFont schrift = control->font();
    schrift.setPixelSize(pixel);
    control->setFont(schrift);
}

namespace {

// Where the control draws its text: inside a button's frame, beside a radio button's circle, within
// a label's margins.
QRect textfeld(const QWidget *control)
{
    if (const auto *knopf = qobject_cast<const QAbstractButton *>(control)) {
        QStyleOptionButton option;
        option.initFrom(knopf);
        option.text = knopf->text();
        const auto *druckknopf = qobject_cast<const QPushButton *>(knopf);
        if (druckknopf && druckknopf->autoDefault())
            option.features |= QStyleOptionButton::AutoDefaultButton;
        if (druckknopf && druckknopf->isDefault())
            option.features |= QStyleOptionButton::DefaultButton;
        const auto inhalt = druckknopf ? QStyle::SE_PushButtonContents : QStyle::SE_RadioButtonContents;
        return knopf->style()->subElementRect(inhalt, &option, knopf);
    }
    return control->contentsRect();
}

QString text(const QWidget *control)
{
    if (const auto *knopf = qobject_cast<const QAbstractButton *>(control))
        return knopf->text();
    if (const auto *label = qobject_cast<const QLabel *>(control))
        return label->text();
    return {};
}

bool passt(const QWidget *control, const QFont &schrift)
{
    const QRect feld = textfeld(control);
    const auto *label = qobject_cast<const QLabel *>(control);
    const int umbruch = label && label->wordWrap() ? Qt::TextWordWrap : 0;
    const QRect braucht = QFontMetrics(schrift).boundingRect(feld, umbruch, text(control));
    return braucht.width() <= feld.width() && braucht.height() <= feld.height();
}

} // namespace

void SchriftDesDesktops(QWidget *control)
{
    QFont schrift = control->font();
    // One pixel at a time from the desktop's size down, so that the text stays as large as its
    // box allows; below a few pixels nobody reads it anyway.
    for (int pixel = QFontInfo(schrift).pixelSize(); pixel > 6 && !passt(control, schrift); --pixel)
        schrift.setPixelSize(pixel - 1);
    control->setFont(schrift);
}
