// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Menue.h"

#include "ledger/Modul1.h"
#include "windows/Spielstand.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QTextCursor>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

QAction *Eintrag(QMenu *menu, const char *name, const QString &text, const QKeySequence &shortcut = {})
{
    auto *eintrag = new QAction(text, menu);
    eintrag->setObjectName(QLatin1String(name));
    // Only "Beenden" and "Tafelkasse " belong in the application menu of macOS; Qt would
    // otherwise guess from the texts.
    eintrag->setMenuRole(QAction::NoRole);
    eintrag->setShortcut(shortcut);
    // The bar serves the whole program: its shortcuts work in the about window too, which has no
    // bar of its own. While a dialog is open they rest, as the main window does.
    eintrag->setShortcutContext(Qt::ApplicationShortcut);
    menu->addAction(eintrag);
    return eintrag;
}

// Runs the edit command on the text field or text area that has the focus, unless the user
// may not change its text: the sheet is read-only, and so nothing here can take a game off it.
template<typename Feld, typename Flaeche>
void AmTextFokus(Feld amFeld, Flaeche anDerFlaeche)
{
    QWidget *fokus = QApplication::focusWidget();
    if (auto *feld = qobject_cast<QLineEdit *>(fokus)) {
        if (!feld->isReadOnly())
            amFeld(*feld);
    } else if (auto *flaeche = qobject_cast<QTextEdit *>(fokus)) {
        if (!flaeche->isReadOnly())
            anDerFlaeche(*flaeche);
    }
}

} // namespace

Menue::Menue(Spielstand &fenster)
    : QMenuBar(&fenster)
    , UntitledMenu3(new QMenu(u"&Ablage"_s, this))
    , UntitledMenu1(new QMenu(u"&Bearbeiten"_s, this))
    , UntitledMenu0(new QMenu(u"&Ergebnisse"_s, this))
    , UntitledMenu5(new QMenu(this))
    , m_fenster(fenster)
{
    setObjectName(u"Menue"_s);
    Untitled0();
    Untitled1();
    Untitled2();
    Untitled3();
    AddMenuHandlers();
    Event_MenuSelected();
    // F10 opens the first menu, as on the desktops here; Alt and a title's letter open that menu.
    auto *f10 = new QShortcut(QKeySequence(Qt::Key_F10), &fenster);
    connect(f10, &QShortcut::activated, this, [this] { setActiveAction(UntitledMenu3->menuAction()); });
}

void Menue::Untitled0()
{
    UntitledMenu3->setObjectName(u"UntitledMenu3"_s);
    addMenu(UntitledMenu3);
    AblageNeu = Eintrag(UntitledMenu3, "AblageNeu", u"Neu"_s, QKeySequence(Qt::CTRL | Qt::Key_N));
    AblageSpielstandsichern = Eintrag(UntitledMenu3, "AblageSpielstandsichern", u"Spielstand sichern"_s,
                                      QKeySequence(Qt::CTRL | Qt::Key_S));
    AblagePapierformat = Eintrag(UntitledMenu3, "AblagePapierformat", u"Papierformat"_s);
    AblageDrucken = Eintrag(UntitledMenu3, "AblageDrucken", u"Drucken"_s, QKeySequence(Qt::CTRL | Qt::Key_P));
    FileQuit = Eintrag(UntitledMenu3, "FileQuit", u"Beenden"_s, QKeySequence(Qt::CTRL | Qt::Key_Q));
    FileQuit->setMenuRole(QAction::QuitRole);
}

void Menue::Untitled1()
{
    UntitledMenu1->setObjectName(u"UntitledMenu1"_s);
    addMenu(UntitledMenu1);
    EditUndo = Eintrag(UntitledMenu1, "EditUndo", u"Undo"_s, QKeySequence(Qt::CTRL | Qt::Key_Z));
    UntitledMenu2 = UntitledMenu1->addSeparator();
    UntitledMenu2->setObjectName(u"UntitledMenu2"_s);
    EditCut = Eintrag(UntitledMenu1, "EditCut", u"Ausschneiden"_s, QKeySequence(Qt::CTRL | Qt::Key_X));
    EditCopy = Eintrag(UntitledMenu1, "EditCopy", u"Kopieren"_s, QKeySequence(Qt::CTRL | Qt::Key_C));
    EditPaste = Eintrag(UntitledMenu1, "EditPaste", u"Einfügen"_s, QKeySequence(Qt::CTRL | Qt::Key_V));
    EditClear = Eintrag(UntitledMenu1, "EditClear", u"Löschen"_s);
}

void Menue::Untitled2()
{
    UntitledMenu0->setObjectName(u"UntitledMenu0"_s);
    addMenu(UntitledMenu0);
    ErgebnisseNamenderSpieler = Eintrag(UntitledMenu0, "ErgebnisseNamenderSpieler", u"Namen der Spieler  "_s);
    ErgebnisseErgebnisseeingeben = Eintrag(UntitledMenu0, "ErgebnisseErgebnisseeingeben", u"Ergebnisse eingeben "_s,
                                           QKeySequence(Qt::CTRL | Qt::Key_E));
    ErgebnisseKorrekturletztesSpiel = Eintrag(UntitledMenu0, "ErgebnisseKorrekturletztesSpiel",
                                              u"Korrektur letztes Spiel"_s, QKeySequence(Qt::CTRL | Qt::Key_K));
    AppleTafelkasse = Eintrag(UntitledMenu0, "AppleTafelkasse", u"Tafelkasse "_s, QKeySequence(Qt::CTRL | Qt::Key_I));
    AppleTafelkasse->setMenuRole(QAction::AboutRole);
}

