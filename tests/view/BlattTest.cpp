// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sheet: its lines with their styles, and where the caret stands after a text area has been
// written. What the area then holds is the window tests' part: ZufallsabendTest compares its
// characters and styles with the sheet after every action, SpielstandTest its fonts and sizes.

#include "ledger/Eingabe.h"
#include "platform/QtText.h"
#include "support/Desktop.h"
#include "support/Doubles.h"
#include "support/SheetImage.h"
#include "view/BlattSchreiben.h"

#include <QTest>
#include <QTextEdit>

#include <limits>

using namespace Qt::StringLiterals;

class BlattTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The head as it reads, then each game's lines against the rule they come from: a player's line is
    // bold where the stored winner is that player's name and italic where East is, so that equal names
    // style two lines and a name of nobody none. Numbers keep all their digits. The first two games are
    // the example evening, worked by hand.
    void everyLineWithItsStyleAndTheCaretBehind()
    {
        Abend abend;
        Namen_OK(abend, {{"Anna", "Bert", "Bert", "Dora"}, {"150", "-50", "0", "-100"}});
        Ergebnisse_OK(abend, {{"20", "60", "16", "8"}, 2, 1});
        Ergebnisse_OK(abend, {{"4", "8", "16", "40"}, 4, 4});
        // Games entered as the dialogs do, in which the players win and are East in turn.
        for (int n = 3; n <= 99; ++n)
            Ergebnisse_OK(abend, {{"10", "2", "30", "400"}, n % 4 + 1, n / 4 % 4 + 1});
        abend.Mahjongg[99] = "anna";
        abend.Osten[99] = "";
        abend.Stand_4[99] = std::numeric_limits<std::int64_t>::min();
        QStringList erwartet = uR"(b|Tafelkasse (Test-Version); 12.03.2021, 19:30:00
-|
-|Nach jedem Spiel werden angezeigt: Ergebnis; Umsatz; neuer Kontostand
-|
i|Der Spieler, der Osten war, wird jeweils kursiv dargestellt.
b|Der Spieler, der Mahjongg sagte, wird jeweils fett dargestellt.
-|
-|Anna:  150
-|Bert:  -50
-|Bert:  0
-|Dora:  -100)"_s.split(u'\n');
        for (int n = 1; n <= 99; ++n) {
            const QString winner = qs(abend.Mahjongg[n]), east = qs(abend.Osten[n]);
            erwartet << u"-|"_s << u"-|Spiel Nr. %1"_s.arg(n) << u"-|  Mahjongg sagte: "_s + winner
                     << u"-|  Osten war: "_s + east << u"-|"_s;
            for (int p = 1; p <= 4; ++p) {
                const QString name = qs(abend.Spieler(p));
                const QString stil = SheetImage::styles[(name == winner) + 2 * (name == east)];
                erwartet << u"%1  %2  %3; %4; %5"_s.arg(stil, name, QString::number(abend.Ergebnis(p)[n]),
                                                        QString::number(abend.Umsatz(p)[n]),
                                                        QString::number(abend.Stand(p)[n]));
            }
        }
        const GermanDates dates;
        const std::string datum = DateTime{FixedClock::Maerz2021}.ToString();
        const Blatt blatt = Dokument(abend, StandardUeberschriften(), "Courier", datum);
        const QStringList zeilen = SheetImage::fromPieces(blatt.Stuecke).lines();
        QCOMPARE(zeilen, erwartet);
        // The players' lines of the example: Bert's Mah Jongg with Anna as East, where the second Bert
        // takes no part in the settlement, then Dora's Mah Jongg as East.
        QCOMPARE(zeilen.mid(16, 4) + zeilen.mid(25, 4),
                 (QStringList{u"i|  Anna  20; -88; 62"_s, u"b|  Bert  60; 240; 190"_s, u"b|  Bert  16; -60; -60"_s,
                              u"-|  Dora  8; -92; -192"_s, u"-|  Anna  4; -96; -34"_s, u"-|  Bert  8; -84; 106"_s,
                              u"-|  Bert  16; -60; -120"_s, u"bi|  Dora  40; 240; 48"_s}));

        // Each writing leaves the caret behind the last character, the head of a restart as the whole sheet.
        QTextEdit anzeige;
        SchreibeBlatt(anzeige, blatt);
        QVERIFY(anzeige.textCursor().atEnd());
        SchreibeKopf(anzeige, blatt.Stuecke);
        QVERIFY(anzeige.textCursor().atEnd());
    }
};

QTEST_MAIN(BlattTest)
#include "BlattTest.moc"
