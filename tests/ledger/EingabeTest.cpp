// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the dialogs do to the evening: a result becomes the next game, a correction rewrites
// the last game and nothing before it, Abbruch changes nothing, the names dialog replaces
// names and carry-overs, and a restart clears the evening but keeps the players.

#include "ledger/Eingabe.h"
#include "support/Doubles.h"

#include <QTest>

#include <limits>
#include <optional>
#include <tuple>

namespace {

using namespace Qt::StringLiterals;

auto alleFelder(const Abend &a)
{
    return std::tie(a.Spieler1, a.Spieler2, a.Spieler3, a.Spieler4, a.Osten, a.Mahjongg, a.Ergebnis_1, a.Ergebnis_2,
                    a.Ergebnis_3, a.Ergebnis_4, a.Spiel_Nr, a.Umsatz_1, a.Umsatz_2, a.Umsatz_3, a.Umsatz_4, a.Stand_1,
                    a.Stand_2, a.Stand_3, a.Stand_4, a.Gute_Eingabe, a.DruckKnopf, a.Tagesdatum);
}

void setzeNamen(Abend &a, const QStringList &namen)
{
    a.Spieler1 = namen[0].toStdString(), a.Spieler2 = namen[1].toStdString();
    a.Spieler3 = namen[2].toStdString(), a.Spieler4 = namen[3].toStdString();
}

// An evening as it opens, with carry-overs entered.
Abend frischerAbend()
{
    Abend a;
    setzeNamen(a, {"Spieler 1", "Spieler 2", "Spieler 3", "Spieler 4"});
    a.Stand_1[0] = 150, a.Stand_2[0] = -50, a.Stand_3[0] = 0, a.Stand_4[0] = -100;
    a.Tagesdatum = DateTime::Now();
    return a;
}

// Game i of a made-up evening: every winner and East in turn, scores of all kinds.
ResultForm formular(int i)
{
    return {{std::to_string(i * 7 % 50), i % 5 ? "-3.7" : "12.9", std::to_string(i), " 8 Punkte"}, i % 4 + 1,
            i / 4 % 4 + 1};
}

void spiele(Abend &a, int von, int bis)
{
    for (int i = von; i <= bis; ++i)
        Ergebnisse_OK(a, formular(i));
}

QString q(const std::string &text)
{
    return QString::fromStdString(text);
}

} // namespace

class EingabeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void okOnEmptyFormCountsAGame();
    void scoresAreCutTowardZero();
    void correctionWithoutChangeKeepsTheLedger();
    void correctionOfEastRewritesOnlyLastRow();
    void correctionAtTheLastPossibleGame();
    void cancelChangesNothingButTheFlag();
    void correctionFormShowsTheLastGame_data();
    void correctionFormShowsTheLastGame();
    void namesTwiceReplaceNamesAndCarryOvers();
    void restartAfterFullEveningKeepsNames();
    void fontAvailableLooksAtEveryFont_data();
    void fontAvailableLooksAtEveryFont();

private:
    std::optional<FixedClock> m_clock;
    std::optional<ScopedBeepCounter> m_beeps;
};

void EingabeTest::init()
{
    m_clock.emplace();
    m_beeps.emplace();
    Modul1 = frischerAbend();
}

void EingabeTest::cleanup()
{
    // Every game entered here names real players, so none of them may raise the alarm.
    QCOMPARE(m_beeps->beeps, 0);
    m_beeps.reset();
    m_clock.reset();
}

void EingabeTest::okOnEmptyFormCountsAGame()
{
    Ergebnisse_OK(Modul1, ResultForm{});

    QVERIFY(Modul1.Gute_Eingabe);
    QCOMPARE(Modul1.Spiel_Nr, 1);
    QCOMPARE(q(Modul1.Mahjongg[1]), u"Spieler 1"_s);
    QCOMPARE(q(Modul1.Osten[1]), u"Spieler 1"_s);
    QCOMPARE(std::tie(Modul1.Ergebnis_1[1], Modul1.Ergebnis_2[1], Modul1.Ergebnis_3[1], Modul1.Ergebnis_4[1]),
             std::make_tuple(0, 0, 0, 0));
    // Settled at once: nothing changes hands, so the balances are the carry-overs.
    QCOMPARE(std::tie(Modul1.Stand_1[1], Modul1.Stand_2[1], Modul1.Stand_3[1], Modul1.Stand_4[1]),
             std::make_tuple(150, -50, 0, -100));
}

