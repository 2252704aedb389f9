// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The warning before a restart: one sentence, the desktop's warning icon, OK and Abbruch.
// The answer goes into Modul1.DruckKnopf (1 for OK, 0 for Abbruch), and the main window
// acts on it. Return confirms, or presses the button that has the focus; Esc and every other way
// out count as Abbruch.
#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

class Achtung : public QDialog {
    Q_OBJECT

public:
    explicit Achtung(QWidget *parent);

    void reject() override;

    QWidget *const Canvas1;
    QPushButton *const Abbruch;
    QPushButton *const OK;
    QLabel *const StaticText1;

private:
    void Layout();

    void Abbruch_Pressed();
    void OK_Pressed();
};
