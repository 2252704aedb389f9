// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Settlement of one game, held against the rule it comes from: every pair of players settles
// once, East's pairs weigh double; the winner receives his own score from each other player,
// two losers settle the difference of theirs.

#include "ledger/Rechnen.h"
#include "platform/Beep.h"
#include "platform/MessageBox.h"

#include <QTest>

#include <limits>
#include <numeric>
#include <random>

namespace {

using namespace Qt::StringLiterals;
using Vier = QList<qint64>;
constexpr qint64 Max = std::numeric_limits<qint64>::max(), Min = std::numeric_limits<qint64>::min();
const QStringList Namen{"Anna", "Bert", "Carl", "Dora"};

// Turnovers by the pair rule where winner and East are players (0 to 3), the stale ones where either is
// nobody (-1); then the balances built on `vorher`. Money wraps in 64 bits.
Vier NachRegel(qsizetype winner, qsizetype east, const Vier &s, const Vier &stale, const Vier &vorher)
{
    Vier ergebnis = winner < 0 || east < 0 ? stale + stale : Vier(8, 0);
    for (int a = 0; a < 4; ++a) {
        for (int b = 0; b < 4 && winner >= 0 && east >= 0; ++b) {
            const std::uint64_t gewicht = (a == east || b == east) ? 2 : 1, sa = s[a], sb = s[b];
            const std::uint64_t betrag = b == a ? 0 : gewicht * (a == winner ? sa : b == winner ? 0 - sb : sa - sb);
            ergebnis[a] = qint64(ergebnis[a] + betrag), ergebnis[a + 4] = qint64(ergebnis[a + 4] + betrag);
        }
        ergebnis[a + 4] = qint64(ergebnis[a + 4] + std::uint64_t(vorher[a]));
    }
    return ergebnis;
}

// Hears beeps and messages in the order they come.
struct Alarme final : platform::Installed<platform::BeepService>, platform::Installed<platform::MessageService> {
    void beep() override { log << u"beep"_s; }
    void show(std::string_view text) override { log << QString::fromUtf8(text); }
    QStringList log;
};

// Settles game n with scores `s` on the balances `v` of the game before, while the row still holds
// the turnovers `u`, and checks every row, read by field name, so that a mix-up of fields, a stray
// write or a read of the wrong row shows. `spieler`: the four players' names, then winner and East.
void Pruefe(const QStringList &spieler, const Vier &s, const Vier &v, const Vier &u, const Vier &erwartet, bool alarm,
            std::int64_t n)
{
    const Alarme gehoert;
    Abend a;
    a.Spieler1 = spieler[0].toStdString(), a.Spieler2 = spieler[1].toStdString();
    a.Spieler3 = spieler[2].toStdString(), a.Spieler4 = spieler[3].toStdString();
    a.Spiel_Nr = n, a.Mahjongg[n] = spieler[4].toStdString(), a.Osten[n] = spieler[5].toStdString();
    a.Ergebnis_1[n] = s[0], a.Ergebnis_2[n] = s[1], a.Ergebnis_3[n] = s[2], a.Ergebnis_4[n] = s[3];
    a.Stand_1[n - 1] = v[0], a.Stand_2[n - 1] = v[1], a.Stand_3[n - 1] = v[2], a.Stand_4[n - 1] = v[3];
    a.Umsatz_1[n] = u[0], a.Umsatz_2[n] = u[1], a.Umsatz_3[n] = u[2], a.Umsatz_4[n] = u[3];
    Rechnen(a);
    for (std::int64_t i = 0; i < ZeilenProAbend; ++i)
        QCOMPARE(Vier({a.Umsatz_1[i], a.Umsatz_2[i], a.Umsatz_3[i], a.Umsatz_4[i], a.Stand_1[i], a.Stand_2[i],
                       a.Stand_3[i], a.Stand_4[i]}),
                 i == n ? erwartet : Vier(4, 0) + (i == n - 1 ? v : Vier(4, 0)));
    QCOMPARE(gehoert.log, (alarm ? QStringList{u"beep"_s, u"Da ist ein Rechenfehler aufgetreten!"_s} : QStringList()));
}

} // namespace

class RechnenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Each winner/East case, then equal names and names of nobody (the rule itself is worked by hand in the
    // sheet's example evening), each with the turnovers that the row held before.
    void settlesByThePairRule_data()
    {
        QTest::addColumn<QStringList>("rollen"); // the four players, winner and East
        QTest::addColumn<Vier>("stale");
        const Vier s10{1, 2, 3, 4};
        for (const QString &winner : Namen) {
            for (const QString &east : Namen)
                QTest::addRow("%s wins, %s is East", qPrintable(winner), qPrintable(east))
                    << Namen + QStringList{winner, east} << s10;
        }
        QTest::newRow("of two equal names the lower-numbered player wins")
            << QStringList{"Anna", "Anna", "Carl", "Dora", "Anna", "Carl"} << s10;
        QTest::newRow("of two equal names the lower-numbered player is East")
            << QStringList{"Anna", "Bert", "Carl", "Bert", "Carl", "Bert"} << s10;
        QTest::newRow("an East of nobody keeps stale turnovers that add up to 0, wrapped")
            << (Namen + QStringList{"Anna", "Zoe"}) << Vier{Max, Max, 1, 1};
        QTest::newRow("a winner of nobody keeps stale turnovers, which alarm")
            << (Namen + QStringList{"Zoe", "Anna"}) << s10;
        QTest::newRow("letter case counts") << (Namen + QStringList{"anna", "Anna"}) << Vier{Max, 1, 0, 0};
    }

    // In rows all over the evening, on balances that wrap as well: zeros, the ends of the range, then
    // scores from a fixed sequence, each small, near an end or anything. Of two equal names the
    // lower-numbered player takes the role; the alarm sounds when the turnovers do not add up to 0.
    void settlesByThePairRule()
    {
        QFETCH(QStringList, rollen);
        QFETCH(Vier, stale);
        const qsizetype winner = rollen.first(4).indexOf(rollen[4]), east = rollen.first(4).indexOf(rollen[5]);
        const bool alarm = (winner < 0 || east < 0) && std::accumulate(stale.begin(), stale.end(), std::uint64_t(0));
        std::mt19937_64 zufall(20210312 + 4 * winner + east);
        const auto zahl = [&zufall] {
            const std::uint64_t r = zufall();
            const qint64 nah = qint64(r % 100), art[4] = {qint64(zufall()), nah * 20 - 1000, Max - nah, Min + nah};
            return art[r >> 62];
        };
        for (int j = 0; j < 60 && !QTest::currentTestFailed(); ++j) {
            const Vier s = j < 3 ? Vier(4, j == 0 ? 0 : j == 1 ? Max : Min) : Vier{zahl(), zahl(), zahl(), zahl()};
            const Vier vorher{zahl(), zahl(), zahl(), zahl()};
            Pruefe(rollen, s, vorher, stale, NachRegel(winner, east, s, stale, vorher), alarm,
                   j * 37 % HoechstesSpiel + 1);
        }
    }
};

QTEST_APPLESS_MAIN(RechnenTest)

#include "RechnenTest.moc"
