// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Evenings made of arbitrary bytes: names (equal ones too), carry-overs, scores and choices
// of any value. However they come, every game's turnovers add up to 0, every balance is the
// one before plus the turnover, the sheet has 11 lines of head and 9 per game, and nothing
// reaches undefined behaviour.
#include "ledger/Eingabe.h"
#include "ledger/Rechnen.h"
#include "platform/Text.h"
#include "view/Blatt.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

void require(bool ok, const char *what)
{
    if (!ok) {
        std::fprintf(stderr, "property broken: %s\n", what);
        std::abort();
    }
}

class Bytes {
public:
    Bytes(const unsigned char *data, std::size_t size)
        : m_data(data)
        , m_size(size)
    {
    }

    unsigned char byte() { return m_pos < m_size ? m_data[m_pos++] : 0; }

    std::int64_t zahl()
    {
        std::uint64_t u = 0;
        for (int i = 0; i < 8; ++i)
            u = u << 8 | byte();
        return static_cast<std::int64_t>(u);
    }

    // A short text of any bytes but the line end, so the sheet's line count stays countable.
    std::string text()
    {
        std::string s;
        const int length = byte() % 12;
        for (int i = 0; i < length; ++i) {
            const char c = static_cast<char>(byte());
            s += c == '\r' ? ' ' : c;
        }
        return s;
    }

    bool done() const { return m_pos >= m_size; }

private:
    const unsigned char *m_data;
    std::size_t m_size;
    std::size_t m_pos = 0;
};

// A score as it might be typed: the plain number, junk, or the number inside some text.
std::string scoreText(Bytes &bytes)
{
    switch (bytes.byte() % 4) {
    case 0:
        return Str(bytes.zahl());
    case 1:
        return bytes.text();
    case 2:
        return " " + Str(bytes.zahl()) + ".9e" + Str(bytes.byte() % 30) + bytes.text();
    default:
        return Str(bytes.zahl() % 100000);
    }
}

int lines(const std::vector<Stueck> &pieces)
{
    const std::string text = Volltext(pieces);
    return 1 + static_cast<int>(std::count(text.begin(), text.end(), CR));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    Bytes bytes(data, size);
    static Abend abend; // large: keep it off the stack
    abend = Abend{};

    NamenForm namen;
    for (auto &name : namen.Name) {
        // Every other evening has two or more equal names.
        name = bytes.byte() % 3 == 0 ? std::string("X") : bytes.text();
    }
    for (auto &uebertrag : namen.Uebertrag)
        uebertrag = scoreText(bytes);
    Namen_OK(abend, namen);

    const int spiele = bytes.byte() % 100;
    for (int i = 0; i < spiele && !bytes.done(); ++i) {
        ResultForm form;
        for (auto &score : form.ScoreText)
            score = scoreText(bytes);
        form.MahjonggChoice = bytes.byte() % 6; // 0 and 5 are not buttons: read as player 4
        form.OstenChoice = bytes.byte() % 6;
        if (bytes.byte() % 4 == 0 && abend.Spiel_Nr > 0)
            Korrigieren_OK(abend, form);
        else
            Ergebnisse_OK(abend, form);
    }

    for (std::int64_t n = 1; n <= abend.Spiel_Nr; ++n) {
        std::uint64_t summe = 0;
        for (int k = 1; k <= 4; ++k) {
            summe += static_cast<std::uint64_t>(abend.Umsatz(k)[n]);
            require(static_cast<std::uint64_t>(abend.Stand(k)[n])
                        == static_cast<std::uint64_t>(abend.Stand(k)[n - 1])
                            + static_cast<std::uint64_t>(abend.Umsatz(k)[n]),
                    "balance is the one before plus the turnover");
        }
        require(summe == 0, "turnovers of a game add up to 0");
    }

    const Blatt blatt = Dokument(abend, StandardUeberschriften(), "Courier", "12.03.2021, 19:30:00");
    require(lines(blatt.Stuecke) == 11 + 9 * static_cast<int>(abend.Spiel_Nr), "11 lines of head and 9 per game");
    return 0;
}
