// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The about window: what the program is, in three centred lines on light grey. It stands
// beside the main window without blocking it. A mouse press anywhere on it only hides it,
// so the next "Über…" brings back the same window; its close box ends it for good. Esc dismisses it
// as a click does.
#pragma once

#include <QWidget>

class QLabel;

class UeberTafelkasse : public QWidget {
    Q_OBJECT

public:
    explicit UeberTafelkasse(QWidget *parent);

    QLabel *const StaticText1;
    QLabel *const StaticText2;
    QLabel *const StaticText3;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Layout();
    void Event_Opening();
    void Event_MouseDown();
};
