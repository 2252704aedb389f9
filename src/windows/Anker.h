// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Controls placed at fixed coordinates of a container's first size, each locked to some of
// its edges: a locked edge keeps its distance from that edge of the container, so a control
// locked left and right grows with it, and one locked right and bottom moves with the corner.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <QVector>

#include <cstdint>

class QWidget;

enum Lock : std::uint8_t {
    LockLeft = 1,
    LockTop = 2,
    LockRight = 4,
    LockBottom = 8,
};

class Anker : public QObject {
    Q_OBJECT
public:
    // The container's size for which the coordinates are given.
    Anker(QWidget *container, QSize entwurf);

    // Places the control at its coordinates and keeps it there by its locks from now on.
    void Setze(QWidget *control, QRect geometrie, unsigned locks);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Eintrag {
        QPointer<QWidget> control;
        QRect geometrie;
        unsigned locks;
    };
    void Anwenden(const Eintrag &eintrag, QSize jetzt) const;

    QWidget *m_container;
    QSize m_entwurf;
    QVector<Eintrag> m_eintraege;
};
