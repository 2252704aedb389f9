// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The menu bar of the main window: "Ablage", "Bearbeiten", "Ergebnisse" and an empty fourth
// menu. It offers the commands of the window's buttons, with shortcuts, and printing. Its
// items follow the evening as the buttons do: names before the first game only, no new game
// once the ledger is full, correction and restart once there is a game.
#pragma once

#include <QMenuBar>

class QAction;
class QMenu;
class Spielstand;

class Menue : public QMenuBar {
    Q_OBJECT

public:
    explicit Menue(Spielstand &fenster);

    // Enables the five items that depend on the number of games. A shortcut fires without its
    // menu being shown, so this runs at every refresh of the main window as well as before a
    // menu opens; a disabled item's shortcut does nothing.
    void Event_MenuSelected();

    QMenu *const UntitledMenu3; // "Ablage"
    QMenu *const UntitledMenu1; // "Bearbeiten"
    QMenu *const UntitledMenu0; // "Ergebnisse"
    QMenu *const UntitledMenu5; // empty, without a title

    QAction *AblageNeu = nullptr;
    QAction *AblageSpielstandsichern = nullptr;
    QAction *AblagePapierformat = nullptr;
    QAction *AblageDrucken = nullptr;
    QAction *FileQuit = nullptr;
    QAction *EditUndo = nullptr;
    QAction *UntitledMenu2 = nullptr;
    QAction *EditCut = nullptr;
    QAction *EditCopy = nullptr;
    QAction *EditPaste = nullptr;
    QAction *EditClear = nullptr;
    QAction *ErgebnisseNamenderSpieler = nullptr;
    QAction *ErgebnisseErgebnisseeingeben = nullptr;
    QAction *ErgebnisseKorrekturletztesSpiel = nullptr;
    QAction *AppleTafelkasse = nullptr;

private:
    void Untitled0();
    void Untitled1();
    void Untitled2();
    void Untitled3();
    void AddMenuHandlers();

    void AppleTafelkasse_Action();
    void AblageNeu_Action();
    void AblageSpielstandsichern_Action();
    void AblagePapierformat_Action();
    void ErgebnisseNamenderSpieler_Action();
    void ErgebnisseErgebnisseeingeben_Action();
    void ErgebnisseKorrekturletztesSpiel_Action();
    void AblageDrucken_Action();
    void FileQuit_Action();

    void EditUndo_Action();
    void EditCut_Action();
    void EditCopy_Action();
    void EditPaste_Action();
    void EditClear_Action();

    Spielstand &m_fenster;
};
