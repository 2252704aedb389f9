// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The names dialog: before the first game the players give their names and the balances
// they bring from an earlier evening. It always opens empty; OK takes all eight fields into
// the ledger, an empty name giving the player's default back. Abbruch, Esc and the close box
// leave the ledger as it was.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

class Namen : public QDialog {
    Q_OBJECT

public:
    explicit Namen(QWidget *parent);

    // Esc and the close box end the dialog as Abbruch does.
    void reject() override;

    QLabel *const StaticText1;
    QLabel *const StaticText2;
    QLabel *const StaticText3;
    QLabel *const StaticText4;
    QLineEdit *const Name_1;
    QLineEdit *const Name_2;
    QLineEdit *const Name_3;
    QLineEdit *const Name_4;
    QPushButton *const Abbruch_Name;
    QPushButton *const OK_Name;
    QLineEdit *const Uebertrag_1;
    QLineEdit *const Uebertrag_2;
    QLineEdit *const Uebertrag_3;
    QLineEdit *const Uebertrag_4;
    QLabel *const StaticText5;
    QLabel *const StaticText6;

private:
    void Layout();

    void Abbruch_Name_Pressed();
    void OK_Name_Pressed();
};
