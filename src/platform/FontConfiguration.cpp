// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FontConfiguration.h"

#ifdef TAFELKASSE_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace platform {

FontConfiguration::FontConfiguration()
    : m_reader([] {
#ifdef TAFELKASSE_FONTCONFIG
        // What FcInit reads stays fontconfig's current configuration, which Qt's font database uses.
        FcInit();
#endif
    })
{ }

FontConfiguration::~FontConfiguration()
{
    waitUntilRead();
}

void FontConfiguration::waitUntilRead()
{
    if (m_reader.joinable())
        m_reader.join();
}

} // namespace platform
