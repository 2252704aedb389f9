// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Settlement of one game: from who said Mah Jongg, who was East and the four hand scores
// of the last game, what each player receives or pays, and the new balances.
#pragma once

#include "ledger/Modul1.h"

// The one message of the program's own: a game whose turnovers do not add up to 0.
inline constexpr std::string_view Rechenfehler = "Da ist ein Rechenfehler aufgetreten!";

// Settles game Spiel_Nr: writes its four turnovers and its four balances, built on the
// balances of the game before (for game 1 the carry-overs), and nothing else. When the
// turnovers do not add up to 0 the user hears a beep and reads Rechenfehler.
void Rechnen(Abend &abend);
