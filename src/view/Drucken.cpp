// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drucken.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

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

} // namespace

void DruckeBlatt(const QTextDocument &blatt, QPrinter &printer)
{
    // The block's place is counted from the paper's corner, not from the printable area
    // that the printer's margins leave.
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer))
        return;

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
    const qreal hoehe = Druckseite::Blockhoehe * punkt;
    const QPointF block(Druckseite::BlockLinks * punkt, Druckseite::BlockOben * punkt);
    std::size_t erste = 0;
    while (erste < zeilen.size()) {
        const qreal oben = zeilen[erste].oben;
        // A page takes whole lines while they fit, and at least one, so that a line taller
        // than the block still prints instead of holding up the rest.
        std::size_t ende = erste + 1;
        while (ende < zeilen.size() && zeilen[ende].unten - oben <= hoehe)
            ++ende;
        if (erste > 0)
            printer.newPage();
        for (std::size_t k = erste; k < ende; ++k) {
            const Zeile &zeile = zeilen[k];
            zeile.layout->lineAt(zeile.nummer).draw(&painter, block + zeile.layout->position() - QPointF(0, oben));
        }
        erste = ende;
    }
    painter.end();
}
