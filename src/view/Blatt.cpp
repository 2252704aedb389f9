// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Blatt.h"

#include "platform/Text.h"

#include <algorithm>

Ueberschriften StandardUeberschriften()
{
    return {"Nach jedem Spiel werden angezeigt: Ergebnis; Umsatz; neuer Kontostand",
            "Der Spieler, der Osten war, wird jeweils kursiv dargestellt.",
            "Der Spieler, der Mahjongg sagte, wird jeweils fett dargestellt."};
}

std::vector<Stueck> Kopf(const Abend &abend, const Ueberschriften &zeilen, std::string_view datum)
{
    std::string spielerliste{CR, CR};
    for (int k = 1; k <= 4; ++k) {
        if (k > 1)
            spielerliste += CR;
        spielerliste += abend.Spieler(k) + ":  " + Str(abend.Stand(k)[0]);
    }
    return {
        {"Tafelkasse (Test-Version); " + std::string(datum), true, false},
        {std::string{CR, CR} + zeilen.ueberschrift_1 + CR, false, false},
        {CR + zeilen.Ueberschrift_2, false, true},
        {CR + zeilen.Ueberschrift_3, true, false},
        {std::move(spielerliste), false, false},
    };
}

std::vector<Stueck> Spiele(const Abend &abend)
{
    std::vector<Stueck> stuecke;
    const std::int64_t letztes = std::min(abend.Spiel_Nr, HoechstesSpiel);
    if (letztes > 0)
        stuecke.reserve(static_cast<std::size_t>(letztes) * 5);
    for (std::int64_t n = 1; n <= letztes; ++n) {
        stuecke.push_back({std::string{CR, CR} + "Spiel Nr. " + Str(n) + CR + "  Mahjongg sagte: " + abend.Mahjongg[n]
                               + CR + "  Osten war: " + abend.Osten[n] + CR,
                           false, false});
        for (int p = 1; p <= 4; ++p) {
            const std::string &name = abend.Spieler(p);
            stuecke.push_back({std::string{CR} + "  " + name + "  " + Str(abend.Ergebnis(p)[n]) + "; "
                                   + Str(abend.Umsatz(p)[n]) + "; " + Str(abend.Stand(p)[n]),
                               NameGleich(abend.Mahjongg[n], name), NameGleich(abend.Osten[n], name)});
        }
    }
    return stuecke;
}

Blatt Dokument(const Abend &abend, const Ueberschriften &zeilen, std::string_view schrift, std::string_view datum)
{
    Blatt blatt{std::string(schrift), Kopf(abend, zeilen, datum)};
    std::vector<Stueck> spiele = Spiele(abend);
    blatt.Stuecke.insert(blatt.Stuecke.end(), std::make_move_iterator(spiele.begin()),
                         std::make_move_iterator(spiele.end()));
    return blatt;
}

std::string BlattSchrift()
{
    return SchriftOderSystem("Courier");
}

std::string Volltext(const std::vector<Stueck> &stuecke)
{
    std::string text;
    for (const Stueck &stueck : stuecke)
        text += stueck.Text;
    return text;
}
