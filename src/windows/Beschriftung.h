// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A label that names a row of buttons beside it, for screen readers: each button is announced as
// labelled by it, and the label as the label of all of them. Qt ties a label to one buddy only, so
// the buttons and the label get accessible interfaces of their own that carry the relation.
#pragma once

#include <QList>

class QLabel;
class QPushButton;

void BeschrifteKnoepfe(QLabel *beschriftung, const QList<QPushButton *> &knoepfe);
