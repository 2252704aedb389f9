// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sheet reduced to what a reader sees: its characters, every line end as a paragraph's end, and
// the style of each (bold + 2 * italic). A line end takes the style of the line that it opens, which a copy of the
// sheet shows in its HTML. Built from the pieces or read back from a QTextDocument, so that the two
// compare whole at memory speed, as the random evening does after every action. lines() writes it out
// for people: each line as its runs of one style, "-|" for plain, "b|", "i|" or "bi|" and the run's
// text; a line begins with the style of the line end that opens it.
#pragma once

#include "view/Blatt.h"

#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

struct SheetImage {
    static inline const QStringList styles{u"-|"_s, u"b|"_s, u"i|"_s, u"bi|"_s}; // by bold + 2 * italic
    QString text;
    QByteArray style; // one per character of text

    static SheetImage fromPieces(const std::vector<Stueck> &pieces)
    {
        SheetImage image;
        for (const Stueck &piece : pieces) {
            image.text += QString::fromStdString(piece.Text);
            image.style.resize(image.text.size(), char(piece.Fett + 2 * piece.Kursiv));
        }
        image.text.replace(QChar(CR), QChar::ParagraphSeparator);
        return image;
    }

    static SheetImage fromDocument(const QTextDocument &document)
    {
        // The raw text keeps a separator at each paragraph's end, so a fragment's position is its index.
        SheetImage image{document.toRawText(), {}};
        image.style.fill(0, image.text.size());
        const auto styleOf = [](const QTextCharFormat &format) {
            return char((format.fontWeight() >= QFont::Bold) + 2 * format.fontItalic());
        };
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            if (block.position() > 0) // the separator in front of a paragraph carries its block's format
                image.style[block.position() - 1] = styleOf(block.charFormat());
            for (const QTextLayout::FormatRange &run : block.textFormats())
                std::memset(image.style.data() + block.position() + run.start, styleOf(run.format), size_t(run.length));
        }
        return image;
    }

    QStringList lines() const
    {
        QString written;
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i] != QChar::ParagraphSeparator && (i == 0 || style[i] != style[i - 1]))
                written += styles[style[i]];
            written += text[i];
            if (text[i] == QChar::ParagraphSeparator)
                written += styles[style[i]];
        }
        return written.split(QChar::ParagraphSeparator);
    }

    // The first line in which what stands differs from what is expected, or nothing when they are equal.
    static QString firstDifference(const SheetImage &stands, const SheetImage &expected)
    {
        if (stands == expected)
            return {};
        const QStringList is = stands.lines(), shouldBe = expected.lines();
        const auto i = std::ranges::mismatch(is, shouldBe).in1 - is.begin();
        return u"line %1: \"%2\", expected \"%3\""_s.arg(QString::number(i + 1), is.value(i), shouldBe.value(i));
    }

    friend bool operator==(const SheetImage &a, const SheetImage &b) { return a.text == b.text && a.style == b.style; }
};
