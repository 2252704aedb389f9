// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Print.h"

#include <QCoreApplication>
#include <QPluginLoader>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace platform {

void Print(QWidget *window, const QTextDocument &sheet, const QString &job)
{
    if (PrintService *printing = Installed<PrintService>::current())
        printing->print(window, sheet, job);
}

PrintModule::PrintModule() = default;

// The module stays loaded to the end of the run, as Qt keeps every plugin it has loaded.
PrintModule::~PrintModule() = default;

void PrintModule::print(QWidget *window, const QTextDocument &sheet, const QString &job)
{
    if (!m_loader) {
        // Where the build and the installation both put it, seen from the program.
        m_loader = std::make_unique<QPluginLoader>(QCoreApplication::applicationDirPath()
                                                   + QStringLiteral("/" TAFELKASSE_PRINT_MODULE));
    }
    auto *module = qobject_cast<PrintService *>(m_loader->instance());
    if (!module) {
        qWarning().noquote() << u"Tafelkasse cannot print: "_s + m_loader->errorString();
        return;
    }
    module->print(window, sheet, job);
}

} // namespace platform
