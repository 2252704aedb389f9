// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sheet reduced to what a reader sees: its characters, every line end as CR, and the style of
// each (bold + 2 * italic; none on a line end, where nobody sees one). Built from the pieces or read
// back from a QTextDocument, so that the two compare whole at memory speed, as the random evening
// does after every action. lines() writes it out for people: each line as its runs of one style,
// "-|" for plain, "b|", "i|" or "bi|" and the run's text.
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
            const QString part = QString::fromStdString(piece.Text);
            image.text += part;
            image.style.append(part.size(), char(piece.Fett + 2 * piece.Kursiv));
        }
        image.endLines();
        return image;
    }

    static SheetImage fromDocument(const QTextDocument &document)
    {
        // The raw text keeps a separator at each paragraph's end, so a fragment's position is its index.
        SheetImage image{document.toRawText(), {}};
        image.style.fill(0, image.text.size());
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextCharFormat format = it.fragment().charFormat();
                std::memset(image.style.data() + it.fragment().position(),
                            (format.fontWeight() >= QFont::Bold) + 2 * format.fontItalic(),
                            size_t(it.fragment().length()));
            }
        }
        image.endLines();
        return image;
    }

    QStringList lines() const
    {
        QString written;
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i] != QChar(CR) && (i == 0 || text[i - 1] == QChar(CR) || style[i] != style[i - 1]))
                written += styles[style[i]];
            written += text[i];
        }
        return written.split(QChar(CR));
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

private:
    // Every line end as CR and without a style: the sheet's own, a paragraph's end in the document and a
    // line separator inside a paragraph, which ends a line for the reader as well.
    void endLines()
    {
        text.replace(QChar::ParagraphSeparator, QChar(CR)).replace(QChar::LineSeparator, QChar(CR));
        for (qsizetype i = text.indexOf(QChar(CR)); i >= 0; i = text.indexOf(QChar(CR), i + 1))
            style[i] = 0;
    }
};
