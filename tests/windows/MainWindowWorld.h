// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main window in a known world: an empty evening, a clock that stands still, a beep
// counter and a font list of the test's choosing. One is made in each test's init(), so
// no test sees what another left behind.
#pragma once

#include "Doubles.h"
#include "Modal.h"
#include "SheetImage.h"
#include "ledger/Eingabe.h"
#include "windows/Spielstand.h"

#include <QPushButton>
#include <QTest>
#include <QTextEdit>

#include <memory>

class MainWindowWorld {
public:
    explicit MainWindowWorld(std::vector<std::string> fontNames = {"Helvetica", "Courier"})
        : fonts(std::move(fontNames))
    {
        Modul1 = Abend{};
        window = std::make_unique<Spielstand>();
        window->show();
    }

    QPushButton *button(const char *name) const { return child<QPushButton>(window.get(), name); }

    // Presses a button of the main window; `answer` runs on the modal dialog it opens.
    void pressAnswering(const char *name, std::function<void(QWidget *)> answer) const
    {
        whenModal(std::move(answer));
        QTest::mouseClick(button(name), Qt::LeftButton);
    }

    // Games straight into the ledger, then the refresh, where the dialog is not under test.
    void playGames(int count) const
    {
        for (int i = 0; i < count; ++i)
            Ergebnisse_OK(Modul1, {{"10", "20", "30", "40"}, i % 4 + 1, (i + 1) % 4 + 1});
        window->Event_Activated();
    }

    QStringList sheetLines() const { return window->Anzeige->toPlainText().split(u'\n'); }

    // Namen, Ergebnisse, Korrektur and Neustart enabled, in this order.
    QList<bool> buttonStates() const
    {
        return {button("Namen_Button")->isEnabled(), button("Ergebnisse_Button")->isEnabled(),
                button("Korrektur_Button")->isEnabled(), button("Neustart_Button")->isEnabled()};
    }

    // Empty when the sheet in the window reads as the document of the ledger, styles included.
    QString sheetDiffersFromLedger() const
    {
        const Blatt blatt = Dokument(Modul1, window->Zeilen(), BlattSchrift(), Modul1.Tagesdatum->ToString());
        return SheetImage::firstDifference(SheetImage::fromDocument(*window->Anzeige->document()),
                                           SheetImage::fromPieces(blatt.Stuecke));
    }

    FixedClock clock;
    ScopedBeepCounter beeps;
    ScopedFontList fonts;
    std::unique_ptr<Spielstand> window;
};
