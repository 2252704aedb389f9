// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sheet as a document: the text of the evening, character by character, cut into
// pieces of one style each. It is a pure result of the ledger, the three explanatory lines,
// the font and the rendered date, so the same evening always reads the same. Lines end in a
// single CR; the last line has none.
#pragma once

#include "ledger/Modul1.h"

#include <string>
#include <string_view>
#include <vector>

inline constexpr char CR = '\r';

struct Stueck {
    std::string Text;
    bool Fett = false;
    bool Kursiv = false;

    friend bool operator==(const Stueck &, const Stueck &) = default;
};

// The three explanatory lines of the head, set once when the main window opens.
struct Ueberschriften {
    std::string ueberschrift_1; // plain
    std::string Ueberschrift_2; // italic: how East is shown
    std::string Ueberschrift_3; // bold: how Mah Jongg is shown

    friend bool operator==(const Ueberschriften &, const Ueberschriften &) = default;
};

Ueberschriften StandardUeberschriften();

struct Blatt {
    std::string Schrift; // the one font of the whole sheet
    std::vector<Stueck> Stuecke;
};

// The head: title and date, the explanatory lines, and each player with the carry-over.
std::vector<Stueck> Kopf(const Abend &abend, const Ueberschriften &zeilen, std::string_view datum);

// The blocks of games 1 to Spiel_Nr; East's line italic, the Mah Jongg line bold.
std::vector<Stueck> Spiele(const Abend &abend);

// Head and games in the given font.
Blatt Dokument(const Abend &abend, const Ueberschriften &zeilen, std::string_view schrift, std::string_view datum);

// The font of the sheet: "Courier" where it is installed, else the system font.
std::string BlattSchrift();

// The text of all pieces in a row.
std::string Volltext(const std::vector<Stueck> &stuecke);
