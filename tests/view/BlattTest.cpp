// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sheet: its lines, character by character, with the bold Mah Jongg line and the italic
// East line of every game, and what the text area holds after the sheet has been written.

#include "ledger/Eingabe.h"
#include "platform/QtText.h"
#include "support/Doubles.h"
#include "support/SheetImage.h"
#include "view/Blatt.h"
#include "view/BlattSchreiben.h"

#include <QTest>
#include <QTextEdit>

#include <optional>

namespace {

using namespace Qt::StringLiterals;

// The sheet as lines that a reader can compare: "b|", "i|", "bi|" or "-|" for the style of
// the whole line, "?|" where the style changes inside it, then the text; an empty line is "".
QStringList zeilen(const SheetImage &bild)
{
    QStringList result;
    QString text, stil;
    for (qsizetype i = 0; i <= bild.text.size(); ++i) {
        if (i == bild.text.size() || bild.text[i] == u'\n') {
            result.append(text.isEmpty() ? QString() : stil + u'|' + text);
            text.clear();
            continue;
        }
        const int s = bild.style[i];
        const QString dieser = s == SheetImage::Plain ? u"-"_s
            : QString(s & SheetImage::Bold ? u"b"_s : QString()) + (s & SheetImage::Italic ? u"i"_s : QString());
        stil = text.isEmpty() || stil == dieser ? dieser : u"?"_s;
        text += bild.text[i];
    }
    return result;
}

QStringList zeilen(const std::vector<Stueck> &stuecke)
{
    return zeilen(SheetImage::fromPieces(stuecke));
}

void setzeNamen(Abend &abend, const QStringList &namen)
{
    abend.Spieler1 = namen[0].toStdString(), abend.Spieler2 = namen[1].toStdString();
    abend.Spieler3 = namen[2].toStdString(), abend.Spieler4 = namen[3].toStdString();
}

// N games in which every player wins and is East in turn, with numbers of every sign.
Abend abendMitSpielen(int anzahl)
{
    Abend abend;
    abend.Tagesdatum = DateTime::Now();
    Namen_OK(abend, {{"Anna", "Bert", "Carl", "Dora"}, {"150", "-50", "0", "-100"}});
    const std::string *namen[] = {&abend.Spieler1, &abend.Spieler2, &abend.Spieler3, &abend.Spieler4};
    for (int n = 1; n <= anzahl; ++n) {
        abend.Mahjongg[n] = *namen[n % 4];
        abend.Osten[n] = *namen[n / 4 % 4];
        abend.Ergebnis_1[n] = abend.Ergebnis_2[n] = abend.Ergebnis_3[n] = abend.Ergebnis_4[n] = n * 3;
        abend.Umsatz_2[n] = -n, abend.Umsatz_3[n] = 1000000 + n;
        abend.Stand_1[n] = -7 * n, abend.Stand_4[n] = std::numeric_limits<std::int64_t>::min() + n;
    }
    abend.Spiel_Nr = anzahl;
    return abend;
}

std::vector<Stueck> blatt(const Abend &abend)
{
    return Dokument(abend, StandardUeberschriften(), "Courier", abend.Tagesdatum->ToString()).Stuecke;
}

// The font each character is drawn in: its own family, else the document's.
QSet<QString> gezeichneteSchriften(const QTextDocument &dokument)
{
    QSet<QString> result;
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it)
            result.insert(it.fragment().charFormat().font().resolve(dokument.defaultFont()).family());
    }
    return result;
}

} // namespace

class BlattTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_clock.emplace(); }
    void cleanup() { m_clock.reset(); }

    void exampleEveningLineByLine();
    void everyGameBlock_data();
    void everyGameBlock();
    void playerLineStyles_data();
    void playerLineStyles();
    void writtenSheetMatchesPieces();
    void shortSheetOverLongLeavesNothing();
    void headKeepsTheAreasFont();

private:
    std::optional<FixedClock> m_clock;
};

