// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Evenings made of arbitrary bytes: names (equal ones too), carry-overs, scores and choices of
// any value, entries and corrections. However they come, every game's turnovers add up to 0
// modulo 2^64, the sheet has 11 lines of head and 9 per game, and nothing reaches undefined
// behaviour.
#include "ledger/Eingabe.h"
#include "platform/Text.h"
#include "view/Blatt.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {

// The fuzzer's bytes in the order they are asked for, then zeros.
struct Bytes {
    const unsigned char *data;
    std::size_t size, pos = 0;

    unsigned char byte() { return pos < size ? data[pos++] : 0; }

    std::int64_t zahl()
    {
        std::uint64_t u = 0;
        for (int i = 0; i < 8; ++i)
            u = u << 8 | byte();
        return static_cast<std::int64_t>(u);
    }

    // Any bytes but CR, which would add a line to the sheet.
    std::string text()
    {
        std::string s(byte() % 12, ' ');
        std::generate(s.begin(), s.end(), [this] { return static_cast<char>(byte()); });
        std::replace(s.begin(), s.end(), CR, ' ');
        return s;
    }

    std::string name() { return byte() % 3 == 0 ? std::string("X") : text(); } // so that names are often equal

    // A score as it might be typed: the plain number, junk, or the number inside some text.
    std::string score()
    {
        const int art = byte() % 4;
        return art == 1 ? text()
            : art == 2  ? " " + Str(zahl()) + ".9e" + Str(byte() % 30) + text()
                        : Str(art == 0 ? zahl() : zahl() % 100000);
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    Bytes bytes{data, size};
    const auto abend = std::make_unique<Abend>(); // large: kept off the stack
    Namen_OK(*abend, {{bytes.name(), bytes.name(), bytes.name(), bytes.name()},
                      {bytes.score(), bytes.score(), bytes.score(), bytes.score()}});
    for (int spiele = bytes.byte() % 100; spiele > 0 && bytes.pos < size; --spiele) {
        // Choices 0 and 5 are no buttons: they read as player 4.
        const ResultForm form{{bytes.score(), bytes.score(), bytes.score(), bytes.score()}, bytes.byte() % 6,
                              bytes.byte() % 6};
        (bytes.byte() % 4 == 0 && abend->Spiel_Nr > 0 ? Korrigieren_OK : Ergebnisse_OK)(*abend, form);
    }
    const std::string blatt = Volltext(Dokument(*abend, StandardUeberschriften(), "Courier", "12.03.2021").Stuecke);
    bool gut = std::count(blatt.begin(), blatt.end(), CR) == 10 + 9 * abend->Spiel_Nr;
    for (std::int64_t n = 1; n <= abend->Spiel_Nr; ++n)
        gut = gut && std::uint64_t(abend->Umsatz_1[n]) + std::uint64_t(abend->Umsatz_2[n])
                    + std::uint64_t(abend->Umsatz_3[n]) + std::uint64_t(abend->Umsatz_4[n]) == 0;
    if (!gut)
        std::abort();
    return 0;
}
