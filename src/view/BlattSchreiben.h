// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Puts the sheet into the text area of the main window. The pieces keep their bold and
// italic; the size is never set per character, so the size the user chose for the area
// applies to the whole sheet and survives every rewrite.
#pragma once

#include "view/Blatt.h"

class QTextDocument;
class QTextEdit;

// The refresh: the former sheet goes whole, head and games come in the sheet's font, and
// the caret stands behind the last character.
void SchreibeBlatt(QTextEdit &anzeige, const Blatt &blatt);

// The restart: the area emptied, then the head alone, in the font the area already has.
void SchreibeKopf(QTextEdit &anzeige, const std::vector<Stueck> &kopf);

// The same writing on a bare document; an empty font name keeps the document's font.
void SchreibeStuecke(QTextDocument &dokument, const std::vector<Stueck> &stuecke, std::string_view schrift);
