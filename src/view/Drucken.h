// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sheet on paper. The page geometry is a set of fixed numbers in points (1/72 inch), the
// same for every paper size and printer: nothing reads the paper's real size. The text is
// wrapped at the block width, and each page carries one block of at most the block height,
// standing 36 points from the paper's left and upper edge.
#pragma once

class QPrinter;
class QString;
class QTextDocument;

namespace Druckseite {
inline constexpr int Breite = 540;
inline constexpr int Hoehe = 648;
inline constexpr int Randabzug = 48;
inline constexpr int BlockLinks = 36;
inline constexpr int BlockOben = 36;
inline constexpr int Blockbreite = Breite - Randabzug; // 492
inline constexpr int Blockhoehe = Hoehe - Randabzug; // 600
} // namespace Druckseite

// Prints a copy of the sheet on `printer`, which the print dialog (or a test) has set up,
// page by page: the styles and the sheet's font and size as on screen, the lines wrapped at
// the block width whatever the window's width, and a page break only between two whole
// lines. The sheet itself is not touched. Starts no page after the last one. Of the pages
// that this makes, it prints those of the printer's page range, in the printer's page order,
// and as many copies as the printer asks for and does not make itself.
void DruckeBlatt(const QTextDocument &blatt, QPrinter &printer);

// The print command: asks the installed print dialog where and how to print and prints the sheet
// there with DruckeBlatt, as the job `auftrag`, made by this program in this version.
void DruckeMitDialog(const QTextDocument &blatt, const QString &auftrag);
