// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Printing without a printer: a print dialog that answers at once, as if the user had
// chosen to print into a PDF file or had cancelled, and the text of such a file read back
// with poppler's pdftotext.
#pragma once

#include "platform/PrintDialog.h"

#include <QPrinter>
#include <QProcess>
#include <QString>
#include <QStringList>

class ScopedPrintDialog final : public platform::PrintDialogService {
public:
    ScopedPrintDialog(bool print, QString pdfFile)
        : answer(print)
        , file(std::move(pdfFile))
    {
        platform::install(this);
    }
    ~ScopedPrintDialog() override { platform::install(static_cast<platform::PrintDialogService *>(nullptr)); }
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
};

// The output of a poppler tool on a file, or an empty string if the tool failed.
inline QString popplerOutput(const QString &tool, QStringList arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

// The text of each page of a PDF, laid out as on paper.
inline QStringList pdfPages(const QString &file)
{
    QStringList pages = popplerOutput(u"pdftotext"_qs, {u"-layout"_qs, file, u"-"_qs}).split(QChar('\f'));
    // pdftotext ends every page, the last one included, with a form feed.
    if (!pages.isEmpty() && pages.last().trimmed().isEmpty())
        pages.removeLast();
    return pages;
}
