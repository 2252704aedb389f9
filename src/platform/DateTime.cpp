// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateTime.h"

#include "System.h"

std::string DateTime::ToString() const
{
    return platform::FormatDateTime(*this);
}