void BlattTest::exampleEveningLineByLine()
{
    // Bert's Mah Jongg with Anna as East, then Dora's Mah Jongg as East, entered and settled
    // as the dialogs do it.
    Abend abend;
    abend.Tagesdatum = DateTime::Now();
    Namen_OK(abend, {{"Anna", "Bert", "Carl", "Dora"}, {"150", "-50", "0", "-100"}});
    Ergebnisse_OK(abend, {{"20", "60", "16", "8"}, 2, 1});
    Ergebnisse_OK(abend, {{"4", "8", "16", "40"}, 4, 4});

    const QStringList erwartet{
        u"b|Tafelkasse (Test-Version); 12.03.2021, 19:30:00"_s,
        {},
        u"-|Nach jedem Spiel werden angezeigt: Ergebnis; Umsatz; neuer Kontostand"_s,
        {},
        u"i|Der Spieler, der Osten war, wird jeweils kursiv dargestellt."_s,
        u"b|Der Spieler, der Mahjongg sagte, wird jeweils fett dargestellt."_s,
        {},
        u"-|Anna:  150"_s,
        u"-|Bert:  -50"_s,
        u"-|Carl:  0"_s,
        u"-|Dora:  -100"_s,
        {},
        u"-|Spiel Nr. 1"_s,
        u"-|  Mahjongg sagte: Bert"_s,
        u"-|  Osten war: Anna"_s,
        {},
        u"i|  Anna  20; -88; 62"_s,
        u"b|  Bert  60; 240; 190"_s,
        u"-|  Carl  16; -60; -60"_s,
        u"-|  Dora  8; -92; -192"_s,
        {},
        u"-|Spiel Nr. 2"_s,
        u"-|  Mahjongg sagte: Dora"_s,
        u"-|  Osten war: Dora"_s,
        {},
        u"-|  Anna  4; -96; -34"_s,
        u"-|  Bert  8; -84; 106"_s,
        u"-|  Carl  16; -60; -120"_s,
        u"bi|  Dora  40; 240; 48"_s,
    };
    QCOMPARE(zeilen(blatt(abend)), erwartet);
}

void BlattTest::everyGameBlock_data()
{
    QTest::addColumn<int>("games");
    for (int n : {0, 1, 10, 98, 99})
        QTest::addRow("%d games", n) << n;
}

void BlattTest::everyGameBlock()
{
    QFETCH(int, games);
    const Abend abend = abendMitSpielen(games);
    const std::vector<Stueck> stuecke = blatt(abend);

    const QString voll = QString::fromStdString(Volltext(stuecke));
    QVERIFY(!voll.contains(u'\n') && !voll.contains(u'\t'));
    QVERIFY(!voll.endsWith(QChar(CR)));
    // Every piece opens its own line, so that no style reaches over a line end.
    for (std::size_t i = 1; i < stuecke.size(); ++i)
        QVERIFY2(stuecke[i].Text.front() == CR, stuecke[i].Text.c_str());

    // Title and explanations as in exampleEveningLineByLine; below them the head keeps the
    // carry-overs, whatever the games did to the balances.
    QStringList erwartet = zeilen(stuecke).mid(0, 7);
    erwartet << u"-|Anna:  150"_s << u"-|Bert:  -50"_s << u"-|Carl:  0"_s << u"-|Dora:  -100"_s;
    const QStringList namen{"Anna", "Bert", "Carl", "Dora"};
    for (int n = 1; n <= games; ++n) {
        const int winner = n % 4, east = n / 4 % 4;
        erwartet << QString() << u"-|Spiel Nr. %1"_s.arg(n) << u"-|  Mahjongg sagte: "_s + namen[winner]
                 << u"-|  Osten war: "_s + namen[east] << QString();
        const std::int64_t umsatz[] = {abend.Umsatz_1[n], abend.Umsatz_2[n], abend.Umsatz_3[n], abend.Umsatz_4[n]};
        const std::int64_t stand[] = {abend.Stand_1[n], abend.Stand_2[n], abend.Stand_3[n], abend.Stand_4[n]};
        for (int p = 0; p < 4; ++p) {
            const QString stil = p == winner ? (p == east ? u"bi"_s : u"b"_s) : p == east ? u"i"_s : u"-"_s;
            erwartet << u"%1|  %2  %3; %4; %5"_s.arg(stil, namen[p]).arg(n * 3).arg(umsatz[p]).arg(stand[p]);
        }
    }
    QCOMPARE(zeilen(stuecke).size(), 11 + 9 * games);
    QCOMPARE(zeilen(stuecke), erwartet);
}

