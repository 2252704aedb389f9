// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Spielstand.h"

#include "ledger/Eingabe.h"
#include "ledger/Rechnen.h"
#include "platform/Beep.h"
#include "platform/Fonts.h"
#include "platform/Print.h"
#include "platform/QtText.h"
#include "view/BlattSchreiben.h"
#include "windows/Achtung.h"
#include "windows/Anker.h"
#include "windows/Beschriftung.h"
#include "windows/Ergebnisse.h"
#include "windows/Korrigieren.h"
#include "windows/Menue.h"
#include "windows/Namen.h"
#include "windows/Tabellenmass.h"
#include "windows/UeberTafelkasse.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDateTime>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {
constexpr QSize Inhalt{896, 616};
constexpr qreal LayoutSchriftgroesse = 12;
} // namespace

Spielstand::Spielstand(QWidget *parent)
    // A close box and a minimize button, but none to maximize: the window grows by hand only.
    : QMainWindow(parent,
                  Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                      | Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint)
    , Anzeige(new QTextEdit)
    , Ueber_Button(new QPushButton(u"Über…"_s))
    , Namen_Button(new QPushButton(u"Namen der Spieler"_s))
    , Ergebnisse_Button(new QPushButton(u"Ergebnisse eingeben"_s))
    , Korrektur_Button(new QPushButton(u"Ergebnisse korrigieren"_s))
    , PushButton5(new QPushButton(u"Quit"_s))
    , Neustart_Button(new QPushButton(u"Neustart"_s))
    , PushButton1(new QPushButton(u"größer"_s))
    , PushButton2(new QPushButton(u"Standard"_s))
    , PushButton6(new QPushButton(u"kleiner"_s))
    , Label1(new QLabel(u"Darstellung:"_s))
{
    Layout();
    Event_Opening();
}

