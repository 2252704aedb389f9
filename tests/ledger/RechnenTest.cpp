// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Settlement of one game, checked against the rule it comes from: every pair of players
// settles once, East's pairs double; the winner receives his own score, two losers settle
// the difference of theirs. The expected turnovers are worked out here pair by pair.

#include "ledger/Rechnen.h"
#include "support/Doubles.h"

#include <QTest>

#include <array>
#include <cstdint>
#include <limits>
#include <tuple>
#include <vector>

namespace {

using Vier = std::array<std::int64_t, 4>;
using Feld = ProSpiel<std::int64_t> Abend::*;

constexpr std::int64_t Max = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t Min = std::numeric_limits<std::int64_t>::min();

// The fields by name, not through the ledger's accessors, so a mix-up there would show here.
constexpr std::array<Feld, 4> Ergebnis{&Abend::Ergebnis_1, &Abend::Ergebnis_2, &Abend::Ergebnis_3, &Abend::Ergebnis_4};
constexpr std::array<Feld, 4> Umsatz{&Abend::Umsatz_1, &Abend::Umsatz_2, &Abend::Umsatz_3, &Abend::Umsatz_4};
constexpr std::array<Feld, 4> Stand{&Abend::Stand_1, &Abend::Stand_2, &Abend::Stand_3, &Abend::Stand_4};
constexpr std::array<std::string Abend::*, 4> Name{&Abend::Spieler1, &Abend::Spieler2, &Abend::Spieler3,
                                                   &Abend::Spieler4};

Vier lies(const Abend &a, const std::array<Feld, 4> &feld, std::int64_t n)
{
    return {(a.*feld[0])[n], (a.*feld[1])[n], (a.*feld[2])[n], (a.*feld[3])[n]};
}

void schreib(Abend &a, const std::array<Feld, 4> &feld, std::int64_t n, const Vier &v)
{
    for (std::size_t k = 0; k < 4; ++k)
        (a.*feld[k])[n] = v[k];
}

Abend abendMit(const QStringList &namen)
{
    Abend a;
    for (std::size_t k = 0; k < 4; ++k)
        a.*Name[k] = namen[qsizetype(k)].toStdString();
    return a;
}

// Game n with winner and East counted from 0.
void setzeSpiel(Abend &a, std::int64_t n, int winner, int east, const Vier &score)
{
    a.Mahjongg[n] = a.*Name[winner];
    a.Osten[n] = a.*Name[east];
    schreib(a, Ergebnis, n, score);
}

// What each player receives by the rule. Money on the table wraps in 64 bits, so the sums
// are taken unsigned.
Vier nachRegel(int winner, int east, const Vier &score)
{
    Vier umsatz{};
    for (int a = 0; a < 4; ++a) {
        std::uint64_t summe = 0;
        for (int b = 0; b < 4; ++b) {
            if (b == a)
                continue;
            const std::uint64_t gewicht = (a == east || b == east) ? 2 : 1;
            const auto sa = static_cast<std::uint64_t>(score[a]), sb = static_cast<std::uint64_t>(score[b]);
            summe += gewicht * (a == winner ? sa : b == winner ? 0 - sb : sa - sb);
        }
        umsatz[a] = static_cast<std::int64_t>(summe);
    }
    return umsatz;
}

Vier plus(const Vier &x, const Vier &y)
{
    Vier z{};
    for (std::size_t k = 0; k < 4; ++k)
        z[k] = static_cast<std::int64_t>(static_cast<std::uint64_t>(x[k]) + static_cast<std::uint64_t>(y[k]));
    return z;
}

QByteArray text(const Vier &v)
{
    return QByteArray::number(qint64(v[0])) + ", " + QByteArray::number(qint64(v[1])) + ", "
        + QByteArray::number(qint64(v[2])) + ", " + QByteArray::number(qint64(v[3]));
}

auto alleFelder(const Abend &a)
{
    return std::tie(a.Spieler1, a.Spieler2, a.Spieler3, a.Spieler4, a.Osten, a.Mahjongg, a.Ergebnis_1, a.Ergebnis_2,
                    a.Ergebnis_3, a.Ergebnis_4, a.Spiel_Nr, a.Umsatz_1, a.Umsatz_2, a.Umsatz_3, a.Umsatz_4, a.Stand_1,
                    a.Stand_2, a.Stand_3, a.Stand_4, a.Gute_Eingabe, a.DruckKnopf, a.Tagesdatum);
}

// Scores of every kind: zeros, equal losers, negatives, the ends of the range, and many
// from a fixed pseudo-random sequence, so that a failure can be found again.
std::vector<Vier> punktsaetze()
{
    std::vector<Vier> saetze{{0, 0, 0, 0},         {100, 20, 30, 40},    {0, 8, 8, 3},
                             {-50, 10, -20, 0},    {Max, Max, Max, Max}, {Min, Min, Min, Min},
                             {Max, Min, Max, Min}, {Min, Max, -1, 1},    {Max / 3, -(Max / 3), Max / 2, 7}};
    std::uint64_t state = 20210312;
    const auto splitmix = [&state] {
        std::uint64_t z = (state += 0x9e3779b97f4a7c15ULL);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
        return z ^ (z >> 31);
    };
    for (int i = 0; i < 300; ++i) {
        Vier s{};
        for (std::int64_t &x : s) {
            const std::uint64_t r = splitmix();
            const auto nah = static_cast<std::int64_t>(r % 100);
            const auto klein = static_cast<std::int64_t>(r % 2001) - 1000;
            const std::int64_t art[4] = {static_cast<std::int64_t>(splitmix()), klein, Max - nah, Min + nah};
            x = art[r >> 62];
        }
        saetze.push_back(s);
    }
    return saetze;
}

// Remembers for each message how many beeps came before it.
class MessageAfterBeeps final : public platform::MessageService {
public:
    explicit MessageAfterBeeps(const ScopedBeepCounter &counter) : beeps(counter) { platform::install(this); }
    ~MessageAfterBeeps() override { platform::install(static_cast<platform::MessageService *>(nullptr)); }
    void show(std::string_view text) override { shown.emplace_back(QString::fromUtf8(text), beeps.beeps); }
    const ScopedBeepCounter &beeps;
    std::vector<std::pair<QString, int>> shown;
};

const QStringList Namen{"Anna", "Bert", "Carl", "Dora"};

} // namespace

class RechnenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCaseFollowsThePairRule_data();
    void everyCaseFollowsThePairRule();
    void gamesWorkedByHand_data();
    void gamesWorkedByHand();
    void equalNamesGoToTheLowerPlayer_data();
    void equalNamesGoToTheLowerPlayer();
    void unmatchedNameKeepsStaleTurnovers_data();
    void unmatchedNameKeepsStaleTurnovers();
    void writesOnlyTheRowOfTheGame_data();
    void writesOnlyTheRowOfTheGame();
};

void RechnenTest::everyCaseFollowsThePairRule_data()
{
    QTest::addColumn<int>("winner");
    QTest::addColumn<int>("east");
    for (int w = 0; w < 4; ++w) {
        for (int e = 0; e < 4; ++e)
            QTest::addRow("Mah Jongg %d, East %d", w + 1, e + 1) << w << e;
    }
}

void RechnenTest::everyCaseFollowsThePairRule()
{
    QFETCH(int, winner);
    QFETCH(int, east);
    const ScopedBeepCounter beeps;
    const ScopedMessageRecorder messages;

    const std::vector<Vier> saetze = punktsaetze();
    for (std::size_t i = 0; i < saetze.size(); ++i) {
        Abend abend = abendMit(Namen);
        abend.Spiel_Nr = 1;
        // The set before as carry-overs, so that the balances wrap as well.
        const Vier &uebertrag = saetze[(i + saetze.size() - 1) % saetze.size()];
        schreib(abend, Stand, 0, uebertrag);
        setzeSpiel(abend, 1, winner, east, saetze[i]);

        Rechnen(abend);

        const Vier erwartet = nachRegel(winner, east, saetze[i]);
        const QByteArray satz = "score set " + QByteArray::number(qulonglong(i)) + " (" + text(saetze[i]) + "): ";
        QVERIFY2(lies(abend, Umsatz, 1) == erwartet, satz + "turnovers " + text(lies(abend, Umsatz, 1)));
        QVERIFY2(lies(abend, Stand, 1) == plus(uebertrag, erwartet), satz + "balances " + text(lies(abend, Stand, 1)));
    }
    // Whatever the scores, a game whose names match settles to 0 and raises no alarm.
    QCOMPARE(beeps.beeps, 0);
    QVERIFY(messages.messages.empty());
}

