// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The system's print dialog as a service: it asks the user where and how to print and sets
// up the printer accordingly. The desktop's dialog is QtPrintDialog, which the print module
// installs for each print; a test installs a double that answers at once, so printing can be
// tried without anybody at the screen. While no dialog is installed, every print is cancelled.
#pragma once

#include "platform/Service.h"

#include <QPointer>
#include <QWidget>

class QPrinter;

namespace platform {

class PrintDialogService : public Service {
public:
    // Shows the dialog for `printer`; true when the user chose to print.
    virtual bool exec(QPrinter &printer) = 0;
};

// Opens the installed print dialog; false when the user cancelled.
bool OpenPrinterDialog(QPrinter &printer);

// The dialog of the desktop: Qt's print dialog over the window that prints, so that the desktop
// keeps the two together (on Wayland a dialog without a parent stands alone).
class QtPrintDialog final : public Installed<PrintDialogService> {
public:
    explicit QtPrintDialog(QWidget *parent)
        : m_parent(parent)
    { }
    bool exec(QPrinter &printer) override;

private:
    QPointer<QWidget> m_parent;
};

} // namespace platform