void Spielstand::Layout()
{
    // First, before the controls take their places: a screen reader may ask for them from then on.
    BeschrifteKnoepfe(Label1, {PushButton6, PushButton2, PushButton1});
    setWindowTitle(u" Tafelkasse "_s);
    setObjectName(u"Spielstand"_s);
    // The menu bar stands above the content, which keeps its first size of 896 by 616.
    m_menue = new Menue(*this);
    setMenuBar(m_menue);

    auto *inhalt = new QWidget;
    inhalt->setMinimumSize(Inhalt);
    setCentralWidget(inhalt);
    auto *anker = new Anker(inhalt, Inhalt);

    const struct {
        QWidget *control;
        const char *name;
        QRect geometrie;
        unsigned locks;
    } controls[] = {
        {Anzeige, "Anzeige", {-1, 72, 898, 484}, LockLeft | LockTop | LockRight | LockBottom},
        {Ueber_Button, "Ueber_Button", {30, 20, 98, 20}, LockLeft | LockTop},
        {Namen_Button, "Namen_Button", {145, 20, 142, 20}, LockLeft | LockTop},
        {Ergebnisse_Button, "Ergebnisse_Button", {303, 20, 191, 20}, LockLeft | LockTop},
        {Korrektur_Button, "Korrektur_Button", {510, 20, 191, 20}, LockLeft | LockTop},
        {PushButton5, "PushButton5", {730, 576, 138, 20}, LockRight | LockBottom},
        {Neustart_Button, "Neustart_Button", {770, 20, 98, 20}, LockLeft | LockTop},
        {PushButton1, "PushButton1", {286, 576, 80, 20}, LockLeft | LockBottom},
        {PushButton2, "PushButton2", {203, 576, 80, 20}, LockLeft | LockBottom},
        {PushButton6, "PushButton6", {120, 576, 80, 20}, LockLeft | LockBottom},
        {Label1, "Label1", {30, 576, 91, 20}, LockLeft | LockBottom},
    };
    QWidget *vorher = nullptr;
    for (const auto &c : controls) {
        c.control->setParent(inhalt);
        c.control->setObjectName(QLatin1String(c.name));
        anker->Setze(c.control, c.geometrie, c.locks);
        // The tab order is the order of creation; the label takes no focus.
        if (c.control != Label1) {
            if (vorher)
                setTabOrder(vorher, c.control);
            vorher = c.control;
        }
    }

    QFont fett = PushButton5->font();
    fett.setBold(true);
    PushButton5->setFont(fett);
    // A button that has the keyboard focus answers Return as it answers Space.
    const QList<QPushButton *> knoepfe = findChildren<QPushButton *>();
    for (QPushButton *knopf : knoepfe)
        knopf->setAutoDefault(true);
    // The buttons and the label have the system's size, as far as their boxes hold it, a default
    // button's frame included.
    for (const auto &c : controls) {
        if (c.control != Anzeige)
            SchriftDesDesktops(c.control);
    }

    // The sheet can be read, selected and copied, never edited; it has no undo of its own,
    // so an "Undo" can never take a game off the sheet.
    Anzeige->setAccessibleName(u"Spielstand"_s);
    Anzeige->setReadOnly(true);
    Anzeige->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Anzeige->setUndoRedoEnabled(false);
    Anzeige->setAcceptRichText(false);
    Anzeige->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    Anzeige->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Anzeige->setLineWrapMode(QTextEdit::WidgetWidth);
    Anzeige->setFont(platform::font(platform::SystemFont, LayoutSchriftgroesse));
    // Tab leaves the sheet, so that the keyboard can reach the buttons from it.
    Anzeige->setTabChangesFocus(true);
    // A selection shows only while the sheet has the focus.
    QPalette farben = Anzeige->palette();
    farben.setBrush(QPalette::Inactive, QPalette::Highlight, Qt::NoBrush);
    farben.setBrush(QPalette::Inactive, QPalette::HighlightedText, farben.brush(QPalette::Inactive, QPalette::Text));
    Anzeige->setPalette(farben);

    connect(Ueber_Button, &QPushButton::clicked, this, &Spielstand::Ueber_Button_Pressed);
    connect(Namen_Button, &QPushButton::clicked, this, &Spielstand::Namen_Button_Pressed);
    connect(Ergebnisse_Button, &QPushButton::clicked, this, &Spielstand::Ergebnisse_Button_Pressed);
    connect(Korrektur_Button, &QPushButton::clicked, this, &Spielstand::Korrektur_Button_Pressed);
    connect(PushButton5, &QPushButton::clicked, this, &Spielstand::PushButton5_Pressed);
    connect(Neustart_Button, &QPushButton::clicked, this, &Spielstand::Neustart_Button_Pressed);
    connect(PushButton1, &QPushButton::clicked, this, &Spielstand::PushButton1_Pressed);
    connect(PushButton2, &QPushButton::clicked, this, &Spielstand::PushButton2_Pressed);
    connect(PushButton6, &QPushButton::clicked, this, &Spielstand::PushButton6_Pressed);

    resize(minimumSizeHint().expandedTo(Inhalt));
}

void Spielstand::Event_Opening()
{
    Modul1.Tagesdatum = DateTime::Now();
    QFont schrift = Anzeige->font();
    schrift.setFamily(platform::fontFamily(BlattSchrift()));
    // The sheet writes its letters unshaped, each piece with its own strategy; the area's font takes
    // the same, so that the area and the sheet's plain pieces share one font engine and the first
    // frame loads one face fewer. What the sheet shows comes from the pieces' formats alone.
    schrift.setStyleStrategy(QFont::PreferNoShaping);
    Anzeige->setFont(schrift);
    Textgroesse = static_cast<std::int64_t>(Anzeige->font().pointSizeF());
    for (int k = 1; k <= 4; ++k)
        Modul1.Spieler(k) = StandardName(k);
    setWindowTitle(u"Tafelkasse Version x vom 16.11.2019"_s);
    m_ueberschriften = StandardUeberschriften();
}

std::string Spielstand::Datum() const
{
    return Modul1.Tagesdatum ? Modul1.Tagesdatum->ToString() : std::string();
}

void Spielstand::Event_Activated()
{
    const Freigabe freigabe = FreigabeBei(Modul1.Spiel_Nr);
    Namen_Button->setEnabled(freigabe.Namen);
    Ergebnisse_Button->setEnabled(freigabe.Ergebnisse);
    Korrektur_Button->setEnabled(freigabe.Korrektur);
    Neustart_Button->setEnabled(freigabe.Neustart);
    m_menue->Event_MenuSelected();
    SchreibeBlatt(*Anzeige, Dokument(Modul1, m_ueberschriften, BlattSchrift(), Datum()));
}

