// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The correction dialog: the last game, filled in as it stands; OK writes it again and
// settles it again. Older games cannot be changed.
#pragma once

#include "windows/ErgebnisFormular.h"

class Korrigieren : public ErgebnisFormular {
    Q_OBJECT

public:
    explicit Korrigieren(QWidget *parent);

protected:
    void OK_Pressed() override;
};
