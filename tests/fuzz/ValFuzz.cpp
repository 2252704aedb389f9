// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any text a person can type into a score or carry-over field becomes a number: never NaN,
// cut toward zero, and inside the 64-bit range at its ends.
#include "platform/Text.h"

#include <cmath>
#include <cstdlib>
#include <cstdio>
#include <limits>

namespace {

void require(bool ok, const char *what)
{
    if (!ok) {
        std::fprintf(stderr, "property broken: %s\n", what);
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const double value = Val(text);
    require(!std::isnan(value), "Val gives a number");

    const std::int64_t cut = CutToInt64(value);
    constexpr double limit = 9223372036854775808.0;
    if (value >= limit) {
        require(cut == std::numeric_limits<std::int64_t>::max(), "large values stay at the top of the range");
    } else if (value < -limit) {
        require(cut == std::numeric_limits<std::int64_t>::min(), "small values stay at the bottom of the range");
    } else {
        require(static_cast<double>(cut) == std::trunc(value), "cut toward zero");
        require(std::fabs(static_cast<double>(cut)) <= std::fabs(value), "never away from zero");
    }

    // Leading blanks and whatever follows a number change nothing.
    std::string padded = "  \t";
    padded.append(text);
    require(Val(padded) == value, "blanks in front");

    // Str and Val agree on every whole number a double holds exactly.
    if (std::fabs(static_cast<double>(cut)) < 9007199254740992.0)
        require(ZahlAusText(Str(cut)) == cut, "Str and Val agree");
    return 0;
}