void Spielstand::Neustart()
{
    NeustartDaten(Modul1);
    SchreibeKopf(*Anzeige, Kopf(Modul1, m_ueberschriften, Datum()));
}

bool Spielstand::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        Event_Activated();
    return QMainWindow::event(event);
}

void Spielstand::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    // A desktop without a window manager may never activate the window: the sheet of the
    // empty evening must stand there all the same.
    if (!m_gezeigt) {
        m_gezeigt = true;
        Event_Activated();
    }
}

void Spielstand::closeEvent(QCloseEvent *event)
{
    event->accept();
    Quit();
}

void Spielstand::Quit()
{
    QCoreApplication::exit(0);
}

void Spielstand::ModalZeigen(QDialog &dialog, const std::function<void()> &danach)
{
    dialog.exec();
    if (danach)
        danach();
    // Qt does not activate the main window again when a modal dialog closes, so the refresh
    // runs here, once the dialog, its handler and the step after it are done: it shows a new
    // game, new names, or the buttons of an empty evening after a restart.
    Event_Activated();
}

void Spielstand::ErgebnisseEingeben()
{
    Ergebnisse dialog(this);
    dialog.SpielerSetzen(Modul1);
    ModalZeigen(dialog);
}

void Spielstand::LetztesSpielKorrigieren()
{
    Korrigieren dialog(this);
    dialog.SpielerSetzen(Modul1);
    dialog.FormularSetzen(KorrekturFormular(Modul1));
    ModalZeigen(dialog, [] {
        if (Modul1.Gute_Eingabe)
            Rechnen(Modul1);
    });
}

void Spielstand::NeustartFragen()
{
    platform::Beep();
    Achtung dialog(this);
    ModalZeigen(dialog, [this] {
        if (Modul1.DruckKnopf == 1)
            Neustart();
    });
}

void Spielstand::UeberZeigen()
{
    if (!m_ueber)
        m_ueber = new UeberTafelkasse(this);
    // A minimized window stays minimized through show(), which does nothing to a window that is
    // still "visible": it is brought back first.
    m_ueber->setWindowState(m_ueber->windowState() & ~Qt::WindowMinimized);
    m_ueber->show();
    m_ueber->raise();
    m_ueber->activateWindow();
}

void Spielstand::NamenEingeben()
{
    Namen dialog(this);
    ModalZeigen(dialog);
}

void Spielstand::Drucken()
{
    // What a printed file or a print queue calls the job: the program and the evening's day, in a
    // form that serves as a file name anywhere.
    const QDateTime beginn
        = QDateTime::fromMSecsSinceEpoch(Modul1.Tagesdatum.value_or(DateTime{}).millisecondsSinceEpoch);
    platform::Print(this, *Anzeige->document(), u"Tafelkasse "_s + beginn.date().toString(Qt::ISODate));
}

void Spielstand::Ueber_Button_Pressed()
{
    UeberZeigen();
}

void Spielstand::Namen_Button_Pressed()
{
    NamenEingeben();
}

void Spielstand::Ergebnisse_Button_Pressed()
{
    ErgebnisseEingeben();
}

void Spielstand::Korrektur_Button_Pressed()
{
    LetztesSpielKorrigieren();
}

void Spielstand::PushButton5_Pressed()
{
    Quit();
}

void Spielstand::Neustart_Button_Pressed()
{
    NeustartFragen();
}

void Spielstand::PushButton1_Pressed()
{
    QFont schrift = Anzeige->font();
    schrift.setPointSizeF(schrift.pointSizeF() + 1);
    Anzeige->setFont(schrift);
}

void Spielstand::PushButton2_Pressed()
{
    QFont schrift = Anzeige->font();
    schrift.setPointSizeF(static_cast<qreal>(Textgroesse));
    Anzeige->setFont(schrift);
}

void Spielstand::PushButton6_Pressed()
{
    QFont schrift = Anzeige->font();
    if (schrift.pointSizeF() > 1) {
        schrift.setPointSizeF(schrift.pointSizeF() - 1);
        Anzeige->setFont(schrift);
    } else {
        platform::Beep();
    }
}
