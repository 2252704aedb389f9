// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The printout, printed into PDF files and read back with poppler's pdftotext: where the
// text stands on each page, where the pages break, and that the sheet arrives whole, in
// order, wrapped at the block width and in its styles and size.
#include "Doubles.h"
#include "PrintDoubles.h"
#include "ledger/Eingabe.h"
#include "view/BlattSchreiben.h"
#include "view/Drucken.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

struct Word {
    double left, top, right, bottom;
    QString text;
};

// One printed line: its words from left to right.
struct Line {
    QVector<Word> words;
    double top() const { return words.first().top; }
    double bottom() const { return words.first().bottom; }
    double left() const { return words.first().left; }
    QString text() const
    {
        QStringList texts;
        for (const Word &word : words)
            texts << word.text;
        return texts.join(u' ');
    }
};

using Page = QVector<Line>;

// The pages of a PDF with their lines from top to bottom, from the word boxes that
// pdftotext reports in points from the page's upper left corner.
QVector<Page> readPages(const QString &file)
{
    const QString html = popplerOutput(u"pdftotext"_qs, {u"-bbox"_qs, file, u"-"_qs});
    static const QRegularExpression tag(
        uR"re(<page |<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>)re"_qs);
    QVector<QVector<Word>> words;
    for (auto it = tag.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        if (m.captured(0).startsWith(u"<page"))
            words.append(QVector<Word>());
        else if (!words.isEmpty())
            words.last().append({m.captured(1).toDouble(), m.captured(2).toDouble(), m.captured(3).toDouble(),
                                 m.captured(4).toDouble(), m.captured(5)});
    }
    QVector<Page> pages;
    for (QVector<Word> &page : words) {
        std::sort(page.begin(), page.end(), [](const Word &a, const Word &b) {
            return std::abs(a.top - b.top) > 0.5 ? a.top < b.top : a.left < b.left;
        });
        Page lines;
        for (const Word &word : page) {
            if (lines.isEmpty() || std::abs(lines.last().top() - word.top) > 0.5)
                lines.append(Line());
            lines.last().words.append(word);
        }
        pages.append(lines);
    }
    return pages;
}

QStringList wordsOf(const QString &text)
{
    return text.split(QRegularExpression(u"\\s+"_qs), Qt::SkipEmptyParts);
}

QStringList wordsOf(const QVector<Page> &pages)
{
    QStringList words;
    for (const Page &page : pages) {
        for (const Line &line : page) {
            for (const Word &word : line.words)
                words << word.text;
        }
    }
    return words;
}

void playGames(int count)
{
    for (int i = 0; i < count; ++i)
        Ergebnisse_OK(Modul1, {{"10", "20", "30", "40"}, i % 4 + 1, (i + 1) % 4 + 1});
}

} // namespace

class DruckenTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<FixedClock> clock;
    std::unique_ptr<QTemporaryDir> dir;

    // The sheet of the evening as the main window holds it, in Courier of the given size.
    static std::unique_ptr<QTextDocument> sheet(qreal pointSize)
    {
        auto document = std::make_unique<QTextDocument>();
        QFont font(u"Courier"_qs);
        font.setPointSizeF(pointSize);
        document->setDefaultFont(font);
        const Blatt blatt = Dokument(Modul1, StandardUeberschriften(), "Courier", Modul1.Tagesdatum->ToString());
        SchreibeStuecke(*document, blatt.Stuecke, blatt.Schrift);
        return document;
    }

    QString print(const QTextDocument &document, const QString &name)
    {
        const QString file = dir->filePath(name);
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        DruckeBlatt(document, printer);
        return file;
    }

    static QStringList expectedWords()
    {
        const Blatt blatt = Dokument(Modul1, StandardUeberschriften(), "Courier", Modul1.Tagesdatum->ToString());
        return wordsOf(QString::fromStdString(Volltext(blatt.Stuecke)));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(!QStandardPaths::findExecutable(u"pdftotext"_qs).isEmpty(), "pdftotext of poppler-utils is needed");
    }

    void init()
    {
        Modul1 = Abend{};
        clock = std::make_unique<FixedClock>();
        for (int k = 1; k <= 4; ++k)
            Modul1.Spieler(k) = StandardName(k);
        Modul1.Tagesdatum = DateTime::Now();
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(dir->isValid());
    }

    void cleanup()
    {
        dir.reset();
        clock.reset();
    }

    void emptyEveningIsOnePageAtTheBlockCorner()
    {
        const auto document = sheet(12);
        const QString before = document->toPlainText();
        const QVector<Page> pages = readPages(print(*document, u"leer.pdf"_qs));
        QCOMPARE(pages.size(), 1);
        QCOMPARE(wordsOf(pages), expectedWords());
        QCOMPARE(pdfPages(dir->filePath(u"leer.pdf"_qs)).size(), 1);
        // The top of a word's box is the top of its letters, a little below the line's top.
        const Line &first = pages[0].first();
        QVERIFY2(first.top() >= 35.5 && first.top() <= 39, qPrintable(QString::number(first.top())));
        QVERIFY2(std::abs(first.left() - 36) < 0.5, qPrintable(QString::number(first.left())));
        QCOMPARE(document->toPlainText(), before);
    }

    void pagesHoldTheWholeLinesThat600PointsGive()
    {
        QTextDocument document;
        document.setDefaultFont(QFont(u"Courier"_qs, 12));
        QStringList lines;
        for (int i = 1; i <= 100; ++i)
            lines << u"Zeile %1"_qs.arg(i);
        document.setPlainText(lines.join(u'\n'));
        const QVector<Page> pages = readPages(print(document, u"zeilen.pdf"_qs));
        QVERIFY(!pages.isEmpty() && pages[0].size() > 2);

        // All lines are alike, so one line's height is the distance between two of them.
        const double height = pages[0][1].top() - pages[0][0].top();
        const int perPage = int(std::floor(600 / height + 1e-6));
        QVERIFY2(height > 12 && height < 18, qPrintable(QString::number(height)));
        QCOMPARE(pages.size(), (100 + perPage - 1) / perPage);
        for (int p = 0; p < pages.size(); ++p) {
            QStringList expected = lines.mid(p * perPage, perPage);
            QStringList printed;
            for (const Line &line : pages[p]) {
                printed << line.text();
                QVERIFY(std::abs(line.left() - 36) < 0.5);
            }
            QCOMPARE(printed, expected);
            QVERIFY2(std::abs(pages[p].first().top() - pages[0].first().top()) < 0.01, qPrintable(u"page %1"_qs.arg(p)));
            QVERIFY(pages[p].first().top() >= 35.5 && pages[p].first().top() <= 39);
            QVERIFY(pages[p].last().top() - pages[p].first().top() + height <= 600 + 0.01);
        }
    }

    void fullEveningPrintsWholeAndInOrderOnFullPages()
    {
        playGames(99);
        const QString file = print(*sheet(12), u"abend.pdf"_qs);
        const QVector<Page> pages = readPages(file);
        QCOMPARE(wordsOf(pages), expectedWords());
        QCOMPARE(pdfPages(file).size(), pages.size());

        // A line of 12-point text is less than 18 points high, and the sheet has no more than
        // one empty line in a row: so a page starts with its text at most one line below 36,
        // and it ends within two lines of 636, unless it is the last page. Lines are indented
        // by two blanks at most, and a page with lines of games only may start indented.
        for (int p = 0; p < pages.size(); ++p) {
            const Page &page = pages[p];
            QVERIFY2(!page.isEmpty(), qPrintable(u"page %1 is empty"_qs.arg(p)));
            double left = 1000, top = 1000, bottom = 0;
            for (const Line &line : page) {
                left = std::min(left, line.left());
                top = std::min(top, line.top());
                bottom = std::max(bottom, line.bottom());
            }
            const QString where = u"page %1: left %2, top %3, bottom %4"_qs.arg(p).arg(left).arg(top).arg(bottom);
            QVERIFY2(left > 35.5 && (std::abs(left - 36) < 0.5 || p + 1 == pages.size()), qPrintable(where));
            QVERIFY2(top >= 35.5 && top < 36 + 18, qPrintable(where));
            QVERIFY2(bottom <= 636 + 1, qPrintable(where));
            if (p + 1 < pages.size())
                QVERIFY2(bottom > 636 - 2 * 18, qPrintable(where));
        }
        QVERIFY(pages.size() > 1);

        // Bold and italic lines print in the bold and the italic cut of the font.
        const QString fonts = popplerOutput(u"pdffonts"_qs, {file});
        QVERIFY2(fonts.contains(u"Bold"_qs) && fonts.contains(u"Italic"_qs), qPrintable(fonts));
    }

    void textWrapsAtTheBlockWidthInTheSheetsSize()
    {
        playGames(2);
        const QVector<Page> normal = readPages(print(*sheet(12), u"normal.pdf"_qs));
        const QVector<Page> large = readPages(print(*sheet(24), u"gross.pdf"_qs));
        QCOMPARE(wordsOf(large), expectedWords());
        for (const Page &page : large) {
            for (const Line &line : page)
                QVERIFY2(line.words.last().right <= 36 + 492 + 0.5, qPrintable(line.text()));
        }
        // The title no longer fits in a line of 492 points.
        QVERIFY(large[0][0].words.size() < normal[0][0].words.size());
        QVERIFY(normal[0][0].text().startsWith(large[0][0].text()));

        // Twice the size, twice the height of a line.
        const auto pitch = [](const Page &page) {
            double first = 0, second = 0;
            for (const Line &line : page) {
                if (line.text() == u"Spieler 1: 0")
                    first = line.top();
                else if (line.text() == u"Spieler 2: 0")
                    second = line.top();
            }
            return second - first;
        };
        QVERIFY(pitch(normal[0]) > 0);
        QVERIFY2(std::abs(pitch(large[0]) / pitch(normal[0]) - 2) < 0.05,
                 qPrintable(u"%1 / %2"_qs.arg(pitch(large[0])).arg(pitch(normal[0]))));
    }
};

QTEST_MAIN(DruckenTest)
#include "DruckenTest.moc"
