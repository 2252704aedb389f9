// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/BlattSchreiben.h"

#include "platform/QtText.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

void SchreibeStuecke(QTextDocument &dokument, const std::vector<Stueck> &stuecke, std::string_view schrift)
{
    QTextCursor cursor(&dokument);
    // One edit block: the area lays the sheet out once, not after every piece.
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    const QString familie = schrift.empty() ? QString() : platform::fontFamily(schrift);
    for (const Stueck &stueck : stuecke) {
        QTextCharFormat format;
        if (!familie.isEmpty())
            format.setFontFamilies({familie});
        format.setFontWeight(stueck.Fett ? QFont::Bold : QFont::Normal);
        format.setFontItalic(stueck.Kursiv);
        QString text = qs(stueck.Text);
        // The sheet's line end is CR; the area breaks paragraphs at its own separator.
        text.replace(QChar(CR), QChar::ParagraphSeparator);
        cursor.insertText(text, format);
    }
    cursor.endEditBlock();
}

namespace {

void CaretAnsEnde(QTextEdit &anzeige)
{
    QTextCursor cursor = anzeige.textCursor();
    cursor.movePosition(QTextCursor::End);
    anzeige.setTextCursor(cursor);
}

} // namespace

void SchreibeBlatt(QTextEdit &anzeige, const Blatt &blatt)
{
    SchreibeStuecke(*anzeige.document(), blatt.Stuecke, blatt.Schrift);
    CaretAnsEnde(anzeige);
}

void SchreibeKopf(QTextEdit &anzeige, const std::vector<Stueck> &kopf)
{
    SchreibeStuecke(*anzeige.document(), kopf, {});
    CaretAnsEnde(anzeige);
}
