// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Printing without a printer: the program's printing linked in, where the program loads its module,
// with a print dialog that answers at once, as if the user had chosen to print into a PDF file or
// had cancelled, and such a file read back with poppler's tools.
#pragma once

#include "platform/Print.h"
#include "platform/PrintDialog.h"
#include "support/Doubles.h"
#include "view/Drucken.h"

#include <QPrinter>
#include <QProcess>
#include <QStringList>

using namespace Qt::StringLiterals;

struct ScopedPrinting final : Installed<platform::PrintService> {
    void print(QWidget *, const QTextDocument &sheet, const QString &job) override { DruckeMitDialog(sheet, job); }
};

struct ScopedPrintDialog final : Installed<platform::PrintDialogService> {
    ScopedPrintDialog(bool print, QString pdfFile)
        : answer(print)
        , file(std::move(pdfFile))
    { }
    bool exec(QPrinter &printer) override
    {
        ++opened;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        return answer;
    }
    bool answer;
    QString file;
    int opened = 0;
    ScopedPrinting printing;
};

// What a poppler tool writes about a file, nothing if it cannot run.
inline QString popplerOutput(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished(30000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

// The text of each page of a PDF, laid out as on paper.
inline QStringList pdfPages(const QString &file)
{
    QStringList pages = popplerOutput(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s}).split(QChar('\f'));
    pages.removeLast(); // pdftotext ends every page, the last one too, with a form feed
    return pages;
}
