// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Evenings made of arbitrary bytes: names (equal ones too), carry-overs, scores and choices of
// any value, entries and corrections in any order. However they come, every game's turnovers
// add up to 0 modulo 2^64, the sheet has 11 lines of head and 9 per game, and nothing reaches
// undefined behaviour. How a typed text becomes a number is ValFuzz's part.
#include "ledger/Eingabe.h"
#include "platform/Text.h"
#include "view/Blatt.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    FuzzedDataProvider bytes(data, size);
    // Any 64-bit number, in the digits that a field would hold.
    const auto zahl = [&bytes] { return Str(bytes.ConsumeIntegral<std::int64_t>()); };
    // Empty, which gives the player's default name, "X" or "XX": equal and distinct names both come often.
    const auto name = [&bytes] { return std::string(bytes.ConsumeIntegralInRange(0, 2), 'X'); };
    const auto abend = std::make_unique<Abend>(); // large: kept off the stack
    Namen_OK(*abend, {{name(), name(), name(), name()}, {zahl(), zahl(), zahl(), zahl()}});
    for (int spiele = bytes.ConsumeIntegralInRange(0, 99); spiele > 0 && bytes.remaining_bytes() > 0; --spiele) {
        // Choices 0 and 5 are no buttons: they read as player 4.
        const ResultForm form{
            {zahl(), zahl(), zahl(), zahl()}, bytes.ConsumeIntegralInRange(0, 5), bytes.ConsumeIntegralInRange(0, 5)};
        (bytes.ConsumeBool() && abend->Spiel_Nr > 0 ? Korrigieren_OK : Ergebnisse_OK)(*abend, form);
    }
    for (std::int64_t n = 1; n <= abend->Spiel_Nr; ++n) {
        std::uint64_t summe = 0;
        for (int k = 1; k <= 4; ++k)
            summe += static_cast<std::uint64_t>(abend->Umsatz(k)[n]);
        if (summe != 0)
            std::abort();
    }
    const std::string blatt = Volltext(Dokument(*abend, StandardUeberschriften(), "Courier", "12.03.2021").Stuecke);
    if (std::count(blatt.begin(), blatt.end(), CR) != 10 + 9 * abend->Spiel_Nr)
        std::abort();
    return 0;
}
