// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The printout, printed into PDF files and read back with pdftotext: each word of the sheet on its
// page, line and column, with the lines wrapped at the block width and the pages filled with whole
// lines, the block standing at the page's corner, and the bold and italic cuts of the font; and the
// page range, copies and page order of the print dialog, as pages taken from the full printout. The
// sheet's characters as written, on screen and on paper, in a font with ligatures that the test
// brings in a font configuration of its own.
#include "ledger/Eingabe.h"
#include "support/Desktop.h"
#include "support/PrintDoubles.h"
#include "view/BlattSchreiben.h"
#include "view/Drucken.h"

#include <QAbstractTextDocumentLayout>
#include <QGlyphRun>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;

// What the user chose in the print dialog; a PDF file makes no copies of its own.
struct Choice {
    int from = 0, to = 0, copies = 1;
    bool collate = true;
    QPrinter::PageOrder order = QPrinter::FirstPageFirst;
};
Q_DECLARE_METATYPE(Choice)

class DruckenTest : public QObject {
    Q_OBJECT
    QTemporaryDir dir;

    // Prints the document into a PDF file as chosen, and gives the file's name.
    QString print(const QTextDocument &document, const QString &name, const Choice &choice = {})
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFileName(dir.filePath(name + u".pdf"_s));
        printer.setFromTo(choice.from, choice.to);
        printer.setCopyCount(choice.copies);
        printer.setCollateCopies(choice.collate);
        printer.setPageOrder(choice.order);
        DruckeBlatt(document, printer);
        return printer.outputFileName();
    }

public:
    // Qt's font database reads the configuration when the application starts: the machine's DejaVu
    // fonts, and URW's Nimbus Mono, whose ligatures join "Nr." into "№" and "fi" into one sign, under
    // the sheet's name "Courier".
    static void initMain()
    {
        useOwnFontConfiguration(u"<dir>/usr/share/fonts/opentype/urw-base35</dir>"_s
                                + renamed(u"/NimbusMonoPS-"_s, u"Courier"_s));
    }

