// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintDialog.h"

#include <QPrintDialog>
#include <QPrinter>

namespace platform {

bool OpenPrinterDialog(QPrinter &printer)
{
    // With no dialog installed, nobody can say yes: the print is cancelled.
    PrintDialogService *dialog = Installed<PrintDialogService>::current();
    return dialog && dialog->exec(printer);
}

bool QtPrintDialog::exec(QPrinter &printer)
{
    QPrintDialog dialog(&printer, m_parent);
    // What the printing honours, and only that: a page range, copies and their collation, the
    // page order and the paper. The sheet has no selection and no current page to print.
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange
                      | QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace platform
