// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The beep by which the program tells the user that something did not go.
#pragma once

#include "platform/Service.h"

namespace platform {

class BeepService : public Service {
public:
    virtual void beep() = 0;
};

// Sounds the installed beep; silent while none is installed.
void Beep();

} // namespace platform
