// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ledger/Eingabe.h"

#include "ledger/Rechnen.h"
#include "platform/Text.h"

namespace {

void ZeileSchreiben(Abend &abend, std::int64_t n, const ResultForm &form)
{
    abend.Mahjongg[n] = NameDerWahl(abend, form.MahjonggChoice);
    abend.Osten[n] = NameDerWahl(abend, form.OstenChoice);
    for (int k = 1; k <= 4; ++k)
        abend.Ergebnis(k)[n] = ZahlAusText(form.ScoreText[k - 1]);
}

} // namespace

const std::string &NameDerWahl(const Abend &abend, int wahl)
{
    return abend.Spieler(wahl >= 1 && wahl <= 3 ? wahl : 4);
}

int WahlDesNamens(const Abend &abend, const std::string &name)
{
    for (int k = 1; k <= 3; ++k) {
        if (NameGleich(name, abend.Spieler(k)))
            return k;
    }
    return 4;
}

void Ergebnisse_OK(Abend &abend, const ResultForm &form)
{
    // The commands are disabled at 99 games; a 100th row does not exist.
    if (abend.Spiel_Nr < 0 || abend.Spiel_Nr >= HoechstesSpiel)
        return;
    abend.Gute_Eingabe = true;
    abend.Spiel_Nr += 1;
    ZeileSchreiben(abend, abend.Spiel_Nr, form);
    Rechnen(abend);
}

void Korrigieren_OK(Abend &abend, const ResultForm &form)
{
    if (abend.Spiel_Nr < 1 || abend.Spiel_Nr > HoechstesSpiel)
        return;
    abend.Gute_Eingabe = true;
    ZeileSchreiben(abend, abend.Spiel_Nr, form);
    Rechnen(abend);
}

void Eingabe_Abbruch(Abend &abend)
{
    abend.Gute_Eingabe = false;
}

ResultForm KorrekturFormular(const Abend &abend)
{
    ResultForm form;
    const std::int64_t n = abend.Spiel_Nr;
    if (n < 1 || n > HoechstesSpiel)
        return form;
    for (int k = 1; k <= 4; ++k)
        form.ScoreText[k - 1] = Str(abend.Ergebnis(k)[n]);
    form.MahjonggChoice = WahlDesNamens(abend, abend.Mahjongg[n]);
    form.OstenChoice = WahlDesNamens(abend, abend.Osten[n]);
    return form;
}

void Namen_OK(Abend &abend, const NamesForm &form)
{
    for (int k = 1; k <= 4; ++k) {
        const std::string &name = form.Name[k - 1];
        abend.Spieler(k) = name.empty() ? StandardName(k) : name;
    }
    for (int k = 1; k <= 4; ++k)
        abend.Stand(k)[0] = ZahlAusText(form.Uebertrag[k - 1]);
}