void BlattTest::playerLineStyles_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("winner");
    QTest::addColumn<QString>("east");
    QTest::addColumn<QStringList>("styles");

    const QStringList zweiBert{"Anna", "Bert", "Bert", "Dora"}, vier{"Anna", "Bert", "Carl", "Dora"};
    QTest::newRow("two winners' lines") << zweiBert << "Bert" << "Anna" << QStringList{"i", "b", "b", "-"};
    QTest::newRow("two East lines") << zweiBert << "Dora" << "Bert" << QStringList{"-", "i", "i", "b"};
    QTest::newRow("two bold italic lines") << zweiBert << "Bert" << "Bert" << QStringList{"-", "bi", "bi", "-"};
    QTest::newRow("names of nobody") << vier << "Zoe" << "" << QStringList{"-", "-", "-", "-"};
    QTest::newRow("letter case differs") << vier << "anna" << "BERT" << QStringList{"-", "-", "-", "-"};
}

void BlattTest::playerLineStyles()
{
    QFETCH(QStringList, names);
    QFETCH(QString, winner);
    QFETCH(QString, east);
    QFETCH(QStringList, styles);

    Abend abend = abendMitSpielen(1);
    setzeNamen(abend, names);
    abend.Mahjongg[1] = winner.toStdString();
    abend.Osten[1] = east.toStdString();

    // The stored names are printed as they are, also where they name nobody or nothing.
    QStringList erwartet{u"-|Spiel Nr. 1"_s, u"-|  Mahjongg sagte: "_s + winner, u"-|  Osten war: "_s + east, {}};
    const QStringList zahlen{"3; 0; -7", "3; -1; 0", "3; 1000001; 0", "3; 0; -9223372036854775807"};
    for (int p = 0; p < 4; ++p)
        erwartet << styles[p] + u"|  "_s + names[p] + u"  "_s + zahlen[p];
    QCOMPARE(zeilen(blatt(abend)).mid(12), erwartet);
}

void BlattTest::writtenSheetMatchesPieces()
{
    const Blatt dokument = Dokument(abendMitSpielen(3), StandardUeberschriften(), "Courier", "heute");
    QTextEdit anzeige;
    SchreibeBlatt(anzeige, dokument);

    const SheetImage geschrieben = SheetImage::fromDocument(*anzeige.document());
    QCOMPARE(SheetImage::firstDifference(geschrieben, SheetImage::fromPieces(dokument.Stuecke)), QString());
    QCOMPARE(gezeichneteSchriften(*anzeige.document()), QSet<QString>{u"Courier"_s});
    QVERIFY(anzeige.textCursor().atEnd());
}

void BlattTest::shortSheetOverLongLeavesNothing()
{
    Abend leer = abendMitSpielen(0);
    setzeNamen(leer, {"A", "B", "C", "D"});
    const Blatt kurz = Dokument(leer, StandardUeberschriften(), "system", "heute");
    QTextEdit anzeige;

    SchreibeBlatt(anzeige, Dokument(abendMitSpielen(99), StandardUeberschriften(), "Courier", "gestern"));
    SchreibeBlatt(anzeige, kurz);
    const SheetImage geschrieben = SheetImage::fromDocument(*anzeige.document());
    QCOMPARE(SheetImage::firstDifference(geschrieben, SheetImage::fromPieces(kurz.Stuecke)), QString());
    QCOMPARE(gezeichneteSchriften(*anzeige.document()), QSet<QString>{platform::fontFamily("system")});
}

void BlattTest::headKeepsTheAreasFont()
{
    QTextEdit anzeige;
    anzeige.setFont(QFont(u"DejaVu Serif"_s, 17));
    const QString flaeche = anzeige.document()->defaultFont().family();
    QVERIFY(flaeche != u"Courier"_s);

    const Abend abend = abendMitSpielen(99);
    SchreibeBlatt(anzeige, Dokument(abend, StandardUeberschriften(), "Courier", "gestern"));
    const std::vector<Stueck> kopf = Kopf(abend, StandardUeberschriften(), "heute");
    SchreibeKopf(anzeige, kopf);

    const SheetImage geschrieben = SheetImage::fromDocument(*anzeige.document());
    QCOMPARE(SheetImage::firstDifference(geschrieben, SheetImage::fromPieces(kopf)), QString());
    QCOMPARE(gezeichneteSchriften(*anzeige.document()), QSet<QString>{flaeche});
    QCOMPARE(anzeige.document()->defaultFont().pointSize(), 17);
}

QTEST_MAIN(BlattTest)

#include "BlattTest.moc"
