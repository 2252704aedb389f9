// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Start-up in its fixed order: the evening's ledger exists before anything else (it is a
// global), then the application with the desktop's services, then the one main window,
// which takes its date and default names before it first draws the sheet.
#include "platform/PrintDialog.h"
#include "platform/QtServices.h"
#include "windows/Spielstand.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPixmap>
#include <QTranslator>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"Tafelkasse"_s);
    QApplication::setApplicationVersion(QStringLiteral(TAFELKASSE_VERSION));
    // The desktop matches the window with the installed entry by its name, and shows the program's
    // own picture on the window and in the task bar, whatever icon theme is installed. The pictures
    // are loaded here: an icon that loads its files itself hands the window manager of a scaled
    // screen every size as the 32-pixel one under Qt 6.8, and the task bar shows it blurred.
    QGuiApplication::setDesktopFileName(u"org.tafelkasse.Tafelkasse"_s);
    QIcon symbol;
    for (const int groesse : {16, 32, 48, 64, 128, 256})
        symbol.addPixmap(QPixmap(u":/symbol/tafelkasse-%1.png"_s.arg(groesse)));
    QApplication::setWindowIcon(symbol);
    // The program speaks German whatever the desktop's language, so Qt's own texts (the print
    // dialog, the sheet's context menu) do too, where Qt's translations are installed.
    QTranslator qtTexte;
    if (qtTexte.load(QLocale(QLocale::German, QLocale::Germany), u"qtbase"_s, u"_"_s,
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtTexte);
    platform::QtServices dienste;
    platform::QtPrintDialog druckdialog;
    platform::install(&druckdialog);

    Spielstand fenster;
    fenster.show();
    return QApplication::exec();
}
