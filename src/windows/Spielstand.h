// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Spielstand is the main window of Tafelkasse: the sheet of the evening in Anzeige, the
// buttons that drive the evening above it, and the text size buttons and "Quit" below.
//
// The road of one game: "Ergebnisse eingeben" opens the results dialog, whose OK adds the
// game to Modul1 and settles it at once. When the dialog has closed, the main window
// refreshes: it enables its buttons by the number of games and writes the whole sheet anew
// from the ledger. The last game can be corrected the same way, and "Neustart" asks first,
// then clears the evening and writes a fresh head. Nothing of the ledger touches the sheet
// directly, so whatever happened, the sheet after a refresh is the ledger as it stands.
#pragma once

#include "view/Blatt.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>

class Menue;
class QDialog;
class QLabel;
class QPushButton;
class QTextEdit;
class UeberTafelkasse;

class Spielstand : public QMainWindow {
    Q_OBJECT

public:
    explicit Spielstand(QWidget *parent = nullptr);

    // The refresh: the four buttons by the number of games, then the whole sheet anew.
    void Event_Activated();

    // Restart without asking: the evening cleared and a fresh head written.
    void Neustart();

    // The commands that a button and a menu item share.
    void UeberZeigen();
    void NamenEingeben();
    void ErgebnisseEingeben();
    void LetztesSpielKorrigieren();
    void NeustartFragen();

    // Prints the sheet as it stands, after the system's print dialog.
    void Drucken();

    // Ends the evening and the program, by "Quit", "Beenden" or the close box: nothing is kept.
    void Quit();

    QTextEdit *const Anzeige;
    QPushButton *const Ueber_Button;
    QPushButton *const Namen_Button;
    QPushButton *const Ergebnisse_Button;
    QPushButton *const Korrektur_Button;
    QPushButton *const PushButton5;
    QPushButton *const Neustart_Button;
    QPushButton *const PushButton1;
    QPushButton *const PushButton2;
    QPushButton *const PushButton6;
    QLabel *const Label1;

    // The standard text size of the sheet, in whole points.
    std::int64_t Textgroesse = 0;

    const Ueberschriften &Zeilen() const { return m_ueberschriften; }

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void Layout();
    void Event_Opening();
    // Runs the dialog until it closes, then `danach`, then the refresh.
    void ModalZeigen(QDialog &dialog, const std::function<void()> &danach = {});

    void Ueber_Button_Pressed();
    void Namen_Button_Pressed();
    void Ergebnisse_Button_Pressed();
    void Korrektur_Button_Pressed();
    void PushButton5_Pressed();
    void Neustart_Button_Pressed();
    void PushButton1_Pressed();
    void PushButton2_Pressed();
    void PushButton6_Pressed();

    std::string Datum() const;

    Ueberschriften m_ueberschriften;
    bool m_gezeigt = false;
    // The window's menu bar, made in Layout.
    Menue *m_menue = nullptr;
    // The about window while it exists, shown or hidden; its close box ends it.
    QPointer<UeberTafelkasse> m_ueber;
};