void Menue::Untitled3()
{
    UntitledMenu5->setObjectName(u"UntitledMenu5"_s);
    addMenu(UntitledMenu5);
}

void Menue::AddMenuHandlers()
{
    connect(AppleTafelkasse, &QAction::triggered, this, &Menue::AppleTafelkasse_Action);
    connect(AblageNeu, &QAction::triggered, this, &Menue::AblageNeu_Action);
    connect(AblageSpielstandsichern, &QAction::triggered, this, &Menue::AblageSpielstandsichern_Action);
    connect(AblagePapierformat, &QAction::triggered, this, &Menue::AblagePapierformat_Action);
    connect(ErgebnisseNamenderSpieler, &QAction::triggered, this, &Menue::ErgebnisseNamenderSpieler_Action);
    connect(ErgebnisseErgebnisseeingeben, &QAction::triggered, this, &Menue::ErgebnisseErgebnisseeingeben_Action);
    connect(ErgebnisseKorrekturletztesSpiel, &QAction::triggered, this, &Menue::ErgebnisseKorrekturletztesSpiel_Action);
    connect(AblageDrucken, &QAction::triggered, this, &Menue::AblageDrucken_Action);
    connect(FileQuit, &QAction::triggered, this, &Menue::FileQuit_Action);

    connect(EditUndo, &QAction::triggered, this, &Menue::EditUndo_Action);
    connect(EditCut, &QAction::triggered, this, &Menue::EditCut_Action);
    connect(EditCopy, &QAction::triggered, this, &Menue::EditCopy_Action);
    connect(EditPaste, &QAction::triggered, this, &Menue::EditPaste_Action);
    connect(EditClear, &QAction::triggered, this, &Menue::EditClear_Action);

    for (QMenu *menu : {UntitledMenu3, UntitledMenu1, UntitledMenu0, UntitledMenu5})
        connect(menu, &QMenu::aboutToShow, this, &Menue::Event_MenuSelected);
}

void Menue::Event_MenuSelected()
{
    AppleTafelkasse->setEnabled(true);
    const Freigabe freigabe = FreigabeBei(Modul1.Spiel_Nr);
    ErgebnisseNamenderSpieler->setEnabled(freigabe.Namen);
    ErgebnisseErgebnisseeingeben->setEnabled(freigabe.Ergebnisse);
    ErgebnisseKorrekturletztesSpiel->setEnabled(freigabe.Korrektur);
    AblageNeu->setEnabled(freigabe.Neustart);
}

void Menue::AppleTafelkasse_Action()
{
    m_fenster.UeberZeigen();
}

void Menue::AblageNeu_Action()
{
    m_fenster.NeustartFragen();
}

// Nothing is saved and there is no page set-up: the entries are there, and do nothing.
void Menue::AblageSpielstandsichern_Action() { }

void Menue::AblagePapierformat_Action() { }

void Menue::ErgebnisseNamenderSpieler_Action()
{
    m_fenster.NamenEingeben();
}

void Menue::ErgebnisseErgebnisseeingeben_Action()
{
    m_fenster.ErgebnisseEingeben();
}

void Menue::ErgebnisseKorrekturletztesSpiel_Action()
{
    m_fenster.LetztesSpielKorrigieren();
}

void Menue::AblageDrucken_Action()
{
    m_fenster.Drucken();
}

void Menue::FileQuit_Action()
{
    m_fenster.Quit();
}

void Menue::EditUndo_Action()
{
    AmTextFokus([](QLineEdit &feld) { feld.undo(); }, [](QTextEdit &flaeche) { flaeche.undo(); });
}

void Menue::EditCut_Action()
{
    AmTextFokus([](QLineEdit &feld) { feld.cut(); }, [](QTextEdit &flaeche) { flaeche.cut(); });
}

void Menue::EditCopy_Action()
{
    // Copying changes nothing, so it works on the sheet too, and on the sheet's selection
    // wherever the focus stands.
    QWidget *fokus = QApplication::focusWidget();
    if (auto *feld = qobject_cast<QLineEdit *>(fokus))
        feld->copy();
    else if (auto *flaeche = qobject_cast<QTextEdit *>(fokus))
        flaeche->copy();
    else
        m_fenster.Anzeige->copy();
}

void Menue::EditPaste_Action()
{
    AmTextFokus([](QLineEdit &feld) { feld.paste(); }, [](QTextEdit &flaeche) { flaeche.paste(); });
}

void Menue::EditClear_Action()
{
    AmTextFokus(
        [](QLineEdit &feld) {
            if (feld.hasSelectedText())
                feld.del();
        },
        [](QTextEdit &flaeche) { flaeche.textCursor().removeSelectedText(); });
}
