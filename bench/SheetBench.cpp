// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the sheet costs on the main window: the refresh after a game (buttons, the document
// from the ledger, writing it into Anzeige and laying it out) at 0 to 99 games, the same
// sheet written the word-for-word way as a yardstick, and printing a full evening to PDF.
// Every benchmark first checks that what it times really produced the sheet of the ledger.
#include "LiteralWriter.h"
#include "support/Doubles.h"
#include "support/SheetImage.h"

#include "ledger/Eingabe.h"
#include "platform/QtServices.h"
#include "platform/QtText.h"
#include "view/Blatt.h"
#include "view/Drucken.h"
#include "windows/Spielstand.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QFile>
#include <QPrinter>
#include <QSet>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

Spielstand *fenster = nullptr;

// A fresh evening with n games, each entered as the results dialog's OK enters it; winner
// and East go round the table so that every player line style turns up.
void spieleEin(int n)
{
    NeustartDaten(Modul1);
    for (int i = 0; i < n; ++i) {
        const std::string basis = std::to_string(10 * (i % 7 + 1));
        Ergebnisse_OK(Modul1, {{basis, "20", std::to_string(4 * (i % 5)), "40"}, i % 4 + 1, (i / 4 + i) % 4 + 1});
    }
}

// Lays the whole sheet out now: the area otherwise fills in the layout of its paragraphs
// only when it paints them.
void layoutErzwingen(QTextEdit &anzeige)
{
    benchmark::DoNotOptimize(anzeige.document()->documentLayout()->documentSize());
}

// Empty when the document reads as the pieces: the same text with the same bold and italic
// at every character.
QString abweichung(const QTextDocument &dokument, const Blatt &blatt)
{
    return SheetImage::firstDifference(SheetImage::fromDocument(dokument), SheetImage::fromPieces(blatt.Stuecke));
}

// The font families that the sheet's characters are set in.
QSet<QString> familien(const QTextDocument &dokument)
{
    QSet<QString> ergebnis;
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it)
            ergebnis.insert(it.fragment().charFormat().fontFamilies().toStringList().join(u','));
    }
    return ergebnis;
}

// Every paragraph has its lines: the layout was really done, not left for the next paint.
bool ganzGelayoutet(const QTextDocument &dokument)
{
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next()) {
        if (!block.layout() || block.layout()->lineCount() == 0)
            return false;
    }
    return true;
}

Blatt blattDesAbends()
{
    return Dokument(Modul1, fenster->Zeilen(), BlattSchrift(), Modul1.Tagesdatum->ToString());
}

// Between two refreshes the window paints, as it would on screen; the paint is not timed.
void zwischendurchMalen(benchmark::State &state)
{
    state.PauseTiming();
    QCoreApplication::processEvents();
    state.ResumeTiming();
}

// The evening of the benchmark's number of games, its sheet written anew into an emptied area.
QTextEdit &blattMitSpielen(const benchmark::State &state)
{
    spieleEin(static_cast<int>(state.range(0)));
    QTextEdit &anzeige = *fenster->Anzeige;
    anzeige.clear();
    fenster->Event_Activated();
    return anzeige;
}

void BM_Refresh(benchmark::State &state)
{
    QTextEdit &anzeige = blattMitSpielen(state);
    layoutErzwingen(anzeige);
    if (const QString fehler = abweichung(*anzeige.document(), blattDesAbends()); !fehler.isEmpty()) {
        state.SkipWithError(fehler.toStdString().c_str());
        return;
    }
    if (!ganzGelayoutet(*anzeige.document())) {
        state.SkipWithError("the sheet was not laid out");
        return;
    }
    for (auto _ : state) {
        fenster->Event_Activated();
        layoutErzwingen(anzeige);
        zwischendurchMalen(state);
    }
    state.counters["games"] = static_cast<double>(state.range(0));
    state.counters["lines"] = anzeige.document()->blockCount();
}

// The yardstick: the same sheet from the same ledger into the same area, written the
// word-for-word way.
void BM_RefreshLiteral(benchmark::State &state)
{
    QTextEdit &anzeige = blattMitSpielen(state);
    const QSet<QString> unsere = familien(*anzeige.document());
    writeSheetLiterally(anzeige, blattDesAbends());
    layoutErzwingen(anzeige);
    if (const QString fehler = abweichung(*anzeige.document(), blattDesAbends()); !fehler.isEmpty()) {
        state.SkipWithError(("word-for-word writing: " + fehler.toStdString()).c_str());
        return;
    }
    if (familien(*anzeige.document()) != unsere) {
        state.SkipWithError("word-for-word writing sets other fonts than the refresh");
        return;
    }
    for (auto _ : state) {
        writeSheetLiterally(anzeige, blattDesAbends());
        layoutErzwingen(anzeige);
        zwischendurchMalen(state);
    }
    state.counters["games"] = static_cast<double>(state.range(0));
    state.counters["lines"] = anzeige.document()->blockCount();
}

// Number of pages in a PDF that Qt wrote: one page object each.
int seitenImPdf(const QString &pfad)
{
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray inhalt = datei.readAll();
    return static_cast<int>(inhalt.count("/Type /Page\n") + inhalt.count("/Type /Page\r") + inhalt.count("/Type /Page/")
                            + inhalt.count("/Type /Page>"));
}

void BM_PrintPdf(benchmark::State &state)
{
    const int spiele = static_cast<int>(state.range(0));
    spieleEin(spiele);
    fenster->Event_Activated();
    const QTemporaryDir ordner;
    const QString pfad = ordner.filePath(u"blatt.pdf"_s);
    int seiten = 0;
    for (auto _ : state) {
        {
            // As the print command makes its printer; the PDF is complete when it goes.
            QPrinter printer(QPrinter::HighResolution);
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(pfad);
            DruckeBlatt(*fenster->Anzeige->document(), printer);
        }
        state.PauseTiming();
        seiten = seitenImPdf(pfad);
        QFile::remove(pfad);
        state.ResumeTiming();
        if (seiten == 0) {
            state.SkipWithError("no PDF page was written");
            return;
        }
    }
    state.counters["games"] = static_cast<double>(state.range(0));
    state.counters["pages"] = seiten;
}

BENCHMARK(BM_Refresh)->Arg(0)->Arg(1)->Arg(10)->Arg(50)->Arg(99)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(BM_RefreshLiteral)->Arg(0)->Arg(1)->Arg(10)->Arg(50)->Arg(99)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(BM_PrintPdf)->Arg(99)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(21);

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    // The sheet is measured without a screen; the platform can still be chosen from outside.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    platform::QtServices dienste;
    FixedClock uhr; // the evening starts at the same moment in every run, so the head is always as long
    Spielstand hauptfenster;
    fenster = &hauptfenster;
    hauptfenster.show();
    QCoreApplication::processEvents();

    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
