// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the dialogs do to the ledger, without the dialogs: a result becomes a new game row,
// a correction rewrites the last row, names and carry-overs are taken before the first game.
// No input is ever refused: every text gives a number, and OK always counts.
#pragma once

#include "ledger/Modul1.h"

#include <array>
#include <string>

// What the results or the correction dialog holds when OK is pressed.
struct ResultForm {
    std::array<std::string, 4> ScoreText; // player 1 to 4, free text
    int MahjonggChoice = 1; // the player whose Mah Jongg button is on, 1 to 4
    int OstenChoice = 1; // the player whose East button is on, 1 to 4
};

// What the names dialog holds when OK is pressed.
struct NamesForm {
    std::array<std::string, 4> Name; // empty gives the player's default name back
    std::array<std::string, 4> Uebertrag; // carry-over texts
};

// The player name behind a choice: 1 to 3 are players 1 to 3, any other value player 4,
// as the radio buttons are read from the top and the fourth is never asked.
const std::string &NameDerWahl(const Abend &abend, int wahl);

// The way back, for the correction form: the first player (1 to 3) of that name, else 4.
int WahlDesNamens(const Abend &abend, const std::string &name);

// OK in the results dialog: Gute_Eingabe, one more game, its row written, settled.
void Ergebnisse_OK(Abend &abend, const ResultForm &form);

// OK in the correction dialog: the last row written again and settled again.
void Korrigieren_OK(Abend &abend, const ResultForm &form);

// Abbruch in either dialog: only Gute_Eingabe changes, to false.
void Eingabe_Abbruch(Abend &abend);

// The correction form as it opens: the scores, winner and East of the last game.
ResultForm KorrekturFormular(const Abend &abend);

// OK in the names dialog: the four names in turn, then the four carry-overs into row 0.
void Namen_OK(Abend &abend, const NamesForm &form);