void EingabeTest::scoresAreCutTowardZero()
{
    Modul1.Spiel_Nr = 4;
    Ergebnisse_OK(Modul1, {{"12.9", "-3.7", "abc", "7e0"}, 2, 3});

    QCOMPARE(Modul1.Spiel_Nr, 5);
    QCOMPARE(std::tie(Modul1.Ergebnis_1[5], Modul1.Ergebnis_2[5], Modul1.Ergebnis_3[5], Modul1.Ergebnis_4[5]),
             std::make_tuple(12, -3, 0, 7));
    QCOMPARE(q(Modul1.Mahjongg[5]), u"Spieler 2"_s);
    QCOMPARE(q(Modul1.Osten[5]), u"Spieler 3"_s);
    // Settled with the cut score: the winner receives 4 times -3, East paying double.
    QCOMPARE(Modul1.Umsatz_2[5], -12);
}

void EingabeTest::correctionWithoutChangeKeepsTheLedger()
{
    spiele(Modul1, 1, 3);
    Eingabe_Abbruch(Modul1); // the correction must write the flag anew
    Abend erwartet = Modul1;
    erwartet.Gute_Eingabe = true;

    Korrigieren_OK(Modul1, KorrekturFormular(Modul1));
    QVERIFY(alleFelder(Modul1) == alleFelder(erwartet));
}

void EingabeTest::correctionOfEastRewritesOnlyLastRow()
{
    spiele(Modul1, 1, 3);
    const Abend vorher = Modul1;
    ResultForm form = KorrekturFormular(Modul1);
    const int altesOsten = form.OstenChoice;
    form.OstenChoice = altesOsten % 4 + 1;
    Korrigieren_OK(Modul1, form);

    // The corrected evening is the one in which the game had been entered so from the start.
    Abend zwilling = frischerAbend();
    spiele(zwilling, 1, 2);
    ResultForm dritte = formular(3);
    dritte.OstenChoice = form.OstenChoice;
    Ergebnisse_OK(zwilling, dritte);
    QVERIFY(alleFelder(Modul1) == alleFelder(zwilling));
    QVERIFY(Modul1.Umsatz_1[3] != vorher.Umsatz_1[3] || Modul1.Umsatz_2[3] != vorher.Umsatz_2[3]);

    // Corrected back, nothing of the first correction is left over.
    form.OstenChoice = altesOsten;
    Korrigieren_OK(Modul1, form);
    QVERIFY(alleFelder(Modul1) == alleFelder(vorher));
}

void EingabeTest::correctionAtTheLastPossibleGame()
{
    spiele(Modul1, 1, 99);
    QCOMPARE(Modul1.Spiel_Nr, 99);
    QCOMPARE(q(Modul1.Mahjongg[99]), u"Spieler 4"_s); // game 99 is won by the fourth
    // Money only changes hands: the balances still add up to the carry-overs.
    QCOMPARE(Modul1.Stand_1[99] + Modul1.Stand_2[99] + Modul1.Stand_3[99] + Modul1.Stand_4[99], 150 - 50 - 100);

    const ResultForm korrektur{{"1000", "-1", "0", "2"}, 2, 4};
    Korrigieren_OK(Modul1, korrektur);
    Abend zwilling = frischerAbend();
    spiele(zwilling, 1, 98);
    Ergebnisse_OK(zwilling, korrektur);
    QVERIFY(alleFelder(Modul1) == alleFelder(zwilling));
}

void EingabeTest::cancelChangesNothingButTheFlag()
{
    spiele(Modul1, 1, 2);
    Abend erwartet = Modul1;
    erwartet.Gute_Eingabe = false;

    Eingabe_Abbruch(Modul1);
    QVERIFY(alleFelder(Modul1) == alleFelder(erwartet));

    // The next entry gets the number that the cancelled one would have had.
    Ergebnisse_OK(Modul1, formular(3));
    QCOMPARE(Modul1.Spiel_Nr, 3);
    QCOMPARE(q(Modul1.Mahjongg[3]), u"Spieler 4"_s); // game 3 is won by the fourth
}

void EingabeTest::correctionFormShowsTheLastGame_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("storedWinner");
    QTest::addColumn<QString>("storedEast");
    QTest::addColumn<int>("mahjongg");
    QTest::addColumn<int>("osten");

    const QStringList verschieden{"Anna", "Bert", "Carl", "Dora"};
    QTest::newRow("distinct names") << verschieden << "Carl" << "Bert" << 3 << 2;
    QTest::newRow("fourth player") << verschieden << "Dora" << "Dora" << 4 << 4;
    QTest::newRow("2 and 4 alike") << QStringList{"Anna", "Bert", "Carl", "Bert"} << "Bert" << "Bert" << 2 << 2;
    QTest::newRow("1 and 3 alike") << QStringList{"Anna", "Bert", "Anna", "Dora"} << "Anna" << "Dora" << 1 << 4;
    QTest::newRow("name of nobody gives the fourth") << verschieden << "Zoe" << "" << 4 << 4;
}

