// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ledger/Rechnen.h"

#include "ledger/Wrapping.h"
#include "platform/Beep.h"
#include "platform/MessageBox.h"
#include "platform/Text.h"

namespace {

// One case of the settlement: the winner, East, and for each player the factors of the four
// hand scores in that player's turnover. Every pair of players settles once; East's pairs
// count double; the winner receives his own score from each loser, and two losers settle the
// difference of their scores. The cases stand in the order in which they are tested.
struct Fall {
    int mahjongg;
    int osten;
    int faktor[4][4];
};

constexpr Fall Faelle[16] = {
    {1, 1, {{+6, 0, 0, 0}, {-2, +2, -1, -1}, {-2, -1, +2, -1}, {-2, -1, -1, +2}}},
    {1, 2, {{+4, 0, 0, 0}, {-2, +4, -2, -2}, {-1, -2, +3, -1}, {-1, -2, -1, +3}}},
    {1, 3, {{+4, 0, 0, 0}, {-1, +3, -2, -1}, {-2, -2, +4, -2}, {-1, -1, -2, +3}}},
    {1, 4, {{+4, 0, 0, 0}, {-1, +3, -1, -2}, {-1, -1, +3, -2}, {-2, -2, -2, +4}}},
    {2, 1, {{+4, -2, -2, -2}, {0, +4, 0, 0}, {-2, -1, +3, -1}, {-2, -1, -1, +3}}},
    {2, 2, {{+2, -2, -1, -1}, {0, +6, 0, 0}, {-1, -2, +2, -1}, {-1, -2, -1, +2}}},
    {2, 3, {{+3, -1, -2, -1}, {0, +4, 0, 0}, {-2, -2, +4, -2}, {-1, -1, -2, +3}}},
    {2, 4, {{+3, -1, -1, -2}, {0, +4, 0, 0}, {-1, -1, +3, -2}, {-2, -2, -2, +4}}},
    {3, 1, {{+4, -2, -2, -2}, {-2, +3, -1, -1}, {0, 0, +4, 0}, {-2, -1, -1, +3}}},
    {3, 2, {{+3, -2, -1, -1}, {-2, +4, -2, -2}, {0, 0, +4, 0}, {-1, -2, -1, +3}}},
    {3, 3, {{+2, -1, -2, -1}, {-1, +2, -2, -1}, {0, 0, +6, 0}, {-1, -1, -2, +2}}},
    {3, 4, {{+3, -1, -1, -2}, {-1, +3, -1, -2}, {0, 0, +4, 0}, {-2, -2, -2, +4}}},
    {4, 1, {{+4, -2, -2, -2}, {-2, +3, -1, -1}, {-2, -1, +3, -1}, {0, 0, 0, +4}}},
    {4, 2, {{+3, -2, -1, -1}, {-2, +4, -2, -2}, {-1, -2, +3, -1}, {0, 0, 0, +4}}},
    {4, 3, {{+3, -1, -2, -1}, {-1, +3, -2, -1}, {-2, -2, +4, -2}, {0, 0, 0, +4}}},
    {4, 4, {{+2, -1, -1, -2}, {-1, +2, -1, -2}, {-1, -1, +2, -2}, {0, 0, 0, +6}}},
};

// The first case whose winner and East carry the names stored for game n. With two equal
// names the lower-numbered player takes the role, since the cases are tried in order.
const Fall *FindeFall(const Abend &abend, std::int64_t n)
{
    for (const Fall &fall : Faelle) {
        if (NameGleich(abend.Mahjongg[n], abend.Spieler(fall.mahjongg))
            && NameGleich(abend.Osten[n], abend.Spieler(fall.osten)))
            return &fall;
    }
    return nullptr;
}

} // namespace

void Rechnen(Abend &abend)
{
    const std::int64_t n = abend.Spiel_Nr;
    if (n < 1 || n > HoechstesSpiel)
        return; // no game to settle; the commands never let it come to this

    // A stored name that matches no player leaves the turnovers as they stand.
    if (const Fall *fall = FindeFall(abend, n)) {
        for (int k = 1; k <= 4; ++k) {
            std::int64_t umsatz = 0;
            for (int j = 1; j <= 4; ++j)
                umsatz = wrapping_add(umsatz, wrapping_mul(fall->faktor[k - 1][j - 1], abend.Ergebnis(j)[n]));
            abend.Umsatz(k)[n] = umsatz;
        }
    }

    std::int64_t summe = 0;
    for (int k = 1; k <= 4; ++k)
        summe = wrapping_add(summe, abend.Umsatz(k)[n]);
    if (summe != 0) {
        platform::Beep();
        platform::MessageBox(Rechenfehler);
    }

    for (int k = 1; k <= 4; ++k)
        abend.Stand(k)[n] = wrapping_add(abend.Stand(k)[n - 1], abend.Umsatz(k)[n]);
}
