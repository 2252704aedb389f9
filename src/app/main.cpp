// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Start-up in its fixed order: the evening's ledger exists before anything else (it is a
// global), then the application with the desktop's services, then the one main window,
// which takes its date and default names before it first draws the sheet.
#include "app/Symbol.h"
#include "platform/FontConfiguration.h"
#include "platform/Print.h"
#include "platform/QtServices.h"
#include "windows/Spielstand.h"

#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QLibraryInfo>
#include <QLocale>
#include <QPixmap>
#include <QTimer>
#include <QTranslator>
#include <QWindow>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// Runs a task once the window's first frame is drawn: the window paints as it is exposed, after
// its event filters have seen the expose, so a task posted from the filter comes after the frame.
class NachDemErstenBild final : public QObject {
    Q_OBJECT
public:
    NachDemErstenBild(QWindow *fenster, std::function<void()> aufgabe)
        : QObject(fenster)
        , m_aufgabe(std::move(aufgabe))
    {
        fenster->installEventFilter(this);
    }

    bool eventFilter(QObject *fenster, QEvent *event) override
    {
        if (event->type() == QEvent::Expose && static_cast<QWindow *>(fenster)->isExposed()) {
            fenster->removeEventFilter(this);
            QTimer::singleShot(0, this, [this] {
                m_aufgabe();
                deleteLater();
            });
        }
        return false;
    }

private:
    std::function<void()> m_aufgabe;
};

} // namespace

int main(int argc, char *argv[])
{
    // The fonts' configuration is read while the application connects to the display, and is
    // ready before the first widget asks for a font.
    platform::FontConfiguration schriften;
    QApplication app(argc, argv);
    schriften.waitUntilRead();
    QApplication::setApplicationName(u"Tafelkasse"_s);
    QApplication::setApplicationVersion(QStringLiteral(TAFELKASSE_VERSION));
    // The desktop matches the window with the installed entry by its name, and shows the program's
    // own picture on the window and in the task bar, whatever icon theme is installed. The pictures
    // are given as pixmaps: an icon that loads its files itself hands the window manager of a scaled
    // screen every size as the 32-pixel one under Qt 6.8, and the task bar shows it blurred. Their
    // pixels are in the program already, in the form the screen takes, and are used where they lie.
    QGuiApplication::setDesktopFileName(u"org.tafelkasse.Tafelkasse"_s);
    QIcon symbol;
    for (const SymbolBild &bild : SymbolBilder)
        symbol.addPixmap(QPixmap::fromImage(QImage(reinterpret_cast<const uchar *>(bild.pixel), bild.seite, bild.seite,
                                                   QImage::Format_ARGB32_Premultiplied)));
    QApplication::setWindowIcon(symbol);
    // The desktop's beep, dates, fonts and message box for the whole run, and the printing, which
    // is loaded at the first print; the clock is the system's.
    platform::QtServices dienste;
    platform::PrintModule drucken;

    Spielstand fenster;
    fenster.show();
    // The program speaks German whatever the desktop's language, so Qt's own texts (the print
    // dialog, the sheet's context menu) do too, where Qt's translations are installed. None of
    // them is in the window's first frame, so they are read once that frame is drawn.
    QTranslator qtTexte;
    new NachDemErstenBild(fenster.windowHandle(), [&qtTexte] {
        if (qtTexte.load(QLocale(QLocale::German, QLocale::Germany), u"qtbase"_s, u"_"_s,
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QApplication::installTranslator(&qtTexte);
    });
    return QApplication::exec();
}

#include "main.moc"
