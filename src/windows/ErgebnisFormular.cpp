// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/ErgebnisFormular.h"

#include "platform/QtText.h"
#include "windows/Tabellenmass.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// The player whose button is on: the first of players 1 to 3, else player 4.
int Gewaehlt(const std::array<QRadioButton *, 4> &gruppe)
{
    for (int k = 0; k < 3; ++k) {
        if (gruppe[k]->isChecked())
            return k + 1;
    }
    return 4;
}

// Radio buttons stand inside their group box, whose own place is given in window coordinates.
QRect Innerhalb(QRect geometrie, QRect box)
{
    return geometrie.translated(-box.topLeft());
}

} // namespace

ErgebnisFormular::ErgebnisFormular(const FormularLayout &layout, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , GroupBox1(new QGroupBox(this))
    , GroupBox2(new QGroupBox(this))
    , OK(new QPushButton(u"OK"_s, this))
    , Cancel(new QPushButton(u"Abbruch"_s, this))
    , Label1(new QLabel(layout.label1Text, this))
{
    setWindowTitle(layout.titel);
    FesteGroesse(this, layout.groesse);
    setModal(true);

    GroupBox1->setObjectName(u"GroupBox1"_s);
    GroupBox1->setGeometry(layout.groupBox1);
    GroupBox2->setObjectName(u"GroupBox2"_s);
    GroupBox2->setGeometry(layout.groupBox2);
    for (int k = 0; k < 4; ++k) {
        const QString nummer = QString::number(k + 1);
        Mahjongg[k] = new QRadioButton(u"Mah Jongg"_s, GroupBox1);
        Mahjongg[k]->setObjectName(u"Mahjongg_"_s + nummer);
        Mahjongg[k]->setGeometry(Innerhalb(layout.mahjongg[k], layout.groupBox1));
        Osten[k] = new QRadioButton(u"Osten"_s, GroupBox2);
        Osten[k]->setObjectName(u"Osten_"_s + nummer);
        Osten[k]->setGeometry(Innerhalb(layout.osten[k], layout.groupBox2));
    }
    Mahjongg[0]->setChecked(true);
    Osten[0]->setChecked(true);
    for (int k = 0; k < 4; ++k) {
        Felder[k] = new QLineEdit(this);
        Felder[k]->setObjectName(layout.feldName + QString::number(k + 1));
        Felder[k]->setGeometry(layout.felder[k]);
        // A score is never refused, however long its text; a line edit would cut it at 32767.
        Felder[k]->setMaxLength(std::numeric_limits<int>::max());
    }
    for (int k = 0; k < 4; ++k) {
        Spieler[k] = new QLabel(u"Spieler %1:"_s.arg(k + 1), this);
        Spieler[k]->setObjectName(u"Spieler_"_s + QString::number(k + 1));
        Spieler[k]->setGeometry(layout.spieler[k]);
    }
    OK->setObjectName(u"OK"_s);
    OK->setGeometry(layout.ok);
    // Return in a field means OK; on a focused button it presses that button.
    OK->setDefault(true);
    Cancel->setObjectName(u"Cancel"_s);
    Cancel->setGeometry(layout.cancel);
    Label1->setObjectName(u"Label1"_s);
    Label1->setGeometry(layout.label1);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setWordWrap(true);
    // The request above the rows has the system's size; everything else the table's 12.
    const QList<QWidget *> controls = findChildren<QWidget *>();
    for (QWidget *control : controls) {
        if (control != Label1)
            SchriftInPixeln(control, 12);
    }
    SchriftDesDesktops(Label1);

    // Tab order as the form reads: the two button groups, the scores from the top, OK, Abbruch.
    const std::vector<QWidget *> reihe = Tabfolge();
    for (std::size_t i = 1; i < reihe.size(); ++i)
        setTabOrder(reihe[i - 1], reihe[i]);
    // The scores are what the user types first after a game.
    Felder[0]->setFocus();

    Benennen();
    connect(OK, &QPushButton::clicked, this, &ErgebnisFormular::OK_Pressed);
    connect(Cancel, &QPushButton::clicked, this, &ErgebnisFormular::Cancel_Pressed);
}

void ErgebnisFormular::SpielerSetzen(const Abend &abend)
{
    for (int k = 0; k < 4; ++k)
        Spieler[k]->setText(qs(abend.Spieler(k + 1)) + u':');
    Benennen();
}

void ErgebnisFormular::Benennen()
{
    // A screen reader announces a field and a radio button, whose text stands four times, by the
    // player beside it; the two groups by what they choose, as their columns do.
    GroupBox1->setAccessibleName(u"Mah Jongg"_s);
    GroupBox2->setAccessibleName(u"Osten"_s);
    for (int k = 0; k < 4; ++k) {
        const QString spieler = Spieler[k]->text() + u' ';
        Felder[k]->setAccessibleName(spieler + u"Ergebnis"_s);
        Mahjongg[k]->setAccessibleName(spieler + Mahjongg[k]->text());
        Osten[k]->setAccessibleName(spieler + Osten[k]->text());
    }
}

std::vector<QWidget *> ErgebnisFormular::Tabfolge() const
{
    std::vector<QWidget *> reihe(Mahjongg.begin(), Mahjongg.end());
    reihe.insert(reihe.end(), Osten.begin(), Osten.end());
    reihe.insert(reihe.end(), Felder.begin(), Felder.end());
    reihe.insert(reihe.end(), {OK, Cancel});
    return reihe;
}

bool ErgebnisFormular::focusNextPrevChild(bool next)
{
    const std::vector<QWidget *> reihe = Tabfolge();
    const auto hier = std::find(reihe.begin(), reihe.end(), focusWidget());
    if (hier == reihe.end())
        return QDialog::focusNextPrevChild(next);
    const auto n = static_cast<std::ptrdiff_t>(reihe.size());
    QWidget *ziel = reihe[static_cast<std::size_t>(((hier - reihe.begin()) + (next ? 1 : n - 1)) % n)];
    // A group is entered at its checked button, from either side; inside it Tab goes on button by
    // button, so that Tab and Space alone reach every player.
    for (const auto &gruppe : {Mahjongg, Osten}) {
        const auto drin = [&gruppe](QWidget *w) { return std::find(gruppe.begin(), gruppe.end(), w) != gruppe.end(); };
        if (drin(ziel) && !drin(*hier))
            ziel = gruppe[static_cast<std::size_t>(Gewaehlt(gruppe) - 1)];
    }
    ziel->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

ResultForm ErgebnisFormular::Formular() const
{
    ResultForm form;
    for (int k = 0; k < 4; ++k)
        form.ScoreText[k] = utf8(Felder[k]->text());
    form.MahjonggChoice = Gewaehlt(Mahjongg);
    form.OstenChoice = Gewaehlt(Osten);
    return form;
}

void ErgebnisFormular::FormularSetzen(const ResultForm &form)
{
    for (int k = 0; k < 4; ++k)
        Felder[k]->setText(qs(form.ScoreText[k]));
    Mahjongg[std::clamp(form.MahjonggChoice, 1, 4) - 1]->setChecked(true);
    Osten[std::clamp(form.OstenChoice, 1, 4) - 1]->setChecked(true);
    // Typing replaces the old score at once.
    Felder[0]->selectAll();
}

void ErgebnisFormular::reject()
{
    Cancel_Pressed();
}

void ErgebnisFormular::Cancel_Pressed()
{
    Eingabe_Abbruch(Modul1);
    QDialog::reject();
}