void EingabeTest::correctionFormShowsTheLastGame()
{
    QFETCH(QStringList, names);
    QFETCH(QString, storedWinner);
    QFETCH(QString, storedEast);
    QFETCH(int, mahjongg);
    QFETCH(int, osten);
    constexpr std::int64_t Min = std::numeric_limits<std::int64_t>::min();

    setzeNamen(Modul1, names);
    spiele(Modul1, 1, 2);
    Modul1.Mahjongg[2] = storedWinner.toStdString();
    Modul1.Osten[2] = storedEast.toStdString();
    Modul1.Ergebnis_1[2] = -5, Modul1.Ergebnis_2[2] = 0, Modul1.Ergebnis_3[2] = Min, Modul1.Ergebnis_4[2] = 123;

    const ResultForm form = KorrekturFormular(Modul1);
    QCOMPARE(QStringList({q(form.ScoreText[0]), q(form.ScoreText[1]), q(form.ScoreText[2]), q(form.ScoreText[3])}),
             QStringList({"-5", "0", "-9223372036854775808", "123"}));
    QCOMPARE(form.MahjonggChoice, mahjongg);
    QCOMPARE(form.OstenChoice, osten);

    // OK on the form as it opened writes back the same scores and the chosen player's name.
    Korrigieren_OK(Modul1, form);
    QCOMPARE(std::tie(Modul1.Ergebnis_1[2], Modul1.Ergebnis_2[2], Modul1.Ergebnis_3[2], Modul1.Ergebnis_4[2]),
             std::make_tuple(-5, 0, Min, 123));
    QCOMPARE(q(Modul1.Mahjongg[2]), names[mahjongg - 1]);
    QCOMPARE(q(Modul1.Osten[2]), names[osten - 1]);
}

void EingabeTest::namesTwiceReplaceNamesAndCarryOvers()
{
    Namen_OK(Modul1, {{"Anna", "Bert", "Carl", "Dora"}, {"150", "-50", "0", "-100"}});
    Namen_OK(Modul1, {{"Anna", "", " Carl ", " "}, {"1", "2.9", "", "x"}});

    QCOMPARE(QStringList({q(Modul1.Spieler1), q(Modul1.Spieler2), q(Modul1.Spieler3), q(Modul1.Spieler4)}),
             QStringList({"Anna", "Spieler 2", " Carl ", " "}));
    QCOMPARE(std::tie(Modul1.Stand_1[0], Modul1.Stand_2[0], Modul1.Stand_3[0], Modul1.Stand_4[0]),
             std::make_tuple(1, 2, 0, 0));
    QCOMPARE(Modul1.Spiel_Nr, 0);
}

void EingabeTest::restartAfterFullEveningKeepsNames()
{
    setzeNamen(Modul1, {"Anna", "Bert", "Carl", "Dora"});
    spiele(Modul1, 1, 99);
    Modul1.DruckKnopf = 1;
    const FixedClock spaeter(FixedClock::Maerz2021 + 3 * 3600 * 1000);

    NeustartDaten(Modul1);

    Abend erwartet;
    setzeNamen(erwartet, {"Anna", "Bert", "Carl", "Dora"});
    erwartet.Gute_Eingabe = true;
    erwartet.DruckKnopf = 1;
    erwartet.Tagesdatum = spaeter.moment;
    QVERIFY(alleFelder(Modul1) == alleFelder(erwartet));

    // The next game is game 1 again, built on carry-overs of 0.
    Ergebnisse_OK(Modul1, formular(7));
    QCOMPARE(Modul1.Spiel_Nr, 1);
    QCOMPARE(std::tie(Modul1.Stand_1[1], Modul1.Stand_2[1], Modul1.Stand_3[1], Modul1.Stand_4[1]),
             std::tie(Modul1.Umsatz_1[1], Modul1.Umsatz_2[1], Modul1.Umsatz_3[1], Modul1.Umsatz_4[1]));
}

void EingabeTest::fontAvailableLooksAtEveryFont_data()
{
    QTest::addColumn<QStringList>("fonts");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("available");

    const QStringList drei{"Arial", "Courier", "Palatino"};
    QTest::newRow("found in the middle") << drei << "Courier" << true;
    QTest::newRow("found last") << drei << "Palatino" << true;
    QTest::newRow("missing") << drei << "Helvetica" << false;
    QTest::newRow("no fonts at all") << QStringList{} << "Courier" << false;
}

void EingabeTest::fontAvailableLooksAtEveryFont()
{
    QFETCH(QStringList, fonts);
    QFETCH(QString, name);
    QFETCH(bool, available);

    ScopedFontList liste;
    for (const QString &font : fonts)
        liste.fonts.push_back(font.toStdString());
    QCOMPARE(FontAvailable(name.toStdString()), available);
    if (!available)
        QCOMPARE(liste.atCalls, int(fonts.size()));
}

QTEST_APPLESS_MAIN(EingabeTest)

#include "EingabeTest.moc"
