// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/BlattSchreiben.h"

#include "platform/QtText.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

namespace {

// Letters that stand for themselves: the sheet is written character by character, so a font's
// ligatures and other optional substitutions ("Nr." drawn as one sign "№") must not touch them.
// Scripts whose letters join or reorder (Arabic, the Indic scripts, …) need their shaping, so
// names written in them keep it.
bool ohneFormung(char32_t zeichen)
{
    switch (QChar::script(zeichen)) {
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
        return true;
    default:
        return false;
    }
}

// Inserts the text in runs that are shaped or not by their script, each in the piece's format.
void einfuegen(QTextCursor &cursor, const QString &text, QTextCharFormat format)
{
    const QList<uint> zeichen = text.toUcs4();
    // Blanks, digits, signs and combining marks belong to no script of their own: they go with the
    // letters before them, so that a mark stays on its letter and a joining stroke in its word.
    const auto eigen = [&zeichen](qsizetype i) {
        const QChar::Script schrift = QChar::script(zeichen[i]);
        return schrift != QChar::Script_Common && schrift != QChar::Script_Inherited;
    };
    qsizetype anfang = 0, position = 0;
    while (anfang < zeichen.size()) {
        const bool ohne = !eigen(anfang) || ohneFormung(zeichen[anfang]);
        qsizetype ende = anfang;
        qsizetype laenge = 0;
        while (ende < zeichen.size() && (ende == anfang || !eigen(ende) || ohneFormung(zeichen[ende]) == ohne))
            laenge += QChar::requiresSurrogates(zeichen[ende++]) ? 2 : 1;
        format.setFontStyleStrategy(ohne ? QFont::PreferNoShaping : QFont::PreferDefault);
        cursor.insertText(text.mid(position, laenge), format);
        position += laenge;
        anfang = ende;
    }
}

} // namespace

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
        einfuegen(cursor, text, format);
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
