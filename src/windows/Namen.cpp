// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Namen.h"

#include "ledger/Eingabe.h"
#include "platform/QtText.h"
#include "windows/Tabellenmass.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <limits>

using namespace Qt::StringLiterals;

Namen::Namen(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , StaticText1(new QLabel(u"Spieler 1:"_s, this))
    , StaticText2(new QLabel(u"Spieler 2:"_s, this))
    , StaticText3(new QLabel(u"Spieler 3:"_s, this))
    , StaticText4(new QLabel(u"Spieler 4:"_s, this))
    , Name_1(new QLineEdit(this))
    , Name_2(new QLineEdit(this))
    , Name_3(new QLineEdit(this))
    , Name_4(new QLineEdit(this))
    , Abbruch_Name(new QPushButton(u"Abbruch"_s, this))
    , OK_Name(new QPushButton(u"OK"_s, this))
    , Uebertrag_1(new QLineEdit(this))
    , Uebertrag_2(new QLineEdit(this))
    , Uebertrag_3(new QLineEdit(this))
    , Uebertrag_4(new QLineEdit(this))
    , StaticText5(new QLabel(u"Namen:"_s, this))
    , StaticText6(new QLabel(u"ggfs. Übertrag:"_s, this))
{
    Layout();
}

void Namen::Layout()
{
    setObjectName(u"Namen"_s);
    setWindowTitle(u"Namen der MitspielerInnen"_s);
    FesteGroesse(this, {333, 231});
    setModal(true);

    const struct {
        QWidget *control;
        QString name;
        QRect geometrie;
    } controls[] = {
        {StaticText1, u"StaticText1"_s, {10, 55, 60, 16}},
        {StaticText2, u"StaticText2"_s, {10, 84, 60, 16}},
        {StaticText3, u"StaticText3"_s, {10, 113, 60, 16}},
        {StaticText4, u"StaticText4"_s, {10, 142, 60, 16}},
        {Name_1, u"Name_1"_s, {103, 52, 100, 22}},
        {Name_2, u"Name_2"_s, {103, 81, 100, 22}},
        {Name_3, u"Name_3"_s, {103, 110, 100, 22}},
        {Name_4, u"Name_4"_s, {103, 139, 100, 22}},
        {Abbruch_Name, u"Abbruch_Name"_s, {70, 189, 74, 20}},
        {OK_Name, u"OK_Name"_s, {209, 189, 74, 20}},
        {Uebertrag_1, u"Übertrag_1"_s, {231, 52, 80, 22}},
        {Uebertrag_2, u"Übertrag_2"_s, {231, 81, 80, 22}},
        {Uebertrag_3, u"Übertrag_3"_s, {231, 110, 80, 22}},
        {Uebertrag_4, u"Übertrag_4"_s, {231, 139, 80, 22}},
        {StaticText5, u"StaticText5"_s, {103, 25, 60, 16}},
        {StaticText6, u"StaticText6"_s, {211, 25, 100, 16}},
    };
    QWidget *vorher = nullptr;
    for (const auto &c : controls) {
        c.control->setObjectName(c.name);
        c.control->setGeometry(c.geometrie);
        SchriftInPixeln(c.control, 12);
        // The tab order is the order of creation: down the names, over the two buttons,
        // down the carry-overs. Labels take no focus.
        if (c.control->focusPolicy() != Qt::NoFocus) {
            if (vorher)
                setTabOrder(vorher, c.control);
            vorher = c.control;
        }
    }

    // A name or a carry-over may be of any length; a line edit would cut it at 32767.
    for (QLineEdit *feld : {Name_1, Name_2, Name_3, Name_4, Uebertrag_1, Uebertrag_2, Uebertrag_3, Uebertrag_4})
        feld->setMaxLength(std::numeric_limits<int>::max());

    // A screen reader names each field by its row and its column.
    const std::array namen{Name_1, Name_2, Name_3, Name_4},
        uebertraege{Uebertrag_1, Uebertrag_2, Uebertrag_3, Uebertrag_4};
    const std::array zeilen{StaticText1, StaticText2, StaticText3, StaticText4};
    for (std::size_t k = 0; k < 4; ++k) {
        namen[k]->setAccessibleName(zeilen[k]->text() + u" Name"_s);
        uebertraege[k]->setAccessibleName(zeilen[k]->text() + u" Übertrag"_s);
    }

    // Return in any field means OK; on a focused button it presses that button.
    OK_Name->setDefault(true);
    Name_1->setFocus();

    connect(Abbruch_Name, &QPushButton::clicked, this, &Namen::Abbruch_Name_Pressed);
    connect(OK_Name, &QPushButton::clicked, this, &Namen::OK_Name_Pressed);
}

void Namen::reject()
{
    Abbruch_Name_Pressed();
}

void Namen::Abbruch_Name_Pressed()
{
    QDialog::reject();
}

void Namen::OK_Name_Pressed()
{
    NamesForm form;
    const QLineEdit *const namen[] = {Name_1, Name_2, Name_3, Name_4};
    const QLineEdit *const uebertraege[] = {Uebertrag_1, Uebertrag_2, Uebertrag_3, Uebertrag_4};
    for (std::size_t k = 0; k < 4; ++k) {
        form.Name[k] = utf8(namen[k]->text());
        form.Uebertrag[k] = utf8(uebertraege[k]->text());
    }
    Namen_OK(Modul1, form);
    accept();
}
