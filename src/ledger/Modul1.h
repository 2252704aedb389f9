// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The ledger of one evening: four names, the date, the carry-overs and, per game, who said
// Mah Jongg, who was East, the hand scores, the turnovers and the balances. It is plain data
// without an access layer; the windows read and write Modul1 directly, and the sheet is only
// a view of it. Nothing here is ever saved.
#pragma once

#include "platform/DateTime.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Row n of the per-game arrays is game n; row 0 is the carry-over row, where only the
// Stand arrays are used. So an evening holds 99 games, not 100.
inline constexpr std::int64_t ZeilenProAbend = 100;
inline constexpr std::int64_t HoechstesSpiel = ZeilenProAbend - 1;

template<typename T>
using ProSpiel = std::array<T, ZeilenProAbend>;

struct Abend {
    std::string Spieler1, Spieler2, Spieler3, Spieler4;
    ProSpiel<std::string> Osten{};
    ProSpiel<std::string> Mahjongg{};
    ProSpiel<std::int64_t> Ergebnis_1{}, Ergebnis_2{}, Ergebnis_3{}, Ergebnis_4{};
    std::int64_t Spiel_Nr = 0;
    ProSpiel<std::int64_t> Umsatz_1{}, Umsatz_2{}, Umsatz_3{}, Umsatz_4{};
    ProSpiel<std::int64_t> Stand_1{}, Stand_2{}, Stand_3{}, Stand_4{};
    bool Gute_Eingabe = false;
    std::uint8_t DruckKnopf = 0;
    std::optional<DateTime> Tagesdatum;

    friend bool operator==(const Abend &, const Abend &) = default;

    // Player k (1 to 4) as one of the four fields above.
    const std::string &Spieler(int k) const;
    std::string &Spieler(int k);
    ProSpiel<std::int64_t> &Ergebnis(int k);
    const ProSpiel<std::int64_t> &Ergebnis(int k) const;
    ProSpiel<std::int64_t> &Umsatz(int k);
    const ProSpiel<std::int64_t> &Umsatz(int k) const;
    ProSpiel<std::int64_t> &Stand(int k);
    const ProSpiel<std::int64_t> &Stand(int k) const;
};

// The evening of this run. It exists before any window and lives until the program ends.
inline Abend Modul1;

// The name a player has until the names dialog gives another one: "Spieler 1" to "Spieler 4".
std::string StandardName(int k);

// Whether a font of that name is installed, asked of the platform's font list.
bool FontAvailable(std::string_view name);

// The one choice of a font, for the sheet ("Courier") and the about window ("Palatino"): the
// named font where it is installed, else the desktop's general font, platform::SystemFont.
std::string SchriftOderSystem(std::string_view name);

// What the evening offers at a number of games: names and carry-overs only before the first
// game, a new game while a row is left, correction and restart once there is a game.
struct Freigabe {
    bool Namen;
    bool Ergebnisse;
    bool Korrektur;
    bool Neustart;
};
Freigabe FreigabeBei(std::int64_t spielNr);

// The data half of a restart: no games, every row cleared (the carry-overs too), a new
// date. The names stay, and so do Gute_Eingabe and DruckKnopf.
void NeustartDaten(Abend &abend);
