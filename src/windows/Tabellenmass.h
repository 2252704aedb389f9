// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a window of fixed places keeps its table's measures on the desktop at hand, whatever the
// desktop's font, scale and compositor: the window's size, and the fonts of its controls.
#pragma once

class QSize;
class QWidget;

// The window at its table's size and no other, where the desktop can be told so. A Wayland
// compositor cannot: it maximizes or fullscreens any window by its own keys and ends the program
// whose window keeps a size other than the one it was told. There the window may grow, and its
// controls keep their places.
void FesteGroesse(QWidget *fenster, QSize groesse);

// A font size that the table gives: pixels of the table's boxes, in the desktop's family, whatever
// size the desktop's font has.
void SchriftInPixeln(QWidget *control, int pixel);

// The system's size: the desktop's font, made smaller only as far as the control's text needs to
// stand whole in its fixed box.
void SchriftDesDesktops(QWidget *control);
