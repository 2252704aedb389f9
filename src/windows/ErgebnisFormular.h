// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The form that the results and the correction dialog share: one row per player with the
// name, the score field, a Mah Jongg and an East button, and OK and Abbruch below. The two
// dialogs differ in their places, their texts and what OK does with the form.
#pragma once

#include "ledger/Eingabe.h"

#include <QDialog>

#include <array>
#include <vector>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

// Places and texts of one of the two dialogs, in window coordinates.
struct FormularLayout {
    QSize groesse;
    QString titel;
    QRect groupBox1, groupBox2;
    std::array<QRect, 4> mahjongg, osten, felder, spieler;
    QRect ok, cancel, label1;
    QString label1Text;
    QString feldName; // the score fields are named feldName1 to feldName4
};

class ErgebnisFormular : public QDialog {
    Q_OBJECT

public:
    // The labels of the rows: each player's name with ":" behind it.
    void SpielerSetzen(const Abend &abend);

    // What the form holds: the four score texts, and the first of players 1 to 3 whose
    // button is on, else player 4.
    ResultForm Formular() const;

    // Fills the score fields and turns on the two buttons of the form's choices.
    void FormularSetzen(const ResultForm &form);

    // Esc and every other way out but OK end as Abbruch does.
    void reject() override;

    QGroupBox *const GroupBox1;
    QGroupBox *const GroupBox2;
    std::array<QRadioButton *, 4> Mahjongg{};
    std::array<QRadioButton *, 4> Osten{};
    std::array<QLineEdit *, 4> Felder{};
    std::array<QLabel *, 4> Spieler{};
    QPushButton *const OK;
    QPushButton *const Cancel;
    QLabel *const Label1;

protected:
    ErgebnisFormular(const FormularLayout &layout, QWidget *parent);

    bool focusNextPrevChild(bool next) override;

    virtual void OK_Pressed() = 0;
    void Cancel_Pressed();

private:
    // The accessible names of the rows, after their labels.
    void Benennen();

    // The controls in the order in which Tab visits them.
    std::vector<QWidget *> Tabfolge() const;
};
