// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The print module: the program's printing, loaded at the first print. Each print asks with the
// desktop's print dialog, over the window that prints.
#include "platform/Print.h"
#include "platform/PrintDialog.h"
#include "view/Drucken.h"

#include <QObject>

namespace {

class Druckmodul final : public QObject, public platform::PrintService {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TAFELKASSE_PRINT_SERVICE_IID)
    Q_INTERFACES(platform::PrintService)

public:
    // Qt's plugin loader makes it without a parent, and keeps it to the end of the run.
    explicit Druckmodul(QObject *parent = nullptr)
        : QObject(parent)
    { }

    void print(QWidget *window, const QTextDocument &sheet, const QString &job) override
    {
        platform::QtPrintDialog dialog(window);
        DruckeMitDialog(sheet, job);
    }
};

} // namespace

#include "Druckmodul.moc"
