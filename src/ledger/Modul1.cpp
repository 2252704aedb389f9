// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ledger/Modul1.h"

#include "platform/Fonts.h"
#include "platform/Text.h"

namespace {

// The four fields of a player, picked by number; anything but 1 to 3 is player 4.
template<typename Self>
auto &Waehle(Self &a, auto Abend::*f1, auto Abend::*f2, auto Abend::*f3, auto Abend::*f4, int k)
{
    switch (k) {
    case 1:
        return a.*f1;
    case 2:
        return a.*f2;
    case 3:
        return a.*f3;
    default:
        return a.*f4;
    }
}

} // namespace

const std::string &Abend::Spieler(int k) const
{
    return Waehle(*this, &Abend::Spieler1, &Abend::Spieler2, &Abend::Spieler3, &Abend::Spieler4, k);
}

std::string &Abend::Spieler(int k)
{
    return Waehle(*this, &Abend::Spieler1, &Abend::Spieler2, &Abend::Spieler3, &Abend::Spieler4, k);
}

ProSpiel<std::int64_t> &Abend::Ergebnis(int k)
{
    return Waehle(*this, &Abend::Ergebnis_1, &Abend::Ergebnis_2, &Abend::Ergebnis_3, &Abend::Ergebnis_4, k);
}

const ProSpiel<std::int64_t> &Abend::Ergebnis(int k) const
{
    return Waehle(*this, &Abend::Ergebnis_1, &Abend::Ergebnis_2, &Abend::Ergebnis_3, &Abend::Ergebnis_4, k);
}

ProSpiel<std::int64_t> &Abend::Umsatz(int k)
{
    return Waehle(*this, &Abend::Umsatz_1, &Abend::Umsatz_2, &Abend::Umsatz_3, &Abend::Umsatz_4, k);
}

const ProSpiel<std::int64_t> &Abend::Umsatz(int k) const
{
    return Waehle(*this, &Abend::Umsatz_1, &Abend::Umsatz_2, &Abend::Umsatz_3, &Abend::Umsatz_4, k);
}

ProSpiel<std::int64_t> &Abend::Stand(int k)
{
    return Waehle(*this, &Abend::Stand_1, &Abend::Stand_2, &Abend::Stand_3, &Abend::Stand_4, k);
}

const ProSpiel<std::int64_t> &Abend::Stand(int k) const
{
    return Waehle(*this, &Abend::Stand_1, &Abend::Stand_2, &Abend::Stand_3, &Abend::Stand_4, k);
}

std::string StandardName(int k)
{
    return "Spieler " + Str(k);
}

bool FontAvailable(std::string_view name)
{
    // The count is asked anew at each pass, as the list may change while we look.
    for (int i = 0; i <= platform::FontCount() - 1; ++i) {
        if (NameGleich(platform::FontAt(i), name))
            return true;
    }
    return false;
}

std::string SchriftOderSystem(std::string_view name)
{
    return std::string(FontAvailable(name) ? name : platform::SystemFont);
}

Freigabe FreigabeBei(std::int64_t spielNr)
{
    if (spielNr == 0)
        return {true, true, false, false};
    if (spielNr < HoechstesSpiel)
        return {false, true, true, true};
    return {false, false, true, true};
}

void NeustartDaten(Abend &abend)
{
    abend.Spiel_Nr = 0;
    for (std::int64_t i = 0; i < ZeilenProAbend; ++i) {
        abend.Mahjongg[i].clear();
        abend.Osten[i].clear();
        for (int k = 1; k <= 4; ++k) {
            abend.Ergebnis(k)[i] = 0;
            abend.Umsatz(k)[i] = 0;
            abend.Stand(k)[i] = 0;
        }
    }
    abend.Tagesdatum = DateTime::Now();
}