void RechnenTest::gamesWorkedByHand_data()
{
    QTest::addColumn<int>("winner");
    QTest::addColumn<int>("east");
    QTest::addColumn<Vier>("scores");
    QTest::addColumn<Vier>("turnovers");
    QTest::addColumn<Vier>("balances");

    // All on carry-overs of 50, -50, 0 and 0, so that game 1 shows it builds on them.
    QTest::newRow("1 wins, 2 East") << 0 << 1 << Vier{100, 20, 30, 40} << Vier{400, -260, -90, -50}
                                    << Vier{450, -310, -90, -50};
    QTest::newRow("3 wins as East") << 2 << 2 << Vier{10, 8, 50, 4} << Vier{-92, -98, 300, -110}
                                    << Vier{-42, -148, 300, -110};
    QTest::newRow("4 wins, 1 East") << 3 << 0 << Vier{10, 8, 50, 40} << Vier{-156, -86, 82, 160}
                                    << Vier{-106, -136, 82, 160};
}

void RechnenTest::gamesWorkedByHand()
{
    QFETCH(int, winner);
    QFETCH(int, east);
    QFETCH(Vier, scores);
    QFETCH(Vier, turnovers);
    QFETCH(Vier, balances);

    Abend abend = abendMit(Namen);
    schreib(abend, Stand, 0, {50, -50, 0, 0});
    abend.Spiel_Nr = 1;
    setzeSpiel(abend, 1, winner, east, scores);
    Rechnen(abend);
    QCOMPARE(text(lies(abend, Umsatz, 1)), text(turnovers));
    QCOMPARE(text(lies(abend, Stand, 1)), text(balances));
    QCOMPARE(text(lies(abend, Stand, 0)), text({50, -50, 0, 0}));
}

void RechnenTest::equalNamesGoToTheLowerPlayer_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("winnerName");
    QTest::addColumn<QString>("eastName");
    QTest::addColumn<int>("winner");
    QTest::addColumn<int>("east");

    const QStringList einsZwei{"Anna", "Anna", "Carl", "Dora"};
    QTest::newRow("1 and 2 alike, winner") << einsZwei << "Anna" << "Carl" << 0 << 2;
    QTest::newRow("1 and 2 alike, East") << einsZwei << "Dora" << "Anna" << 3 << 0;
    QTest::newRow("2 and 4 alike, both") << QStringList{"Anna", "Bert", "Carl", "Bert"} << "Bert" << "Bert" << 1 << 1;
    QTest::newRow("all four alike") << QStringList{"X", "X", "X", "X"} << "X" << "X" << 0 << 0;
}

void RechnenTest::equalNamesGoToTheLowerPlayer()
{
    QFETCH(QStringList, names);
    QFETCH(QString, winnerName);
    QFETCH(QString, eastName);
    QFETCH(int, winner);
    QFETCH(int, east);
    const ScopedBeepCounter beeps;

    Abend abend = abendMit(names);
    abend.Spiel_Nr = 1;
    abend.Mahjongg[1] = winnerName.toStdString();
    abend.Osten[1] = eastName.toStdString();
    // Four different scores, so that any other choice of player changes the turnovers.
    const Vier score{30, 12, -7, 5};
    schreib(abend, Ergebnis, 1, score);

    Rechnen(abend);
    QCOMPARE(text(lies(abend, Umsatz, 1)), text(nachRegel(winner, east, score)));
    QCOMPARE(beeps.beeps, 0);
}

