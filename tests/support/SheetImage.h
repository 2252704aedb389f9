// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sheet reduced to what a reader sees: its text with "\n" for each line end, and for
// every other character whether it is bold and whether it is italic. Built either from the
// document's pieces or read back from a QTextDocument, so the two can be compared.
#pragma once

#include "view/Blatt.h"

#include <QSet>
#include <QString>
#include <QTextBlock>
#include <QTextDocument>
#include <QVector>

struct SheetImage {
    enum : quint8 { Plain = 0, Bold = 1, Italic = 2, LineEnd = 4 };
    QString text;
    QVector<quint8> style; // one entry per UTF-16 unit of text

    static SheetImage fromPieces(const std::vector<Stueck> &pieces)
    {
        SheetImage image;
        for (const Stueck &piece : pieces) {
            const QString text = QString::fromStdString(piece.Text);
            const quint8 s = quint8((piece.Fett ? Bold : 0) | (piece.Kursiv ? Italic : 0));
            for (QChar c : text) {
                const bool end = c == QChar(CR) || c == QChar('\n') || c == QChar::ParagraphSeparator;
                image.text += end ? QChar('\n') : c;
                image.style += end ? quint8(LineEnd) : s;
            }
        }
        return image;
    }

    static SheetImage fromDocument(const QTextDocument &document)
    {
        SheetImage image;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            if (block != document.begin()) {
                image.text += QChar('\n');
                image.style += quint8(LineEnd);
            }
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextFragment fragment = it.fragment();
                const QTextCharFormat format = fragment.charFormat();
                const quint8 s = quint8((format.fontWeight() >= QFont::Bold ? Bold : 0)
                                        | (format.fontItalic() ? Italic : 0));
                for (QChar c : fragment.text()) {
                    // A line separator inside a paragraph also ends a line for the reader.
                    const bool end = c == QChar::LineSeparator;
                    image.text += end ? QChar('\n') : c;
                    image.style += end ? quint8(LineEnd) : s;
                }
            }
        }
        return image;
    }

    // The font families that the characters of the document carry.
    static QSet<QString> families(const QTextDocument &document)
    {
        QSet<QString> result;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it)
                result.insert(it.fragment().charFormat().font().family());
        }
        return result;
    }

    // Where the two first differ, as "position: ..." or empty when they are equal.
    static QString firstDifference(const SheetImage &a, const SheetImage &b)
    {
        const qsizetype n = std::min(a.text.size(), b.text.size());
        for (qsizetype i = 0; i < n; ++i) {
            if (a.text[i] != b.text[i] || a.style[i] != b.style[i])
                return QStringLiteral("%1: '%2'/%3 vs '%4'/%5 near \"%6\"")
                    .arg(i)
                    .arg(a.text[i])
                    .arg(a.style[i])
                    .arg(b.text[i])
                    .arg(b.style[i])
                    .arg(a.text.mid(std::max<qsizetype>(0, i - 20), 40));
        }
        if (a.text.size() != b.text.size())
            return QStringLiteral("lengths %1 vs %2").arg(a.text.size()).arg(b.text.size());
        return {};
    }

    friend bool operator==(const SheetImage &, const SheetImage &) = default;
};
