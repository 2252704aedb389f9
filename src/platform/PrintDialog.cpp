// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintDialog.h"

namespace platform {

bool OpenPrinterDialog(QPrinter &printer)
{
    // With no dialog installed, nobody can say yes: the print is cancelled.
    PrintDialogService *dialog = Installed<PrintDialogService>::current();
    return dialog && dialog->exec(printer);
}

} // namespace platform
