// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sheet: its lines with their styles, and what a text area holds after it has been written.

#include "ledger/Eingabe.h"
#include "platform/QtText.h"
#include "support/Doubles.h"
#include "support/SheetImage.h"
#include "view/BlattSchreiben.h"

#include <QTest>
#include <QTextEdit>

#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

const std::array<std::string, 4> vier{"Anna", "Bert", "Carl", "Dora"};

// Games entered as the dialogs do, in which the players win and are East in turn.
Abend abendMitSpielen(int anzahl, const std::array<std::string, 4> &namen)
{
    Abend abend;
    abend.Tagesdatum = DateTime::Now();
    Namen_OK(abend, {namen, {"150", "-50", "0", "-100"}});
    for (int n = 1; n <= anzahl; ++n)
        Ergebnisse_OK(abend, {{"10", "2", "30", "400"}, n % 4 + 1, n / 4 % 4 + 1});
    return abend;
}

QStringList zeilen(const Abend &abend)
{
    return SheetImage::fromPieces(
               Dokument(abend, StandardUeberschriften(), "Courier", abend.Tagesdatum->ToString()).Stuecke)
        .lines();
}

} // namespace

class BlattTest : public QObject {
    Q_OBJECT
    const FixedClock clock;

private Q_SLOTS:
    void exampleEveningLineByLine()
    {
        // Bert's Mah Jongg with Anna as East, then Dora's Mah Jongg as East.
        Abend abend = abendMitSpielen(0, vier);
        Ergebnisse_OK(abend, {{"20", "60", "16", "8"}, 2, 1});
        Ergebnisse_OK(abend, {{"4", "8", "16", "40"}, 4, 4});
        QCOMPARE(zeilen(abend), uR"(b|Tafelkasse (Test-Version); 12.03.2021, 19:30:00

-|Nach jedem Spiel werden angezeigt: Ergebnis; Umsatz; neuer Kontostand

i|Der Spieler, der Osten war, wird jeweils kursiv dargestellt.
b|Der Spieler, der Mahjongg sagte, wird jeweils fett dargestellt.

-|Anna:  150
-|Bert:  -50
-|Carl:  0
-|Dora:  -100

-|Spiel Nr. 1
-|  Mahjongg sagte: Bert
-|  Osten war: Anna

i|  Anna  20; -88; 62
b|  Bert  60; 240; 190
-|  Carl  16; -60; -60
-|  Dora  8; -92; -192

-|Spiel Nr. 2
-|  Mahjongg sagte: Dora
-|  Osten war: Dora

-|  Anna  4; -96; -34
-|  Bert  8; -84; 106
-|  Carl  16; -60; -120
bi|  Dora  40; 240; 48)"_s.split(u'\n'));
    }

    // Each game's lines against the rule they come from: a player's line is bold where the stored winner
    // is that player's name and italic where East is, so that equal names style two lines and a name of
    // nobody none. The head stays as it was before the first game; numbers keep all their digits.
    void everyGameBlock()
    {
        const std::array<std::string, 4> zweiBert{"Anna", "Bert", "Bert", "Dora"};
        Abend abend = abendMitSpielen(99, zweiBert);
        abend.Mahjongg[99] = "anna", abend.Osten[99] = "", abend.Stand_4[99] = std::numeric_limits<std::int64_t>::min();
        QStringList erwartet = zeilen(abendMitSpielen(0, zweiBert));
        QCOMPARE(erwartet.size(), 11);
        for (int n = 1; n <= 99; ++n) {
            const QString winner = qs(abend.Mahjongg[n]), east = qs(abend.Osten[n]);
            erwartet << QString() << u"-|Spiel Nr. %1"_s.arg(n) << u"-|  Mahjongg sagte: "_s + winner
                     << u"-|  Osten war: "_s + east << QString();
            for (int p = 1; p <= 4; ++p) {
                const QString name = qs(abend.Spieler(p));
                const QString stil = SheetImage::styles[(name == winner) + 2 * (name == east)];
                erwartet << u"%1  %2  %3; %4; %5"_s.arg(stil, name, QString::number(abend.Ergebnis(p)[n]),
                                                        QString::number(abend.Umsatz(p)[n]),
                                                        QString::number(abend.Stand(p)[n]));
            }
        }
        QCOMPARE(zeilen(abend), erwartet);
    }

    // Each writing replaces all that stood before, in the size of the area: the sheet in its font, the
    // head of a restart in the area's own font; the caret ends behind the last character.
    void writtenAreaHoldsThePieces()
    {
        QTextEdit anzeige;
        anzeige.setFont(QFont(u"DejaVu Serif"_s, 17));
        const Blatt lang = Dokument(abendMitSpielen(99, vier), StandardUeberschriften(), "Courier", "gestern");
        const Blatt kurz = Dokument(abendMitSpielen(0, vier), StandardUeberschriften(), "system", "heute");
        const auto pruefe = [&](const std::vector<Stueck> &stuecke, const QString &schrift) {
            QCOMPARE(SheetImage::fromDocument(*anzeige.document()).lines(), SheetImage::fromPieces(stuecke).lines());
            QCOMPARE(SheetImage::fonts(*anzeige.document()), QSet<QString>{schrift + u",17"_s});
            QVERIFY(anzeige.textCursor().atEnd());
        };
        SchreibeBlatt(anzeige, lang);
        pruefe(lang.Stuecke, u"Courier"_s);
        SchreibeKopf(anzeige, kurz.Stuecke);
        pruefe(kurz.Stuecke, u"DejaVu Serif"_s);
        SchreibeBlatt(anzeige, kurz);
        pruefe(kurz.Stuecke, platform::fontFamily("system"));
    }
};

QTEST_MAIN(BlattTest)
#include "BlattTest.moc"
