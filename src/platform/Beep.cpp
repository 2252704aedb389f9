// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Beep.h"

namespace platform {

void Beep()
{
    if (BeepService *service = Installed<BeepService>::current())
        service->beep();
}

} // namespace platform
