// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Fonts.h"

namespace platform {

int FontCount()
{
    FontService *service = Installed<FontService>::current();
    return service ? service->count() : 0;
}

std::string FontAt(int index)
{
    FontService *service = Installed<FontService>::current();
    return service ? service->at(index) : std::string();
}

} // namespace platform
