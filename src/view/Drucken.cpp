// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Drucken.h"

#include "platform/PrintDialog.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

// One laid-out line of the copy, with its top and bottom in the copy's coordinates.
struct Zeile {
    const QTextLayout *layout;
    int nummer;
    qreal oben;
    qreal unten;
};

// One page of the sheet: its lines from `erste` up to before `ende`.
struct Seite {
    std::size_t erste;
    std::size_t ende;
};

std::vector<Zeile> Zeilen(const QTextDocument &dokument)
{
    std::vector<Zeile> zeilen;
    for (QTextBlock block = dokument.begin(); block.isValid(); block = block.next()) {
        const QTextLayout *layout = block.layout();
        const qreal y = layout->position().y();
        for (int i = 0; i < layout->lineCount(); ++i) {
            const QTextLine zeile = layout->lineAt(i);
            zeilen.push_back({layout, i, y + zeile.y(), y + zeile.y() + zeile.height()});
        }
    }
    return zeilen;
}

std::vector<Seite> Seiten(const std::vector<Zeile> &zeilen, qreal hoehe)
{
    std::vector<Seite> seiten;
    std::size_t erste = 0;
    while (erste < zeilen.size()) {
        // A page takes whole lines while they fit, and at least one, so that a line taller
        // than the block still prints instead of holding up the rest.
        std::size_t ende = erste + 1;
        while (ende < zeilen.size() && zeilen[ende].unten - zeilen[erste].oben <= hoehe)
            ++ende;
        seiten.push_back({erste, ende});
        erste = ende;
    }
    return seiten;
}

// The pages, counted from 1, in the order in which they go to paper, as the print dialog
// asked: only those in its page range, the last first if so chosen, and the copies that
// the printer does not make itself (a CUPS printer makes them, a PDF file does not).
// Collated copies are whole sets, 1 2 3 1 2 3; else each page comes as often in a row.
std::vector<int> Druckfolge(int seiten, const QPrinter &printer)
{
    const QPageRanges bereich = printer.pageRanges();
    std::vector<int> auswahl;
    for (int seite = 1; seite <= seiten; ++seite) {
        if (bereich.isEmpty() || bereich.contains(seite))
            auswahl.push_back(seite);
    }
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(auswahl.begin(), auswahl.end());

    const int kopien = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
    std::vector<int> folge;
    if (printer.collateCopies()) {
        for (int k = 0; k < kopien; ++k)
            folge.insert(folge.end(), auswahl.begin(), auswahl.end());
    } else {
        for (const int seite : auswahl)
            folge.insert(folge.end(), static_cast<std::size_t>(kopien), seite);
    }
    return folge;
}

} // namespace

void DruckeBlatt(const QTextDocument &blatt, QPrinter &printer)
{
    // The block's place is counted from the paper's corner, not from the printable area
    // that the printer's margins leave.
    printer.setFullPage(true);

    // The copy is laid out on the printer itself, so that the fonts measure there as they
    // will print; its units are the printer's dots, and a point is this many of them.
    const qreal punkt = printer.resolution() / 72.0;
    const std::unique_ptr<QTextDocument> dokument(blatt.clone());
    dokument->setDocumentMargin(0);
    dokument->documentLayout()->setPaintDevice(&printer);
    dokument->setTextWidth(Druckseite::Blockbreite * punkt);
    // Lays out the whole copy at once: block layouts are otherwise filled in lazily.
    dokument->documentLayout()->documentSize();

    const std::vector<Zeile> zeilen = Zeilen(*dokument);
    const std::vector<Seite> seiten = Seiten(zeilen, Druckseite::Blockhoehe * punkt);
    const std::vector<int> folge = Druckfolge(static_cast<int>(seiten.size()), printer);
    // A page range beyond the sheet leaves nothing to print: then no job is started at all.
    QPainter painter;
    if (folge.empty() || !painter.begin(&printer))
        return;

    const QPointF block(Druckseite::BlockLinks * punkt, Druckseite::BlockOben * punkt);
    for (std::size_t i = 0; i < folge.size(); ++i) {
        if (i > 0)
            printer.newPage();
        const Seite &seite = seiten[static_cast<std::size_t>(folge[i] - 1)];
        const qreal oben = zeilen[seite.erste].oben;
        for (std::size_t k = seite.erste; k < seite.ende; ++k) {
            const Zeile &zeile = zeilen[k];
            zeile.layout->lineAt(zeile.nummer).draw(&painter, block + zeile.layout->position() - QPointF(0, oben));
        }
    }
    painter.end();
}

void DruckeMitDialog(const QTextDocument &blatt, const QString &auftrag)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(auftrag);
    printer.setCreator(QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion());
    if (platform::OpenPrinterDialog(printer))
        DruckeBlatt(blatt, printer);
}