void RechnenTest::unmatchedNameKeepsStaleTurnovers_data()
{
    QTest::addColumn<QString>("winnerName");
    QTest::addColumn<QString>("eastName");
    QTest::addColumn<Vier>("stale");
    QTest::addColumn<bool>("alarm");

    QTest::newRow("unknown winner, stale sum 0") << "Zoe" << "Anna" << Vier{5, -5, 3, -3} << false;
    QTest::newRow("unknown East, stale sum 0") << "Anna" << "Zoe" << Vier{5, -5, 3, -3} << false;
    QTest::newRow("empty names, nothing stale") << "" << "" << Vier{0, 0, 0, 0} << false;
    QTest::newRow("stale sum wraps to 0") << "Zoe" << "Zoe" << Vier{Max, Max, 1, 1} << false;
    QTest::newRow("unknown winner, stale sum 10") << "Zoe" << "Anna" << Vier{1, 2, 3, 4} << true;
    QTest::newRow("letter case differs, stale sum wraps") << "anna" << "Anna" << Vier{Max, 1, 0, 0} << true;
}

void RechnenTest::unmatchedNameKeepsStaleTurnovers()
{
    QFETCH(QString, winnerName);
    QFETCH(QString, eastName);
    QFETCH(Vier, stale);
    QFETCH(bool, alarm);
    const ScopedBeepCounter beeps;
    const MessageAfterBeeps messages(beeps);

    Abend abend = abendMit(Namen);
    abend.Spiel_Nr = 2;
    const Vier vorher{100, -20, 7, Min};
    schreib(abend, Stand, 1, vorher);
    abend.Mahjongg[2] = winnerName.toStdString();
    abend.Osten[2] = eastName.toStdString();
    schreib(abend, Ergebnis, 2, {40, 8, 16, 4});
    schreib(abend, Umsatz, 2, stale);

    Rechnen(abend);

    QCOMPARE(text(lies(abend, Umsatz, 2)), text(stale));
    QCOMPARE(text(lies(abend, Stand, 2)), text(plus(vorher, stale)));
    QCOMPARE(beeps.beeps, alarm ? 1 : 0);
    QCOMPARE(messages.shown.size(), std::size_t(alarm ? 1 : 0));
    if (alarm)
        QCOMPARE(messages.shown[0], std::make_pair(QStringLiteral("Da ist ein Rechenfehler aufgetreten!"), 1));
}

void RechnenTest::writesOnlyTheRowOfTheGame_data()
{
    QTest::addColumn<int>("game");
    QTest::newRow("first game") << 1;
    QTest::newRow("a game in the evening") << 5;
    QTest::newRow("last possible game") << 99;
}

void RechnenTest::writesOnlyTheRowOfTheGame()
{
    QFETCH(int, game);

    // Every entry of every row holds something different, so that any stray write shows.
    Abend vorher = abendMit(Namen);
    for (std::int64_t i = 0; i < ZeilenProAbend; ++i) {
        setzeSpiel(vorher, i, int(i % 4), int(i / 4 % 4), {i * 10 + 1, i * 10 + 2, -i, 7});
        schreib(vorher, Umsatz, i, {i + 1000, i + 2000, i + 3000, i + 4000});
        schreib(vorher, Stand, i, {i * 3, -i, i * i, 1 - i});
    }
    vorher.Spiel_Nr = game;
    vorher.Gute_Eingabe = true;
    vorher.DruckKnopf = 1;
    vorher.Tagesdatum = DateTime{FixedClock::Maerz2021};

    Abend erwartet = vorher;
    const Vier umsatz = nachRegel(game % 4, game / 4 % 4, {game * 10 + 1, game * 10 + 2, -game, 7});
    schreib(erwartet, Umsatz, game, umsatz);
    schreib(erwartet, Stand, game, plus(lies(vorher, Stand, game - 1), umsatz));

    Abend abend = vorher;
    Rechnen(abend);
    QVERIFY(alleFelder(abend) == alleFelder(erwartet));
    // A confirmed correction settles the same row twice; the second run must write the
    // same values, not add the turnovers once more.
    Rechnen(abend);
    QVERIFY(alleFelder(abend) == alleFelder(erwartet));
}

QTEST_APPLESS_MAIN(RechnenTest)

#include "RechnenTest.moc"
