// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The results dialog: after each game the user says who declared Mah Jongg, who was East
// and what each hand scored. It opens empty on player 1; OK adds the game and settles it.
#pragma once

#include "windows/ErgebnisFormular.h"

class Ergebnisse : public ErgebnisFormular {
    Q_OBJECT

public:
    explicit Ergebnisse(QWidget *parent);

protected:
    void OK_Pressed() override;
};
