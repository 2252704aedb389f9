// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Printing the sheet, as a service. The printing itself (the printer, the desktop's print dialog
// and the drawing of the pages) is a module of its own, which the program loads at the first
// print: nothing of it is in the window's first frame, and the print support that it brings would
// cost every start. PrintModule is that loader; a test installs the printing linked in. While no
// printing is installed, nothing is printed.
#pragma once

#include "platform/Service.h"

#include <QtPlugin>

#include <memory>

class QPluginLoader;
class QString;
class QTextDocument;
class QWidget;

namespace platform {

class PrintService : public Service {
public:
    // Asks over `window` where and how to print, and prints `sheet` there as the job `job`.
    virtual void print(QWidget *window, const QTextDocument &sheet, const QString &job) = 0;
};

// Prints through the installed printing.
void Print(QWidget *window, const QTextDocument &sheet, const QString &job);

// The print module, installed beside the program and loaded at the first print. A module that
// cannot be loaded leaves a warning with the reason and prints nothing.
class PrintModule final : public Installed<PrintService> {
public:
    PrintModule();
    ~PrintModule() override;
    void print(QWidget *window, const QTextDocument &sheet, const QString &job) override;

private:
    std::unique_ptr<QPluginLoader> m_loader;
};

} // namespace platform

#define TAFELKASSE_PRINT_SERVICE_IID "org.tafelkasse.Tafelkasse.PrintService/1"
Q_DECLARE_INTERFACE(platform::PrintService, TAFELKASSE_PRINT_SERVICE_IID)
