// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any text a person can type into a score or carry-over field becomes a number: never NaN,
// cut toward zero, inside the 64-bit range at its ends, and Str gives it back.
#include "platform/Text.h"

#include <cmath>
#include <cstdlib>
#include <limits>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    const double value = Val(text), top = 9223372036854775808.0;
    const std::int64_t cut = CutToInt64(value);
    const bool inRange = value >= top ? cut == std::numeric_limits<std::int64_t>::max()
        : value < -top                ? cut == std::numeric_limits<std::int64_t>::min()
                                      : static_cast<double>(cut) == std::trunc(value);
    // Blanks in front change nothing; Str and Val agree on every whole number a double holds exactly.
    if (std::isnan(value) || !inRange || Val(" \t" + text) != value
        || (std::fabs(value) < 9007199254740992.0 && ZahlAusText(Str(cut)) != cut))
        std::abort();
    return 0;
}
