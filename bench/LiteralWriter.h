// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The yardstick for the sheet's refresh: the sheet written into the text area the slow,
// word-for-word way, as a text area without a document model of its own has to do it. The
// whole former sheet is selected and replaced, and before each piece the caret is put to the
// end by reading the whole text back and taking its length; the styles are set on the
// caret, then the piece goes in. Only the benchmark uses it.
#pragma once

#include "view/Blatt.h"

class QTextEdit;

void writeSheetLiterally(QTextEdit &anzeige, const Blatt &blatt);
