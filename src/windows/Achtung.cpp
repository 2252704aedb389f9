// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Achtung.h"

#include "ledger/Modul1.h"
#include "platform/QtText.h"
#include "windows/Tabellenmass.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <cstdlib>
#include <memory>

#ifdef TAFELKASSE_XCB
#include <xcb/xcb.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int CanvasSeite = 46;

// The warning icon of the desktop's style, drawn at the top left of the canvas and never
// larger than the canvas.
class WarnSymbol : public QWidget {
    Q_OBJECT
public:
    explicit WarnSymbol(QWidget *parent)
        : QWidget(parent)
    { }

protected:
    void paintEvent(QPaintEvent *) override { Canvas1_Paint(); }

private:
    void Canvas1_Paint()
    {
        const int seite = std::min(CanvasSeite, style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this));
        QPainter painter(this);
        style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).paint(&painter, 0, 0, seite, seite);
    }
};

// No heading at all: Qt gives a window without a title the program's name. On X11 the window's
// names are taken off again before it is shown. On Wayland the compositor is told a title of
// nothing visible, a zero-width space, for an empty one would become the program's name as well.
void ohneUeberschrift(QWidget *fenster)
{
    if (QGuiApplication::platformName().startsWith(u"wayland"_s)) {
        fenster->setWindowTitle(u"\u200B"_s);
        return;
    }
#ifdef TAFELKASSE_XCB
    // Only an X11 desktop has the names; the offscreen platform answers as X11 too, without a connection.
    auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t *verbindung = x11 && QGuiApplication::platformName() == u"xcb"_s ? x11->connection() : nullptr;
    if (!verbindung)
        return;
    const auto id = static_cast<xcb_window_t>(fenster->winId());
    const char netWmName[] = "_NET_WM_NAME";
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
        xcb_intern_atom_reply(verbindung, xcb_intern_atom(verbindung, 0, sizeof netWmName - 1, netWmName), nullptr),
        &std::free);
    xcb_delete_property(verbindung, id, XCB_ATOM_WM_NAME);
    if (atom)
        xcb_delete_property(verbindung, id, atom->atom);
    xcb_flush(verbindung);
#endif
}

} // namespace

Achtung::Achtung(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , Canvas1(new WarnSymbol(this))
    , Abbruch(new QPushButton(u"Abbruch"_s, this))
    , OK(new QPushButton(u"OK"_s, this))
    , StaticText1(
          new QLabel(u"Damit werden alle bisherigen Ergebnisse gelöscht und die Tabelle beginnt von vorne!"_s, this))
{
    Layout();
}

void Achtung::Layout()
{
    setObjectName(u"Achtung"_s);
    setWindowTitle(QString());
    FesteGroesse(this, {345, 160});
    setModal(true);

    Canvas1->setObjectName(u"Canvas1"_s);
    Canvas1->setGeometry(13, 31, CanvasSeite, CanvasSeite);
    Canvas1->setAccessibleName(u"Warnung"_s);
    Abbruch->setObjectName(u"Abbruch"_s);
    Abbruch->setGeometry(59, 106, 74, 20);
    OK->setObjectName(u"OK"_s);
    OK->setGeometry(206, 106, 74, 20);
    StaticText1->setObjectName(u"StaticText1"_s);
    StaticText1->setGeometry(71, 31, 255, 53);
    StaticText1->setWordWrap(true);
    StaticText1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    for (QWidget *control : std::initializer_list<QWidget *>{StaticText1, Abbruch, OK})
        SchriftInPixeln(control, 12);

    setTabOrder(Abbruch, OK);
    // Return confirms, unless the user has moved the focus onto Abbruch: a focused button answers
    // Return itself. The dialog opens with the focus on OK.
    OK->setDefault(true);
    // Without a title, a screen reader names the warning by its sentence.
    setAccessibleName(StaticText1->text());
    ohneUeberschrift(this);

    connect(Abbruch, &QPushButton::clicked, this, &Achtung::Abbruch_Pressed);
    connect(OK, &QPushButton::clicked, this, &Achtung::OK_Pressed);
}

void Achtung::reject()
{
    Abbruch_Pressed();
}

void Achtung::Abbruch_Pressed()
{
    Modul1.DruckKnopf = 0;
    QDialog::reject();
}

void Achtung::OK_Pressed()
{
    Modul1.DruckKnopf = 1;
    accept();
}

#include "Achtung.moc"
