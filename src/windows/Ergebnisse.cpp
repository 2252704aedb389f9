// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Ergebnisse.h"

using namespace Qt::StringLiterals;

namespace {

FormularLayout Platzierung()
{
    return {
        {523, 334},
        u" Ergebnisse eingeben: "_s,
        {256, 53, 142, 223},
        {406, 53, 104, 223},
        {{{278, 93, 107, 20}, {278, 141, 107, 20}, {278, 190, 107, 20}, {278, 238, 107, 20}}},
        {{{422, 93, 80, 20}, {422, 141, 80, 20}, {422, 190, 80, 20}, {422, 238, 80, 20}}},
        {{{142, 92, 80, 22}, {142, 140, 80, 22}, {142, 189, 80, 22}, {142, 237, 80, 22}}},
        {{{32, 95, 100, 16}, {32, 143, 100, 16}, {32, 192, 100, 16}, {32, 240, 100, 16}}},
        {299, 302, 74, 20},
        {163, 302, 74, 20},
        {60, 20, 420, 28},
        u"Bitte die Ergebnisse des letzten Spiels eingeben!"_s,
        u"Ergebnis"_s,
    };
}

} // namespace

Ergebnisse::Ergebnisse(QWidget *parent)
    : ErgebnisFormular(Platzierung(), parent)
{
    setObjectName(u"Ergebnisse"_s);
}

void Ergebnisse::OK_Pressed()
{
    Ergebnisse_OK(Modul1, Formular());
    accept();
}
