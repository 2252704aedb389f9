// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Korrigieren.h"

using namespace Qt::StringLiterals;

namespace {

FormularLayout Platzierung()
{
    return {
        {519, 352},
        u"Korrektur letzte Eingabe"_s,
        {245, 59, 142, 223},
        {395, 59, 104, 223},
        {{{267, 99, 107, 20}, {267, 147, 107, 20}, {267, 196, 107, 20}, {267, 244, 107, 20}}},
        {{{411, 99, 80, 20}, {411, 147, 80, 20}, {411, 196, 80, 20}, {411, 244, 80, 20}}},
        {{{147, 91, 80, 22}, {147, 139, 80, 22}, {147, 188, 80, 22}, {147, 236, 80, 22}}},
        {{{37, 94, 100, 16}, {37, 142, 100, 16}, {37, 191, 100, 16}, {37, 239, 100, 16}}},
        {282, 311, 74, 20},
        {146, 311, 74, 20},
        {20, 20, 479, 27},
        u"Korrektur der letzten Eingabe:"_s,
        u"Korrektur"_s,
    };
}

} // namespace

Korrigieren::Korrigieren(QWidget *parent)
    : ErgebnisFormular(Platzierung(), parent)
{
    setObjectName(u"Korrigieren"_s);
}

void Korrigieren::OK_Pressed()
{
    Korrigieren_OK(Modul1, Formular());
    accept();
}
