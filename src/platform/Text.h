// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Numbers and names as the program reads and writes them: every number a person types
// goes through Val and is cut to a whole number; every number on the sheet comes from Str.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The number at the start of a text, read as a person types it: leading blanks, a sign,
// digits with at most one decimal point, an exponent. Whatever follows the number is
// ignored; a text that does not start with a number gives 0. Never fails.
double Val(std::string_view text);

// Cut toward zero to a signed 64-bit integer: 12.9 gives 12, -3.7 gives -3. Values beyond
// the range stay at its ends and NaN gives 0, so no double can reach an undefined cast.
std::int64_t CutToInt64(double value);

// The one conversion for scores and carry-overs: Val of the text, cut toward zero.
inline std::int64_t ZahlAusText(std::string_view text)
{
    return CutToInt64(Val(text));
}

// Plain decimal digits, "-" in front when negative, no separators, no padding.
std::string Str(std::int64_t value);

// The one equality for player names, wherever a stored name is matched with a player:
// settlement, the styles of the sheet and the preselection of the correction form.
// Exact, so "anna" and "Anna" are two players.
inline bool NameGleich(std::string_view a, std::string_view b)
{
    return a == b;
}