private Q_SLOTS:
    // On screen every character of a Latin line is one glyph of its own, and a name in Arabic keeps
    // the joined forms that its script needs; on paper the text reads back as written.
    void charactersAsWritten()
    {
        Abend abend;
        Namen_OK(abend, {{"Fifi", "محمد", "", ""}, {}});
        Ergebnisse_OK(abend, {{"10", "20", "30", "40"}, 1, 2});
        const Blatt blatt = Dokument(abend, StandardUeberschriften(), "Courier", "12.03.2021, 19:30:00");
        QTextDocument document;
        SchreibeStuecke(document, blatt.Stuecke, blatt.Schrift);
        document.documentLayout()->documentSize();
        // A block is not wrapped: its one line holds all its glyphs, in runs of one format each.
        const auto glyphs = [](const QTextLayout &layout) {
            QList<quint32> ids;
            for (const QGlyphRun &run : layout.lineAt(0).glyphRuns())
                ids += run.glyphIndexes();
            std::sort(ids.begin(), ids.end());
            return ids;
        };
        int arabic = 0;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            if (block.text().contains(u"محمد"_s)) {
                // The same line, laid out in its font with all the shaping the font has.
                QFont font = block.begin().fragment().charFormat().font();
                font.setStyleStrategy(QFont::PreferDefault);
                QTextLayout shaped(block.text(), font);
                shaped.beginLayout();
                shaped.createLine();
                shaped.endLayout();
                QCOMPARE(glyphs(*block.layout()), glyphs(shaped));
                ++arabic;
            } else {
                QVERIFY2(glyphs(*block.layout()).size() == block.text().size(), qPrintable(block.text()));
            }
        }
        QCOMPARE(arabic, 3);
        const QString paper = pdfPages(print(document, u"as written"_s)).join(u'\n');
        QVERIFY2(paper.contains(u"Spiel Nr. 1"_s) && paper.contains(u"Fifi:"_s), qPrintable(paper));
    }

    void wordsStandWhereWholeLinesAndPagesPutThem_data()
    {
        QTest::addColumn<Choice>("choice");
        QTest::addColumn<QList<int>>("pages"); // of the full printout, from 1, as they come out with the choice
        QTest::newRow("pages 1 to 2, 2 copies, not collated")
            << Choice{.from = 1, .to = 2, .copies = 2, .collate = false} << QList<int>{1, 1, 2, 2};
        QTest::newRow("pages 2 to 9, last first, 2 collated copies")
            << Choice{.from = 2, .to = 9, .copies = 2, .order = QPrinter::LastPageFirst} << QList<int>{3, 2, 3, 2};
        QTest::newRow("pages 4 to 5 of 3") << Choice{.from = 4, .to = 5} << QList<int>();
    }

    // Six games make three pages, in a monospaced font whose four cuts are equally high, unlike Courier's.
    // At 16 points the head's long lines wrap, and the first explanatory line's "Umsatz;" would end 10 points
    // beyond the block, so that a block 11 points too wide shows. The letters and lines measured on paper
    // give each word's place.
    void wordsStandWhereWholeLinesAndPagesPutThem()
    {
        QFETCH(Choice, choice);
        QFETCH(QList<int>, pages);
        const int size = 16;
        Abend abend;
        Namen_OK(abend, {});
        for (int i = 0; i < 6; ++i)
            Ergebnisse_OK(abend, {{"10", "20", "30", "40"}, i % 4 + 1, (i + 1) % 4 + 1});
        // No font of its own: the sheet stands in the document's.
        const Blatt blatt = Dokument(abend, StandardUeberschriften(), "", "12.03.2021, 19:30:00");
        QTextDocument document;
        document.setDefaultFont(QFont(u"DejaVu Sans Mono"_s, size));
        SchreibeStuecke(document, blatt.Stuecke, blatt.Schrift);
        const QString name = QString::fromLatin1(QTest::currentDataTag()), file = print(document, name);
        // Each page's words with their boxes, in the order in which they were drawn.
        const QStringList full
            = popplerOutput(u"pdftotext"_s, {u"-bbox"_s, u"-raw"_s, file, u"-"_s}).split(u"<page "_s).mid(1);

        struct Word {
            qsizetype page;
            double left, top;
            QString text;
        };
        static const QRegularExpression box(uR"re(<word xMin="([\d.]+)" yMin="([\d.]+)"[^>]*>([^<]*)<)re"_s);
        QList<Word> words;
        for (qsizetype p = 0; p < full.size(); ++p) {
            for (const QRegularExpressionMatch &m : box.globalMatch(full[p]))
                words.append({p, m.captured(1).toDouble(), m.captured(2).toDouble(), m.captured(3)});
        }
        QVERIFY(words.size() > 4);
        // The title's second word stands eleven letters right of its first, and the fifth word, the first
        // of the explanatory lines, two lines below the title.
        const double top = words[0].top, letter = (words[1].left - words[0].left) / 11;
        const double height = (words[4].top - top) / 2;
        // A word's box begins at the top of its letters, a little below the top of its line; the font's
        // letters are 0.6 em wide, so the print keeps the sheet's size.
        QVERIFY2(top >= 35.5 && top < 39 && std::abs(letter / size - 0.6) < 0.01,
                 qPrintable(u"top %1, letter %2"_s.arg(top).arg(letter)));

        // Line and column in tenths, so that a word a tenth of a line or a letter off its place shows.
        const auto place = [](auto page, auto line, auto column, const QString &text) {
            return u"%1.%2.%3 %4"_s.arg(page).arg(line).arg(column).arg(text);
        };
        QStringList printed, expected, lines;
        for (const Word &w : words)
            printed << place(w.page, qRound((w.top - top) / height * 10), qRound((w.left - 36) / letter * 10), w.text);
        // A line breaks behind the last blank that leaves at most 492 points of letters before it.
        const int perLine = int(492 / letter), perPage = int(600 / height);
        for (QString line : QString::fromStdString(Volltext(blatt.Stuecke)).split(QChar(CR))) {
            for (qsizetype cut; line.size() > perLine && (cut = line.lastIndexOf(u' ', perLine)) > 0;) {
                lines << line.left(cut);
                line = line.mid(cut).trimmed();
            }
            lines << line;
        }
        static const QRegularExpression nonBlank(u"\\S+"_s);
        for (qsizetype i = 0; i < lines.size(); ++i) {
            for (const QRegularExpressionMatch &m : nonBlank.globalMatch(lines[i]))
                expected << place(i / perPage, i % perPage * 10, m.capturedStart() * 10, m.captured());
        }
        QCOMPARE(full.size(), (lines.size() + perPage - 1) / perPage);
        QCOMPARE(printed, expected);
        const QString fonts = popplerOutput(u"pdffonts"_s, {file});
        QVERIFY2(fonts.contains(u"Bold"_s) && fonts.contains(u"Oblique"_s), qPrintable(fonts));

        QStringList taken;
        for (const int page : pages)
            taken << pdfPages(file).value(page - 1);
        QCOMPARE(pdfPages(print(document, name + u" chosen"_s, choice)), taken);
    }
};

QTEST_MAIN(DruckenTest)
#include "DruckenTest.moc"
