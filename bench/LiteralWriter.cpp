// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "LiteralWriter.h"

#include "platform/QtText.h"

#include <QTextCursor>
#include <QTextEdit>

namespace {

// The few operations of a plain text area, each done through the widget as a user of it
// would: the whole text read back, the selection set, styles on the selection and the
// caret, the selection replaced.
class TextArea {
public:
    explicit TextArea(QTextEdit &edit)
        : m_edit(edit)
    { }

    // The length of the whole text, read back from the area each time.
    int valueLength() const { return static_cast<int>(m_edit.toPlainText().size()); }

    // A caret already standing at that place keeps the style that waits for the next
    // insertion there; moving it takes the style of the text at its new place.
    void setSelectionStart(int position)
    {
        QTextCursor cursor = m_edit.textCursor();
        if (cursor.hasSelection() || cursor.position() != position) {
            cursor.setPosition(position);
            m_edit.setTextCursor(cursor);
        }
    }

    // The caret stays at the selection's start, so the text that replaces the selection
    // takes its style from there, not from the last character of what it replaces.
    void setSelectionLength(int length)
    {
        QTextCursor cursor = m_edit.textCursor();
        const int start = cursor.selectionStart();
        cursor.setPosition(start + length);
        cursor.setPosition(start, QTextCursor::KeepAnchor);
        m_edit.setTextCursor(cursor);
    }

    void setSelectionBold(bool bold) { m_edit.setFontWeight(bold ? QFont::Bold : QFont::Normal); }
    void setSelectionItalic(bool italic) { m_edit.setFontItalic(italic); }
    void setSelectionFontName(const QString &family) { m_edit.setFontFamily(family); }

    void setSelectedText(const std::string &text)
    {
        QString piece = qs(text);
        // The sheet's line end is CR; the area breaks paragraphs at its own separator.
        piece.replace(QChar(CR), QChar::ParagraphSeparator);
        m_edit.insertPlainText(piece);
    }

    void caretToEnd() { setSelectionStart(valueLength()); }

private:
    QTextEdit &m_edit;
};

} // namespace

void writeSheetLiterally(QTextEdit &anzeige, const Blatt &blatt)
{
    TextArea area(anzeige);
    const std::vector<Stueck> &stuecke = blatt.Stuecke;

    // The head: the former sheet selected whole, so that the first piece replaces it.
    area.setSelectionStart(0);
    area.setSelectionLength(area.valueLength());
    area.setSelectionFontName(platform::fontFamily(blatt.Schrift));
    area.setSelectionBold(true);
    area.setSelectedText(stuecke[0].Text);
    area.caretToEnd();
    area.setSelectionBold(false);
    area.setSelectedText(stuecke[1].Text);
    area.caretToEnd();
    area.setSelectionItalic(true);
    area.setSelectedText(stuecke[2].Text);
    area.caretToEnd();
    area.setSelectionItalic(false);
    area.setSelectionBold(true);
    area.setSelectedText(stuecke[3].Text);
    area.caretToEnd();
    area.setSelectionBold(false);
    area.setSelectedText(stuecke[4].Text);

    // The games: five pieces each, the block's head plain, then the four player lines, whose
    // style is switched on before the caret goes to the end and off right behind the piece.
    constexpr std::size_t Kopfstuecke = 5;
    for (std::size_t g = Kopfstuecke; g + 4 < stuecke.size(); g += 5) {
        area.caretToEnd();
        area.setSelectedText(stuecke[g].Text);
        for (std::size_t p = 1; p <= 4; ++p) {
            const Stueck &zeile = stuecke[g + p];
            if (zeile.Fett)
                area.setSelectionBold(true);
            if (zeile.Kursiv)
                area.setSelectionItalic(true);
            area.caretToEnd();
            area.setSelectedText(zeile.Text);
            area.setSelectionBold(false);
            area.setSelectionItalic(false);
        }
    }
    if (stuecke.size() > Kopfstuecke)
        area.caretToEnd();
}
