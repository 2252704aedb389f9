// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sheet reduced to what a reader sees: its characters, every line end written as CR, and the style
// of each character (bold + 2 * italic; none on a line end, whose style nobody sees). Built from the
// pieces or read back from a QTextDocument, so that the two can be compared whole at memory speed, as
// the random evening does after every action. lines() writes it out for people: each line as its runs
// of one style, "-|" for plain, "b|", "i|" or "bi|" and the run's text. The fonts a document's
// characters are drawn in are collected but not compared.
#pragma once

#include "view/Blatt.h"

#include <QSet>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <cstring>

struct SheetImage {
    static inline const QStringList styles{u"-|"_qs, u"b|"_qs, u"i|"_qs, u"bi|"_qs}; // by bold + 2 * italic
    QString text;
    QByteArray style; // one entry per character of text
    QSet<QString> fonts; // read from a document: "family,size"

    static SheetImage fromPieces(const std::vector<Stueck> &pieces)
    {
        SheetImage image;
        qsizetype bytes = 0;
        for (const Stueck &piece : pieces)
            bytes += qsizetype(piece.Text.size());
        // Never more UTF-16 units than UTF-8 bytes: the sheet grows in place.
        image.text.reserve(bytes);
        image.style.reserve(bytes);
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
        SheetImage image;
        // The raw text holds the paragraph ends as separators, so a fragment's position is its index.
        image.text = document.toRawText();
        image.style = QByteArray(image.text.size(), 0);
        char *style = image.style.data();
        QSet<int> formats;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextFragment fragment = it.fragment();
                const QTextCharFormat format = fragment.charFormat();
                const qsizetype from = std::min<qsizetype>(fragment.position(), image.text.size());
                const qsizetype length = std::min<qsizetype>(fragment.length(), image.text.size() - from);
                std::memset(style + from, (format.fontWeight() >= QFont::Bold) + 2 * format.fontItalic(),
                    size_t(std::max<qsizetype>(length, 0)));
                formats.insert(fragment.charFormatIndex());
            }
        }
        const QList<QTextFormat> all = document.allFormats();
        for (int index : formats) {
            const QFont font = all.value(index).toCharFormat().font().resolve(document.defaultFont());
            image.fonts.insert(font.toString().section(u',', 0, 1));
        }
        image.endLines();
        return image;
    }

    // The lines as people read them, with a style mark at the start of each run.
    QStringList lines() const
    {
        QStringList result;
        qsizetype start = 0;
        for (QStringView line : QStringView(text).split(QChar(CR))) {
            QString written;
            char run = -1;
            for (qsizetype i = 0; i < line.size(); ++i) {
                const char s = style.at(start + i);
                if (s != run)
                    written += styles.at(s);
                written += line[i];
                run = s;
            }
            result << written;
            start += line.size() + 1;
        }
        return result;
    }

    // The first line in which the two differ, or nothing when they are equal.
    static QString firstDifference(const SheetImage &a, const SheetImage &b)
    {
        if (a == b)
            return {};
        qsizetype i = 0;
        while (i < std::min(a.text.size(), b.text.size()) && a.text[i] == b.text[i] && a.style[i] == b.style[i])
            ++i;
        const qsizetype line = QStringView(a.text).left(i).count(QChar(CR));
        return u"line %1: \"%2\" vs \"%3\""_qs.arg(
            QString::number(line + 1), a.lines().value(line), b.lines().value(line));
    }

    friend bool operator==(const SheetImage &a, const SheetImage &b) { return a.text == b.text && a.style == b.style; }

private:
    // Every line end as CR and without a style: the sheet's own CR, a paragraph's end in the document,
    // and a line separator inside a paragraph, which ends a line for the reader as well.
    void endLines()
    {
        text.replace(QChar::ParagraphSeparator, QChar(CR)).replace(QChar::LineSeparator, QChar(CR));
        for (qsizetype i = text.indexOf(QChar(CR)); i >= 0; i = text.indexOf(QChar(CR), i + 1))
            style[i] = 0;
    }
};
