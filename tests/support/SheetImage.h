// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sheet reduced to what a reader sees: its lines, each as its runs of one style, written "-|" for
// plain, "b|", "i|" or "bi|" and the run's text. Built from the pieces or read back from a
// QTextDocument, so that the two can be compared; the fonts are not compared.
#pragma once

#include "view/Blatt.h"

#include <QSet>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

struct SheetImage {
    static inline const QStringList styles{u"-|"_qs, u"b|"_qs, u"i|"_qs, u"bi|"_qs}; // by bold + 2 * italic
    QStringList lines{QString()};
    QString run; // the style of the last run in the last line
    QSet<QString> fonts; // read from a document: "family,size" of the fonts its characters are drawn in

    void add(const QString &part, bool bold, bool italic)
    {
        const QString style = styles[bold + 2 * italic];
        for (QChar c : part) {
            // A line separator inside a paragraph ends a line for the reader as well.
            if (c == QChar(CR) || c == QChar::ParagraphSeparator || c == QChar::LineSeparator) {
                lines.append(QString());
                run.clear();
            } else {
                lines.last() += (run == style ? QString() : (run = style)) + c;
            }
        }
    }

    static SheetImage fromPieces(const std::vector<Stueck> &pieces)
    {
        SheetImage image;
        for (const Stueck &piece : pieces)
            image.add(QString::fromStdString(piece.Text), piece.Fett, piece.Kursiv);
        return image;
    }

    static SheetImage fromDocument(const QTextDocument &document)
    {
        SheetImage image;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            if (block != document.begin())
                image.add(QString(QChar(CR)), false, false);
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextCharFormat format = it.fragment().charFormat();
                image.add(it.fragment().text(), format.fontWeight() >= QFont::Bold, format.fontItalic());
                image.fonts.insert(format.font().resolve(document.defaultFont()).toString().section(u',', 0, 1));
            }
        }
        return image;
    }

    // The first line in which the two differ, or nothing when they are equal.
    static QString firstDifference(const SheetImage &a, const SheetImage &b)
    {
        const auto i = std::ranges::mismatch(a.lines, b.lines).in1 - a.lines.begin();
        return a == b ? QString()
                      : u"line %1: \"%2\" vs \"%3\""_qs.arg(QString::number(i + 1), a.lines.value(i), b.lines.value(i));
    }

    friend bool operator==(const SheetImage &a, const SheetImage &b) { return a.lines == b.lines; }
};
